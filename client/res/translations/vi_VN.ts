<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi_VN" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>Bố cục phím hiện tại chưa được lưu. Bạn có muốn lưu không?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>Chưa có bố cục phím nào được lưu</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>Hướng dẫn</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>Tải lên sơ đồ</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>Thoát</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>Tăng âm</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Giảm âm</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Khởi động lại</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Trang chủ</translation>
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
        <translation>Thiết bị chính %1 sẽ hết hạn sau %2 phút, ảnh hưởng đến việc điều khiển nhóm. Bạn có muốn gia hạn không?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>Thiết bị được điều khiển %1 sẽ hết hạn sau %2 phút, ảnh hưởng đến việc điều khiển nhóm. Bạn có muốn gia hạn không?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>Thiết bị chính đã hết hạn và bị thu hồi. Bạn có muốn chỉ định lại thiết bị chính và bắt đầu lại không?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>Đã gỡ thiết bị hết hạn (%1)</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>Văn bản quá dài nên không thể dán.</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>Lưu nhóm</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Xác nhận</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>Yêu cầu không thành công. Vui lòng thử lại sau.</translation>
    </message>
</context>
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
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>Đang kết nối</translation>
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
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>Cập nhật</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>Đang tải phiên bản mới, vui lòng chờ...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>Phiên bản mới đã sẵn sàng. Cài đặt ngay?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>Cài đặt ngay</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>Tự động cài đặt khi đóng ứng dụng</translation>
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
    <name>RemoveDeviceDialog</name>
    <message>
        <source>Are you sure to remove the device from the group?</source>
        <translation>Bạn có chắc muốn gỡ thiết bị khỏi nhóm không?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>Đổi tên</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>Tên nhóm</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>Nhập tên nhóm</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>Đây là nhóm tạm thời. Bạn có muốn lưu nhóm này không?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>Tên phải dài từ 1 đến 50 ký tự</translation>
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
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>Điều khiển nhóm cần ít nhất 2 thiết bị</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>Tổng %1</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/trang</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Trang trước</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Trang sau</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>Đang kết nối</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>Thời gian còn lại</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>Đặt làm máy chính</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>Khởi động lại</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>Gỡ bỏ</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>Điều khiển riêng</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1 ngày %2h %3p %4s</translation>
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
