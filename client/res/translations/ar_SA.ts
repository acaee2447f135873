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
