<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <translation>主页</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>音量加</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>音量减</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>旋转屏幕</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>按键编辑</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>一键应用按键</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>临时分组</translation>
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
        <translation>关闭</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>720P HQ</source>
        <translation>720P 高画质</translation>
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
        <translation>文本过长，无法粘贴。</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>长时间未操作，已进入待机模式</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>（待机模式可减少流量消耗，设备内的应用会继续运行）</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>恢复使用</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>退出设备</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>（退出设备后，设备内的应用会继续运行）</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>图片(*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>无法保存图片。</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>图片(*.jpg *.png)</translation>
    </message>
</context>
</TS>
