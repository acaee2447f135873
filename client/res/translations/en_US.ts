<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Initialising</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Home page</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Volume up</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Volume down</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Screen capture</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Screen Rotate</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Key editing</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Apply Key Binding with One Click</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Temporary grouping</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Hints</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>720P HQ</source>
        <translation>720P HQ</translation>
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
        <translation>The text is too long to paste.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Not operating for a long time, has entered standby mode</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Resume use</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Exit device</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(After exiting the device, the application within the device will continue to run)</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Screen capture</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Save File</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Image(*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>The picture could not be saved.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Screen capture</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Save File</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Image(*.jpg *.png)</translation>
    </message>
</context>
</TS>
