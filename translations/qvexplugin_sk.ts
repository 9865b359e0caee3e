<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Uloženie zlyhalo.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Naživo</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Späť k živému obrazu</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Odfotografovať</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Sériové
snímanie</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Urobiť sériu fotografií</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Nahrať film so zvukom</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Ukončiť nahrávanie</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Zoznam</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Zobraziť zhotovené snímky</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavenia</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Zmeniť nastavenia</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Ukončiť program</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Prijať</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Ponechať túto fotografiu</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Znova</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Zahodiť túto fotografiu</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Prehrať</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Prehrať film</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Pozastaviť film</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Zobraziť</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Zobraziť vybrané</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Vypísať fotografie</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Vypísať filmy</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Späť</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Späť ku všetkým snímkam</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložiť</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Vložiť na tabuľu</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nenašla sa kamera ani mikrofón.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nenašiel sa mikrofón.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nenašla sa kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera nie je k dispozícii. Skontrolujte, či je zariadenie správne pripojené. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Snímka</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Nahráva sa</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Nahrávanie sa skončilo</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Fotografia bola vytvorená</translation>
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
        <translation>Čo kamera práve vidí</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>NAŽIVO</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Nie je podporované</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nenašla sa kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera nie je k dispozícii. Skontrolujte, či je zariadenie správne pripojené. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera a mikrofón nie sú k dispozícii. Skontrolujte, či je zariadenie správne pripojené. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofón nie je k dispozícii. Skontrolujte, či je zariadenie správne pripojené.</translation>
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
        <translation>Prehráva nahratý film</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Zhotovené snímky</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Vyberte najviac deväť fotografií alebo jeden film</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Nemožno vybrať 10 alebo viac položiek.</translation>
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
        <translation>Zhotovená fotografia</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Zobrazí túto fotografiu čo najväčšiu</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Vráti sa ku všetkým vybraným fotografiám</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Zväčšiť túto fotografiu</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Späť ku všetkým fotografiám</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Na disku nie je dosť voľného miesta.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Snímanie je prerušené. Uvoľnite miesto na disku. </translation>
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
        <translation>Zrušiť</translation>
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
        <translation>Chcete uložiť fotografie a filmy?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Áno</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
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
        <translation>Vyberte zariadenie:</translation>
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
        <translation>Nastavenia</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Samospúšť:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Sériové snímanie:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Snímky</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Potvrdiť zhotovenú snímku:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Rozlíšenie:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Použiť predvolené miesto</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Použiť iné miesto</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Priečinok na uloženie:</translation>
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
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Samospúšť</translation>
    </message>
    <message>
        <source>second</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Sériové snímanie</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Snímky</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Potvrdiť zhotovenú snímku</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozlíšenie</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Použiť predvolené miesto</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Použiť iné miesto</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Priečinok na uloženie</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Zadajte miesto uloženia.</translation>
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
        <translation>Samospúšť, čas nahrávania alebo prehrávania</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s do zhotovenia snímky</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s do zhotovenia snímky  </translation>
    </message>
</context>
</TS>
