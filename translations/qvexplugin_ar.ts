<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>فشل الحفظ.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>العودة إلى الصورة المباشرة</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>التقاط صورة</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>التقاط
  متتابع</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>التقاط سلسلة من الصور</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>فيديو</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>تسجيل فيديو مع الصوت</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>إنهاء التسجيل</translation>
    </message>
    <message>
        <source>List</source>
        <translation>القائمة</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>عرض ما تم التقاطه</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>تغيير الإعدادات</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>خروج</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>إنهاء البرنامج</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>قبول</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>الاحتفاظ بهذه الصورة</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>حذف هذه الصورة</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>تشغيل الفيديو</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>إيقاف الفيديو مؤقتًا</translation>
    </message>
    <message>
        <source>View</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>عرض العناصر المحددة</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>فيديو /
    صورة</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>عرض قائمة الصور</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>صورة /
    فيديو</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>عرض قائمة مقاطع الفيديو</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>العودة إلى كل الصور</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>لصق في السبورة</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>تعذر العثور على كاميرا أو ميكروفون.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>تعذر العثور على ميكروفون.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>تعذر العثور على كاميرا.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>الكاميرا غير متاحة. يرجى التأكد من توصيل الجهاز بشكل صحيح. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>صورة ثابتة</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>جارٍ التسجيل</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>انتهى التسجيل</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>تم التقاط الصورة</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>الصورة المباشرة</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>ما تراه الكاميرا الآن</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>غير مدعوم</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>تعذر العثور على كاميرا.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>الكاميرا غير متاحة. يرجى التأكد من توصيل الجهاز بشكل صحيح. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>الكاميرا والميكروفون غير متاحين. يرجى التأكد من توصيل الجهاز بشكل صحيح. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>الميكروفون غير متاح. يرجى التأكد من توصيل الجهاز بشكل صحيح.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>فيديو</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>تشغيل فيديو مسجل</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>الصور الملتقطة</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>اختر ما يصل إلى تسع صور أو مقطع فيديو واحدًا</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>لا يمكن تحديد 10 عناصر أو أكثر.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>صورة ملتقطة</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>عرض هذه الصورة بأكبر حجم ممكن</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>العودة إلى كل الصور المختارة</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>تكبير هذه الصورة</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>العودة إلى كل الصور</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>المساحة الحرة على القرص غير كافية.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>تم إيقاف الالتقاط. يرجى توفير مساحة حرة. </translation>
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
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
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
        <translation>هل تريد حفظ الصور ومقاطع الفيديو؟</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>يرجى اختيار جهاز:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>الكاميرا</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>المؤقت الذاتي:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>ثانية</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>الالتقاط المتتابع:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>تأكيد الصورة الملتقطة:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>الدقة:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>استخدام الموقع الافتراضي</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>استخدام موقع آخر</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>مجلد الحفظ:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>المؤقت الذاتي</translation>
    </message>
    <message>
        <source>second</source>
        <translation>ثانية</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>الالتقاط المتتابع</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>صور</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>تأكيد الصورة الملتقطة</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>استخدام الموقع الافتراضي</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>استخدام موقع آخر</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>مجلد الحفظ</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>يرجى تحديد موقع الحفظ.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>المسار المحدد غير صالح.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>المؤقت الذاتي أو مدة التسجيل أو مدة التشغيل</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> ث حتى الالتقاط</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 ث حتى الالتقاط  </translation>
    </message>
</context>
</TS>
