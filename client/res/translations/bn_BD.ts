<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="bn_BD" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>বর্তমান কী লেআউট এখনও সংরক্ষণ করা হয়নি। সংরক্ষণ করবেন?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>এখনও কোনো কী লেআউট সংরক্ষিত নেই</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>টিউটোরিয়াল</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>স্কিম আপলোড করুন</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>বের হোন</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>ভলিউম +</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>ভলিউম -</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>রিস্টার্ট</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>ফিরুন</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>হোম</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>মেনু</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>মাস্টার ডিভাইস %1-এর মেয়াদ %2 মিনিটের মধ্যে শেষ হবে, এতে গ্রুপ নিয়ন্ত্রণে প্রভাব পড়বে। নবায়ন করবেন?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>নিয়ন্ত্রিত ডিভাইস %1-এর মেয়াদ %2 মিনিটের মধ্যে শেষ হবে, এতে গ্রুপ নিয়ন্ত্রণে প্রভাব পড়বে। নবায়ন করবেন?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>মাস্টার ডিভাইসের মেয়াদ শেষ হওয়ায় সেটি ফেরত নেওয়া হয়েছে। নতুন মাস্টার ঠিক করে আবার শুরু করবেন?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>মেয়াদোত্তীর্ণ ডিভাইস (%1) সরানো হয়েছে</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>লেখাটি পেস্ট করার পক্ষে অনেক বড়।</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>গ্রুপ সংরক্ষণ</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>বাতিল</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>নিশ্চিত করুন</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>অনুরোধটি ব্যর্থ হয়েছে। পরে আবার চেষ্টা করুন।</translation>
    </message>
</context>
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
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>সংযোগ হচ্ছে</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>আপডেট</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>নতুন সংস্করণ ডাউনলোড হচ্ছে, অপেক্ষা করুন...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>নতুন সংস্করণ প্রস্তুত। এখনই ইনস্টল করবেন?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>এখনই ইনস্টল করুন</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>অ্যাপ বন্ধ করলে নিজে থেকে ইনস্টল হবে</translation>
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
    <name>RemoveDeviceDialog</name>
    <message>
        <source>Are you sure to remove the device from the group?</source>
        <translation>ডিভাইসটি গ্রুপ থেকে সরাতে চান?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>নাম বদলান</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>গ্রুপের নাম</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>গ্রুপের নাম লিখুন</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>এটি একটি অস্থায়ী গ্রুপ। সংরক্ষণ করবেন?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>নাম 1 থেকে 50 অক্ষরের হতে হবে</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>গ্রুপ নিয়ন্ত্রণে কমপক্ষে 2টি ডিভাইস লাগবে</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>মোট %1টি</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/পৃষ্ঠা</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>আগের পৃষ্ঠা</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>পরের পৃষ্ঠা</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>সংযোগ হচ্ছে</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>বাকি সময়</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>মাস্টার করুন</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>রিস্টার্ট</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>সরান</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>একক নিয়ন্ত্রণ</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 দিন %2 ঘ. %3 মি. %4 সে.</translation>
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
