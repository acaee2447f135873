<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Başlatılıyor</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Ana ekran</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Sesi yükselt</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Sesi kıs</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Ekran görüntüsü</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Ekranı döndür</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Tuşları düzenle</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Tuş atamasını tek tıkla uygula</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Geçici grup</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Onayla</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>Otomatik</translation>
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
        <translation>Metin yapıştırmak için çok uzun.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Uzun süre işlem yapılmadı, bekleme moduna geçildi</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(Bekleme modu veri kullanımını azaltır, cihazdaki uygulamalar çalışmaya devam eder)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Devam et</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Cihazdan çık</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(Cihazdan çıktıktan sonra cihazdaki uygulamalar çalışmaya devam eder)</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Ekran görüntüsü</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Dosyayı Kaydet</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Resim (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>Resim kaydedilemedi.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Ekran görüntüsü</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Dosyayı Kaydet</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Resim (*.jpg *.png)</translation>
    </message>
</context>
</TS>
