<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en">
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
