<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Nie udało się zapisać.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Na żywo</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Powrót do obrazu na żywo</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Zrób zdjęcie</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Zdjęcia
seryjne</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Zrób serię zdjęć</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Nagraj film z dźwiękiem</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Zakończ nagrywanie</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Pokaż zdjęcia i filmy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Zmień ustawienia</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Zakończ program</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Akceptuj</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Zachowaj to zdjęcie</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Odrzuć to zdjęcie</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwórz</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Odtwórz film</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Wstrzymaj film</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Pokaż zaznaczone</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Zdjęcie</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Lista zdjęć</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Zdjęcie /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Lista filmów</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Powrót do wszystkich zdjęć</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Wklej na tablicę</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nie znaleziono kamery ani mikrofonu.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nie znaleziono mikrofonu.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nie znaleziono kamery.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera jest niedostępna. Sprawdź, czy urządzenie jest prawidłowo podłączone. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stopklatka</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Trwa nagrywanie</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Nagrywanie zakończone</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Zrobiono zdjęcie</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Obraz na żywo</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>To, co teraz widzi kamera</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>NA ŻYWO</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Nieobsługiwane</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nie znaleziono kamery.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera jest niedostępna. Sprawdź, czy urządzenie jest prawidłowo podłączone. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera i mikrofon są niedostępne. Sprawdź, czy urządzenie jest prawidłowo podłączone. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofon jest niedostępny. Sprawdź, czy urządzenie jest prawidłowo podłączone.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Odtwarza nagrany film</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Wykonane zdjęcia i filmy</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Wybierz najwyżej dziewięć zdjęć lub jeden film</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Nie można zaznaczyć 10 lub więcej.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>Wykonane zdjęcie</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Pokazuje to zdjęcie w największym rozmiarze</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Wraca do wszystkich wybranych zdjęć</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Powiększ to zdjęcie</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Powrót do wszystkich zdjęć</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Za mało wolnego miejsca na dysku.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Przerwano wykonywanie zdjęć. Zwolnij miejsce na dysku. </translation>
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
        <translation>Anuluj</translation>
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
        <translation>Czy zapisać zdjęcia i filmy?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
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
        <translation>Wybierz urządzenie:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Samowyzwalacz:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Zdjęcia seryjne:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Zatwierdzanie zdjęcia:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Rozdzielczość:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Użyj domyślnego miejsca</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Użyj innego miejsca</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Folder zapisu:</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Samowyzwalacz</translation>
    </message>
    <message>
        <source>second</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Zdjęcia seryjne</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Zatwierdzanie zdjęcia</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Użyj domyślnego miejsca</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Użyj innego miejsca</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Folder zapisu</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Podaj miejsce zapisu.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Podana ścieżka jest nieprawidłowa.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Samowyzwalacz, czas nagrania lub czas odtwarzania</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s do zdjęcia</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s do zdjęcia  </translation>
    </message>
</context>
</TS>
