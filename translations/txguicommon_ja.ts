<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AboutAppWindow</name>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Patent and Legal Notices</source>
        <translation>特許および法的通知</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>%1について</translation>
    </message>
</context>
<context>
    <name>AutoMountManagerMainWindow</name>
    <message>
        <source>AutoMount Manager</source>
        <translation>自動マウントマネージャー</translation>
    </message>
    <message>
        <source>Network Drives</source>
        <translation>ネットワークドライブ</translation>
    </message>
    <message>
        <source>Add Network Drive</source>
        <translation>ネットワークドライブの追加</translation>
    </message>
    <message>
        <source>Remove Network Drive</source>
        <translation>ネットワークドライブの削除</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>編集...</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>There is no Network Drive letter available.
Please disconnect a network Network Drive and retry.</source>
        <translation>使用できるドライブ文字がありません。
ネットワークドライブを1つ切断してから、もう一度試してください。</translation>
    </message>
    <message>
        <source>Edit Network Drive Parameters</source>
        <translation>ネットワークドライブの設定の編集</translation>
    </message>
    <message>
        <source>Warning: Network Drive Delete?</source>
        <translation>警告: ネットワークドライブを削除しますか？</translation>
    </message>
    <message>
        <source>Do you want to remove selected Network Drive?</source>
        <translation>選択したネットワークドライブを削除しますか？</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveEditor</name>
    <message>
        <source>Network Drive</source>
        <translation>ネットワークドライブ</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>プロトコル</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>(required)</source>
        <translation>(必須)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>ドメイン</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveModel</name>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>アクティブ</translation>
    </message>
    <message>
        <source>Network Drive</source>
        <translation>ネットワークドライブ</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>User</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>This Network Drive is connected</source>
        <translation>このネットワークドライブは接続されています</translation>
    </message>
    <message>
        <source>This nNetwork Drive is disconnected</source>
        <translation>このネットワークドライブは切断されています</translation>
    </message>
    <message>
        <source>Impossible to reconnect the Network Drive, please check the address, the password and the user name</source>
        <translation>ネットワークドライブに再接続できません。アドレス、パスワード、ユーザー名を確認してください</translation>
    </message>
    <message>
        <source>This Network Drive letter is already used, please choose another letter to connect the Network Drive</source>
        <translation>このドライブ文字はすでに使用されています。ネットワークドライブを接続するには別の文字を選択してください</translation>
    </message>
</context>
<context>
    <name>CredentialDialog</name>
    <message>
        <source>Credentials</source>
        <translation>資格情報</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>記憶する</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBoxWithSliderWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
</context>
<context>
    <name>EMailSenderWidget</name>
    <message>
        <source>Login:</source>
        <translation>ログイン名:</translation>
    </message>
    <message>
        <source>(Optional)</source>
        <translation>(任意)</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>SMTP Server:</source>
        <translation>SMTPサーバー:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(必須)</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>暗号化</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>差出人:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>宛先:</translation>
    </message>
    <message>
        <source>Cc:</source>
        <translation>Cc:</translation>
    </message>
    <message>
        <source>Send Test Mail</source>
        <translation>テストメールを送信</translation>
    </message>
    <message>
        <source>Field 'Sender' is empty, please add sender address which contain '.' and '@'.</source>
        <translation>「差出人」欄が空です。「.」と「@」を含む差出人アドレスを入力してください。</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'Sender', please add sender address which contain a '@'.</source>
        <translation>「差出人」欄に「@」がありません。「@」を含む差出人アドレスを入力してください。</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'Sender', please add sender address which contain a '.'.</source>
        <translation>「差出人」欄に「.」がありません。「.」を含む差出人アドレスを入力してください。</translation>
    </message>
    <message>
        <source>Field 'To' is empty, please add receiver address which contain '.' and '@'.</source>
        <translation>「宛先」欄が空です。「.」と「@」を含む宛先アドレスを入力してください。</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'To', please add receiver address which contain a '@'.</source>
        <translation>「宛先」欄に「@」がありません。「@」を含む宛先アドレスを入力してください。</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'To', please add receiver address which contain a '.'.</source>
        <translation>「宛先」欄に「.」がありません。「.」を含む宛先アドレスを入力してください。</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'cC', please add receiver address which contain a '@'.</source>
        <translation>「Cc」欄に「@」がありません。「@」を含む宛先アドレスを入力してください。</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'cC', please add receiver address which contain a '.'.</source>
        <translation>「Cc」欄に「.」がありません。「.」を含む宛先アドレスを入力してください。</translation>
    </message>
    <message>
        <source>Uncompleted Mail Configuration</source>
        <translation>メール設定の不足</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Mail Sending Result</source>
        <translation>メール送信の結果</translation>
    </message>
    <message>
        <source>Mail has been sent successfully.</source>
        <translation>メールを送信しました。</translation>
    </message>
    <message>
        <source>SMTP Mail Server:</source>
        <translation>SMTPメールサーバー:</translation>
    </message>
    <message>
        <source>Sender Address:</source>
        <translation>差出人アドレス:</translation>
    </message>
    <message>
        <source>name@domain</source>
        <translation>name@domain</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>宛先アドレス:</translation>
    </message>
    <message>
        <source>This is a test message sent by Tovra ProofKeeper software.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</source>
        <translation>これはソフトウェアTovra ProofKeeperが送信したテストメッセージです。<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>This is a test message sent by %1 software.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</source>
        <translation>これはソフトウェア%1が送信したテストメッセージです。<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>Tovra ProofKeeper test message.</source>
        <translation>Tovra ProofKeeperのテストメッセージです。</translation>
    </message>
    <message>
        <source>%1 test message.</source>
        <translation>%1のテストメッセージです。</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>ログイン名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>SMTP Server</source>
        <translation>SMTPサーバー</translation>
    </message>
    <message>
        <source>From</source>
        <translation>差出人</translation>
    </message>
    <message>
        <source>To</source>
        <translation>宛先</translation>
    </message>
    <message>
        <source>Cc</source>
        <translation>Cc</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationDialog</name>
    <message>
        <source>FTP Import Dialog</source>
        <translation>FTPインポート</translation>
    </message>
    <message>
        <source>FTP Export Dialog</source>
        <translation>FTPエクスポート</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationWidget</name>
    <message>
        <source>Active</source>
        <translation>アクティブ</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>プロトコル</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Distant Path</source>
        <translation>リモートパス</translation>
    </message>
    <message>
        <source>Erase Distant Files</source>
        <translation>リモートファイルを消去</translation>
    </message>
    <message>
        <source>Check Connection</source>
        <translation>接続を確認</translation>
    </message>
    <message>
        <source>Please check the user name and password</source>
        <translation>ユーザー名とパスワードを確認してください</translation>
    </message>
    <message>
        <source>Please check the host name and port number</source>
        <translation>ホスト名とポート番号を確認してください</translation>
    </message>
    <message>
        <source>Try to connect again to the FTP</source>
        <translation>FTPサーバーへの接続をもう一度試してください</translation>
    </message>
    <message>
        <source>Erase Local Files</source>
        <translation>ローカルファイルを消去</translation>
    </message>
    <message>
        <source>Checking the connection</source>
        <translation>接続を確認しています</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>接続に成功しました</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>接続に失敗しました</translation>
    </message>
</context>
<context>
    <name>LockerFirstPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>ユーザーインターフェイスのロック</translation>
    </message>
    <message>
        <source>Enter Password (twice)</source>
        <translation>パスワードの入力(2回)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Password again</source>
        <translation>パスワード(確認)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>LockerPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>ユーザーインターフェイスのロック</translation>
    </message>
    <message>
        <source>Enter Current Password</source>
        <translation>現在のパスワードの入力</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>現在のパスワード</translation>
    </message>
    <message>
        <source>Enter a New Password (twice)</source>
        <translation>新しいパスワードの入力(2回)</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>新しいパスワード</translation>
    </message>
    <message>
        <source>New password again</source>
        <translation>新しいパスワード(確認)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>LockerUIDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>ユーザーインターフェイスをロック</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>パスワードを変更</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This kind of address is not supported.</source>
        <translation>この種類のアドレスには対応していません。</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>アドレスが無効です。</translation>
    </message>
    <message>
        <source>No server of that name was found.</source>
        <translation>その名前のサーバーは見つかりませんでした。</translation>
    </message>
    <message>
        <source>The server cannot be reached, or nothing answers on that port.</source>
        <translation>サーバーに到達できないか、そのポートで応答がありません。</translation>
    </message>
    <message>
        <source>The server gave an unexpected answer.</source>
        <translation>サーバーが予期しない応答を返しました。</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>サーバーがアクセスを拒否しました。</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>サーバーが時間内に応答しませんでした。</translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Perhaps the port is not for encrypted connections.</source>
        <translation>暗号化された接続を確立できませんでした。暗号化接続用のポートではない可能性があります。</translation>
    </message>
    <message>
        <source>The transfer was cancelled.</source>
        <translation>転送はキャンセルされました。</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>サーバーが接続を閉じました。</translation>
    </message>
    <message>
        <source>The connection was broken or the server refused what was sent.</source>
        <translation>接続が切れたか、送信した内容をサーバーが拒否しました。</translation>
    </message>
    <message>
        <source>The connection was broken by the server.</source>
        <translation>サーバーによって接続が切断されました。</translation>
    </message>
    <message>
        <source>The identity of the server could not be verified: its certificate or key is not trusted or belongs to another server.</source>
        <translation>サーバーの身元を確認できませんでした。証明書または鍵が信頼されていないか、別のサーバーのものです。</translation>
    </message>
    <message>
        <source>The server does not offer an encrypted connection.</source>
        <translation>サーバーは暗号化された接続に対応していません。</translation>
    </message>
    <message>
        <source>The server refused the login. Check user name and password.</source>
        <translation>サーバーがログインを拒否しました。ユーザー名とパスワードを確認してください。</translation>
    </message>
    <message>
        <source>The file of trusted certificate authorities cannot be read.</source>
        <translation>信頼された認証局のファイルを読み取れません。</translation>
    </message>
    <message>
        <source>The server does not have that file or folder.</source>
        <translation>そのファイルまたはフォルダーはサーバーにありません。</translation>
    </message>
    <message>
        <source>The SSH connection to the server failed.</source>
        <translation>サーバーへのSSH接続に失敗しました。</translation>
    </message>
    <message>
        <source>The server's last message: %1</source>
        <translation>サーバーの最後のメッセージ: %1</translation>
    </message>
    <message>
        <source>This mail address holds a line break or a control character: %1</source>
        <translation>このメールアドレスには改行または制御文字が含まれています: %1</translation>
    </message>
    <message>
        <source>This mail address is too long: %1</source>
        <translation>このメールアドレスは長すぎます: %1</translation>
    </message>
    <message>
        <source>Letters such as those before the '@' of this address cannot be sent: %1</source>
        <translation>このアドレスの「@」より前にあるような文字は送信できません: %1</translation>
    </message>
    <message>
        <source>This is not a mail address: %1</source>
        <translation>これはメールアドレスではありません: %1</translation>
    </message>
    <message>
        <source>The mail settings name no sender (field 'From').</source>
        <translation>メール設定に差出人がありません(「差出人」欄)。</translation>
    </message>
    <message>
        <source>The mail settings name no receiver (field 'To').</source>
        <translation>メール設定に宛先がありません(「宛先」欄)。</translation>
    </message>
    <message>
        <source>The mail server demands a login or encryption.</source>
        <translation>メールサーバーはログインまたは暗号化を要求しています。</translation>
    </message>
    <message>
        <source>The mail server refused the sender's address.</source>
        <translation>メールサーバーが差出人のアドレスを拒否しました。</translation>
    </message>
    <message>
        <source>The mail server refused a receiver's address. The mail was sent to nobody.</source>
        <translation>メールサーバーが宛先のアドレスを拒否しました。メールは誰にも送信されていません。</translation>
    </message>
    <message>
        <source>The mail server refused the mail.</source>
        <translation>メールサーバーがメールを拒否しました。</translation>
    </message>
    <message>
        <source>The mail settings name no server (field 'SMTP Server').</source>
        <translation>メール設定にサーバーがありません(「SMTPサーバー」欄)。</translation>
    </message>
    <message>
        <source>This is not the name of a mail server: %1</source>
        <translation>これはメールサーバーの名前ではありません: %1</translation>
    </message>
    <message>
        <source>The mail server's port is above 65535: %1</source>
        <translation>メールサーバーのポートが65535を超えています: %1</translation>
    </message>
    <message>
        <source>The mail settings ask for an unknown encryption: '%1'</source>
        <translation>メール設定で未知の暗号化が指定されています: 「%1」</translation>
    </message>
    <message>
        <source>The stored password for the mail server cannot be read, please enter it again. %1</source>
        <translation>保存されているメールサーバーのパスワードを読み取れません。もう一度入力してください。%1</translation>
    </message>
    <message>
        <source>Select your translation file</source>
        <translation>翻訳ファイルの選択</translation>
    </message>
    <message numerus="yes">
        <source>No Style has been loaded.</source>
        <translation>
            <numerusform>スタイルが読み込まれていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning: Cannot open PDF File</source>
        <translation>警告: PDFファイルを開けません</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if the file exist at the following path : %2</source>
        <translation>次のPDFを開けません: %1

次の場所にファイルがあるか確認してください: %2</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if a pdf reader has been installed on your computer</source>
        <translation>次のPDFを開けません: %1

PDFビューアーがコンピューターにインストールされているか確認してください</translation>
    </message>
</context>
<context>
    <name>ShareBrowser</name>
    <message>
        <source>Choose Network Drive folder</source>
        <translation>ネットワークドライブのフォルダーの選択</translation>
    </message>
    <message>
        <source>Hosts and shared folders</source>
        <translation>ホストと共有フォルダー</translation>
    </message>
    <message>
        <source>Searching the network</source>
        <translation>ネットワークを検索しています</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateConfigWidget</name>
    <message>
        <source>Check For Updates</source>
        <translation>アップデートの確認</translation>
    </message>
    <message>
        <source>Automatically Check for Updates</source>
        <translation>アップデートを自動的に確認</translation>
    </message>
    <message>
        <source>Check for Updates at Startup</source>
        <translation>起動時にアップデートを確認</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>今すぐ確認</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateWidget</name>
    <message>
        <source>Check for Updates</source>
        <translation>アップデートの確認</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>アップデートを確認しています...</translation>
    </message>
    <message>
        <source>Checking for update</source>
        <translation>アップデートを確認しています</translation>
    </message>
    <message>
        <source>Version Name</source>
        <translation>バージョン名</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>リリースノート</translation>
    </message>
    <message>
        <source>Version description</source>
        <translation>バージョンの説明</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>ダウンロードしてインストール</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>(rev %1)</source>
        <translation>(rev. %1)</translation>
    </message>
    <message>
        <source>Choose Download Directory</source>
        <translation>ダウンロード先フォルダーの選択</translation>
    </message>
    <message>
        <source>%1 will be installed on your computer.
Please make sure to have administrator rights before attempting the software update.</source>
        <translation>%1をコンピューターにインストールします。
ソフトウェアをアップデートする前に、管理者権限があることを確認してください。</translation>
    </message>
    <message>
        <source>Installing Update</source>
        <translation>アップデートのインストール</translation>
    </message>
    <message>
        <source>Do you want to install this update?
The application will exit.</source>
        <translation>このアップデートをインストールしますか？
アプリケーションは終了します。</translation>
    </message>
    <message>
        <source>%1 is up to date.</source>
        <translation>%1は最新です。</translation>
    </message>
    <message>
        <source>Impossible to connect to the Check for Updates service, please check your Internet connection.</source>
        <translation>アップデート確認サービスに接続できません。インターネット接続を確認してください。</translation>
    </message>
    <message>
        <source>%1 is available.</source>
        <translation>%1を利用できます。</translation>
    </message>
</context>
<context>
    <name>TXColorSquareWidget</name>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>色なし</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>グラデーション</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Pattern in %1</source>
        <translation>%1のパターン</translation>
    </message>
</context>
<context>
    <name>TXDBNavWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>ページ:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>TXDataCrypt</name>
    <message>
        <source>The data is not enciphered</source>
        <translation>データは暗号化されていません</translation>
    </message>
    <message>
        <source>The data is damaged or was enciphered with another key</source>
        <translation>データが壊れているか、別の鍵で暗号化されています</translation>
    </message>
    <message numerus="yes">
        <source>The key file %2 cannot be made: %1</source>
        <translation>
            <numerusform>鍵ファイル%2を作成できません: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The cipher cannot be started</source>
        <translation>
            <numerusform>暗号化を開始できません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %1 cannot be read</source>
        <translation>
            <numerusform>鍵ファイル%1を読み取れません</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %3 is damaged: it has %1 bytes instead of %2</source>
        <translation>
            <numerusform>鍵ファイル%3が壊れています: %2バイトのはずが%1バイトです</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The folder %1 cannot be made</source>
        <translation>
            <numerusform>フォルダー%1を作成できません</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TXDatabaseConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Internal Database</source>
        <translation>内部データベース</translation>
    </message>
    <message>
        <source>MySQL/MariaDB Database</source>
        <translation>MySQL/MariaDBデータベース</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>ホスト</translation>
    </message>
    <message>
        <source>127.0.0.1</source>
        <translation>127.0.0.1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>root</source>
        <translation>root</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>データベース</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>テスト</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>接続に成功しました</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>接続に失敗しました</translation>
    </message>
</context>
<context>
    <name>TXDeltaGradientWidget</name>
    <message>
        <source>Colour differences</source>
        <translation>色差</translation>
    </message>
    <message>
        <source>Average %1, limit %2 with %3 % of the pixels below, maximum %4</source>
        <translation>平均%1、しきい値%2(これを下回るピクセル: %3 %)、最大%4</translation>
    </message>
    <message>
        <source>∆EMin</source>
        <translation>∆E最小</translation>
    </message>
    <message>
        <source>∆Eavg: %1    %2 % of pixels &lt; ∆E Limit</source>
        <translation>∆E平均: %1    %2 %のピクセル &lt; ∆Eしきい値</translation>
    </message>
    <message>
        <source>∆EMax</source>
        <translation>∆E最大</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
</context>
<context>
    <name>TXError</name>
    <message>
        <source>Domain: %1</source>
        <translation>エラードメイン: %1</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>コード: %1</translation>
    </message>
</context>
<context>
    <name>TXFTP</name>
    <message>
        <source>The user name or the password contains a control character.</source>
        <translation>ユーザー名またはパスワードに制御文字が含まれています。</translation>
    </message>
    <message>
        <source>The user name or the password is too long.</source>
        <translation>ユーザー名またはパスワードが長すぎます。</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>アドレスが無効です。</translation>
    </message>
    <message>
        <source>The address has to begin with ftp, ftps or sftp.</source>
        <translation>アドレスはftp、ftps、sftpのいずれかで始まる必要があります。</translation>
    </message>
    <message>
        <source>The address names no server.</source>
        <translation>アドレスにサーバーが指定されていません。</translation>
    </message>
    <message>
        <source>The port number has to be between 1 and 65535.</source>
        <translation>ポート番号は1から65535までの値にする必要があります。</translation>
    </message>
</context>
<context>
    <name>TXFeedbackDialog</name>
    <message>
        <source>Feedback</source>
        <translation>フィードバック</translation>
    </message>
</context>
<context>
    <name>TXFeedbackWidget</name>
    <message>
        <source>Sender Information:</source>
        <translation>送信者の情報:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(必須)</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>会社名:</translation>
    </message>
    <message>
        <source>Feedback Description:</source>
        <translation>フィードバックの内容:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>件名:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>説明:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>送信</translation>
    </message>
    <message>
        <source>Field 'Name' hasn't been set, please set a "Name".</source>
        <translation>「名前」欄が空です。名前を入力してください。</translation>
    </message>
    <message>
        <source>Field 'Company' hasn't been set, please set a 'Company'.</source>
        <translation>「会社名」欄が空です。会社名を入力してください。</translation>
    </message>
    <message>
        <source>Field 'Subject' hasn't been set, please set a 'Subject'.</source>
        <translation>「件名」欄が空です。件名を入力してください。</translation>
    </message>
    <message>
        <source>Field 'Description' hasn't been set, please set a 'Description'.</source>
        <translation>「説明」欄が空です。説明を入力してください。</translation>
    </message>
    <message>
        <source>Field 'Login' is empty, please add an E-Mail Address which contain '.' and '@'.</source>
        <translation>「メールアドレス」欄が空です。「.」と「@」を含むメールアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'E-Mail Address', please add a login which contain a '@'.</source>
        <translation>「メールアドレス」欄に「@」がありません。「@」を含むアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'E-Mail Address', please add a login which contain a '.'.</source>
        <translation>「メールアドレス」欄に「.」がありません。「.」を含むアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>情報の不足</translation>
    </message>
    <message>
        <source>Reset Application</source>
        <translation>フィードバックの送信</translation>
    </message>
    <message>
        <source>Are you really sure you want to send this feedback?</source>
        <translation>このフィードバックを送信してもよろしいですか？</translation>
    </message>
    <message>
        <source>Failed to send feedback</source>
        <translation>フィードバックを送信できませんでした</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, maybe the feedback service is unavailable for the moment. Please re-try later.</source>
        <translation>フィードバックは送信されませんでした。フィードバックサービスが一時的に利用できない可能性があります。しばらくしてからもう一度試してください。</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, because the following error occured:%1.</source>
        <translation>次のエラーが発生したため、フィードバックは送信されませんでした: %1。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>会社名</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>件名</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
</context>
<context>
    <name>TXImageViewer</name>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Image viewer</source>
        <translation>画像ビューアー</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体表示</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>画像なし</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, pixel %2, %3: %4</source>
        <translation>%1、ピクセル%2、%3: %4</translation>
    </message>
</context>
<context>
    <name>TXLogModel</name>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
</context>
<context>
    <name>TXLogWindow</name>
    <message>
        <source>Log Details:</source>
        <translation>ログの詳細:</translation>
    </message>
    <message>
        <source>Log entries</source>
        <translation>ログエントリ</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>リストをクリア</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Log Manager</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Warning &amp; Errors</source>
        <translation>警告とエラー</translation>
    </message>
    <message>
        <source>Errors Only</source>
        <translation>エラーのみ</translation>
    </message>
</context>
<context>
    <name>TXMailSender</name>
    <message>
        <source>The system is too busy to send a mail.</source>
        <translation>システムの負荷が高く、メールを送信できません。</translation>
    </message>
</context>
<context>
    <name>TXProgressBar</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
</context>
<context>
    <name>TXReportAccessible</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>%2ページ中%1ページ目</translation>
    </message>
</context>
<context>
    <name>TXReportDocument</name>
    <message>
        <source>This is not a file name.</source>
        <translation>これはファイル名ではありません。</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>これは通常のファイルではありません。</translation>
    </message>
    <message>
        <source>The report could not be written to "%2": %1</source>
        <translation>レポートを「%2」に書き込めませんでした: %1</translation>
    </message>
    <message>
        <source>The document's data could not be added to the PDF.</source>
        <translation>文書のデータをPDFに追加できませんでした。</translation>
    </message>
    <message>
        <source>The printer "%1" does not take the page size of the report.</source>
        <translation>プリンター「%1」はレポートの用紙サイズに対応していません。</translation>
    </message>
    <message>
        <source>The printer "%1" can't be started.</source>
        <translation>プリンター「%1」を開始できません。</translation>
    </message>
    <message>
        <source>The printer "%1" has stopped in the middle.</source>
        <translation>プリンター「%1」が途中で停止しました。</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>プリンターがありません。</translation>
    </message>
    <message>
        <source>The report has none of the pages that are to be printed.</source>
        <translation>印刷するページがレポートにありません。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>ページ %1 / %2</translation>
    </message>
    <message>
        <source>The report is being written or printed already.</source>
        <translation>レポートはすでに書き込み中または印刷中です。</translation>
    </message>
    <message>
        <source>The report has no pages.</source>
        <translation>レポートにページがありません。</translation>
    </message>
    <message>
        <source>The margins, the header and the footer leave no room on the paper.</source>
        <translation>余白、ヘッダー、フッターのため、用紙に残りの領域がありません。</translation>
    </message>
    <message>
        <source>page {page} of {pages}</source>
        <translation>ページ {page} / {pages}</translation>
    </message>
</context>
<context>
    <name>TXSelectDefaultEncodingWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Default Encoding</source>
        <translation>既定のエンコーディング</translation>
    </message>
</context>
<context>
    <name>TXSelectionItemWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>新規作成</translation>
    </message>
</context>
<context>
    <name>TXTriggerEventWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガー</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>周期</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Each Hour</source>
        <translation>毎時</translation>
    </message>
    <message>
        <source>Each Month</source>
        <translation>毎月</translation>
    </message>
    <message>
        <source>Each Week</source>
        <translation>毎週</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>毎日</translation>
    </message>
    <message>
        <source>Each Minute</source>
        <translation>毎分</translation>
    </message>
</context>
<context>
    <name>TXVariantViewer</name>
    <message>
        <source>Copy value</source>
        <translation>値をコピー</translation>
    </message>
    <message>
        <source>The value was not copied. It is nested deeper than the %1 levels that its text in JSON may have.</source>
        <translation>値はコピーされませんでした。値の入れ子が、JSONテキストで許される%1階層より深くなっています。</translation>
    </message>
    <message>
        <source>Copy value (JSON encoded)</source>
        <translation>値をコピー(JSON形式)</translation>
    </message>
    <message>
        <source>Copy string value</source>
        <translation>文字列値をコピー</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>kind and value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>value and kind</comment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>dictionary, one entry</source>
        <translation>辞書、エントリ1個</translation>
    </message>
    <message numerus="yes">
        <source>dictionary, %n entries</source>
        <translation>
            <numerusform>辞書、エントリ%n個</numerusform>
        </translation>
    </message>
    <message>
        <source>list, one entry</source>
        <translation>リスト、エントリ1個</translation>
    </message>
    <message numerus="yes">
        <source>list, %n entries</source>
        <translation>
            <numerusform>リスト、エントリ%n個</numerusform>
        </translation>
    </message>
    <message>
        <source>text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>真偽値</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>date and time</source>
        <translation>日付と時刻</translation>
    </message>
    <message>
        <source>address</source>
        <translation>アドレス</translation>
    </message>
    <message>
        <source>value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>折りたたむ</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展開</translation>
    </message>
</context>
<context>
    <name>TXWebInterfaceConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Enable HTTPS</source>
        <translation>HTTPSを有効にする</translation>
    </message>
    <message>
        <source>Certificate file</source>
        <translation>証明書ファイル</translation>
    </message>
    <message>
        <source>Certificate File...</source>
        <translation>証明書ファイル...</translation>
    </message>
    <message>
        <source>Choose certificate file</source>
        <translation>証明書ファイルの選択</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Addresses:</source>
        <translation>アクティブなアドレス:</translation>
    </message>
    <message>
        <source>Choose Certificate File</source>
        <translation>証明書ファイルの選択</translation>
    </message>
    <message>
        <source>Certificate Files (*.pem)</source>
        <translation>証明書ファイル (*.pem)</translation>
    </message>
    <message>
        <source>&amp;nbsp;&amp;nbsp;&amp;nbsp;(to be used only from this computer)</source>
        <translation>&amp;nbsp;&amp;nbsp;&amp;nbsp;(このコンピューターからのみ使用可能)</translation>
    </message>
    <message>
        <source>Active Addresses</source>
        <translation>アクティブなアドレス</translation>
    </message>
</context>
<context>
    <name>TXWidgetListWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>項目</translation>
    </message>
</context>
<context>
    <name>VariantMoreButton</name>
    <message>
        <source>Show %L1 more of %L2</source>
        <translation>%L2件中あと%L1件を表示</translation>
    </message>
</context>
<context>
    <name>WaitWidget</name>
    <message>
        <source>Busy</source>
        <translation>処理中</translation>
    </message>
</context>
</TS>
