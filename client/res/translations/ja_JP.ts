<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>DeviceKeyMapping</name>
    <message>
        <source>The current layout is not saved yet. Do you want to save the current keyboard layout</source>
        <translation>現在のキー配置はまだ保存されていません。保存しますか?</translation>
    </message>
    <message>
        <source>There is no saved key layout yet</source>
        <translation>保存されたキー配置はまだありません</translation>
    </message>
</context>
<context>
    <name>EditingMenu</name>
    <message>
        <source>Tutorial</source>
        <translation>チュートリアル</translation>
    </message>
    <message>
        <source>Upload scheme</source>
        <translation>プリセットをアップロード</translation>
    </message>
    <message>
        <source>Exit</source>
        <extracomment>Leaves the editor of the key mapping.</extracomment>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>FunctionBar</name>
    <message>
        <source>Volume up</source>
        <translation>音量＋</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>音量－</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>再起動</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>メニュー</translation>
    </message>
</context>
<context>
    <name>GroupController</name>
    <message>
        <source>The main control device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>マスターデバイス %1 はあと %2 分で期限が切れ、グループ操作に影響します。延長しますか?</translation>
    </message>
    <message>
        <source>The controlled device %1 will expire in %2 minutes, which will affect group control operations. Do you want to renew?</source>
        <extracomment>%1: name of the device, %2: number of minutes.</extracomment>
        <translation>操作対象のデバイス %1 はあと %2 分で期限が切れ、グループ操作に影響します。延長しますか?</translation>
    </message>
    <message>
        <source>The master has expired for recycling, shall I reassign the master for you and start again?</source>
        <translation>マスターデバイスは期限切れのため回収されました。新しいマスターを割り当てて再開しますか?</translation>
    </message>
    <message>
        <source>Expired device (%1) removed</source>
        <extracomment>%1: name of the device.</extracomment>
        <translation>期限切れのデバイス（%1）を外しました</translation>
    </message>
    <message>
        <source>The text is too long to paste.</source>
        <translation>テキストが長すぎるため貼り付けられません。</translation>
    </message>
    <message>
        <source>Save group</source>
        <translation>グループ保存</translation>
    </message>
</context>
<context>
    <name>GroupDialogBox</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
    </message>
</context>
<context>
    <name>HttpHelper</name>
    <message>
        <source>The request failed. Please try again later.</source>
        <extracomment>The service could not be reached, or gave no reason.</extracomment>
        <translation>リクエストに失敗しました。しばらくしてからもう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>KeyMapControls</name>
    <message>
        <source>Please Select Auxiliary Key</source>
        <translation>補助キーを選択してください</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>クリック</translation>
    </message>
    <message>
        <source>keyboard walking</source>
        <translation>移動スティック</translation>
    </message>
    <message>
        <source>crosshair</source>
        <translation>照準</translation>
    </message>
    <message>
        <source>Key prompts</source>
        <translation>キー表示</translation>
    </message>
    <message>
        <source>Button transparency</source>
        <translation>キーの不透明度</translation>
    </message>
    <message>
        <source>Key size</source>
        <translation>キーのサイズ</translation>
    </message>
    <message>
        <source>Show buttons when entering the game</source>
        <translation>ゲーム開始時にキーを表示</translation>
    </message>
    <message>
        <source>Show notes when entering the game</source>
        <translation>ゲーム開始時にメモを表示</translation>
    </message>
</context>
<context>
    <name>KeyMapGuide</name>
    <message>
        <source>Tutorial</source>
        <translation>チュートリアル</translation>
    </message>
    <message>
        <source>Loading the tutorial</source>
        <translation>チュートリアルを読み込み中</translation>
    </message>
    <message>
        <source>The tutorial could not be loaded.</source>
        <translation>チュートリアルを読み込めませんでした。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>KeyboardMapEditor</name>
    <message>
        <source>Not using the scheme</source>
        <translation>プリセットを使用しない</translation>
    </message>
    <message>
        <source>Key Preset</source>
        <translation>キープリセット</translation>
    </message>
    <message>
        <source>Add scheme</source>
        <translation>プリセットを追加</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>The sharing code has copied successfully</source>
        <translation>共有コードをコピーしました</translation>
    </message>
    <message>
        <source>The sharing code is %1, and can be sent to your friend to be uploaded for use</source>
        <translation>共有コードは %1 です。友だちに送ると、アップロードして使用できます</translation>
    </message>
</context>
<context>
    <name>KeyboardMapMgr</name>
    <message>
        <source>This Key Binding is Already in Use</source>
        <translation>このキーはすでに使用されています</translation>
    </message>
    <message>
        <source>Operated successfully</source>
        <translation>操作が完了しました</translation>
    </message>
</context>
<context>
    <name>LoadingPage</name>
    <message>
        <source>Initialising</source>
        <translation>初期化しています</translation>
    </message>
</context>
<context>
    <name>MainController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of the master device of a group whose picture is on its way.</extracomment>
        <translation>接続中</translation>
    </message>
</context>
<context>
    <name>MenuBar</name>
    <message>
        <source>Home page</source>
        <translation>ホーム</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>音量を上げる</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>音量を下げる</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Screen Rotate</source>
        <translation>画面を回転</translation>
    </message>
    <message>
        <source>Key editing</source>
        <translation>キー編集</translation>
    </message>
    <message>
        <source>Apply Key Binding with One Click</source>
        <translation>ワンクリックでキー割り当てを適用</translation>
    </message>
</context>
<context>
    <name>OvAuxiliaryKeyEditor</name>
    <message>
        <source>Add Button Notes</source>
        <translation>キーのメモを追加</translation>
    </message>
    <message>
        <source>Mouse Sensitivity</source>
        <translation>マウス感度</translation>
    </message>
</context>
<context>
    <name>OvMainWindowJsApi</name>
    <message>
        <source>Temporary grouping</source>
        <translation>一時グループ</translation>
    </message>
</context>
<context>
    <name>OvMaskTipsDialog</name>
    <message>
        <source>Hints</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
    </message>
</context>
<context>
    <name>OvUpdateDialog</name>
    <message>
        <source>Update</source>
        <extracomment>Title of the window that downloads a new version of the program.</extracomment>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Downloading the new version, please wait...</source>
        <translation>新しいバージョンをダウンロードしています。お待ちください...</translation>
    </message>
    <message>
        <source>The new version is ready, install now?</source>
        <translation>新しいバージョンの準備ができました。今すぐインストールしますか?</translation>
    </message>
    <message>
        <source>Install now</source>
        <translation>今すぐインストール</translation>
    </message>
    <message>
        <source>Installation is automatic when closing the app</source>
        <translation>アプリの終了時に自動でインストール</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
    </message>
</context>
<context>
    <name>QualityBox</name>
    <message>
        <source>Auto</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>720P HQ</source>
        <translation>720P 高画質</translation>
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
        <translation>このデバイスをグループから外しますか?</translation>
    </message>
</context>
<context>
    <name>SaveGroupDialog</name>
    <message>
        <source>Change the name</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Group name</source>
        <translation>グループ名</translation>
    </message>
    <message>
        <source>Please enter group name</source>
        <translation>グループ名を入力してください</translation>
    </message>
    <message>
        <source>This is a temporary group. Do you want to save this group?</source>
        <translation>これは一時グループです。このグループを保存しますか?</translation>
    </message>
    <message>
        <source>The name length should be greater than one character and less than 50 characters</source>
        <translation>名前は 1~50 文字で入力してください</translation>
    </message>
</context>
<context>
    <name>SchemeBox</name>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Create a copy</source>
        <translation>コピーを作成</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>SchemeImporter</name>
    <message>
        <source>Operated successfully</source>
        <translation>操作が完了しました</translation>
    </message>
</context>
<context>
    <name>ShareConfigDlg</name>
    <message>
        <source>Upload keyboard layout</source>
        <translation>キー配置をアップロード</translation>
    </message>
    <message>
        <source>Hints</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Enter your scheme sharing code</source>
        <translation>プリセットの共有コードを入力</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
    </message>
</context>
<context>
    <name>SingleController</name>
    <message>
        <source>The text is too long to paste.</source>
        <translation>テキストが長すぎるため貼り付けられません。</translation>
    </message>
</context>
<context>
    <name>StandbyWidget</name>
    <message>
        <source>Not operating for a long time, has entered standby mode</source>
        <translation>長時間操作がなかったため、スタンバイモードに入りました</translation>
    </message>
    <message>
        <source>(standby mode can reduce traffic consumption, and applications within the device will continue to run)</source>
        <translation>（スタンバイモードでは通信量を抑えられ、デバイス内のアプリは動作し続けます）</translation>
    </message>
    <message>
        <source>Resume use</source>
        <translation>利用を再開</translation>
    </message>
    <message>
        <source>Exit device</source>
        <translation>デバイスから退出</translation>
    </message>
    <message>
        <source>(After exiting the device, the application within the device will continue to run)</source>
        <translation>（デバイスから退出しても、デバイス内のアプリは動作し続けます）</translation>
    </message>
</context>
<context>
    <name>SubControlPage</name>
    <message>
        <source>Group control need to be more than 2 devices</source>
        <translation>グループ操作には 2 台以上のデバイスが必要です</translation>
    </message>
    <message>
        <source>Total %1</source>
        <extracomment>How many devices a group has.</extracomment>
        <translation>全 %1 台</translation>
    </message>
    <message>
        <source>50/page</source>
        <extracomment>How many devices of a group a page shows.</extracomment>
        <translation>50/ページ</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
</context>
<context>
    <name>SubController</name>
    <message>
        <source>Connecting</source>
        <extracomment>State of a device of a group whose picture is on its way.</extracomment>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <extracomment>Followed by a colon and the time after which a device is given back.</extracomment>
        <translation>残り時間</translation>
    </message>
</context>
<context>
    <name>TileMenu</name>
    <message>
        <source>Set as master</source>
        <extracomment>Entry of the menu over a device of a group: it becomes the device whose input the others follow.</extracomment>
        <translation>マスターに設定</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>Entry of the menu over a device of a group.</extracomment>
        <translation>再起動</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Entry of the menu over a device of a group: it leaves the group.</extracomment>
        <translation>外す</translation>
    </message>
    <message>
        <source>Single control</source>
        <extracomment>Entry of the menu over a device of a group: it opens in a window of its own.</extracomment>
        <translation>単独操作</translation>
    </message>
</context>
<context>
    <name>TileText</name>
    <message>
        <source>%1d %2h %3min %4s</source>
        <extracomment>Time left: days, hours, minutes, seconds.</extracomment>
        <translation>%1日 %2時間 %3分 %4秒</translation>
    </message>
</context>
<context>
    <name>VideoView</name>
    <message>
        <source>Screen capture</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>画像(*.jpg *.png)</translation>
    </message>
    <message>
        <source>The picture could not be saved.</source>
        <translation>画像を保存できませんでした。</translation>
    </message>
</context>
<context>
    <name>WebSingleControllerJsApi</name>
    <message>
        <source>Screen capture</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>Image(*.jpg *.png)</source>
        <translation>画像(*.jpg *.png)</translation>
    </message>
</context>
</TS>
