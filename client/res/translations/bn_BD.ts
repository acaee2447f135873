<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="bn_BD" sourcelanguage="en">
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>একটি সহায়ক কী বেছে নিন</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>ক্লিক</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>কীবোর্ডে চলা</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>ক্রসহেয়ার</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>কী নির্দেশনা</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>কীর অস্বচ্ছতা</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>কীর আকার</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>গেমে ঢুকলে কী দেখান</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>গেমে ঢুকলে নোট দেখান</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>টিউটোরিয়াল</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>টিউটোরিয়াল লোড হচ্ছে</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>টিউটোরিয়াল লোড করা যায়নি।</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>আবার চেষ্টা করুন</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>পিছনে</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>পরবর্তী</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>সম্পন্ন</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>স্কিম ব্যবহার নয়</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>কী প্রিসেট</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>স্কিম যোগ করুন</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>রিফ্রেশ করুন</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>রিসেট করুন</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>সংরক্ষণ করুন</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>শেয়ার কোড কপি হয়েছে</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>শেয়ার কোড %1, এটি বন্ধুকে পাঠান, সে আপলোড করে ব্যবহার করতে পারবে</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>এই কী ইতিমধ্যে ব্যবহৃত</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>কাজটি সফল হয়েছে</translation>
    </message>
</context>
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
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>কীর নোট যোগ করুন</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>মাউসের সংবেদনশীলতা</translation>
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
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>নাম বদলান</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>শেয়ার করুন</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>অনুলিপি তৈরি করুন</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>মুছুন</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>কাজটি সফল হয়েছে</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>কী লেআউট আপলোড করুন</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>বিজ্ঞপ্তি</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>স্কিমের শেয়ার কোড লিখুন</translation>
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
