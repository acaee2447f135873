<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en">
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
