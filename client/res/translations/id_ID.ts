<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en">
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
