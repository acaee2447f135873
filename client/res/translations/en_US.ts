<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Please Select Auxiliary Key</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Click</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>keyboard walking</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>crosshair</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Key prompts</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Button transparency</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Key size</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Show buttons when entering the game</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Show notes when entering the game</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>Loading the tutorial</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>The tutorial could not be loaded.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Not using the scheme</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Key Preset</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Add scheme</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>The sharing code has copied successfully</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>The sharing code is %1, and can be sent to your friend to be uploaded for use</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>This Key Binding is Already in Use</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Operated successfully</translation>
    </message>
</context>
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
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Add Button Notes</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Mouse Sensitivity</translation>
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
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Share</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Create a copy</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>Operated successfully</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Upload keyboard layout</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Hints</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Enter your scheme sharing code</translation>
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
