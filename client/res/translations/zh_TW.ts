<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
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
