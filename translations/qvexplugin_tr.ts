<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Kaydedilemedi.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Canlı</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Canlı görüntüye dön</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Fotoğraf</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Fotoğraf çek</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Sürekli
çekim</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Bir dizi fotoğraf çek</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Sesli video kaydet</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Kaydı bitir</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Çekilenleri göster</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Ayarları değiştir</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Programı kapat</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Kabul et</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Bu fotoğrafı sakla</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Yeniden</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Bu fotoğrafı at</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Oynat</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Videoyu oynat</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Videoyu duraklat</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Göster</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Seçilenleri göster</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Fotoğraf</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Fotoğrafları listele</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Fotoğraf /
    Video</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Videoları listele</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Tüm resimlere dön</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Yapıştır</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Tahtaya yapıştır</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Kamera ve mikrofon bulunamadı.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Mikrofon bulunamadı.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kamera bulunamadı.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera kullanılamıyor. Lütfen aygıtın doğru bağlandığını denetleyin. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Durağan görüntü</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Kaydediliyor</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Kayıt sona erdi</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Fotoğraf çekildi</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Canlı görüntü</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Kameranın şu anda gördüğü</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>CANLI</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Desteklenmiyor</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kamera bulunamadı.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera kullanılamıyor. Lütfen aygıtın doğru bağlandığını denetleyin. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera ve mikrofon kullanılamıyor. Lütfen aygıtın doğru bağlandığını denetleyin. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofon kullanılamıyor. Lütfen aygıtın doğru bağlandığını denetleyin.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>Kaydedilmiş bir videoyu oynatır</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Çekilen resimler</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>En çok dokuz fotoğraf veya bir video seçin</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>10 veya daha fazlasını seçemezsiniz.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Fotoğraf</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>Çekilmiş bir fotoğraf</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Bu fotoğrafı olabildiğince büyük gösterir</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Seçilen tüm fotoğraflara döner</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Bu fotoğrafı büyüt</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Tüm fotoğraflara dön</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Diskteki boş alan yetersiz.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Çekim durduruldu. Lütfen boş alan açın. </translation>
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
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
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
        <translation>Fotoğrafları ve videoları kaydetmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>Bir aygıt seçin:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Zamanlayıcı:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>saniye</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Sürekli çekim:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Fotoğraf</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Çekilen resmi onayla:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Çözünürlük:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Varsayılan konumu kullan</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Başka konum kullan</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Kayıt klasörü:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Zamanlayıcı</translation>
    </message>
    <message>
        <source>second</source>
        <translation>saniye</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Sürekli çekim</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Fotoğraf</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Çekilen resmi onayla</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Çözünürlük</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Varsayılan konumu kullan</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Başka konum kullan</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Kayıt klasörü</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Lütfen kayıt yerini belirtin.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Belirtilen yol geçersiz.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Zamanlayıcı, kayıt süresi veya oynatma süresi</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> sn sonra çekim</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 sn sonra çekim  </translation>
    </message>
</context>
</TS>
