<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>ยังไม่ได้บันทึกผังปุ่มปัจจุบัน ต้องการบันทึกหรือไม่</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>ยังไม่มีผังปุ่มที่บันทึกไว้</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>บทช่วยสอน</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>อัปโหลดชุดปุ่ม</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>ออก</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>เพิ่มเสียง</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>ลดเสียง</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>รีสตาร์ท</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>ย้อนกลับ</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>หน้าหลัก</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>เมนู</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>อุปกรณ์หลัก %1 จะหมดอายุในอีก %2 นาที ซึ่งจะกระทบต่อการควบคุมกลุ่ม ต้องการต่ออายุหรือไม่</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>อุปกรณ์ที่ถูกควบคุม %1 จะหมดอายุในอีก %2 นาที ซึ่งจะกระทบต่อการควบคุมกลุ่ม ต้องการต่ออายุหรือไม่</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>อุปกรณ์หลักหมดอายุและถูกเรียกคืนแล้ว ต้องการกำหนดอุปกรณ์หลักใหม่และเริ่มอีกครั้งหรือไม่</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>นำอุปกรณ์ที่หมดอายุ (%1) ออกแล้ว</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>ข้อความยาวเกินกว่าจะวางได้</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>บันทึกกลุ่ม</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>ยืนยัน</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>คำขอไม่สำเร็จ โปรดลองอีกครั้งในภายหลัง</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>เลือกปุ่มเสริม</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>คลิก</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>จอยสติ๊กเดิน</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>เป้าเล็ง</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>คำแนะนำปุ่ม</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>ความทึบของปุ่ม</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>ขนาดปุ่ม</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>แสดงปุ่มเมื่อเข้าเกม</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>แสดงหมายเหตุเมื่อเข้าเกม</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>บทช่วยสอน</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>กำลังโหลดบทช่วยสอน</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>โหลดบทช่วยสอนไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>ลองอีกครั้ง</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>ย้อนกลับ</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>ถัดไป</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>เสร็จสิ้น</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>ไม่ใช้ชุดปุ่ม</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>ชุดปุ่มที่ตั้งไว้</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>เพิ่มชุดปุ่ม</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>รีเฟรช</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>รีเซ็ต</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>บันทึก</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>คัดลอกรหัสแชร์แล้ว</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>รหัสแชร์คือ %1 ส่งให้เพื่อนเพื่ออัปโหลดและใช้งานได้</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>ปุ่มนี้ถูกใช้แล้ว</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>ดำเนินการสำเร็จ</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>กำลังเริ่มต้น</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>กำลังเชื่อมต่อ</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>หน้าหลัก</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>เพิ่มเสียง</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>ลดเสียง</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>ภาพหน้าจอ</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>หมุนหน้าจอ</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>แก้ไขปุ่ม</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>ใช้การตั้งค่าปุ่มในคลิกเดียว</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>เพิ่มหมายเหตุปุ่ม</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>ความไวเมาส์</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>กลุ่มชั่วคราว</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>แจ้งเตือน</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>ยืนยัน</translation>
    </message>
</context>
<context>
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>อัปเดต</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>กำลังดาวน์โหลดเวอร์ชันใหม่ โปรดรอสักครู่...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>เวอร์ชันใหม่พร้อมแล้ว ติดตั้งเลยหรือไม่</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>ติดตั้งเลย</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>ติดตั้งอัตโนมัติเมื่อปิดแอป</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>ยืนยัน</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>อัตโนมัติ</translation>
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
        <translation>ต้องการนำอุปกรณ์ออกจากกลุ่มใช่หรือไม่</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>เปลี่ยนชื่อ</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>ชื่อกลุ่ม</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>ป้อนชื่อกลุ่ม</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>นี่คือกลุ่มชั่วคราว ต้องการบันทึกกลุ่มนี้หรือไม่</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>ชื่อต้องมีความยาว 1 ถึง 50 อักขระ</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>เปลี่ยนชื่อ</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>แชร์</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>สร้างสำเนา</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>ลบ</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>ดำเนินการสำเร็จ</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>อัปโหลดผังปุ่ม</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>แจ้งเตือน</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>ป้อนรหัสแชร์ชุดปุ่ม</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>ยืนยัน</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>ข้อความยาวเกินกว่าจะวางได้</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>ไม่มีการใช้งานเป็นเวลานาน จึงเข้าสู่โหมดสแตนด์บายแล้ว</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(โหมดสแตนด์บายช่วยลดการใช้อินเทอร์เน็ต และแอปในอุปกรณ์จะยังทำงานต่อไป)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>ใช้งานต่อ</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>ออกจากอุปกรณ์</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(หลังจากออกจากอุปกรณ์ แอปในอุปกรณ์จะยังทำงานต่อไป)</translation>
    </message>
</context>
<context>
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>การควบคุมกลุ่มต้องมีอย่างน้อย 2 อุปกรณ์</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>ทั้งหมด %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/หน้า</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>หน้าก่อนหน้า</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>หน้าถัดไป</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>กำลังเชื่อมต่อ</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>เวลาที่เหลือ</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>ตั้งเป็นอุปกรณ์หลัก</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>รีสตาร์ท</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>นำออก</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>ควบคุมเครื่องเดียว</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 วัน %2 ชม. %3 นาที %4 วิ</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>ภาพหน้าจอ</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>บันทึกไฟล์</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>รูปภาพ (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>บันทึกรูปภาพไม่สำเร็จ</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>ภาพหน้าจอ</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>บันทึกไฟล์</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>รูปภาพ (*.jpg *.png)</translation>
    </message>
</context>
</TS>
