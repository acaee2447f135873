<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>Geçerli tuş düzeni henüz kaydedilmedi. Kaydetmek ister misiniz?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Henüz kayıtlı tuş düzeni yok</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>Eğitim</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>Şema yükle</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Çık</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>Ses +</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Ses -</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Yeniden başlat</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Ana ekran</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>%1 adlı ana cihazın süresi %2 dakika içinde dolacak ve bu, grup kontrolünü etkileyecek. Yenilemek ister misiniz?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>%1 adlı kontrol edilen cihazın süresi %2 dakika içinde dolacak ve bu, grup kontrolünü etkileyecek. Yenilemek ister misiniz?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>Ana cihazın süresi doldu ve cihaz geri alındı. Yeni bir ana cihaz atanıp yeniden başlansın mı?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Süresi dolan cihaz (%1) çıkarıldı</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Metin yapıştırmak için çok uzun.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Kaydet</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Onayla</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>İstek başarısız oldu. Lütfen daha sonra tekrar deneyin.</translation>
    </message>
</context>
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
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Bağlanıyor</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Güncelleme</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Yeni sürüm indiriliyor, lütfen bekleyin...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>Yeni sürüm hazır. Şimdi kurulsun mu?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Şimdi kur</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Uygulama kapatılınca otomatik kur</translation>
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
    <name>RemoveDeviceDialog</name>
    <message>
        <source>Are you sure to remove the device from the group?</source>
        <translation>Cihazı gruptan çıkarmak istediğinize emin misiniz?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Adı değiştir</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Grup adı</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Grup adını girin</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>Bu geçici bir grup. Kaydetmek ister misiniz?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>Ad 1 ile 50 karakter arasında olmalıdır</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>Grup kontrolü için en az 2 cihaz gerekir</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Toplam %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/sayfa</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Önceki sayfa</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Sonraki sayfa</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Bağlanıyor</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Kalan süre</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Ana cihaz yap</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Yeniden başlat</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Çıkar</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Tekli kontrol</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 g %2 sa %3 dk %4 sn</translation>
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
