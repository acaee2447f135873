<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Yardımcı tuş seçin</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Tıklama</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Yürüme kolu</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Nişangâh</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Tuş ipuçları</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Tuş opaklığı</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Tuş boyutu</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Oyuna girince tuşları göster</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Oyuna girince notları göster</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>Eğitim</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>Eğitim yükleniyor</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>Eğitim yüklenemedi.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tekrar dene</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Şema kullanma</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Tuş ön ayarı</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Şema ekle</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Yenile</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Sıfırla</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Paylaşım kodu kopyalandı</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>Paylaşım kodu: %1. Arkadaşınıza gönderin, yükleyip kullanabilir</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Bu tuş zaten kullanılıyor</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>İşlem başarılı</translation>
    </message>
</context>
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
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Tuş notu ekle</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Fare hassasiyeti</translation>
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
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Yeniden adlandır</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Paylaş</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Kopyasını oluştur</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>İşlem başarılı</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Tuş düzeni yükle</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Şemanın paylaşım kodunu girin</translation>
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
