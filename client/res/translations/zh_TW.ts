<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
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
