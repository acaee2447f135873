<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>The current layout is not saved yet. Do you want to save the current keyboard layout</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>There is no saved key layout yet</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>Upload scheme</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Exit</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>Volume up</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Volume down</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Go back</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Home page</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>The master has expired for recycling, shall I reassign the master for you and start again?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Expired device (%1) removed</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>The text is too long to paste.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Save group</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>The request failed. Please try again later.</translation>
    </message>
</context>
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
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Connecting</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Update</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Downloading the new version, please wait...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>The new version is ready, install now?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Install now</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Installation is automatic when closing the app</translation>
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
    <name>RemoveDeviceDialog</name>
    <message>
        <source>Are you sure to remove the device from the group?</source>
        <translation>Are you sure to remove the device from the group?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Change the name</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Group name</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Please enter group name</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>This is a temporary group. Do you want to save this group?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>The name length should be greater than one character and less than 50 characters</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>Group control need to be more than 2 devices</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Total %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/page</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Connecting</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Remaining time</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Set as master</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Single control</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1d %2h %3min %4s</translation>
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
