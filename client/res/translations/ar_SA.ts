<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_SA" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>لم يُحفظ تخطيط المفاتيح الحالي بعد. هل تريد حفظه؟</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>لا يوجد تخطيط مفاتيح محفوظ بعد</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>الشرح التعليمي</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>رفع مخطط</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>رفع الصوت</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>خفض الصوت</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>إعادة التشغيل</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>الرئيسية</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>القائمة</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>ستنتهي صلاحية الجهاز الرئيسي %1 خلال %2 د، مما سيؤثر في التحكم الجماعي. هل تريد التجديد؟</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>ستنتهي صلاحية الجهاز المتحكَّم به %1 خلال %2 د، مما سيؤثر في التحكم الجماعي. هل تريد التجديد؟</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>انتهت صلاحية الجهاز الرئيسي وتم استرداده. هل تريد تعيين جهاز رئيسي جديد والبدء من جديد؟</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>تمت إزالة الجهاز المنتهي (%1)</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>النص أطول من أن يُلصق.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>حفظ المجموعة</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>تأكيد</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>فشل الطلب. يُرجى إعادة المحاولة لاحقًا.</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>اختر مفتاحًا مساعدًا</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>نقر</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>الحركة بالمفاتيح</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>مؤشر التصويب</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>تلميحات المفاتيح</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>شفافية المفاتيح</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>حجم المفاتيح</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>إظهار المفاتيح عند دخول اللعبة</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>إظهار الملاحظات عند دخول اللعبة</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>الشرح التعليمي</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>جارٍ تحميل الشرح</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>تعذّر تحميل الشرح.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>بدون مخطط</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>إعداد المفاتيح المسبق</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>إضافة مخطط</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>إعادة الضبط</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>تم نسخ رمز المشاركة</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>رمز المشاركة هو %1، ويمكنك إرساله إلى صديقك ليرفعه ويستخدمه</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>هذا المفتاح مستخدم بالفعل</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>تمت العملية بنجاح</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>جارٍ التهيئة</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>جارٍ الاتصال</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>الشاشة الرئيسية</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>رفع الصوت</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>خفض الصوت</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>لقطة شاشة</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>تدوير الشاشة</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>تحرير المفاتيح</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>تطبيق إعدادات المفاتيح بنقرة واحدة</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>إضافة ملاحظة للمفتاح</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>حساسية الفأرة</translation>
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
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>تنبيه</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>تأكيد</translation>
    </message>
</context>
<context>
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>التحديث</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>جارٍ تنزيل الإصدار الجديد، يُرجى الانتظار...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>الإصدار الجديد جاهز. هل تريد تثبيته الآن؟</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>التثبيت الآن</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>التثبيت تلقائيًا عند إغلاق التطبيق</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>تأكيد</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>تلقائي</translation>
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
        <translation>هل تريد بالتأكيد إزالة الجهاز من المجموعة؟</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>تغيير الاسم</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>اسم المجموعة</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>أدخل اسم المجموعة</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>هذه مجموعة مؤقتة. هل تريد حفظها؟</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>يجب أن يكون طول الاسم من 1 إلى 50 حرفًا</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>إعادة تسمية</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>مشاركة</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>إنشاء نسخة</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>تمت العملية بنجاح</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>رفع تخطيط المفاتيح</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>تنبيه</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>أدخل رمز مشاركة المخطط</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>تأكيد</translation>
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
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>لا يوجد نشاط منذ مدة طويلة، تم الدخول في وضع الاستعداد</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(يقلّل وضع الاستعداد من استهلاك البيانات، وتستمر التطبيقات على الجهاز في العمل)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>متابعة الاستخدام</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>الخروج من الجهاز</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(بعد الخروج من الجهاز تستمر التطبيقات عليه في العمل)</translation>
    </message>
</context>
<context>
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>يتطلب التحكم الجماعي جهازين على الأقل</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>الإجمالي %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/صفحة</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>الصفحة السابقة</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>الصفحة التالية</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>جارٍ الاتصال</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>الوقت المتبقي</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>تعيين كجهاز رئيسي</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>إعادة التشغيل</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>تحكم فردي</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 ي %2 س %3 د %4 ث</translation>
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
