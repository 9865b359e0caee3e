<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>保存失败。</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>返回实时画面</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>拍一张照片</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>连续拍摄</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>连续拍多张照片</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>录像</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>录制有声录像</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>结束录制</translation>
    </message>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>显示拍摄的内容</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>更改设置</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>接受</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>保留这张照片</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重拍</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>丢弃这张照片</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>播放录像</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>暂停录像</translation>
    </message>
    <message>
        <source>View</source>
        <translation>查看</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>显示所选内容</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>录像 /
    照片</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>列出照片</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>照片 /
    录像</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>列出录像</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>返回所有图片</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>粘贴到白板</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>找不到摄像头和麦克风。</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>找不到麦克风。</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>找不到摄像头。</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>摄像头无法使用。请确认设备是否正确连接。 </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>静止画面</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在录制</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>录制已结束</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>照片已拍摄</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>实时画面</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>摄像头现在看到的画面</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>不支持</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>找不到摄像头。</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>摄像头无法使用。请确认设备是否正确连接。 </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>摄像头和麦克风无法使用。请确认设备是否正确连接。 </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>麦克风无法使用。请确认设备是否正确连接。</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>录像</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>播放录制的录像</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>拍摄的图片</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>最多选择九张照片，或一段录像</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>不能选择 10 个或更多。</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>拍摄的照片</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>将这张照片显示到最大</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>返回所有选中的照片</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>放大这张照片</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>返回所有照片</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>磁盘可用空间不足。
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>拍摄已中止。请确保有足够的可用空间。 </translation>
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
        <translation>确定</translation>
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
        <translation>要保存照片和录像吗？</translation>
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
        <translation>确定</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>请选择设备：</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像头</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>自拍定时：</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>连续拍摄：</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>张</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>确认拍摄的图像：</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>分辨率：</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>使用默认位置</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>使用其他位置</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>保存文件夹：</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>自拍定时</translation>
    </message>
    <message>
        <source>second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>连续拍摄</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>张</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>确认拍摄的图像</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>使用默认位置</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>使用其他位置</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>保存文件夹</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>请指定保存位置。</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>指定的路径无效。</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>自拍定时、录制时间或播放时间</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> 秒后拍摄</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 秒后拍摄  </translation>
    </message>
</context>
</TS>
