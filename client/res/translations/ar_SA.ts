<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_SA" sourcelanguage="en">
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
