<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="bn_BD" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>চালু করা হচ্ছে</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>অস্থায়ী গ্রুপ</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>লেখাটি পেস্ট করার পক্ষে অনেক বড়।</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>স্ক্রিনশট</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ফাইল সংরক্ষণ</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>ছবি (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>ছবিটি সংরক্ষণ করা যায়নি।</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>স্ক্রিনশট</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ফাইল সংরক্ষণ</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>ছবি (*.jpg *.png)</translation>
    </message>
</context>
</TS>
