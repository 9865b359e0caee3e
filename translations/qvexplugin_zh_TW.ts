<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>儲存失敗。</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>返回即時畫面</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>拍一張相片</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>連續拍攝</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>連續拍多張相片</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>錄製有聲影片</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>結束錄製</translation>
    </message>
    <message>
        <source>List</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>顯示拍攝的內容</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>變更設定</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>結束程式</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>接受</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>保留這張相片</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重拍</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>捨棄這張相片</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>播放影片</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>暫停影片</translation>
    </message>
    <message>
        <source>View</source>
        <translation>檢視</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>顯示選取的內容</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>影片 /
    相片</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>列出相片</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>相片 /
    影片</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>列出影片</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>返回所有圖片</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>貼到白板</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>找不到攝影機和麥克風。</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>找不到麥克風。</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>找不到攝影機。</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>攝影機無法使用。請確認裝置是否已正確連接。 </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>靜止畫面</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在錄製</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>錄製已結束</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>照片已拍攝</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>即時畫面</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>攝影機現在看到的畫面</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>不支援</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>找不到攝影機。</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>攝影機無法使用。請確認裝置是否已正確連接。 </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>攝影機和麥克風無法使用。請確認裝置是否已正確連接。 </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>麥克風無法使用。請確認裝置是否已正確連接。</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>播放錄製的影片</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>拍攝的圖片</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>最多選取九張相片，或一段影片</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>無法選取 10 個或更多。</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>拍攝的相片</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>將這張相片顯示到最大</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>返回所有選取的相片</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>放大這張相片</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>返回所有相片</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>磁碟可用空間不足。
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>拍攝已中止。請確保有足夠的可用空間。 </translation>
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
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>要儲存相片和影片嗎？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>請選擇裝置：</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>攝影機</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>自拍計時：</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>連續拍攝：</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>張</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>確認拍攝的影像：</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>解析度：</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>使用預設位置</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>使用其他位置</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>儲存資料夾：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>自拍計時</translation>
    </message>
    <message>
        <source>second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>連續拍攝</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>張</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>確認拍攝的影像</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解析度</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>使用預設位置</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>使用其他位置</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>儲存資料夾</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>請指定儲存位置。</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>指定的路徑無效。</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>自拍計時、錄製時間或播放時間</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> 秒後拍攝</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 秒後拍攝  </translation>
    </message>
</context>
</TS>
