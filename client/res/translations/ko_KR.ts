<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>현재 키 배치가 아직 저장되지 않았습니다. 저장할까요?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>저장된 키 배치가 아직 없습니다</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>튜토리얼</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>프리셋 업로드</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>나가기</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>볼륨 높이기</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>볼륨 낮추기</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>홈</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>마스터 기기 %1의 사용 기간이 %2분 후 만료되어 그룹 제어에 영향을 줍니다. 연장할까요?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>제어 대상 기기 %1의 사용 기간이 %2분 후 만료되어 그룹 제어에 영향을 줍니다. 연장할까요?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>마스터 기기의 사용 기간이 만료되어 회수되었습니다. 마스터를 다시 지정하고 시작할까요?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>만료된 기기(%1)를 제외했습니다</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>텍스트가 너무 길어 붙여넣을 수 없습니다.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>그룹 저장</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>요청에 실패했습니다. 잠시 후 다시 시도해 주세요.</translation>
    </message>
</context>
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
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>연결 중</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>새 버전을 다운로드하는 중입니다. 잠시 기다려 주세요...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>새 버전이 준비되었습니다. 지금 설치할까요?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>지금 설치</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>앱을 닫을 때 자동으로 설치</translation>
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
    <name>RemoveDeviceDialog</name>
    <message>
        <source>Are you sure to remove the device from the group?</source>
        <translation>이 기기를 그룹에서 제외할까요?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>그룹 이름</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>그룹 이름을 입력하세요</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>임시 그룹입니다. 이 그룹을 저장할까요?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>이름은 1~50자여야 합니다</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>그룹 제어에는 기기가 2대 이상 필요합니다</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>총 %1대</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/페이지</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>이전 페이지</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>다음 페이지</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>연결 중</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>남은 시간</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>마스터로 설정</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>제외</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>단독 제어</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1일 %2시간 %3분 %4초</translation>
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
