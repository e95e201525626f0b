<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AboutAppWindow</name>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Patent and Legal Notices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AutoMountManagerMainWindow</name>
    <message>
        <source>AutoMount Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network Drives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Network Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Network Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no Network Drive letter available.
Please disconnect a network Network Drive and retry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Network Drive Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: Network Drive Delete?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to remove selected Network Drive?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveEditor</name>
    <message>
        <source>Network Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(required)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Domain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveModel</name>
    <message>
        <source>Status</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Network Drive is connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This nNetwork Drive is disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossible to reconnect the Network Drive, please check the address, the password and the user name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Network Drive letter is already used, please choose another letter to connect the Network Drive</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CredentialDialog</name>
    <message>
        <source>Credentials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remember</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DoubleSpinBoxWithSliderWidget</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EMailSenderWidget</name>
    <message>
        <source>Login:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Optional)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SMTP Server:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cc:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Test Mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &apos;Sender&apos; is empty, please add sender address which contain &apos;.&apos; and &apos;@&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing a &apos;@&apos; in the field &apos;Sender&apos;, please add sender address which contain a &apos;@&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing a &apos;.&apos; in the field &apos;Sender&apos;, please add sender address which contain a &apos;.&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &apos;To&apos; is empty, please add receiver address which contain &apos;.&apos; and &apos;@&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing a &apos;@&apos; in the field &apos;To&apos;, please add receiver address which contain a &apos;@&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing a &apos;.&apos; in the field &apos;To&apos;, please add receiver address which contain a &apos;.&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing a &apos;@&apos; in the field &apos;cC&apos;, please add receiver address which contain a &apos;@&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing a &apos;.&apos; in the field &apos;cC&apos;, please add receiver address which contain a &apos;.&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uncompleted Mail Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SSL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TLS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail Sending Result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail has been sent successfully.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SMTP Mail Server:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sender Address:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>name@domain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a test message sent by Tovra ProofKeeper software.<byte value="xd"/>
<byte value="xd"/>
Copyright %1 Tovra Hue Works<byte value="xd"/>
https://www.tovra.example</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a test message sent by %1 software.<byte value="xd"/>
<byte value="xd"/>
Copyright %2 %3<byte value="xd"/>
https://www.tovra.example</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tovra ProofKeeper test message.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 test message.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FTPConfigurationDialog</name>
    <message>
        <source>FTP Import Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FTP Export Dialog</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FTPConfigurationWidget</name>
    <message>
        <source>Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distant Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase Distant Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please check the user name and password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please check the host name and port number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try to connect again to the FTP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Erase Local Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking the connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockerFirstPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Password (twice)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockerPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter Current Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a New Password (twice)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New password again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockerUIDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This kind of address is not supported.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No server of that name was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server cannot be reached, or nothing answers on that port.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server gave an unexpected answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Perhaps the port is not for encrypted connections.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The transfer was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection was broken or the server refused what was sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection was broken by the server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The identity of the server could not be verified: its certificate or key is not trusted or belongs to another server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not offer an encrypted connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server refused the login. Check user name and password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file of trusted certificate authorities cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server does not have that file or folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The SSH connection to the server failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server&apos;s last message: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This mail address holds a line break or a control character: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This mail address is too long: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters such as those before the &apos;@&apos; of this address cannot be sent: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a mail address: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail settings name no sender (field &apos;From&apos;).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail settings name no receiver (field &apos;To&apos;).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server demands a login or encryption.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server refused the sender&apos;s address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server refused a receiver&apos;s address. The mail was sent to nobody.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server refused the mail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail settings name no server (field &apos;SMTP Server&apos;).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not the name of a mail server: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail server&apos;s port is above 65535: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mail settings ask for an unknown encryption: &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The stored password for the mail server cannot be read, please enter it again. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select your translation file</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>No Style has been loaded.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Warning: Cannot open PDF File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if the file exist at the following path : %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if a pdf reader has been installed on your computer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShareBrowser</name>
    <message>
        <source>Choose Network Drive folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hosts and shared folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching the network</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateConfigWidget</name>
    <message>
        <source>Check For Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically Check for Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for Updates at Startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateWidget</name>
    <message>
        <source>Check for Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking for update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(rev %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Download Directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 will be installed on your computer.
Please make sure to have administrator rights before attempting the software update.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to install this update?
The application will exit.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is up to date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impossible to connect to the Check for Updates service, please check your Internet connection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is available.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXColorSquareWidget</name>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern in %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXDBNavWidget</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXDataCrypt</name>
    <message>
        <source>The data is not enciphered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data is damaged or was enciphered with another key</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The key file %2 cannot be made: %1</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The cipher cannot be started</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %1 cannot be read</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %3 is damaged: it has %1 bytes instead of %2</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The folder %1 cannot be made</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TXDatabaseConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MySQL/MariaDB Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>127.0.0.1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>root</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXDeltaGradientWidget</name>
    <message>
        <source>Colour differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average %1, limit %2 with %3 % of the pixels below, maximum %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>∆EMin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>∆Eavg: %1    %2 % of pixels &lt; ∆E Limit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>∆EMax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXError</name>
    <message>
        <source>Domain: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXFTP</name>
    <message>
        <source>The user name or the password contains a control character.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name or the password is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address has to begin with ftp, ftps or sftp.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The address names no server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The port number has to be between 1 and 65535.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXFeedbackDialog</name>
    <message>
        <source>Feedback</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXFeedbackWidget</name>
    <message>
        <source>Sender Information:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Company:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &apos;Name&apos; hasn&apos;t been set, please set a &quot;Name&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &apos;Company&apos; hasn&apos;t been set, please set a &apos;Company&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &apos;Subject&apos; hasn&apos;t been set, please set a &apos;Subject&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &apos;Description&apos; hasn&apos;t been set, please set a &apos;Description&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field &apos;Login&apos; is empty, please add an E-Mail Address which contain &apos;.&apos; and &apos;@&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing a &apos;@&apos; in the field &apos;E-Mail Address&apos;, please add a login which contain a &apos;@&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing a &apos;.&apos; in the field &apos;E-Mail Address&apos;, please add a login which contain a &apos;.&apos;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset Application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you really sure you want to send this feedback?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to send feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback hasn&apos;t been send to our team, maybe the feedback service is unavailable for the moment. Please re-try later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Feedback hasn&apos;t been send to our team, because the following error occured:%1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXImageViewer</name>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, pixel %2, %3: %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXLogModel</name>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXLogWindow</name>
    <message>
        <source>Log Details:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log entries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning &amp; Errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors Only</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXMailSender</name>
    <message>
        <source>The system is too busy to send a mail.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXProgressBar</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXReportDocument</name>
    <message>
        <source>This is not a file name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report could not be written to &quot;%2&quot;: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document&apos;s data could not be added to the PDF.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; does not take the page size of the report.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; can&apos;t be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; has stopped in the middle.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report has none of the pages that are to be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report is being written or printed already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report has no pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The margins, the header and the footer leave no room on the paper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page {page} of {pages}</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXSelectDefaultEncodingWidget</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default Encoding</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXSelectionItemWidget</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create New</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXTriggerEventWidget</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each Month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each Week</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each Minute</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXVariantViewer</name>
    <message>
        <source>Copy value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The value was not copied. It is nested deeper than the %1 levels that its text in JSON may have.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy value (JSON encoded)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy string value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>kind and value</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>value and kind</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dictionary, one entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>dictionary, %n entries</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>list, one entry</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>list, %n entries</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>date and time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expand</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXWebInterfaceConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable HTTPS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificate file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificate File...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose certificate file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active Addresses:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Certificate File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Certificate Files (*.pem)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;nbsp;&amp;nbsp;&amp;nbsp;(to be used only from this computer)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TXWidgetListWidget</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VariantMoreButton</name>
    <message>
        <source>Show %L1 more of %L2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WaitWidget</name>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
