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
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>กลุ่มชั่วคราว</translation>
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
