<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>Lưu không thành công.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Trực tiếp</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>Trở lại hình trực tiếp</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Ảnh</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>Chụp một ảnh</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Chụp
liên tục</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>Chụp một loạt ảnh</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>Quay video có âm thanh</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Dừng</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>Kết thúc quay video</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Danh sách</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>Hiện những gì đã chụp</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>Thay đổi cài đặt</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Thoát</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Kết thúc chương trình</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Đồng ý</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>Giữ ảnh này</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Chụp lại</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>Bỏ ảnh này</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Phát</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>Phát video</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tạm dừng</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>Tạm dừng video</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Xem</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>Hiện mục đã chọn</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Ảnh</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>Liệt kê các ảnh</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Ảnh /
    Video</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>Liệt kê các video</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Trở lại</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>Trở lại tất cả ảnh</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Dán</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>Dán vào bảng trắng</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Không tìm thấy camera và micrô.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Không tìm thấy micrô.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Không tìm thấy camera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Không dùng được camera. Vui lòng kiểm tra xem thiết bị đã được kết nối đúng chưa. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Ảnh tĩnh</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Đang quay phim</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>Đã quay xong</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>Đã chụp ảnh</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>Hình trực tiếp</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>Những gì camera đang thấy</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>TRỰC TIẾP</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Không được hỗ trợ</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Không tìm thấy camera.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Không dùng được camera. Vui lòng kiểm tra xem thiết bị đã được kết nối đúng chưa. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Không dùng được camera và micrô. Vui lòng kiểm tra xem thiết bị đã được kết nối đúng chưa. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Không dùng được micrô. Vui lòng kiểm tra xem thiết bị đã được kết nối đúng chưa.</translation>
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
        <translation>Phát một video đã quay</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>Các ảnh đã chụp</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>Chọn tối đa chín ảnh hoặc một video</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Không thể chọn từ 10 mục trở lên.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Ảnh</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>Một ảnh đã chụp</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>Hiện ảnh này lớn nhất có thể</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>Trở lại tất cả ảnh đã chọn</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>Phóng to ảnh này</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>Trở lại tất cả ảnh</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Đĩa không đủ dung lượng trống.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Việc chụp bị dừng lại. Vui lòng giải phóng dung lượng. </translation>
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
        <translation>Hủy</translation>
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
        <translation>Bạn có muốn lưu ảnh và video không?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Có</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Không</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
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
        <translation>Chọn một thiết bị:</translation>
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
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Hẹn giờ:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>giây</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Chụp liên tục:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>Ảnh</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Xác nhận ảnh đã chụp:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Độ phân giải:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Dùng vị trí mặc định</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Dùng vị trí khác</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Thư mục lưu:</translation>
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
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Hẹn giờ</translation>
    </message>
    <message>
        <source>second</source>
        <translation>giây</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Chụp liên tục</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>Ảnh</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Xác nhận ảnh đã chụp</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Độ phân giải</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Dùng vị trí mặc định</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Dùng vị trí khác</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Thư mục lưu</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Vui lòng chỉ định vị trí lưu.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Đường dẫn không hợp lệ.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>Hẹn giờ, thời gian quay hoặc thời gian phát</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> giây nữa sẽ chụp</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 giây nữa sẽ chụp  </translation>
    </message>
</context>
</TS>
