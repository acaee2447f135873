<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en">
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
