<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>初期化しています</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>音量を上げる</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>音量を下げる</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>画面を回転</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>キー編集</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>ワンクリックでキー割り当てを適用</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>一時グループ</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
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
        <translation>720P 高画質</translation>
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
        <translation>テキストが長すぎるため貼り付けられません。</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>長時間操作がなかったため、スタンバイモードに入りました</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>（スタンバイモードでは通信量を抑えられ、デバイス内のアプリは動作し続けます）</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>利用を再開</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>デバイスから退出</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>（デバイスから退出しても、デバイス内のアプリは動作し続けます）</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>画像(*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>画像を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>画像(*.jpg *.png)</translation>
    </message>
</context>
</TS>
