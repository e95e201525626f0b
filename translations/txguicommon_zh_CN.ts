<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutAppWindow</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Patent and Legal Notices</source>
        <translation>专利与法律声明</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>关于 %1</translation>
    </message>
</context>
<context>
    <name>AutoMountManagerMainWindow</name>
    <message>
        <source>AutoMount Manager</source>
        <translation>自动挂载管理器</translation>
    </message>
    <message>
        <source>Network Drives</source>
        <translation>网络驱动器</translation>
    </message>
    <message>
        <source>Add Network Drive</source>
        <translation>添加网络驱动器</translation>
    </message>
    <message>
        <source>Remove Network Drive</source>
        <translation>移除网络驱动器</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>编辑...</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>There is no Network Drive letter available.
Please disconnect a network Network Drive and retry.</source>
        <translation>没有可用的驱动器号。
请断开一个网络驱动器后重试。</translation>
    </message>
    <message>
        <source>Edit Network Drive Parameters</source>
        <translation>编辑网络驱动器参数</translation>
    </message>
    <message>
        <source>Warning: Network Drive Delete?</source>
        <translation>警告：移除网络驱动器？</translation>
    </message>
    <message>
        <source>Do you want to remove selected Network Drive?</source>
        <translation>要移除所选的网络驱动器吗？</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveEditor</name>
    <message>
        <source>Network Drive</source>
        <translation>网络驱动器</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>协议</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>(required)</source>
        <translation>（必填）</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>域</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveModel</name>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>激活</translation>
    </message>
    <message>
        <source>Network Drive</source>
        <translation>网络驱动器</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共享</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>This Network Drive is connected</source>
        <translation>此网络驱动器已连接</translation>
    </message>
    <message>
        <source>This nNetwork Drive is disconnected</source>
        <translation>此网络驱动器已断开</translation>
    </message>
    <message>
        <source>Impossible to reconnect the Network Drive, please check the address, the password and the user name</source>
        <translation>无法重新连接网络驱动器，请检查地址、密码和用户名</translation>
    </message>
    <message>
        <source>This Network Drive letter is already used, please choose another letter to connect the Network Drive</source>
        <translation>此驱动器号已被占用，请选择其他驱动器号来连接网络驱动器</translation>
    </message>
</context>
<context>
    <name>CredentialDialog</name>
    <message>
        <source>Credentials</source>
        <translation>登录凭据</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>记住</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBoxWithSliderWidget</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
</context>
<context>
    <name>EMailSenderWidget</name>
    <message>
        <source>Login:</source>
        <translation>登录名：</translation>
    </message>
    <message>
        <source>(Optional)</source>
        <translation>（可选）</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>SMTP Server:</source>
        <translation>SMTP 服务器：</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>（必填）</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>发件人：</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>收件人：</translation>
    </message>
    <message>
        <source>Cc:</source>
        <translation>抄送：</translation>
    </message>
    <message>
        <source>Send Test Mail</source>
        <translation>发送测试邮件</translation>
    </message>
    <message>
        <source>Field 'Sender' is empty, please add sender address which contain '.' and '@'.</source>
        <translation>“发件人”字段为空，请填写包含“.”和“@”的发件人地址。</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'Sender', please add sender address which contain a '@'.</source>
        <translation>“发件人”字段缺少“@”，请填写包含“@”的发件人地址。</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'Sender', please add sender address which contain a '.'.</source>
        <translation>“发件人”字段缺少“.”，请填写包含“.”的发件人地址。</translation>
    </message>
    <message>
        <source>Field 'To' is empty, please add receiver address which contain '.' and '@'.</source>
        <translation>“收件人”字段为空，请填写包含“.”和“@”的收件人地址。</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'To', please add receiver address which contain a '@'.</source>
        <translation>“收件人”字段缺少“@”，请填写包含“@”的收件人地址。</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'To', please add receiver address which contain a '.'.</source>
        <translation>“收件人”字段缺少“.”，请填写包含“.”的收件人地址。</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'cC', please add receiver address which contain a '@'.</source>
        <translation>“抄送”字段缺少“@”，请填写包含“@”的收件人地址。</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'cC', please add receiver address which contain a '.'.</source>
        <translation>“抄送”字段缺少“.”，请填写包含“.”的收件人地址。</translation>
    </message>
    <message>
        <source>Uncompleted Mail Configuration</source>
        <translation>邮件设置不完整</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
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
        <translation>邮件发送结果</translation>
    </message>
    <message>
        <source>Mail has been sent successfully.</source>
        <translation>邮件已成功发送。</translation>
    </message>
    <message>
        <source>SMTP Mail Server:</source>
        <translation>SMTP 邮件服务器：</translation>
    </message>
    <message>
        <source>Sender Address:</source>
        <translation>发件人地址：</translation>
    </message>
    <message>
        <source>name@domain</source>
        <translation>name@domain</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>收件人地址：</translation>
    </message>
    <message>
        <source>This is a test message sent by Tovra ProofKeeper software.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</source>
        <translation>这是由 Tovra ProofKeeper 软件发送的测试邮件。<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>This is a test message sent by %1 software.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</source>
        <translation>这是由 %1 软件发送的测试邮件。<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>Tovra ProofKeeper test message.</source>
        <translation>Tovra ProofKeeper 测试邮件。</translation>
    </message>
    <message>
        <source>%1 test message.</source>
        <translation>%1 测试邮件。</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>登录名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>SMTP Server</source>
        <translation>SMTP 服务器</translation>
    </message>
    <message>
        <source>From</source>
        <translation>发件人</translation>
    </message>
    <message>
        <source>To</source>
        <translation>收件人</translation>
    </message>
    <message>
        <source>Cc</source>
        <translation>抄送</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationDialog</name>
    <message>
        <source>FTP Import Dialog</source>
        <translation>FTP 导入</translation>
    </message>
    <message>
        <source>FTP Export Dialog</source>
        <translation>FTP 导出</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationWidget</name>
    <message>
        <source>Active</source>
        <translation>激活</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>协议</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Distant Path</source>
        <translation>远程路径</translation>
    </message>
    <message>
        <source>Erase Distant Files</source>
        <translation>删除远程文件</translation>
    </message>
    <message>
        <source>Check Connection</source>
        <translation>检查连接</translation>
    </message>
    <message>
        <source>Please check the user name and password</source>
        <translation>请检查用户名和密码</translation>
    </message>
    <message>
        <source>Please check the host name and port number</source>
        <translation>请检查主机名和端口号</translation>
    </message>
    <message>
        <source>Try to connect again to the FTP</source>
        <translation>请重新尝试连接 FTP 服务器</translation>
    </message>
    <message>
        <source>Erase Local Files</source>
        <translation>删除本地文件</translation>
    </message>
    <message>
        <source>Checking the connection</source>
        <translation>正在检查连接</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>连接成功</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>连接失败</translation>
    </message>
</context>
<context>
    <name>LockerFirstPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>锁定用户界面</translation>
    </message>
    <message>
        <source>Enter Password (twice)</source>
        <translation>输入密码（两次）</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Password again</source>
        <translation>再次输入密码</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>LockerPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>锁定用户界面</translation>
    </message>
    <message>
        <source>Enter Current Password</source>
        <translation>输入当前密码</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>当前密码</translation>
    </message>
    <message>
        <source>Enter a New Password (twice)</source>
        <translation>输入新密码（两次）</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>新密码</translation>
    </message>
    <message>
        <source>New password again</source>
        <translation>再次输入新密码</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>LockerUIDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>锁定用户界面</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>更改密码</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This kind of address is not supported.</source>
        <translation>不支持此类地址。</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>地址无效。</translation>
    </message>
    <message>
        <source>No server of that name was found.</source>
        <translation>找不到该名称的服务器。</translation>
    </message>
    <message>
        <source>The server cannot be reached, or nothing answers on that port.</source>
        <translation>无法访问服务器，或该端口没有响应。</translation>
    </message>
    <message>
        <source>The server gave an unexpected answer.</source>
        <translation>服务器的应答不符合预期。</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>服务器拒绝访问。</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>服务器未及时应答。</translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Perhaps the port is not for encrypted connections.</source>
        <translation>无法建立加密连接。该端口可能不用于加密连接。</translation>
    </message>
    <message>
        <source>The transfer was cancelled.</source>
        <translation>传输已取消。</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>服务器关闭了连接。</translation>
    </message>
    <message>
        <source>The connection was broken or the server refused what was sent.</source>
        <translation>连接中断，或服务器拒绝了所发送的内容。</translation>
    </message>
    <message>
        <source>The connection was broken by the server.</source>
        <translation>连接被服务器中断。</translation>
    </message>
    <message>
        <source>The identity of the server could not be verified: its certificate or key is not trusted or belongs to another server.</source>
        <translation>无法验证服务器的身份：其证书或密钥不受信任，或属于另一台服务器。</translation>
    </message>
    <message>
        <source>The server does not offer an encrypted connection.</source>
        <translation>服务器不提供加密连接。</translation>
    </message>
    <message>
        <source>The server refused the login. Check user name and password.</source>
        <translation>服务器拒绝登录。请检查用户名和密码。</translation>
    </message>
    <message>
        <source>The file of trusted certificate authorities cannot be read.</source>
        <translation>无法读取受信任证书颁发机构的文件。</translation>
    </message>
    <message>
        <source>The server does not have that file or folder.</source>
        <translation>服务器上没有该文件或文件夹。</translation>
    </message>
    <message>
        <source>The SSH connection to the server failed.</source>
        <translation>与服务器的 SSH 连接失败。</translation>
    </message>
    <message>
        <source>The server's last message: %1</source>
        <translation>服务器的最后一条消息：%1</translation>
    </message>
    <message>
        <source>This mail address holds a line break or a control character: %1</source>
        <translation>此邮件地址含有换行符或控制字符：%1</translation>
    </message>
    <message>
        <source>This mail address is too long: %1</source>
        <translation>此邮件地址过长：%1</translation>
    </message>
    <message>
        <source>Letters such as those before the '@' of this address cannot be sent: %1</source>
        <translation>此地址中“@”之前的这类字符无法发送：%1</translation>
    </message>
    <message>
        <source>This is not a mail address: %1</source>
        <translation>这不是邮件地址：%1</translation>
    </message>
    <message>
        <source>The mail settings name no sender (field 'From').</source>
        <translation>邮件设置未指定发件人（“发件人”字段）。</translation>
    </message>
    <message>
        <source>The mail settings name no receiver (field 'To').</source>
        <translation>邮件设置未指定收件人（“收件人”字段）。</translation>
    </message>
    <message>
        <source>The mail server demands a login or encryption.</source>
        <translation>邮件服务器要求登录或加密。</translation>
    </message>
    <message>
        <source>The mail server refused the sender's address.</source>
        <translation>邮件服务器拒绝了发件人的地址。</translation>
    </message>
    <message>
        <source>The mail server refused a receiver's address. The mail was sent to nobody.</source>
        <translation>邮件服务器拒绝了某个收件人的地址。邮件未发送给任何人。</translation>
    </message>
    <message>
        <source>The mail server refused the mail.</source>
        <translation>邮件服务器拒绝了该邮件。</translation>
    </message>
    <message>
        <source>The mail settings name no server (field 'SMTP Server').</source>
        <translation>邮件设置未指定服务器（“SMTP 服务器”字段）。</translation>
    </message>
    <message>
        <source>This is not the name of a mail server: %1</source>
        <translation>这不是邮件服务器的名称：%1</translation>
    </message>
    <message>
        <source>The mail server's port is above 65535: %1</source>
        <translation>邮件服务器的端口大于 65535：%1</translation>
    </message>
    <message>
        <source>The mail settings ask for an unknown encryption: '%1'</source>
        <translation>邮件设置要求的加密方式未知：“%1”</translation>
    </message>
    <message>
        <source>The stored password for the mail server cannot be read, please enter it again. %1</source>
        <translation>无法读取已存储的邮件服务器密码，请重新输入。%1</translation>
    </message>
    <message>
        <source>Select your translation file</source>
        <translation>选择翻译文件</translation>
    </message>
    <message numerus="yes">
        <source>No Style has been loaded.</source>
        <translation>
            <numerusform>未加载任何样式。</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning: Cannot open PDF File</source>
        <translation>警告：无法打开 PDF 文件</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if the file exist at the following path : %2</source>
        <translation>无法打开以下 PDF：%1

请检查此路径下是否存在该文件：%2</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if a pdf reader has been installed on your computer</source>
        <translation>无法打开以下 PDF：%1

请检查您的计算机上是否安装了 PDF 阅读器</translation>
    </message>
</context>
<context>
    <name>ShareBrowser</name>
    <message>
        <source>Choose Network Drive folder</source>
        <translation>选择网络驱动器的文件夹</translation>
    </message>
    <message>
        <source>Hosts and shared folders</source>
        <translation>主机和共享文件夹</translation>
    </message>
    <message>
        <source>Searching the network</source>
        <translation>正在搜索网络</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateConfigWidget</name>
    <message>
        <source>Check For Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Automatically Check for Updates</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>Check for Updates at Startup</source>
        <translation>启动时检查更新</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>立即检查</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateWidget</name>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>正在检查更新...</translation>
    </message>
    <message>
        <source>Checking for update</source>
        <translation>正在检查更新</translation>
    </message>
    <message>
        <source>Version Name</source>
        <translation>版本名称</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
    <message>
        <source>Version description</source>
        <translation>版本描述</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>下载并安装</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>(rev %1)</source>
        <translation>(修订 %1)</translation>
    </message>
    <message>
        <source>Choose Download Directory</source>
        <translation>选择下载文件夹</translation>
    </message>
    <message>
        <source>%1 will be installed on your computer.
Please make sure to have administrator rights before attempting the software update.</source>
        <translation>即将在您的计算机上安装 %1。
更新软件之前，请确保您拥有管理员权限。</translation>
    </message>
    <message>
        <source>Installing Update</source>
        <translation>安装更新</translation>
    </message>
    <message>
        <source>Do you want to install this update?
The application will exit.</source>
        <translation>要安装此更新吗？
应用程序将退出。</translation>
    </message>
    <message>
        <source>%1 is up to date.</source>
        <translation>%1 已是最新版本。</translation>
    </message>
    <message>
        <source>Impossible to connect to the Check for Updates service, please check your Internet connection.</source>
        <translation>无法连接到更新服务，请检查您的互联网连接。</translation>
    </message>
    <message>
        <source>%1 is available.</source>
        <translation>%1 可用。</translation>
    </message>
</context>
<context>
    <name>TXColorSquareWidget</name>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>无颜色</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>渐变</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Pattern in %1</source>
        <translation>%1 图案</translation>
    </message>
</context>
<context>
    <name>TXDBNavWidget</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>页：</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页</translation>
    </message>
</context>
<context>
    <name>TXDataCrypt</name>
    <message>
        <source>The data is not enciphered</source>
        <translation>数据未加密</translation>
    </message>
    <message>
        <source>The data is damaged or was enciphered with another key</source>
        <translation>数据已损坏，或使用了其他密钥加密</translation>
    </message>
    <message numerus="yes">
        <source>The key file %2 cannot be made: %1</source>
        <translation>
            <numerusform>无法创建密钥文件 %2：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The cipher cannot be started</source>
        <translation>
            <numerusform>无法启动加密程序</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %1 cannot be read</source>
        <translation>
            <numerusform>无法读取密钥文件 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %3 is damaged: it has %1 bytes instead of %2</source>
        <translation>
            <numerusform>密钥文件 %3 已损坏：其大小为 %1 字节，应为 %2 字节</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The folder %1 cannot be made</source>
        <translation>
            <numerusform>无法创建文件夹 %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TXDatabaseConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Internal Database</source>
        <translation>内部数据库</translation>
    </message>
    <message>
        <source>MySQL/MariaDB Database</source>
        <translation>MySQL/MariaDB 数据库</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>主机</translation>
    </message>
    <message>
        <source>127.0.0.1</source>
        <translation>127.0.0.1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>root</source>
        <translation>root</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>数据库</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>连接成功</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>连接失败</translation>
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
        <translation>平均值 %1，限值 %2（%3 % 的像素低于此值），最大值 %4</translation>
    </message>
    <message>
        <source>∆EMin</source>
        <translation>最小 ∆E</translation>
    </message>
    <message>
        <source>∆Eavg: %1    %2 % of pixels &lt; ∆E Limit</source>
        <translation>平均 ∆E：%1    %2 % 的像素 &lt; ∆E 限值</translation>
    </message>
    <message>
        <source>∆EMax</source>
        <translation>最大 ∆E</translation>
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
        <translation>错误域：%1</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>代码：%1</translation>
    </message>
</context>
<context>
    <name>TXFTP</name>
    <message>
        <source>The user name or the password contains a control character.</source>
        <translation>用户名或密码含有控制字符。</translation>
    </message>
    <message>
        <source>The user name or the password is too long.</source>
        <translation>用户名或密码过长。</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>地址无效。</translation>
    </message>
    <message>
        <source>The address has to begin with ftp, ftps or sftp.</source>
        <translation>地址必须以 ftp、ftps 或 sftp 开头。</translation>
    </message>
    <message>
        <source>The address names no server.</source>
        <translation>地址未指定服务器。</translation>
    </message>
    <message>
        <source>The port number has to be between 1 and 65535.</source>
        <translation>端口号必须介于 1 和 65535 之间。</translation>
    </message>
</context>
<context>
    <name>TXFeedbackDialog</name>
    <message>
        <source>Feedback</source>
        <translation>反馈</translation>
    </message>
</context>
<context>
    <name>TXFeedbackWidget</name>
    <message>
        <source>Sender Information:</source>
        <translation>发送者信息：</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>姓名：</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>（必填）</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>电子邮件地址</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>公司：</translation>
    </message>
    <message>
        <source>Feedback Description:</source>
        <translation>反馈内容：</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>主题：</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>描述：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
    <message>
        <source>Field 'Name' hasn't been set, please set a "Name".</source>
        <translation>“姓名”字段为空，请填写姓名。</translation>
    </message>
    <message>
        <source>Field 'Company' hasn't been set, please set a 'Company'.</source>
        <translation>“公司”字段为空，请填写公司。</translation>
    </message>
    <message>
        <source>Field 'Subject' hasn't been set, please set a 'Subject'.</source>
        <translation>“主题”字段为空，请填写主题。</translation>
    </message>
    <message>
        <source>Field 'Description' hasn't been set, please set a 'Description'.</source>
        <translation>“描述”字段为空，请填写描述。</translation>
    </message>
    <message>
        <source>Field 'Login' is empty, please add an E-Mail Address which contain '.' and '@'.</source>
        <translation>“电子邮件地址”字段为空，请填写包含“.”和“@”的电子邮件地址。</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'E-Mail Address', please add a login which contain a '@'.</source>
        <translation>“电子邮件地址”字段缺少“@”，请填写包含“@”的地址。</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'E-Mail Address', please add a login which contain a '.'.</source>
        <translation>“电子邮件地址”字段缺少“.”，请填写包含“.”的地址。</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>信息不完整</translation>
    </message>
    <message>
        <source>Reset Application</source>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>Are you really sure you want to send this feedback?</source>
        <translation>确定要发送此反馈吗？</translation>
    </message>
    <message>
        <source>Failed to send feedback</source>
        <translation>反馈发送失败</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, maybe the feedback service is unavailable for the moment. Please re-try later.</source>
        <translation>反馈未能发送给我们的团队，反馈服务可能暂时不可用。请稍后重试。</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, because the following error occured:%1.</source>
        <translation>由于发生以下错误，反馈未能发送给我们的团队：%1。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>公司</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
</context>
<context>
    <name>TXImageViewer</name>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Image viewer</source>
        <translation>图像查看器</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>无图片</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, pixel %2, %3: %4</source>
        <translation>%1，像素 %2，%3：%4</translation>
    </message>
</context>
<context>
    <name>TXLogModel</name>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>TXLogWindow</name>
    <message>
        <source>Log Details:</source>
        <translation>日志详情：</translation>
    </message>
    <message>
        <source>Log entries</source>
        <translation>日志条目</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Log Manager</source>
        <translation>日志管理器</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Warning &amp; Errors</source>
        <translation>警告和错误</translation>
    </message>
    <message>
        <source>Errors Only</source>
        <translation>仅错误</translation>
    </message>
</context>
<context>
    <name>TXMailSender</name>
    <message>
        <source>The system is too busy to send a mail.</source>
        <translation>系统过于繁忙，无法发送邮件。</translation>
    </message>
</context>
<context>
    <name>TXProgressBar</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>TXReportAccessible</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
</context>
<context>
    <name>TXReportDocument</name>
    <message>
        <source>This is not a file name.</source>
        <translation>这不是文件名。</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>这不是普通文件。</translation>
    </message>
    <message>
        <source>The report could not be written to "%2": %1</source>
        <translation>无法将报告写入“%2”：%1</translation>
    </message>
    <message>
        <source>The document's data could not be added to the PDF.</source>
        <translation>无法将文档的数据添加到 PDF。</translation>
    </message>
    <message>
        <source>The printer "%1" does not take the page size of the report.</source>
        <translation>打印机“%1”不支持报告的页面大小。</translation>
    </message>
    <message>
        <source>The printer "%1" can't be started.</source>
        <translation>无法启动打印机“%1”。</translation>
    </message>
    <message>
        <source>The printer "%1" has stopped in the middle.</source>
        <translation>打印机“%1”中途停止。</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>没有打印机。</translation>
    </message>
    <message>
        <source>The report has none of the pages that are to be printed.</source>
        <translation>报告中没有任何要打印的页。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>The report is being written or printed already.</source>
        <translation>报告已在写入或打印中。</translation>
    </message>
    <message>
        <source>The report has no pages.</source>
        <translation>报告没有页。</translation>
    </message>
    <message>
        <source>The margins, the header and the footer leave no room on the paper.</source>
        <translation>页边距、页眉和页脚占满了纸张，没有剩余空间。</translation>
    </message>
    <message>
        <source>page {page} of {pages}</source>
        <translation>第 {page} 页，共 {pages} 页</translation>
    </message>
</context>
<context>
    <name>TXSelectDefaultEncodingWidget</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Default Encoding</source>
        <translation>默认编码</translation>
    </message>
</context>
<context>
    <name>TXSelectionItemWidget</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>创建副本</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>新建</translation>
    </message>
</context>
<context>
    <name>TXTriggerEventWidget</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
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
        <translation>时间</translation>
    </message>
    <message>
        <source>Each Hour</source>
        <translation>每小时</translation>
    </message>
    <message>
        <source>Each Month</source>
        <translation>每月</translation>
    </message>
    <message>
        <source>Each Week</source>
        <translation>每周</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>Each Minute</source>
        <translation>每分钟</translation>
    </message>
</context>
<context>
    <name>TXVariantViewer</name>
    <message>
        <source>Copy value</source>
        <translation>复制值</translation>
    </message>
    <message>
        <source>The value was not copied. It is nested deeper than the %1 levels that its text in JSON may have.</source>
        <translation>未复制该值。其嵌套深度超过了 JSON 文本允许的 %1 层。</translation>
    </message>
    <message>
        <source>Copy value (JSON encoded)</source>
        <translation>复制值（JSON 编码）</translation>
    </message>
    <message>
        <source>Copy string value</source>
        <translation>复制字符串值</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>kind and value</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>value and kind</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>dictionary, one entry</source>
        <translation>字典，1 项</translation>
    </message>
    <message numerus="yes">
        <source>dictionary, %n entries</source>
        <translation>
            <numerusform>字典，%n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>list, one entry</source>
        <translation>列表，1 项</translation>
    </message>
    <message numerus="yes">
        <source>list, %n entries</source>
        <translation>
            <numerusform>列表，%n 项</numerusform>
        </translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>空</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>真或假</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展开</translation>
    </message>
</context>
<context>
    <name>TXWebInterfaceConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Enable HTTPS</source>
        <translation>启用 HTTPS</translation>
    </message>
    <message>
        <source>Certificate file</source>
        <translation>证书文件</translation>
    </message>
    <message>
        <source>Certificate File...</source>
        <translation>证书文件...</translation>
    </message>
    <message>
        <source>Choose certificate file</source>
        <translation>选择证书文件</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Addresses:</source>
        <translation>有效地址：</translation>
    </message>
    <message>
        <source>Choose Certificate File</source>
        <translation>选择证书文件</translation>
    </message>
    <message>
        <source>Certificate Files (*.pem)</source>
        <translation>证书文件 (*.pem)</translation>
    </message>
    <message>
        <source>&amp;nbsp;&amp;nbsp;&amp;nbsp;(to be used only from this computer)</source>
        <translation>&amp;nbsp;&amp;nbsp;&amp;nbsp;（仅限在此计算机上使用）</translation>
    </message>
    <message>
        <source>Active Addresses</source>
        <translation>有效地址</translation>
    </message>
</context>
<context>
    <name>TXWidgetListWidget</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>项目</translation>
    </message>
</context>
<context>
    <name>VariantMoreButton</name>
    <message>
        <source>Show %L1 more of %L2</source>
        <translation>再显示 %L1 项（共 %L2 项）</translation>
    </message>
</context>
<context>
    <name>WaitWidget</name>
    <message>
        <source>Busy</source>
        <translation>忙碌</translation>
    </message>
</context>
</TS>
