<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>当前键位尚未保存，是否保存当前键位？</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>暂无已保存的键位</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>教程</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>上传方案</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>音量加</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>音量减</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重启</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>主控设备 %1 将在 %2 分钟后到期，届时会影响群控操作，是否续费？</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>被控设备 %1 将在 %2 分钟后到期，届时会影响群控操作，是否续费？</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>主控设备已到期回收，是否为您重新分配主控并重新开始？</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>已移除到期设备（%1）</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>文本过长，无法粘贴。</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>保存分组</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>请求失败，请稍后重试。</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>请选择辅助按键</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>点击</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>键盘行走</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>准星</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>按键提示</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>按键不透明度</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>按键大小</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>进入游戏时显示按键</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>进入游戏时显示备注</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>教程</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>正在加载教程</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>教程加载失败。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>不使用方案</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>按键预设</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>添加方案</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>分享码复制成功</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>分享码为 %1，可发送给好友上传使用</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>该按键已被使用</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>操作成功</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>正在初始化</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>正在连接</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>音量加</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>音量减</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>旋转屏幕</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>按键编辑</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>一键应用按键</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>添加按键备注</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>鼠标灵敏度</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>临时分组</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>正在下载新版本，请稍候...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>新版本已准备就绪，是否立即安装？</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>立即安装</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>关闭应用时自动安装</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>720P HQ</source>
        <translation>720P 高画质</translation>
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
        <translation>确定要将该设备移出分组吗？</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>修改名称</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>分组名称</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>请输入分组名称</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>当前为临时分组，是否保存该分组？</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>名称长度应为 1 至 50 个字符</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>创建副本</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>操作成功</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>上传键位</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>请输入方案分享码</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>文本过长，无法粘贴。</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>长时间未操作，已进入待机模式</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>（待机模式可减少流量消耗，设备内的应用会继续运行）</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>恢复使用</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>退出设备</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>（退出设备后，设备内的应用会继续运行）</translation>
    </message>
</context>
<context>
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>群控至少需要 2 台设备</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>共 %1 台</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50 台/页</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>剩余时间</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>设为主控</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>重启</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>移除</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>单独控制</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1天 %2小时 %3分 %4秒</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>图片(*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>无法保存图片。</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>图片(*.jpg *.png)</translation>
    </message>
</context>
</TS>
