<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en_US">
<context>
    <name>CVistrelDlg</name>
    <message>
        <source>Save failed.</source>
        <translation>저장하지 못했습니다.</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>라이브</translation>
    </message>
    <message>
        <source>Back to the live picture</source>
        <translation>라이브 화면으로 돌아가기</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Take a photo</source>
        <translation>사진 찍기</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>연속 촬영</translation>
    </message>
    <message>
        <source>Take a series of photos</source>
        <translation>사진 연속 찍기</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Record a movie with sound</source>
        <translation>소리와 함께 동영상 녹화</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>End the recording</source>
        <translation>녹화 끝내기</translation>
    </message>
    <message>
        <source>List</source>
        <translation>목록</translation>
    </message>
    <message>
        <source>Show what was captured</source>
        <translation>촬영한 것 보기</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Change the settings</source>
        <translation>설정 바꾸기</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>프로그램 끝내기</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Keep this photo</source>
        <translation>이 사진 남기기</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 찍기</translation>
    </message>
    <message>
        <source>Throw this photo away</source>
        <translation>이 사진 버리기</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Play the movie</source>
        <translation>동영상 재생</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
    <message>
        <source>Pause the movie</source>
        <translation>동영상 일시 정지</translation>
    </message>
    <message>
        <source>View</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>Show what is selected</source>
        <translation>선택한 것 보기</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>동영상 /
    사진</translation>
    </message>
    <message>
        <source>List the photos</source>
        <translation>사진 목록 보기</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>사진 /
    동영상</translation>
    </message>
    <message>
        <source>List the movies</source>
        <translation>동영상 목록 보기</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Back to all pictures</source>
        <translation>모든 사진으로 돌아가기</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>붙여넣기</translation>
    </message>
    <message>
        <source>Paste to the whiteboard</source>
        <translation>칠판에 붙여넣기</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>카메라와 마이크를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>마이크를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>카메라를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>카메라를 사용할 수 없습니다. 장치가 올바르게 연결되었는지 확인하십시오. </translation>
    </message>
    <message>
        <source>Still</source>
        <translation>정지 화면</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>녹화 중</translation>
    </message>
    <message>
        <source>Recording ended</source>
        <translation>녹화가 끝났습니다</translation>
    </message>
    <message>
        <source>Photo taken</source>
        <translation>사진을 촬영했습니다</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>Live picture</source>
        <translation>라이브 화면</translation>
    </message>
    <message>
        <source>What the camera sees now</source>
        <translation>지금 카메라에 보이는 것</translation>
    </message>
    <message>
        <source>LIVE</source>
        <translation>라이브</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>지원되지 않음</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>카메라를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>카메라를 사용할 수 없습니다. 장치가 올바르게 연결되었는지 확인하십시오. </translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>카메라와 마이크를 사용할 수 없습니다. 장치가 올바르게 연결되었는지 확인하십시오. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>마이크를 사용할 수 없습니다. 장치가 올바르게 연결되었는지 확인하십시오.</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Plays a recorded movie</source>
        <translation>녹화한 동영상을 재생합니다</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>Captured pictures</source>
        <translation>촬영한 사진과 동영상</translation>
    </message>
    <message>
        <source>Choose up to nine photos, or one movie</source>
        <translation>사진은 9장까지, 동영상은 1개를 선택하십시오</translation>
    </message>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>10개 이상 선택할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>A captured photo</source>
        <translation>촬영한 사진</translation>
    </message>
    <message>
        <source>Zoom</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Shows this photo as large as possible</source>
        <translation>이 사진을 최대한 크게 표시합니다</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>The name of a bitmap, not a text: keep it as it is in every language.</extracomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Returns to all chosen photos</source>
        <translation>선택한 모든 사진으로 돌아갑니다</translation>
    </message>
    <message>
        <source>Enlarge this photo</source>
        <translation>이 사진 확대</translation>
    </message>
    <message>
        <source>Back to all photos</source>
        <translation>모든 사진으로 돌아가기</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>디스크의 여유 공간이 부족합니다.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>촬영을 중단합니다. 여유 공간을 확보하십시오. </translation>
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
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
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
        <translation>사진과 동영상을 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>장치를 선택하십시오:</translation>
    </message>
    <message>
        <source>Orvanta</source>
        <translation>Orvanta</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>셀프타이머:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>연속 촬영:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>장</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>촬영한 이미지 확인:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>해상도:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>기본 위치 사용</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>다른 위치 사용</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>저장 폴더:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>셀프타이머</translation>
    </message>
    <message>
        <source>second</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>연속 촬영</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>장</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>촬영한 이미지 확인</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>해상도</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>기본 위치 사용</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>다른 위치 사용</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>저장 폴더</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>저장 위치를 지정하십시오.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>지정한 경로가 잘못되었습니다.</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>Self-timer, recording time or playing time</source>
        <translation>셀프타이머, 녹화 시간 또는 재생 시간</translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> 초 후 촬영</translation>
    </message>
    <message>
        <source>0 second to capture  </source>
        <translation> 00 초 후 촬영  </translation>
    </message>
</context>
</TS>
