<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Salvataggio non riuscito.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Torna all’immagine dal vivo</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Scatta una foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Scatti
continui</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Scatta una serie di foto</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Filmato</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Registra un filmato con audio</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Termina la registrazione</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Mostra le acquisizioni</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Modifica le impostazioni</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Chiudi il programma</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Accetta</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Conserva questa foto</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Elimina questa foto</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Riproduci il filmato</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Metti in pausa il filmato</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Mostra la selezione</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Filmato /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Elenca le foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Filmato</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Elenca i filmati</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Torna a tutte le immagini</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Incolla sulla lavagna</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nessuna videocamera e nessun microfono trovati.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nessun microfono trovato.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nessuna videocamera trovata.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La videocamera non è utilizzabile. Verificare che il dispositivo sia collegato correttamente. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Fermo immagine</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Registrazione in corso</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Registrazione terminata</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Foto scattata</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Immagine dal vivo</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Ciò che la videocamera vede ora</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Non supportato</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nessuna videocamera trovata.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La videocamera non è utilizzabile. Verificare che il dispositivo sia collegato correttamente. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La videocamera e il microfono non sono utilizzabili. Verificare che il dispositivo sia collegato correttamente. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Il microfono non è utilizzabile. Verificare che il dispositivo sia collegato correttamente.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Filmato</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Riproduce un filmato registrato</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Immagini acquisite</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Scegliere fino a nove foto o un filmato</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Non è possibile selezionarne 10 o più.</translation>
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
        <translation>Una foto acquisita</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Mostra questa foto il più grande possibile</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Torna a tutte le foto scelte</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Ingrandisci questa foto</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Torna a tutte le foto</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Lo spazio libero su disco è insufficiente.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>La ripresa viene interrotta. Liberare spazio su disco. </translation>
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
        <translation>Annulla</translation>
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
        <translation>Salvare le foto e i filmati?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>Scegliere un dispositivo:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Videocamera</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Autoscatto:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Scatti continui:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Scatti</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Conferma l’immagine acquisita:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Risoluzione:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Usa la posizione predefinita</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Usa un’altra posizione</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Cartella di salvataggio:</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Autoscatto</translation>
    </message>
    <message>
        <source>second</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Scatti continui</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Scatti</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Conferma l’immagine acquisita</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Usa la posizione predefinita</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Usa un’altra posizione</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Cartella di salvataggio</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Specificare dove salvare.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Il percorso specificato non è valido.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Autoscatto, tempo di registrazione o di riproduzione</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s allo scatto</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s allo scatto  </translation>
    </message>
</context>
</TS>
