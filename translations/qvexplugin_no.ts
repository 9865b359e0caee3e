<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="no" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Lagringen mislyktes.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Tilbake til livebildet</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Ta et foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Serie-
opptak</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Ta en serie fotoer</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Ta opp en film med lyd</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Avslutt opptaket</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Vis det som er tatt opp</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Endre innstillingene</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Avslutt programmet</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behold</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Behold dette fotoet</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv igjen</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Forkast dette fotoet</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spill av</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Spill av filmen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Sett filmen på pause</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Vis det som er valgt</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>List opp fotoene</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>List opp filmene</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Tilbake til alle bildene</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Lim inn</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Lim inn på tavlen</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Fant verken kamera eller mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Fant ingen mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Fant ikke noe kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet kan ikke brukes. Kontroller at enheten er riktig tilkoblet. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stillbilde</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Tar opp</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Opptaket er avsluttet</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Bildet er tatt</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Livebilde</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Det kameraet ser nå</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Støttes ikke</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Fant ikke noe kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet kan ikke brukes. Kontroller at enheten er riktig tilkoblet. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet og mikrofonen kan ikke brukes. Kontroller at enheten er riktig tilkoblet. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofonen kan ikke brukes. Kontroller at enheten er riktig tilkoblet.</translation>
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
        <translation>Spiller av en film som er tatt opp</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Bilder som er tatt</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Velg opptil ni fotoer eller én film</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Du kan ikke velge 10 eller flere.</translation>
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
        <translation>Et foto som er tatt</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Viser dette fotoet så stort som mulig</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Går tilbake til alle valgte fotoer</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Forstørr dette fotoet</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Tilbake til alle fotoene</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Det er ikke nok ledig plass på disken.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Opptaket avbrytes. Frigjør plass på disken. </translation>
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
        <translation>Avbryt</translation>
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
        <translation>Vil du lagre fotoene og filmene?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nei</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
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
        <translation>Velg en enhet:</translation>
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
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Selvutløser:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Serieopptak:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Bekreft bildet som er tatt:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Oppløsning:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Bruk standardplassering</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Bruk annen plassering</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Lagringsmappe:</translation>
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
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Selvutløser</translation>
    </message>
    <message>
        <source>second</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Serieopptak</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Bekreft bildet som er tatt</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Oppløsning</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Bruk standardplassering</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Bruk annen plassering</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Lagringsmappe</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Angi hvor det skal lagres.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Den angitte banen er ugyldig.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Selvutløser, opptakstid eller spilletid</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s til opptak</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s til opptak  </translation>
    </message>
</context>
</TS>
