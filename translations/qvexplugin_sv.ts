<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Det gick inte att spara.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Tillbaka till livebilden</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Ta ett foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Serie-
foto</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Ta en serie foton</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Spela in en film med ljud</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Avsluta inspelningen</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Visa det som tagits</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Ändra inställningarna</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Avsluta programmet</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Behåll</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Behåll detta foto</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Kasta detta foto</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spela upp</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Spela upp filmen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Paus</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Pausa filmen</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visa</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Visa det markerade</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Film /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Lista fotona</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Film</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Lista filmerna</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Tillbaka till alla bilder</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Klistra in</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Klistra in på tavlan</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Ingen kamera och ingen mikrofon hittades.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Ingen mikrofon hittades.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Ingen kamera hittades.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameran kan inte användas. Kontrollera att enheten är rätt ansluten. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Stillbild</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Spelar in</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Inspelningen är avslutad</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Fotot är taget</translation>
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
        <translation>Vad kameran ser just nu</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Stöds inte</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Ingen kamera hittades.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameran kan inte användas. Kontrollera att enheten är rätt ansluten. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kameran och mikrofonen kan inte användas. Kontrollera att enheten är rätt ansluten. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofonen kan inte användas. Kontrollera att enheten är rätt ansluten.</translation>
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
        <translation>Spelar upp en inspelad film</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Tagna bilder</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Välj upp till nio foton eller en film</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Du kan inte markera 10 eller fler.</translation>
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
        <translation>Ett taget foto</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Visar detta foto så stort som möjligt</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Återgår till alla valda foton</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Förstora detta foto</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Tillbaka till alla foton</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Det finns inte tillräckligt med ledigt diskutrymme.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Fotograferingen avbryts. Frigör diskutrymme. </translation>
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
        <translation>Vill du spara foton och filmer?</translation>
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
        <translation>Välj en enhet:</translation>
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
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Självutlösare:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Seriefoto:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Bekräfta tagen bild:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Upplösning:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Använd standardplats</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Använd annan plats</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Mapp att spara i:</translation>
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
        <translation>Självutlösare</translation>
    </message>
    <message>
        <source>second</source>
        <translation>sekunder</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Seriefoto</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Bekräfta tagen bild</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Upplösning</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Använd standardplats</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Använd annan plats</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Mapp att spara i</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Ange var bilderna ska sparas.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Den angivna sökvägen är ogiltig.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Självutlösare, inspelningstid eller speltid</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s till bilden tas</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s till bilden tas  </translation>
    </message>
</context>
</TS>
