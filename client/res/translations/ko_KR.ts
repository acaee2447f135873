<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>보조 키를 선택하세요</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>클릭</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>이동 조이스틱</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>조준점</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>키 표시</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>키 불투명도</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>키 크기</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>게임 시작 시 키 표시</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>게임 시작 시 메모 표시</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>튜토리얼</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>튜토리얼을 불러오는 중</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>튜토리얼을 불러올 수 없습니다.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>이전</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>프리셋 사용 안 함</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>키 프리셋</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>프리셋 추가</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>공유 코드가 복사되었습니다</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>공유 코드는 %1입니다. 친구에게 보내면 업로드하여 사용할 수 있습니다</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>이미 사용 중인 키입니다</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>작업이 완료되었습니다</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>초기화 중</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>볼륨 높이기</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>볼륨 낮추기</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>화면 캡처</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>화면 회전</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>키 편집</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>원클릭 키 설정 적용</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>키 메모 추가</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>마우스 감도</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>임시 그룹</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>720P HQ</source>
        <translation>720P 고화질</translation>
    </message>
    <message>
        <source>720P</source>
        <translation>720P</translation>
    </message>
    <message>
        <source>576P</source>
        <translation>576P</translation>
    </message>
    <message>
        <source>480P</source>
        <translation>480P</translation>
    </message>
    <message>
        <source>240P</source>
        <translation>240P</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>사본 만들기</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>작업이 완료되었습니다</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>키 배치 업로드</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>프리셋 공유 코드를 입력하세요</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>텍스트가 너무 길어 붙여넣을 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>장시간 조작이 없어 대기 모드로 전환되었습니다</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(대기 모드에서는 데이터 사용량이 줄어들며 기기 내 앱은 계속 실행됩니다)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>계속 사용</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>기기 나가기</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(기기에서 나가도 기기 내 앱은 계속 실행됩니다)</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>화면 캡처</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>파일 저장</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>이미지 (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>이미지를 저장하지 못했습니다.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>화면 캡처</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>파일 저장</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>이미지 (*.jpg *.png)</translation>
    </message>
</context>
</TS>
