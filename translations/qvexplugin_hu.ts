<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>A mentés nem sikerült.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Élőkép</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Vissza az élőképhez</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Fotó</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Fotó készítése</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Sorozat-
felvétel</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Fotósorozat készítése</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Film felvétele hanggal</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Leállítás</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>A felvétel befejezése</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>A felvételek megjelenítése</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>A beállítások módosítása</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Kilépés a programból</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Elfogad</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>A fotó megtartása</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>A fotó eldobása</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lejátszás</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>A film lejátszása</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szünet</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>A film szüneteltetése</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Megnéz</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>A kijelöltek megjelenítése</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Fotó</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>A fotók listája</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Fotó /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>A filmek listája</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Vissza az összes képhez</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Beillesztés</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Beillesztés a táblára</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nem található kamera és mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nem található mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nem található kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A kamera nem használható. Ellenőrizze, hogy az eszköz megfelelően csatlakozik-e. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Állókép</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Felvétel folyamatban</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>A felvétel véget ért</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>A fénykép elkészült</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Élőkép</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Amit a kamera most lát</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>ÉLŐKÉP</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Nem támogatott</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nem található kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A kamera nem használható. Ellenőrizze, hogy az eszköz megfelelően csatlakozik-e. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A kamera és a mikrofon nem használható. Ellenőrizze, hogy az eszköz megfelelően csatlakozik-e. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>A mikrofon nem használható. Ellenőrizze, hogy az eszköz megfelelően csatlakozik-e.</translation>
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
        <translation>Felvett filmet játszik le</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Elkészült képek</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Válasszon legfeljebb kilenc fotót vagy egy filmet</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>10 vagy több elem nem jelölhető ki.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Fotó</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>Elkészült fotó</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>A fotót a lehető legnagyobb méretben mutatja</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Visszatér az összes kiválasztott fotóhoz</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>A fotó nagyítása</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Vissza az összes fotóhoz</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Nincs elég szabad hely a lemezen.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>A felvétel megszakad. Szabadítson fel helyet. </translation>
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
        <translation>Mégse</translation>
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
        <translation>Szeretné menteni a fotókat és a filmeket?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
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
        <translation>Válasszon eszközt:</translation>
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
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Önkioldó:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>mp</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Sorozatfelvétel:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Kép</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Elkészült kép jóváhagyása:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Felbontás:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Alapértelmezett hely</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Más hely használata</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Mentési mappa:</translation>
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
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Önkioldó</translation>
    </message>
    <message>
        <source>second</source>
        <translation>mp</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Sorozatfelvétel</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Kép</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Elkészült kép jóváhagyása</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Felbontás</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Alapértelmezett hely</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Más hely használata</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Mentési mappa</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Adja meg a mentés helyét.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>A megadott útvonal érvénytelen.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Önkioldó, felvételi idő vagy lejátszási idő</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> mp a felvételig</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 mp a felvételig  </translation>
    </message>
</context>
</TS>
