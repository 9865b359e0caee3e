<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Speichern fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Zurück zum Livebild</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Ein Foto aufnehmen</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Serien-
aufnahme</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Eine Serie von Fotos aufnehmen</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Einen Film mit Ton aufnehmen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Die Aufnahme beenden</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Die Aufnahmen zeigen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Die Optionen ändern</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Dieses Foto behalten</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Dieses Foto verwerfen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Den Film abspielen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Den Film anhalten</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Die Auswahl zeigen</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Die Fotos auflisten</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Die Filme auflisten</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Zurück zu allen Bildern</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Auf der Tafel einfügen</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Weder Kamera noch Mikrofon gefunden.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Kein Mikrofon gefunden.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Keine Kamera gefunden.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Die Kamera ist nicht verwendbar. Bitte prüfen Sie, ob das Gerät richtig angeschlossen ist. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Standbild</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Aufnahme beendet</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Foto aufgenommen</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Livebild</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Was die Kamera gerade sieht</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Nicht unterstützt</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Keine Kamera gefunden.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Die Kamera ist nicht verwendbar. Bitte prüfen Sie, ob das Gerät richtig angeschlossen ist. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Die Kamera und das Mikrofon sind nicht verwendbar. Bitte prüfen Sie, ob das Gerät richtig angeschlossen ist. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Das Mikrofon ist nicht verwendbar. Bitte prüfen Sie, ob das Gerät richtig angeschlossen ist.</translation>
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
        <translation>Spielt einen aufgenommenen Film ab</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Aufgenommene Bilder</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Wählen Sie bis zu neun Fotos oder einen Film</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Sie können nicht 10 oder mehr auswählen.</translation>
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
        <translation>Ein aufgenommenes Foto</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Zeigt dieses Foto so groß wie möglich</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Kehrt zu allen gewählten Fotos zurück</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Dieses Foto vergrößern</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Zurück zu allen Fotos</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Der freie Speicherplatz reicht nicht aus.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Die Aufnahme wird abgebrochen. Bitte schaffen Sie freien Speicherplatz. </translation>
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
        <translation>Abbrechen</translation>
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
        <translation>Möchten Sie die Fotos und Filme speichern?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Bitte Gerät wählen:</translation>
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
        <translation>Optionen</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Selbstauslöser:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Serienaufnahme:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Aufgenommenes Bild bestätigen:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Auflösung:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Standardordner verwenden</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Anderen Ordner verwenden</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Speicherordner:</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Selbstauslöser</translation>
    </message>
    <message>
        <source>second</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Serienaufnahme</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Aufgenommenes Bild bestätigen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Standardordner verwenden</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Anderen Ordner verwenden</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Speicherordner</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Bitte geben Sie einen Speicherordner an.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Der angegebene Pfad ist ungültig.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Selbstauslöser, Aufnahmezeit oder Spielzeit</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s bis zur Aufnahme</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s bis zur Aufnahme  </translation>
    </message>
</context>
</TS>
