<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>目前的鍵位尚未儲存，是否儲存目前的鍵位？</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>尚無已儲存的鍵位</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>教學</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>上傳方案</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>離開</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>調高音量</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>調低音量</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新啟動</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>主畫面</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>選單</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>主控裝置 %1 將在 %2 分鐘後到期，屆時會影響群控操作，是否續費？</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>被控裝置 %1 將在 %2 分鐘後到期，屆時會影響群控操作，是否續費？</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>主控裝置已到期回收，是否為您重新指定主控並重新開始？</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>已移除到期裝置（%1）</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>文字過長，無法貼上。</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>儲存群組</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>請求失敗，請稍後重試。</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>請選擇輔助按鍵</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>點擊</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>鍵盤行走</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>準星</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>按鍵提示</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>按鍵不透明度</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>按鍵大小</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>進入遊戲時顯示按鍵</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>進入遊戲時顯示備註</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>教學</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>正在載入教學</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>教學載入失敗。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>不使用方案</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>按鍵預設</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>新增方案</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>分享碼複製成功</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>分享碼為 %1，可傳送給好友上傳使用</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>該按鍵已被使用</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>操作成功</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>正在初始化</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>連線中</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>主畫面</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>調高音量</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>調低音量</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>螢幕截圖</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>旋轉螢幕</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>按鍵編輯</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>一鍵套用按鍵設定</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>新增按鍵備註</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>滑鼠靈敏度</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>臨時群組</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>正在下載新版本，請稍候...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>新版本已準備就緒，是否立即安裝？</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>立即安裝</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>關閉應用程式時自動安裝</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>720P HQ</source>
        <translation>720P 高畫質</translation>
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
        <translation>確定要將此裝置移出群組嗎？</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>修改名稱</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>群組名稱</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>請輸入群組名稱</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>目前為臨時群組，是否儲存此群組？</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>名稱長度應為 1 至 50 個字元</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>建立副本</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>操作成功</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>上傳鍵位</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>請輸入方案分享碼</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>文字過長，無法貼上。</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>長時間未操作，已進入待機模式</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>（待機模式可減少流量消耗，裝置內的應用程式會繼續執行）</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>恢復使用</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>離開裝置</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>（離開裝置後，裝置內的應用程式會繼續執行）</translation>
    </message>
</context>
<context>
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>群控至少需要 2 台裝置</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>共 %1 台</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50 台/頁</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一頁</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一頁</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>連線中</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>剩餘時間</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>設為主控</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>重新啟動</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>移除</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>單獨控制</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1天 %2小時 %3分 %4秒</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>螢幕截圖</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>儲存檔案</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>圖片(*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>無法儲存圖片。</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>螢幕截圖</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>儲存檔案</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>圖片(*.jpg *.png)</translation>
    </message>
</context>
</TS>
