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
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Grup sementara</translation>
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
