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
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>Màn hình chính</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Tăng âm lượng</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Giảm âm lượng</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>Ảnh chụp màn hình</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>Xoay màn hình</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>Chỉnh sửa phím</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>Áp dụng gán phím bằng một cú nhấp</translation>
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
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>Lưu ý</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Xác nhận</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>Tự động</translation>
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
        <translation>Văn bản quá dài nên không thể dán.</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>Đã lâu không có thao tác, thiết bị đã chuyển sang chế độ chờ</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>(Chế độ chờ giúp giảm lưu lượng dữ liệu, các ứng dụng trong thiết bị vẫn tiếp tục chạy)</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>Tiếp tục</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>Thoát thiết bị</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>(Sau khi thoát thiết bị, các ứng dụng trong thiết bị vẫn tiếp tục chạy)</translation>
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
