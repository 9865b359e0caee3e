<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Не вдалося зберегти.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Наживо</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Назад до живого зображення</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Фото</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Зробити знімок</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Серія
знімків</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Зробити серію знімків</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Відео</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Записати відео зі звуком</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Закінчити запис</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Показати відзняте</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Параметри</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Змінити параметри</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Вихід</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Завершити програму</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Прийняти</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Залишити цей знімок</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Видалити цей знімок</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Відтворити</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Відтворити відео</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Призупинити відео</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Показати</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Показати вибране</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Відео /
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
    Відео</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Список відео</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Назад до всіх знімків</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставити</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Вставити на дошку</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Камеру й мікрофон не знайдено.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Мікрофон не знайдено.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Камеру не знайдено.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера недоступна. Перевірте, чи правильно під’єднано пристрій. </translation>
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
        <translation>Триває запис</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Запис завершено</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Знімок зроблено</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Живе зображення</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Що камера бачить зараз</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>НАЖИВО</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Не підтримується</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Камеру не знайдено.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера недоступна. Перевірте, чи правильно під’єднано пристрій. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Камера й мікрофон недоступні. Перевірте, чи правильно під’єднано пристрій. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Мікрофон недоступний. Перевірте, чи правильно під’єднано пристрій.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Відео</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Відтворює записане відео</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Відзняті фото та відео</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Виберіть до дев’яти фото або одне відео</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Не можна вибрати 10 або більше.</translation>
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
        <translation>Зроблений знімок</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Показує цей знімок якомога більшим</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Повертає до всіх вибраних знімків</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Збільшити цей знімок</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Назад до всіх знімків</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>На диску недостатньо вільного місця.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Зйомку припинено. Звільніть місце на диску. </translation>
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
        <translation>Скасувати</translation>
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
        <translation>Зберегти фото та відео?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Так</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ні</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
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
        <translation>Виберіть пристрій:</translation>
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
        <translation>Параметри</translation>
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
        <translation>Серійна зйомка:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Знімків</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Підтверджувати знімок:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Роздільність:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Стандартна папка</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Інша папка</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Папка збереження:</translation>
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
        <translation>Скасувати</translation>
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
        <translation>Серійна зйомка</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Знімків</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Підтверджувати знімок</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Роздільність</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Стандартна папка</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Інша папка</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Папка збереження</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Укажіть папку збереження.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Указано хибний шлях.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Автоспуск, час запису або відтворення</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> с до зйомки</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 с до зйомки  </translation>
    </message>
</context>
</TS>
