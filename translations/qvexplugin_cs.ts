<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Uložení se nezdařilo.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Živě</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Zpět k živému obrazu</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Pořídit fotografii</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Sériové
snímání</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Pořídit sérii fotografií</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Nahrát film se zvukem</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Ukončit nahrávání</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Seznam</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Zobrazit pořízené snímky</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Změnit nastavení</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Ukončit program</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Přijmout</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Ponechat tuto fotografii</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Znovu</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Zahodit tuto fotografii</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Přehrát film</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Pozastavit film</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Zobrazit</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Zobrazit vybrané</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Vypsat fotografie</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Vypsat filmy</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Zpět ke všem snímkům</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Vložit na tabuli</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nebyla nalezena kamera ani mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nebyl nalezen mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nebyla nalezena kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera není k dispozici. Zkontrolujte, zda je zařízení správně připojeno. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Snímek</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Nahrávání</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Nahrávání skončilo</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Fotografie pořízena</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Živý obraz</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Co kamera právě vidí</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>ŽIVĚ</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Není podporováno</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nebyla nalezena kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera není k dispozici. Zkontrolujte, zda je zařízení správně připojeno. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera a mikrofon nejsou k dispozici. Zkontrolujte, zda je zařízení správně připojeno. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofon není k dispozici. Zkontrolujte, zda je zařízení správně připojeno.</translation>
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
        <translation>Přehrává nahraný film</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Pořízené snímky</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Vyberte nejvýše devět fotografií nebo jeden film</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Nelze vybrat 10 nebo více položek.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>Pořízená fotografie</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Zobrazí tuto fotografii co největší</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Vrátí se ke všem vybraným fotografiím</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Zvětšit tuto fotografii</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Zpět ke všem fotografiím</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Na disku není dostatek volného místa.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Snímání je přerušeno. Uvolněte prosím místo. </translation>
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
        <translation>Zrušit</translation>
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
        <translation>Chcete uložit fotografie a filmy?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
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
        <translation>Vyberte zařízení:</translation>
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
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Samospoušť:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Sériové snímání:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Snímky</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Potvrdit pořízený snímek:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Rozlišení:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Použít výchozí umístění</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Použít jiné umístění</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Složka pro uložení:</translation>
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
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Samospoušť</translation>
    </message>
    <message>
        <source>second</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Sériové snímání</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Snímky</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Potvrdit pořízený snímek</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozlišení</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Použít výchozí umístění</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Použít jiné umístění</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Složka pro uložení</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Zadejte umístění pro uložení.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Zadaná cesta je neplatná.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Samospoušť, doba nahrávání nebo přehrávání</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s do pořízení snímku</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s do pořízení snímku  </translation>
    </message>
</context>
</TS>
