<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Gagal menyimpan.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Langsung</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Kembali ke gambar langsung</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Ambil foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Foto
Beruntun</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Ambil serangkaian foto</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Rekam video dengan suara</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Berhenti</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Akhiri perekaman</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Daftar</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Tampilkan hasil pengambilan</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Setelan</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Ubah setelan</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Akhiri program</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Terima</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Simpan foto ini</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ulangi</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Buang foto ini</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Putar</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Putar video</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Jeda</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Jeda video</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Lihat</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Tampilkan yang dipilih</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Foto</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Tampilkan daftar foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Video</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Tampilkan daftar video</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Kembali ke semua gambar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Tempel</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Tempel ke papan tulis</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Kamera dan mikrofon tidak ditemukan.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Mikrofon tidak ditemukan.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kamera tidak ditemukan.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera tidak dapat digunakan. Pastikan perangkat tersambung dengan benar. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Gambar diam</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Sedang merekam</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Perekaman selesai</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Foto telah diambil</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Gambar langsung</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Apa yang dilihat kamera sekarang</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>LANGSUNG</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Tidak didukung</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kamera tidak ditemukan.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera tidak dapat digunakan. Pastikan perangkat tersambung dengan benar. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera dan mikrofon tidak dapat digunakan. Pastikan perangkat tersambung dengan benar. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofon tidak dapat digunakan. Pastikan perangkat tersambung dengan benar.</translation>
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
        <translation>Memutar video hasil rekaman</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Gambar hasil pengambilan</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Pilih hingga sembilan foto, atau satu video</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Anda tidak dapat memilih 10 atau lebih.</translation>
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
        <translation>Foto hasil pengambilan</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Menampilkan foto ini sebesar mungkin</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Kembali ke semua foto terpilih</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Perbesar foto ini</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Kembali ke semua foto</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Ruang kosong pada disk tidak cukup.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Pengambilan gambar dihentikan. Sediakan ruang kosong. </translation>
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
        <translation>Batal</translation>
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
        <translation>Simpan foto dan video?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ya</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Tidak</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
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
        <translation>Pilih perangkat:</translation>
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
        <translation>Setelan</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Pewaktu otomatis:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>detik</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Foto beruntun:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Konfirmasi hasil foto:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolusi:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Gunakan lokasi bawaan</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Gunakan lokasi lain</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Folder penyimpanan:</translation>
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
        <translation>Batal</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Pewaktu otomatis</translation>
    </message>
    <message>
        <source>second</source>
        <translation>detik</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Foto beruntun</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Konfirmasi hasil foto</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolusi</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Gunakan lokasi bawaan</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Gunakan lokasi lain</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Folder penyimpanan</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Tentukan lokasi penyimpanan.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Jalur yang ditentukan tidak valid.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Pewaktu otomatis, waktu rekam, atau waktu putar</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> detik lagi</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 detik lagi  </translation>
    </message>
</context>
</TS>
