<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>保存に失敗しました。</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>ライブ映像に戻る</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>写真を撮る</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>連続撮影</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>写真を続けて撮る</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>音声付きの動画を撮る</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>録画を終える</translation>
    </message>
    <message>
        <source>List</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>撮ったものを見る</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>設定を変える</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>プログラムを終了する</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>決定</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>この写真を残す</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>撮り直し</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>この写真を捨てる</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>動画を再生する</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>動画を一時停止する</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>選んだものを表示する</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>動画 /
    写真</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>写真を一覧にする</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>写真 /
    動画</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>動画を一覧にする</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>すべての写真に戻る</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>ホワイトボードに貼り付ける</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>カメラとマイクが見つかりません。</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>マイクが見つかりません。</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>カメラが見つかりません。</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>カメラが使えません。機器が正しく接続されているか確認してください。 </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>静止画</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画中</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>録画が終了しました</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>写真を撮影しました</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>ライブ映像</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>カメラが今見ているもの</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>対応していません</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>カメラが見つかりません。</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>カメラが使えません。機器が正しく接続されているか確認してください。 </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>カメラとマイクが使えません。機器が正しく接続されているか確認してください。 </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>マイクが使えません。機器が正しく接続されているか確認してください。</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>録画した動画を再生します</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>撮った写真と動画</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>写真を 9 枚まで、または動画を 1 本選んでください</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>10 枚以上は選択できません。</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>撮った写真</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>この写真をできるだけ大きく表示します</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>選んだすべての写真に戻ります</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>この写真を拡大する</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>すべての写真に戻る</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>ディスクの空き容量が不足しています。
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>撮影を中止します。空き容量を確保してください。 </translation>
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
        <translation>キャンセル</translation>
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
        <translation>写真と動画を保存しますか？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>機器を選んでください:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
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
        <translation>セルフタイマー:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>連続撮影:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>枚</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>撮影した画像を確認する:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>解像度:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>標準の場所に保存する</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>別の場所に保存する</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>保存先:</translation>
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
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>セルフタイマー</translation>
    </message>
    <message>
        <source>second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>連続撮影</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>枚</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>撮影した画像を確認する</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>標準の場所に保存する</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>別の場所に保存する</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>保存先フォルダー</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>保存先を指定してください。</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>指定されたパスは正しくありません。</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>セルフタイマー、録画時間または再生時間</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> 秒後に撮影します</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 秒後に撮影します  </translation>
    </message>
</context>
</TS>
