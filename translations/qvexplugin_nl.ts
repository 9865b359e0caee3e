<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Opslaan mislukt.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Terug naar het livebeeld</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Een foto maken</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Continue
opname</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Een reeks foto’s maken</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Een film met geluid opnemen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>De opname beëindigen</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lijst</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Tonen wat is opgenomen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>De instellingen wijzigen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Het programma afsluiten</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Deze foto behouden</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Deze foto weggooien</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>De film afspelen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauze</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>De film pauzeren</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Bekijken</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>De selectie tonen</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>De foto’s tonen</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>De films tonen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Terug naar alle beelden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Plakken</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Op het bord plakken</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Geen camera en geen microfoon gevonden.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Geen microfoon gevonden.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Geen camera gevonden.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>De camera is niet bruikbaar. Controleer of het apparaat goed is aangesloten. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stilstaand beeld</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Bezig met opnemen</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Opname beëindigd</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Foto genomen</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Livebeeld</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Wat de camera nu ziet</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Niet ondersteund</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Geen camera gevonden.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>De camera is niet bruikbaar. Controleer of het apparaat goed is aangesloten. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>De camera en de microfoon zijn niet bruikbaar. Controleer of het apparaat goed is aangesloten. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>De microfoon is niet bruikbaar. Controleer of het apparaat goed is aangesloten.</translation>
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
        <translation>Speelt een opgenomen film af</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Opgenomen beelden</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Kies hoogstens negen foto’s of één film</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>U kunt er niet 10 of meer selecteren.</translation>
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
        <translation>Een gemaakte foto</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Toont deze foto zo groot mogelijk</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Keert terug naar alle gekozen foto’s</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Deze foto vergroten</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Terug naar alle foto’s</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Er is onvoldoende vrije schijfruimte.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>De opname is gestopt. Maak schijfruimte vrij. </translation>
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
        <translation>Annuleren</translation>
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
        <translation>Wilt u de foto’s en films opslaan?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
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
        <translation>Kies een apparaat:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Zelfontspanner:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>seconden</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Continue opname:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Gemaakte foto bevestigen:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolutie:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Standaardlocatie gebruiken</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Andere locatie gebruiken</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Opslagmap:</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Zelfontspanner</translation>
    </message>
    <message>
        <source>second</source>
        <translation>seconden</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Continue opname</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Gemaakte foto bevestigen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Standaardlocatie gebruiken</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Andere locatie gebruiken</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Opslagmap</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Geef op waar moet worden opgeslagen.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Het opgegeven pad is ongeldig.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Zelfontspanner, opnametijd of speeltijd</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s tot opname</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s tot opname  </translation>
    </message>
</context>
</TS>
