<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Salvarea nu a reușit.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Înapoi la imaginea live</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Fă o fotografie</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Captură
continuă</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Fă o serie de fotografii</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Înregistrează un film cu sunet</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Încheie înregistrarea</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Listă</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Arată ce s-a capturat</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Modifică setările</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ieșire</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Încheie programul</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Acceptă</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Păstrează această fotografie</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Repetă</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Renunță la această fotografie</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Redare</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Redă filmul</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauză</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Întrerupe filmul</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Afișare</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Arată ce este selectat</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Listează fotografiile</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Listează filmele</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Înapoi la toate imaginile</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Lipire</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Lipește pe tablă</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nu s-a găsit nicio cameră și niciun microfon.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nu s-a găsit niciun microfon.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nu s-a găsit nicio cameră.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Camera nu este disponibilă. Verificați dacă dispozitivul este conectat corect. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Imagine fixă</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Se înregistrează</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Înregistrarea s-a încheiat</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Fotografie făcută</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Imagine live</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Ce vede camera acum</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Neacceptat</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nu s-a găsit nicio cameră.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Camera nu este disponibilă. Verificați dacă dispozitivul este conectat corect. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Camera și microfonul nu sunt disponibile. Verificați dacă dispozitivul este conectat corect. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Microfonul nu este disponibil. Verificați dacă dispozitivul este conectat corect.</translation>
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
        <translation>Redă un film înregistrat</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Imagini capturate</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Alegeți cel mult nouă fotografii sau un film</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Nu puteți selecta 10 sau mai multe.</translation>
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
        <translation>O fotografie capturată</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Arată această fotografie cât mai mare</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Revine la toate fotografiile alese</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Mărește această fotografie</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Înapoi la toate fotografiile</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Spațiul liber pe disc este insuficient.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Captura este întreruptă. Eliberați spațiu pe disc. </translation>
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
        <translation>Anulare</translation>
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
        <translation>Doriți să salvați fotografiile și filmele?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
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
        <translation>Alegeți un dispozitiv:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cameră</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Temporizator:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>secunde</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Captură continuă:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Imagini</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Confirmă imaginea capturată:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Rezoluție:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Folosește locația implicită</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Folosește altă locație</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Dosar pentru salvare:</translation>
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
        <translation>Anulare</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Temporizator</translation>
    </message>
    <message>
        <source>second</source>
        <translation>secunde</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Captură continuă</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Imagini</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Confirmă imaginea capturată</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rezoluție</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Folosește locația implicită</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Folosește altă locație</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Dosar pentru salvare</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Precizați unde se salvează.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Calea specificată nu este validă.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Temporizator, timp de înregistrare sau de redare</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s până la captură</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s până la captură  </translation>
    </message>
</context>
</TS>
