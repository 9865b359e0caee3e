<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Save failed.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Back to the live picture</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Take a photo</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Continuous
Capture</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Take a series of photos</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Record a movie with sound</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>End the recording</translation>
    </message>
    <message>
        <source>List</source>
        <translation>List</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Show what was captured</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Change the settings</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>End the program</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Accept</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Keep this photo</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Throw this photo away</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Play the movie</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Pause the movie</translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Show what is selected</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Movie /
    Photo</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>List the photos</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Photo /
    Movie</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>List the movies</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Back to all pictures</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Paste to the whiteboard</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Cannot find Video / Audio Devices.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Cannot find Audio Devices.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Cannot find Video Devices.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>The video device is invalid. Please confirm whether the device is correctly connected. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Still</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Recording ended</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Photo taken</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Live picture</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>What the camera sees now</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LIVE</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Not Suport</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Cannot find Video Devices.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>The video device is invalid. Please confirm whether the device is correctly connected. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>The audio device is invalid. Please confirm whether the device is correctly connected.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Plays a recorded movie</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Captured pictures</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Choose up to nine photos, or one movie</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>You can not select 10 or more.</translation>
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
        <translation>A captured photo</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Shows this photo as large as possible</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Returns to all chosen photos</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Enlarge this photo</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Back to all photos</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>The disk free space is insufficient.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Taking a picture is discontinued. Please secure the free space. </translation>
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
        <translation>Cancel</translation>
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
        <translation>Do you want to save the Photo / Movie data?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
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
        <translation>Please select a device:</translation>
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
        <translation>Settings</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>AutoShooting:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sec</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Continuous shooting:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>sheet</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Preview your photo taken:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolution:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Using the standard location</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Specify a destination</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Save Directry:</translation>
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
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Self Timer</translation>
    </message>
    <message>
        <source>second</source>
        <translation>second</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Continuous Capture</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Shots</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Confirm captured image</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Use default location</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Use other location</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>SaveDirectory</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Please specify the save location.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Invalid PATH is specified.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Self-timer, recording time or playing time</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> second to capture</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 second to capture  </translation>
    </message>
</context>
</TS>
