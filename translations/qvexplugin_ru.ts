<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Не удалось сохранить.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Назад к живому изображению</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Сделать снимок</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Серия
снимков</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Сделать серию снимков</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Записать видео со звуком</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Закончить запись</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Показать отснятое</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Изменить настройки</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Завершить программу</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Принять</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Оставить этот снимок</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Удалить этот снимок</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Пуск</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Воспроизвести видео</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Приостановить видео</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Показать выбранное</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Видео /
    Фото</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Список фото</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Фото /
    Видео</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Список видео</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Назад ко всем снимкам</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Вставить на доску</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Камера и микрофон не найдены.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Микрофон не найден.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Камера не найдена.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера недоступна. Проверьте, правильно ли подключено устройство. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Стоп-кадр</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Идёт запись</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Запись завершена</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Снимок сделан</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Живое изображение</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Что камера видит сейчас</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>КАМЕРА</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Не поддерживается</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Камера не найдена.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера недоступна. Проверьте, правильно ли подключено устройство. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера и микрофон недоступны. Проверьте, правильно ли подключено устройство. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Микрофон недоступен. Проверьте, правильно ли подключено устройство.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Воспроизводит записанное видео</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Отснятые фото и видео</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Выберите до девяти фото или одно видео</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Нельзя выбрать 10 или более.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>Сделанный снимок</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Показывает этот снимок как можно крупнее</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Возвращает ко всем выбранным снимкам</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Увеличить этот снимок</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Назад ко всем снимкам</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>На диске недостаточно свободного места.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Съёмка прекращена. Освободите место на диске. </translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>SaveConfirmDlg</name>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Do you want to save the Photo / Movie data?</source>
        <translation>Сохранить фото и видео?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>Выберите устройство:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Автоспуск:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>с</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Серийная съёмка:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Снимков</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Подтверждать снимок:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Разрешение:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Стандартная папка</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Другая папка</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Папка сохранения:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Автоспуск</translation>
    </message>
    <message>
        <source>second</source>
        <translation>с</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Серийная съёмка</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Снимков</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Подтверждать снимок</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Стандартная папка</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Другая папка</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Папка сохранения</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Укажите папку сохранения.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Указан неверный путь.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Автоспуск, время записи или воспроизведения</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> с до съёмки</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 с до съёмки  </translation>
    </message>
</context>
</TS>
