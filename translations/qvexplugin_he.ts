<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>השמירה נכשלה.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>תצוגה חיה</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>חזרה לתמונה החיה</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>תמונה</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>צילום תמונה</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>צילום
  רציף</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>צילום סדרת תמונות</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>סרטון</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>הקלטת סרטון עם קול</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>עצור</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>סיום ההקלטה</translation>
    </message>
    <message>
        <source>List</source>
        <translation>רשימה</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>הצגת מה שצולם</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>שינוי ההגדרות</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>יציאה</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>סיום התוכנית</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>שמירת תמונה זו</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>שוב</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>מחיקת תמונה זו</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>נגן</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>הפעלת הסרטון</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>השהה</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>השהיית הסרטון</translation>
    </message>
    <message>
        <source>View</source>
        <translation>הצג</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>הצגת מה שנבחר</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>סרטון /
    תמונה</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>רשימת התמונות</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>תמונה /
    סרטון</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>רשימת הסרטונים</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>חזרה</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>חזרה לכל התמונות</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>הדבק</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>הדבקה בלוח</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>לא נמצאו מצלמה ומיקרופון.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>לא נמצא מיקרופון.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>לא נמצאה מצלמה.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>המצלמה אינה זמינה. נא לוודא שההתקן מחובר כראוי. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>תמונת סטילס</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>מתבצעת הקלטה</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>ההקלטה הסתיימה</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>התמונה צולמה</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>תמונה חיה</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>מה שהמצלמה רואה כעת</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>תצוגה חיה</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>לא נתמך</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>לא נמצאה מצלמה.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>המצלמה אינה זמינה. נא לוודא שההתקן מחובר כראוי. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>המצלמה והמיקרופון אינם זמינים. נא לוודא שההתקן מחובר כראוי. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>המיקרופון אינו זמין. נא לוודא שההתקן מחובר כראוי.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>סרטון</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>הפעלת סרטון מוקלט</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>תמונות שצולמו</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>יש לבחור עד תשע תמונות, או סרטון אחד</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>לא ניתן לבחור 10 פריטים או יותר.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>תמונה</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>תמונה שצולמה</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>הצגת תמונה זו בגודל המרבי</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>חזרה לכל התמונות שנבחרו</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>הגדלת תמונה זו</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>חזרה לכל התמונות</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>אין די שטח פנוי בדיסק.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>הצילום הופסק. נא לפנות שטח בדיסק. </translation>
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
        <translation>אישור</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
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
        <translation>האם לשמור את התמונות והסרטונים?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>כן</translation>
    </message>
    <message>
        <source>No</source>
        <translation>לא</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>נא לבחור התקן:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>מצלמה</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>הגדרות</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>טיימר עצמי:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>שניות</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>צילום רציף:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>תמונות</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>אישור התמונה שצולמה:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>רזולוציה:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>שימוש במיקום ברירת המחדל</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>שימוש במיקום אחר</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>תיקיית שמירה:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>אישור</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>טיימר עצמי</translation>
    </message>
    <message>
        <source>second</source>
        <translation>שניות</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>צילום רציף</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>תמונות</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>אישור התמונה שצולמה</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>רזולוציה</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>שימוש במיקום ברירת המחדל</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>שימוש במיקום אחר</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>תיקיית שמירה</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>נא לציין את מיקום השמירה.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>הנתיב שצוין אינו חוקי.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>טיימר עצמי, זמן הקלטה או זמן ניגון</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> שנ׳ עד הצילום</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 שנ׳ עד הצילום  </translation>
    </message>
</context>
</TS>
