<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_SA" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>جارٍ التهيئة</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>مجموعة مؤقتة</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>النص أطول من أن يُلصق.</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>لقطة شاشة</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>حفظ الملف</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>صورة (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>تعذّر حفظ الصورة.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>لقطة شاشة</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>حفظ الملف</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>صورة (*.jpg *.png)</translation>
    </message>
</context>
</TS>
