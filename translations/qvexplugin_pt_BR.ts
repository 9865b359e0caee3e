<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Falha ao salvar.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Ao vivo</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Voltar à imagem ao vivo</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Tirar uma foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Captura
contínua</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Tirar uma série de fotos</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Gravar um vídeo com som</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Encerrar a gravação</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Mostrar o que foi capturado</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Alterar os ajustes</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Encerrar o programa</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Aceitar</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Manter esta foto</translation>
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
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Reproduzir o vídeo</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Pausar o vídeo</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Exibir</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Mostrar o que está selecionado</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Vídeo /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Listar as fotos</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Vídeo</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Listar os vídeos</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Voltar a todas as imagens</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Colar na lousa</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nenhuma câmera e nenhum microfone encontrados.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nenhum microfone encontrado.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nenhuma câmera encontrada.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A câmera não está disponível. Verifique se o dispositivo está conectado corretamente. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Imagem estática</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Gravando</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Gravação encerrada</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Foto tirada</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Imagem ao vivo</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>O que a câmera vê agora</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>AO VIVO</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Não suportado</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nenhuma câmera encontrada.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A câmera não está disponível. Verifique se o dispositivo está conectado corretamente. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>A câmera e o microfone não estão disponíveis. Verifique se o dispositivo está conectado corretamente. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>O microfone não está disponível. Verifique se o dispositivo está conectado corretamente.</translation>
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
        <translation>Reproduz um vídeo gravado</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Imagens capturadas</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Escolha até nove fotos ou um vídeo</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Não é possível selecionar 10 ou mais.</translation>
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
        <translation>Uma foto capturada</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Mostra esta foto no maior tamanho possível</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Volta a todas as fotos escolhidas</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Ampliar esta foto</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Voltar a todas as fotos</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>O espaço livre em disco é insuficiente.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>A captura foi interrompida. Libere espaço em disco. </translation>
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
        <translation>Deseja salvar as fotos e os vídeos?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>Escolha um dispositivo:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Câmera</translation>
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
        <translation>Captura contínua:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Confirmar a imagem capturada:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolução:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Usar o local padrão</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Usar outro local</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Pasta para salvar:</translation>
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
        <translation>Captura contínua</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Confirmar a imagem capturada</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Usar o local padrão</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Usar outro local</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Pasta para salvar</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Especifique onde salvar.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>O caminho especificado não é válido.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Temporizador, tempo de gravação ou de reprodução</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s para a captura</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s para a captura  </translation>
    </message>
</context>
</TS>
