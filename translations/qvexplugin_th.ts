<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>บันทึกไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ภาพสด</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>กลับไปที่ภาพสด</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>ภาพถ่าย</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>ถ่ายภาพ</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>ถ่าย
ต่อเนื่อง</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>ถ่ายภาพต่อเนื่อง</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>วิดีโอ</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>บันทึกวิดีโอพร้อมเสียง</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>หยุด</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>หยุดการบันทึก</translation>
    </message>
    <message>
        <source>List</source>
        <translation>รายการ</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>แสดงสิ่งที่ถ่ายไว้</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>ตั้งค่า</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>เปลี่ยนการตั้งค่า</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>ออก</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>ออกจากโปรแกรม</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>ยอมรับ</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>เก็บภาพนี้ไว้</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>ถ่ายใหม่</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>ทิ้งภาพนี้</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>เล่น</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>เล่นวิดีโอ</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>หยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>หยุดวิดีโอชั่วคราว</translation>
    </message>
    <message>
        <source>View</source>
        <translation>ดู</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>แสดงสิ่งที่เลือก</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>วิดีโอ /
    ภาพถ่าย</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>แสดงรายการภาพถ่าย</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>ภาพถ่าย /
    วิดีโอ</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>แสดงรายการวิดีโอ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>กลับ</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>กลับไปที่ภาพทั้งหมด</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>วาง</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>วางลงบนกระดาน</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>ไม่พบกล้องและไมโครโฟน</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>ไม่พบไมโครโฟน</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>ไม่พบกล้อง</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>กล้องใช้งานไม่ได้ โปรดตรวจสอบว่าเชื่อมต่ออุปกรณ์ถูกต้องแล้ว </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>ภาพนิ่ง</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>กำลังบันทึก</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>การบันทึกสิ้นสุดแล้ว</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>ถ่ายภาพแล้ว</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>ภาพสด</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>สิ่งที่กล้องเห็นขณะนี้</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>ภาพสด</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>ไม่รองรับ</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>ไม่พบกล้อง</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>กล้องใช้งานไม่ได้ โปรดตรวจสอบว่าเชื่อมต่ออุปกรณ์ถูกต้องแล้ว </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>กล้องและไมโครโฟนใช้งานไม่ได้ โปรดตรวจสอบว่าเชื่อมต่ออุปกรณ์ถูกต้องแล้ว </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>ไมโครโฟนใช้งานไม่ได้ โปรดตรวจสอบว่าเชื่อมต่ออุปกรณ์ถูกต้องแล้ว</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>วิดีโอ</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>เล่นวิดีโอที่บันทึกไว้</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>ภาพที่ถ่ายไว้</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>เลือกภาพถ่ายได้ไม่เกินเก้าภาพ หรือวิดีโอหนึ่งรายการ</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>ไม่สามารถเลือก 10 รายการขึ้นไป</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>ภาพถ่าย</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>ภาพถ่ายที่ถ่ายไว้</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>แสดงภาพนี้ให้ใหญ่ที่สุด</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>กลับไปที่ภาพทั้งหมดที่เลือก</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>ขยายภาพนี้</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>กลับไปที่ภาพทั้งหมด</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>พื้นที่ว่างในดิสก์ไม่พอ
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>หยุดการถ่ายภาพ โปรดเพิ่มพื้นที่ว่าง </translation>
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
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
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
        <translation>ต้องการบันทึกภาพถ่ายและวิดีโอหรือไม่</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>ใช่</translation>
    </message>
    <message>
        <source>No</source>
        <translation>ไม่ใช่</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>โปรดเลือกอุปกรณ์:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>กล้อง</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>ตั้งเวลาถ่าย:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>วินาที</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>ถ่ายต่อเนื่อง:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>ภาพ</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>ยืนยันภาพที่ถ่าย:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>ความละเอียด:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>ใช้ตำแหน่งเริ่มต้น</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>ใช้ตำแหน่งอื่น</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>โฟลเดอร์สำหรับบันทึก:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>ตั้งเวลาถ่าย</translation>
    </message>
    <message>
        <source>second</source>
        <translation>วินาที</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>ถ่ายต่อเนื่อง</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>ภาพ</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>ยืนยันภาพที่ถ่าย</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>ความละเอียด</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>ใช้ตำแหน่งเริ่มต้น</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>ใช้ตำแหน่งอื่น</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>โฟลเดอร์สำหรับบันทึก</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>โปรดระบุตำแหน่งที่จะบันทึก</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>เส้นทางที่ระบุไม่ถูกต้อง</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>เวลาตั้งถ่าย เวลาบันทึก หรือเวลาเล่น</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> วินาทีก่อนถ่ายภาพ</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 วินาทีก่อนถ่ายภาพ  </translation>
    </message>
</context>
</TS>
