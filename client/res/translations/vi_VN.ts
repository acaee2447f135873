<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="en">
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>Chọn phím hỗ trợ</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Nhấp</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>Cần di chuyển</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>Tâm ngắm</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>Gợi ý phím</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>Độ mờ phím</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>Cỡ phím</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>Hiện phím khi vào trò chơi</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>Hiện ghi chú khi vào trò chơi</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>Hướng dẫn</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>Đang tải hướng dẫn</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>Không thể tải hướng dẫn.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Thử lại</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tiếp theo</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Xong</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>Không dùng sơ đồ</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>Cài đặt sẵn phím</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>Thêm sơ đồ</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Làm mới</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Đặt lại</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Lưu</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>Đã sao chép mã chia sẻ</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>Mã chia sẻ là %1. Hãy gửi cho bạn bè để tải lên và sử dụng</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>Phím này đã được sử dụng</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>Thao tác thành công</translation>
    </message>
</context>
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
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>Thêm ghi chú phím</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>Độ nhạy chuột</translation>
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
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>Đổi tên</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Chia sẻ</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>Tạo bản sao</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Xóa</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>Thao tác thành công</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>Tải lên bố cục phím</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>Lưu ý</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>Nhập mã chia sẻ sơ đồ</translation>
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
