<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
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
