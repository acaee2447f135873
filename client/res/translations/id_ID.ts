<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>Tata letak tombol saat ini belum disimpan. Ingin menyimpannya?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Belum ada tata letak tombol yang disimpan</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>Unggah skema</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Keluar</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>Volume +</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Volume -</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Mulai ulang</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Beranda</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Perangkat utama %1 akan kedaluwarsa dalam %2 menit dan memengaruhi kontrol grup. Ingin memperpanjang?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Perangkat terkontrol %1 akan kedaluwarsa dalam %2 menit dan memengaruhi kontrol grup. Ingin memperpanjang?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>Perangkat utama telah kedaluwarsa dan ditarik. Tetapkan perangkat utama baru dan mulai lagi?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Perangkat kedaluwarsa (%1) dikeluarkan</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Teks terlalu panjang untuk ditempel.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Simpan grup</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Konfirmasi</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>Permintaan gagal. Silakan coba lagi nanti.</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Pilih tombol bantu</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klik</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Joystick jalan</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Bidikan</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Petunjuk tombol</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Opasitas tombol</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Ukuran tombol</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Tampilkan tombol saat masuk game</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Tampilkan catatan saat masuk game</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>Tutorial</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>Memuat tutorial</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>Tutorial tidak dapat dimuat.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Coba lagi</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Berikutnya</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Selesai</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Tanpa skema</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Preset tombol</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Tambah skema</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Segarkan</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Atur ulang</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Kode berbagi berhasil disalin</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>Kode berbagi adalah %1. Kirim ke teman Anda untuk diunggah dan digunakan</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Tombol ini sudah digunakan</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Operasi berhasil</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Menyiapkan</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Menghubungkan</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Layar utama</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Naikkan volume</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Turunkan volume</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Tangkapan layar</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Putar layar</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Edit tombol</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Terapkan pemetaan tombol dengan satu klik</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Tambah catatan tombol</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Sensitivitas mouse</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Grup sementara</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Pemberitahuan</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Konfirmasi</translation>
    </message>
</context>
<context>
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Pembaruan</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Mengunduh versi baru, harap tunggu...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>Versi baru sudah siap. Pasang sekarang?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Pasang sekarang</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Pasang otomatis saat aplikasi ditutup</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Konfirmasi</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>Otomatis</translation>
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
        <translation>Yakin ingin mengeluarkan perangkat dari grup?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Ganti nama</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Nama grup</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Masukkan nama grup</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>Ini grup sementara. Ingin menyimpan grup ini?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>Nama harus terdiri dari 1 hingga 50 karakter</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Ganti nama</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Bagikan</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Buat salinan</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>Operasi berhasil</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Unggah tata letak tombol</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Pemberitahuan</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Masukkan kode berbagi skema</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Konfirmasi</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Teks terlalu panjang untuk ditempel.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Tidak ada aktivitas dalam waktu lama, mode siaga aktif</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(Mode siaga mengurangi pemakaian data, dan aplikasi di perangkat tetap berjalan)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Lanjutkan</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Keluar perangkat</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(Setelah keluar dari perangkat, aplikasi di dalamnya tetap berjalan)</translation>
    </message>
</context>
<context>
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>Kontrol grup memerlukan minimal 2 perangkat</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Total: %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/hlm.</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Halaman sebelumnya</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Halaman berikutnya</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Menghubungkan</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Sisa waktu</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Jadikan utama</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Mulai ulang</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Keluarkan</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Kontrol tunggal</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 hr %2 j %3 mnt %4 dtk</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Tangkapan layar</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Simpan Berkas</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Gambar (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>Gambar tidak dapat disimpan.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Tangkapan layar</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Simpan Berkas</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Gambar (*.jpg *.png)</translation>
    </message>
</context>
</TS>
