<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>No se pudo guardar.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>En vivo</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Volver a la imagen en vivo</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Tomar una foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Captura
continua</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Tomar una serie de fotos</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Grabar un vídeo con sonido</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Terminar la grabación</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Mostrar lo capturado</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Cambiar los ajustes</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Cerrar el programa</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Conservar esta foto</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Descartar esta foto</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Reproducir el vídeo</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Poner el vídeo en pausa</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Mostrar lo seleccionado</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Vídeo /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Listar las fotos</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Vídeo</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Listar los vídeos</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Volver a todas las imágenes</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Pegar en la pizarra</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>No se encuentra ninguna cámara ni ningún micrófono.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>No se encuentra ningún micrófono.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>No se encuentra ninguna cámara.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La cámara no está disponible. Compruebe que el dispositivo esté bien conectado. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Imagen fija</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabando</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Grabación terminada</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Foto tomada</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Imagen en vivo</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Lo que ve la cámara ahora</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>EN VIVO</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>No compatible</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>No se encuentra ninguna cámara.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La cámara no está disponible. Compruebe que el dispositivo esté bien conectado. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La cámara y el micrófono no están disponibles. Compruebe que el dispositivo esté bien conectado. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>El micrófono no está disponible. Compruebe que el dispositivo esté bien conectado.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Reproduce un vídeo grabado</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Imágenes capturadas</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Elija hasta nueve fotos o un vídeo</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>No puede seleccionar 10 o más.</translation>
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
        <translation>Una foto capturada</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Muestra esta foto lo más grande posible</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Vuelve a todas las fotos elegidas</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Ampliar esta foto</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Volver a todas las fotos</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>No hay suficiente espacio libre en el disco.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Se interrumpe la captura. Libere espacio, por favor. </translation>
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
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>¿Desea guardar las fotos y los vídeos?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>Elija un dispositivo:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Temporizador:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Captura continua:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Confirmar la imagen capturada:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolución:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Usar la ubicación predeterminada</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Usar otra ubicación</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Carpeta para guardar:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Temporizador</translation>
    </message>
    <message>
        <source>second</source>
        <translation>segundos</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Captura continua</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Confirmar la imagen capturada</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Usar la ubicación predeterminada</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Usar otra ubicación</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Carpeta para guardar</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Indique dónde guardar.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>La ruta indicada no es válida.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Temporizador, tiempo de grabación o de reproducción</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s para la captura</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s para la captura  </translation>
    </message>
</context>
</TS>
