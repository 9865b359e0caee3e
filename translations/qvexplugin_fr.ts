<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>L’enregistrement a échoué.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Revenir à l’image en direct</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Prendre une photo</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Prises en
rafale</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Prendre une série de photos</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Enregistrer une vidéo avec le son</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Terminer l’enregistrement</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Afficher les captures</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Modifier les réglages</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Accepter</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Garder cette photo</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Refaire</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Supprimer cette photo</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Lire la vidéo</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Mettre la vidéo en pause</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Afficher la sélection</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Vidéo /
    Photo</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Afficher la liste des photos</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Photo /
    Vidéo</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Afficher la liste des vidéos</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Revenir à toutes les images</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Coller sur le tableau</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Aucune caméra ni aucun microphone trouvés.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Aucun microphone trouvé.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Aucune caméra trouvée.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La caméra n’est pas utilisable. Vérifiez que l’appareil est correctement branché. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Image fixe</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement en cours</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Enregistrement terminé</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Photo prise</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Image en direct</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Ce que voit la caméra en ce moment</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>DIRECT</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Non pris en charge</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Aucune caméra trouvée.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La caméra n’est pas utilisable. Vérifiez que l’appareil est correctement branché. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>La caméra et le microphone ne sont pas utilisables. Vérifiez que l’appareil est correctement branché. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Le microphone n’est pas utilisable. Vérifiez que l’appareil est correctement branché.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Lit une vidéo enregistrée</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Images capturées</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Choisissez jusqu’à neuf photos, ou une vidéo</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Vous ne pouvez pas en sélectionner 10 ou plus.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>Une photo capturée</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Affiche cette photo aussi grande que possible</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Revient à toutes les photos choisies</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Agrandir cette photo</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Revenir à toutes les photos</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>L’espace libre sur le disque est insuffisant.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>La prise de vue est interrompue. Veuillez libérer de l’espace. </translation>
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
        <translation>Annuler</translation>
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
        <translation>Voulez-vous enregistrer les photos et les vidéos ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>Choisissez un appareil :</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Retardateur&#xa0;:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Prises en rafale&#xa0;:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Confirmer l’image capturée&#xa0;:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Résolution&#xa0;:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Utiliser l’emplacement par défaut</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Utiliser un autre emplacement</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Dossier d’enregistrement :</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Retardateur</translation>
    </message>
    <message>
        <source>second</source>
        <translation>secondes</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Prises en rafale</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Confirmer l’image capturée</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Utiliser l’emplacement par défaut</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Utiliser un autre emplacement</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Dossier d’enregistrement</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Veuillez indiquer l’emplacement d’enregistrement.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Le chemin indiqué n’est pas valide.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Retardateur, durée d’enregistrement ou de lecture</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s avant la prise de vue</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 s avant la prise de vue  </translation>
    </message>
</context>
</TS>
