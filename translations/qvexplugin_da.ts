<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Det lykkedes ikke at gemme.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Tilbage til livebilledet</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Tag et foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Serie-
optagelse</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Tag en serie fotos</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Optag en film med lyd</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Afslut optagelsen</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Vis det optagne</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Ændr indstillingerne</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Afslut programmet</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behold</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Behold dette foto</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Kassér dette foto</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspil</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Afspil filmen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Sæt filmen på pause</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Vis det valgte</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Vis listen over fotos</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Vis listen over film</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Tilbage til alle billeder</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Indsæt</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Indsæt på tavlen</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Der blev ikke fundet noget kamera eller nogen mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Der blev ikke fundet nogen mikrofon.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Der blev ikke fundet noget kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet kan ikke bruges. Kontrollér, at enheden er tilsluttet korrekt. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stillbillede</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Optager</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Optagelsen er slut</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Foto taget</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Livebillede</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Det, kameraet ser nu</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Understøttes ikke</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Der blev ikke fundet noget kamera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet kan ikke bruges. Kontrollér, at enheden er tilsluttet korrekt. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameraet og mikrofonen kan ikke bruges. Kontrollér, at enheden er tilsluttet korrekt. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofonen kan ikke bruges. Kontrollér, at enheden er tilsluttet korrekt.</translation>
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
        <translation>Afspiller en optaget film</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Optagne billeder</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Vælg op til ni fotos eller én film</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Du kan ikke vælge 10 eller flere.</translation>
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
        <translation>Et optaget foto</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Viser dette foto så stort som muligt</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Vender tilbage til alle valgte fotos</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Forstør dette foto</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Tilbage til alle fotos</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Der er ikke nok ledig plads på disken.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Optagelsen er afbrudt. Frigør plads på disken. </translation>
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
        <translation>Annuller</translation>
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
        <translation>Vil du gemme fotos og film?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
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
        <translation>Vælg en enhed:</translation>
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
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Selvudløser:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Serieoptagelse:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Billeder</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Bekræft optaget billede:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Opløsning:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Brug standardplacering</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Brug anden placering</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Mappe til lagring:</translation>
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
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Selvudløser</translation>
    </message>
    <message>
        <source>second</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Serieoptagelse</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Billeder</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Bekræft optaget billede</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Opløsning</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Brug standardplacering</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Brug anden placering</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Mappe til lagring</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Angiv, hvor der skal gemmes.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Den angivne sti er ugyldig.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Selvudløser, optagetid eller afspilningstid</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s til optagelse</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s til optagelse  </translation>
    </message>
</context>
</TS>
