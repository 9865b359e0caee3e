<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Tallennus epäonnistui.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Takaisin live-kuvaan</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Kuva</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Ota kuva</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Sarja-
kuvaus</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Ota kuvasarja</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Tallenna video äänen kanssa</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Pysäytä</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Lopeta tallennus</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Luettelo</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Näytä otetut kuvat ja videot</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Muuta asetuksia</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Lopeta</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Lopeta ohjelma</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Hyväksy</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Säilytä tämä kuva</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Uudelleen</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Hylkää tämä kuva</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Toista</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Toista video</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tauko</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Keskeytä video</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Näytä</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Näytä valitut</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Kuva</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Luettele kuvat</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Kuva /
    Video</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Luettele videot</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Takaisin</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Takaisin kaikkiin kuviin</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Liitä</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Liitä taululle</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Kameraa ja mikrofonia ei löydy.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Mikrofonia ei löydy.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kameraa ei löydy.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera ei ole käytettävissä. Tarkista, että laite on kytketty oikein. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Pysäytyskuva</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Tallennetaan</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Tallennus päättyi</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Valokuva otettu</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Live-kuva</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Mitä kamera näkee nyt</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Ei tuettu</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kameraa ei löydy.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera ei ole käytettävissä. Tarkista, että laite on kytketty oikein. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera ja mikrofoni eivät ole käytettävissä. Tarkista, että laite on kytketty oikein. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofoni ei ole käytettävissä. Tarkista, että laite on kytketty oikein.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Toistaa tallennetun videon</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Otetut kuvat</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Valitse enintään yhdeksän kuvaa tai yksi video</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Et voi valita 10:tä tai useampaa.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Kuva</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>Otettu kuva</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Näyttää tämän kuvan mahdollisimman suurena</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Palaa kaikkiin valittuihin kuviin</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Suurenna tämä kuva</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Takaisin kaikkiin kuviin</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Levyllä ei ole tarpeeksi vapaata tilaa.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Kuvaus keskeytetään. Vapauta levytilaa. </translation>
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
        <translation>Peruuta</translation>
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
        <translation>Haluatko tallentaa kuvat ja videot?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Kyllä</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ei</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
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
        <translation>Valitse laite:</translation>
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
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Itselaukaisin:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sekuntia</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Sarjakuvaus:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Kuvaa</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Vahvista otettu kuva:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Tarkkuus:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Käytä oletussijaintia</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Käytä muuta sijaintia</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Tallennuskansio:</translation>
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
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Itselaukaisin</translation>
    </message>
    <message>
        <source>second</source>
        <translation>sekuntia</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Sarjakuvaus</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Kuvaa</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Vahvista otettu kuva</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Tarkkuus</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Käytä oletussijaintia</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Käytä muuta sijaintia</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Tallennuskansio</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Määritä tallennuspaikka.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Määritetty polku ei kelpaa.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Itselaukaisin, tallennusaika tai toistoaika</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s kuvaukseen</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s kuvaukseen  </translation>
    </message>
</context>
</TS>
