<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="en">
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>Đang khởi tạo</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>Nhóm tạm thời</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Văn bản quá dài nên không thể dán.</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>Ảnh chụp màn hình</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Lưu tệp</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Hình ảnh (*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>Không thể lưu hình ảnh.</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>Ảnh chụp màn hình</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Lưu tệp</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>Hình ảnh (*.jpg *.png)</translation>
    </message>
</context>
</TS>
