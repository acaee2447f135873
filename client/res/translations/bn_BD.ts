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
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>হোম</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>ভলিউম বাড়ান</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>ভলিউম কমান</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>স্ক্রিনশট</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>স্ক্রিন ঘোরান</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>কী সম্পাদনা</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>এক ক্লিকে কী বাইন্ডিং প্রয়োগ করুন</translation>
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
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>বিজ্ঞপ্তি</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>বন্ধ করুন</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>নিশ্চিত করুন</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>স্বয়ংক্রিয়</translation>
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
        <translation>লেখাটি পেস্ট করার পক্ষে অনেক বড়।</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>দীর্ঘক্ষণ কোনো কার্যকলাপ নেই, স্ট্যান্ডবাই মোড চালু হয়েছে</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(স্ট্যান্ডবাই মোডে ডেটা খরচ কমে এবং ডিভাইসের অ্যাপগুলো চলতে থাকে)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>আবার ব্যবহার করুন</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>ডিভাইস ছাড়ুন</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(ডিভাইস থেকে বের হওয়ার পরও ডিভাইসের অ্যাপগুলো চলতে থাকবে)</translation>
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
