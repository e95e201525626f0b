<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AboutAppWindow</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Patent and Legal Notices</source>
        <translation>Patente und rechtliche Hinweise</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
</context>
<context>
    <name>AutoMountManagerMainWindow</name>
    <message>
        <source>AutoMount Manager</source>
        <translation>Verwaltung der Netzlaufwerke</translation>
    </message>
    <message>
        <source>Network Drives</source>
        <translation>Netzlaufwerke</translation>
    </message>
    <message>
        <source>Add Network Drive</source>
        <translation>Netzlaufwerk hinzufügen</translation>
    </message>
    <message>
        <source>Remove Network Drive</source>
        <translation>Netzlaufwerk entfernen</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten …</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>There is no Network Drive letter available.
Please disconnect a network Network Drive and retry.</source>
        <translation>Es ist kein Laufwerksbuchstabe mehr frei.
Bitte trennen Sie ein Netzlaufwerk und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Edit Network Drive Parameters</source>
        <translation>Einstellungen des Netzlaufwerks bearbeiten</translation>
    </message>
    <message>
        <source>Warning: Network Drive Delete?</source>
        <translation>Warnung: Netzlaufwerk entfernen?</translation>
    </message>
    <message>
        <source>Do you want to remove selected Network Drive?</source>
        <translation>Möchten Sie das ausgewählte Netzlaufwerk entfernen?</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveEditor</name>
    <message>
        <source>Network Drive</source>
        <translation>Netzlaufwerk</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>(required)</source>
        <translation>(erforderlich)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen …</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveModel</name>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Network Drive</source>
        <translation>Netzlaufwerk</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Freigabe</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>This Network Drive is connected</source>
        <translation>Dieses Netzlaufwerk ist verbunden</translation>
    </message>
    <message>
        <source>This nNetwork Drive is disconnected</source>
        <translation>Dieses Netzlaufwerk ist getrennt</translation>
    </message>
    <message>
        <source>Impossible to reconnect the Network Drive, please check the address, the password and the user name</source>
        <translation>Das Netzlaufwerk kann nicht wieder verbunden werden. Bitte prüfen Sie Adresse, Passwort und Benutzernamen</translation>
    </message>
    <message>
        <source>This Network Drive letter is already used, please choose another letter to connect the Network Drive</source>
        <translation>Dieser Laufwerksbuchstabe ist schon vergeben. Bitte wählen Sie einen anderen, um das Netzlaufwerk zu verbinden</translation>
    </message>
</context>
<context>
    <name>CredentialDialog</name>
    <message>
        <source>Credentials</source>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>Merken</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBoxWithSliderWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
</context>
<context>
    <name>EMailSenderWidget</name>
    <message>
        <source>Login:</source>
        <translation>Anmeldename:</translation>
    </message>
    <message>
        <source>(Optional)</source>
        <translation>(freiwillig)</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>SMTP Server:</source>
        <translation>SMTP-Server:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(erforderlich)</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>An:</translation>
    </message>
    <message>
        <source>Cc:</source>
        <translation>Cc:</translation>
    </message>
    <message>
        <source>Send Test Mail</source>
        <translation>Testmail senden</translation>
    </message>
    <message>
        <source>Field 'Sender' is empty, please add sender address which contain '.' and '@'.</source>
        <translation>Das Feld „Absender“ ist leer. Bitte geben Sie eine Absenderadresse ein, die „.“ und „@“ enthält.</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'Sender', please add sender address which contain a '@'.</source>
        <translation>Im Feld „Absender“ fehlt ein „@“. Bitte geben Sie eine Absenderadresse ein, die ein „@“ enthält.</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'Sender', please add sender address which contain a '.'.</source>
        <translation>Im Feld „Absender“ fehlt ein „.“. Bitte geben Sie eine Absenderadresse ein, die einen „.“ enthält.</translation>
    </message>
    <message>
        <source>Field 'To' is empty, please add receiver address which contain '.' and '@'.</source>
        <translation>Das Feld „An“ ist leer. Bitte geben Sie eine Empfängeradresse ein, die „.“ und „@“ enthält.</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'To', please add receiver address which contain a '@'.</source>
        <translation>Im Feld „An“ fehlt ein „@“. Bitte geben Sie eine Empfängeradresse ein, die ein „@“ enthält.</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'To', please add receiver address which contain a '.'.</source>
        <translation>Im Feld „An“ fehlt ein „.“. Bitte geben Sie eine Empfängeradresse ein, die einen „.“ enthält.</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'cC', please add receiver address which contain a '@'.</source>
        <translation>Im Feld „Cc“ fehlt ein „@“. Bitte geben Sie eine Empfängeradresse ein, die ein „@“ enthält.</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'cC', please add receiver address which contain a '.'.</source>
        <translation>Im Feld „Cc“ fehlt ein „.“. Bitte geben Sie eine Empfängeradresse ein, die einen „.“ enthält.</translation>
    </message>
    <message>
        <source>Uncompleted Mail Configuration</source>
        <translation>Unvollständige Maileinstellungen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
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
        <translation>Ergebnis des Mailversands</translation>
    </message>
    <message>
        <source>Mail has been sent successfully.</source>
        <translation>Die Mail wurde gesendet.</translation>
    </message>
    <message>
        <source>SMTP Mail Server:</source>
        <translation>SMTP-Mailserver:</translation>
    </message>
    <message>
        <source>Sender Address:</source>
        <translation>Absenderadresse:</translation>
    </message>
    <message>
        <source>name@domain</source>
        <translation>name@domain</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Empfänger:</translation>
    </message>
    <message>
        <source>This is a test message sent by Tovra ProofKeeper software.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</source>
        <translation>Dies ist eine Testnachricht der Software Tovra ProofKeeper.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>This is a test message sent by %1 software.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</source>
        <translation>Dies ist eine Testnachricht der Software %1.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>Tovra ProofKeeper test message.</source>
        <translation>Testnachricht von Tovra ProofKeeper.</translation>
    </message>
    <message>
        <source>%1 test message.</source>
        <translation>Testnachricht von %1.</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>SMTP Server</source>
        <translation>SMTP-Server</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>An</translation>
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
        <translation>FTP-Import</translation>
    </message>
    <message>
        <source>FTP Export Dialog</source>
        <translation>FTP-Export</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationWidget</name>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Distant Path</source>
        <translation>Pfad auf dem Server</translation>
    </message>
    <message>
        <source>Erase Distant Files</source>
        <translation>Dateien auf dem Server löschen</translation>
    </message>
    <message>
        <source>Check Connection</source>
        <translation>Verbindung prüfen</translation>
    </message>
    <message>
        <source>Please check the user name and password</source>
        <translation>Bitte prüfen Sie Benutzernamen und Passwort</translation>
    </message>
    <message>
        <source>Please check the host name and port number</source>
        <translation>Bitte prüfen Sie Servernamen und Portnummer</translation>
    </message>
    <message>
        <source>Try to connect again to the FTP</source>
        <translation>Versuchen Sie noch einmal, sich mit dem FTP-Server zu verbinden</translation>
    </message>
    <message>
        <source>Erase Local Files</source>
        <translation>Lokale Dateien löschen</translation>
    </message>
    <message>
        <source>Checking the connection</source>
        <translation>Die Verbindung wird geprüft</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>Verbindung hergestellt</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>Verbindung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>LockerFirstPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Oberfläche sperren</translation>
    </message>
    <message>
        <source>Enter Password (twice)</source>
        <translation>Passwort eingeben (zweimal)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Password again</source>
        <translation>Passwort wiederholen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
</context>
<context>
    <name>LockerPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Oberfläche sperren</translation>
    </message>
    <message>
        <source>Enter Current Password</source>
        <translation>Aktuelles Passwort eingeben</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Aktuelles Passwort</translation>
    </message>
    <message>
        <source>Enter a New Password (twice)</source>
        <translation>Neues Passwort eingeben (zweimal)</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <source>New password again</source>
        <translation>Neues Passwort wiederholen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
</context>
<context>
    <name>LockerUIDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Oberfläche sperren</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This kind of address is not supported.</source>
        <translation>Diese Art von Adresse wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>Die Adresse ist ungültig.</translation>
    </message>
    <message>
        <source>No server of that name was found.</source>
        <translation>Es wurde kein Server dieses Namens gefunden.</translation>
    </message>
    <message>
        <source>The server cannot be reached, or nothing answers on that port.</source>
        <translation>Der Server ist nicht erreichbar, oder auf diesem Port antwortet nichts.</translation>
    </message>
    <message>
        <source>The server gave an unexpected answer.</source>
        <translation>Der Server hat unerwartet geantwortet.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>Der Server hat den Zugriff verweigert.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Der Server hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Perhaps the port is not for encrypted connections.</source>
        <translation>Es konnte keine verschlüsselte Verbindung hergestellt werden. Vielleicht ist der Port nicht für verschlüsselte Verbindungen bestimmt.</translation>
    </message>
    <message>
        <source>The transfer was cancelled.</source>
        <translation>Die Übertragung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>Der Server hat die Verbindung beendet.</translation>
    </message>
    <message>
        <source>The connection was broken or the server refused what was sent.</source>
        <translation>Die Verbindung wurde unterbrochen, oder der Server hat das Gesendete abgelehnt.</translation>
    </message>
    <message>
        <source>The connection was broken by the server.</source>
        <translation>Die Verbindung wurde vom Server unterbrochen.</translation>
    </message>
    <message>
        <source>The identity of the server could not be verified: its certificate or key is not trusted or belongs to another server.</source>
        <translation>Die Identität des Servers konnte nicht geprüft werden: Sein Zertifikat oder Schlüssel ist nicht vertrauenswürdig oder gehört zu einem anderen Server.</translation>
    </message>
    <message>
        <source>The server does not offer an encrypted connection.</source>
        <translation>Der Server bietet keine verschlüsselte Verbindung an.</translation>
    </message>
    <message>
        <source>The server refused the login. Check user name and password.</source>
        <translation>Der Server hat die Anmeldung abgelehnt. Prüfen Sie Benutzernamen und Passwort.</translation>
    </message>
    <message>
        <source>The file of trusted certificate authorities cannot be read.</source>
        <translation>Die Datei der vertrauenswürdigen Zertifizierungsstellen kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The server does not have that file or folder.</source>
        <translation>Diese Datei oder diesen Ordner gibt es auf dem Server nicht.</translation>
    </message>
    <message>
        <source>The SSH connection to the server failed.</source>
        <translation>Die SSH-Verbindung zum Server ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The server's last message: %1</source>
        <translation>Letzte Meldung des Servers: %1</translation>
    </message>
    <message>
        <source>This mail address holds a line break or a control character: %1</source>
        <translation>Diese Mailadresse enthält einen Zeilenumbruch oder ein Steuerzeichen: %1</translation>
    </message>
    <message>
        <source>This mail address is too long: %1</source>
        <translation>Diese Mailadresse ist zu lang: %1</translation>
    </message>
    <message>
        <source>Letters such as those before the '@' of this address cannot be sent: %1</source>
        <translation>Buchstaben wie die vor dem „@“ dieser Adresse können nicht gesendet werden: %1</translation>
    </message>
    <message>
        <source>This is not a mail address: %1</source>
        <translation>Das ist keine Mailadresse: %1</translation>
    </message>
    <message>
        <source>The mail settings name no sender (field 'From').</source>
        <translation>Die Maileinstellungen nennen keinen Absender (Feld „Von“).</translation>
    </message>
    <message>
        <source>The mail settings name no receiver (field 'To').</source>
        <translation>Die Maileinstellungen nennen keinen Empfänger (Feld „An“).</translation>
    </message>
    <message>
        <source>The mail server demands a login or encryption.</source>
        <translation>Der Mailserver verlangt eine Anmeldung oder Verschlüsselung.</translation>
    </message>
    <message>
        <source>The mail server refused the sender's address.</source>
        <translation>Der Mailserver hat die Adresse des Absenders abgelehnt.</translation>
    </message>
    <message>
        <source>The mail server refused a receiver's address. The mail was sent to nobody.</source>
        <translation>Der Mailserver hat die Adresse eines Empfängers abgelehnt. Die Mail wurde an niemanden gesendet.</translation>
    </message>
    <message>
        <source>The mail server refused the mail.</source>
        <translation>Der Mailserver hat die Mail abgelehnt.</translation>
    </message>
    <message>
        <source>The mail settings name no server (field 'SMTP Server').</source>
        <translation>Die Maileinstellungen nennen keinen Server (Feld „SMTP-Server“).</translation>
    </message>
    <message>
        <source>This is not the name of a mail server: %1</source>
        <translation>Das ist kein Name eines Mailservers: %1</translation>
    </message>
    <message>
        <source>The mail server's port is above 65535: %1</source>
        <translation>Der Port des Mailservers liegt über 65535: %1</translation>
    </message>
    <message>
        <source>The mail settings ask for an unknown encryption: '%1'</source>
        <translation>Die Maileinstellungen verlangen eine unbekannte Verschlüsselung: „%1“</translation>
    </message>
    <message>
        <source>The stored password for the mail server cannot be read, please enter it again. %1</source>
        <translation>Das gespeicherte Passwort für den Mailserver kann nicht gelesen werden, bitte geben Sie es neu ein. %1</translation>
    </message>
    <message>
        <source>Select your translation file</source>
        <translation>Wählen Sie Ihre Übersetzungsdatei</translation>
    </message>
    <message numerus="yes">
        <source>No Style has been loaded.</source>
        <translation>
            <numerusform>Es wurde kein Stil geladen.</numerusform>
            <numerusform>Es wurde kein Stil geladen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning: Cannot open PDF File</source>
        <translation>Warnung: Die PDF-Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if the file exist at the following path : %2</source>
        <translation>Diese PDF-Datei kann nicht geöffnet werden: %1

Bitte prüfen Sie, ob es die Datei an diesem Ort gibt: %2</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if a pdf reader has been installed on your computer</source>
        <translation>Diese PDF-Datei kann nicht geöffnet werden: %1

Bitte prüfen Sie, ob auf Ihrem Rechner ein PDF-Programm installiert ist</translation>
    </message>
</context>
<context>
    <name>ShareBrowser</name>
    <message>
        <source>Choose Network Drive folder</source>
        <translation>Ordner des Netzlaufwerks wählen</translation>
    </message>
    <message>
        <source>Hosts and shared folders</source>
        <translation>Server und freigegebene Ordner</translation>
    </message>
    <message>
        <source>Searching the network</source>
        <translation>Das Netzwerk wird durchsucht</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateConfigWidget</name>
    <message>
        <source>Check For Updates</source>
        <translation>Suche nach Updates</translation>
    </message>
    <message>
        <source>Automatically Check for Updates</source>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Check for Updates at Startup</source>
        <translation>Beim Start nach Updates suchen</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Jetzt suchen</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateWidget</name>
    <message>
        <source>Check for Updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Es wird nach einem Update gesucht …</translation>
    </message>
    <message>
        <source>Checking for update</source>
        <translation>Suche nach einem Update</translation>
    </message>
    <message>
        <source>Version Name</source>
        <translation>Name der Version</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>Version description</source>
        <translation>Beschreibung der Version</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Herunterladen und installieren</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>(rev %1)</source>
        <translation>(Rev. %1)</translation>
    </message>
    <message>
        <source>Choose Download Directory</source>
        <translation>Ordner für das Herunterladen wählen</translation>
    </message>
    <message>
        <source>%1 will be installed on your computer.
Please make sure to have administrator rights before attempting the software update.</source>
        <translation>%1 wird auf Ihrem Rechner installiert.
Bitte vergewissern Sie sich, dass Sie Administratorrechte haben, bevor Sie die Software aktualisieren.</translation>
    </message>
    <message>
        <source>Installing Update</source>
        <translation>Update installieren</translation>
    </message>
    <message>
        <source>Do you want to install this update?
The application will exit.</source>
        <translation>Möchten Sie dieses Update installieren?
Die Anwendung wird beendet.</translation>
    </message>
    <message>
        <source>%1 is up to date.</source>
        <translation>%1 ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Impossible to connect to the Check for Updates service, please check your Internet connection.</source>
        <translation>Der Update-Dienst ist nicht erreichbar. Bitte prüfen Sie Ihre Internetverbindung.</translation>
    </message>
    <message>
        <source>%1 is available.</source>
        <translation>%1 ist verfügbar.</translation>
    </message>
</context>
<context>
    <name>TXColorSquareWidget</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Pattern in %1</source>
        <translation>Muster in %1</translation>
    </message>
</context>
<context>
    <name>TXDBNavWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Seite:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
</context>
<context>
    <name>TXDataCrypt</name>
    <message>
        <source>The data is not enciphered</source>
        <translation>Die Daten sind nicht verschlüsselt</translation>
    </message>
    <message>
        <source>The data is damaged or was enciphered with another key</source>
        <translation>Die Daten sind beschädigt oder wurden mit einem anderen Schlüssel verschlüsselt</translation>
    </message>
    <message numerus="yes">
        <source>The key file %2 cannot be made: %1</source>
        <translation>
            <numerusform>Die Schlüsseldatei %2 kann nicht angelegt werden: %1</numerusform>
            <numerusform>Die Schlüsseldatei %2 kann nicht angelegt werden: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The cipher cannot be started</source>
        <translation>
            <numerusform>Die Verschlüsselung kann nicht gestartet werden</numerusform>
            <numerusform>Die Verschlüsselung kann nicht gestartet werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %1 cannot be read</source>
        <translation>
            <numerusform>Die Schlüsseldatei %1 kann nicht gelesen werden</numerusform>
            <numerusform>Die Schlüsseldatei %1 kann nicht gelesen werden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %3 is damaged: it has %1 bytes instead of %2</source>
        <translation>
            <numerusform>Die Schlüsseldatei %3 ist beschädigt: Sie hat %1 statt %2 Byte</numerusform>
            <numerusform>Die Schlüsseldatei %3 ist beschädigt: Sie hat %1 statt %2 Byte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The folder %1 cannot be made</source>
        <translation>
            <numerusform>Der Ordner %1 kann nicht angelegt werden</numerusform>
            <numerusform>Der Ordner %1 kann nicht angelegt werden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TXDatabaseConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Internal Database</source>
        <translation>Interne Datenbank</translation>
    </message>
    <message>
        <source>MySQL/MariaDB Database</source>
        <translation>MySQL/MariaDB-Datenbank</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>127.0.0.1</source>
        <translation>127.0.0.1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>root</source>
        <translation>root</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>Verbindung hergestellt</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>Verbindung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>TXDeltaGradientWidget</name>
    <message>
        <source>Colour differences</source>
        <translation>Farbabstände</translation>
    </message>
    <message>
        <source>Average %1, limit %2 with %3 % of the pixels below, maximum %4</source>
        <translation>Mittelwert %1, Grenzwert %2 mit %3 % der Pixel darunter, Maximum %4</translation>
    </message>
    <message>
        <source>∆EMin</source>
        <translation>∆Emin</translation>
    </message>
    <message>
        <source>∆Eavg: %1    %2 % of pixels &lt; ∆E Limit</source>
        <translation>∆E-Mittel: %1    %2 % der Pixel &lt; ∆E-Grenzwert</translation>
    </message>
    <message>
        <source>∆EMax</source>
        <translation>∆Emax</translation>
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
        <translation>Bereich: %1</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Code: %1</translation>
    </message>
</context>
<context>
    <name>TXFTP</name>
    <message>
        <source>The user name or the password contains a control character.</source>
        <translation>Der Benutzername oder das Passwort enthält ein Steuerzeichen.</translation>
    </message>
    <message>
        <source>The user name or the password is too long.</source>
        <translation>Der Benutzername oder das Passwort ist zu lang.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>Die Adresse ist ungültig.</translation>
    </message>
    <message>
        <source>The address has to begin with ftp, ftps or sftp.</source>
        <translation>Die Adresse muss mit ftp, ftps oder sftp beginnen.</translation>
    </message>
    <message>
        <source>The address names no server.</source>
        <translation>Die Adresse nennt keinen Server.</translation>
    </message>
    <message>
        <source>The port number has to be between 1 and 65535.</source>
        <translation>Die Portnummer muss zwischen 1 und 65535 liegen.</translation>
    </message>
</context>
<context>
    <name>TXFeedbackDialog</name>
    <message>
        <source>Feedback</source>
        <translation>Feedback</translation>
    </message>
</context>
<context>
    <name>TXFeedbackWidget</name>
    <message>
        <source>Sender Information:</source>
        <translation>Angaben zum Absender:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(erforderlich)</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>Firma:</translation>
    </message>
    <message>
        <source>Feedback Description:</source>
        <translation>Ihr Feedback:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Betreff:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Absenden</translation>
    </message>
    <message>
        <source>Field 'Name' hasn't been set, please set a "Name".</source>
        <translation>Das Feld „Name“ ist leer. Bitte geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>Field 'Company' hasn't been set, please set a 'Company'.</source>
        <translation>Das Feld „Firma“ ist leer. Bitte geben Sie eine Firma ein.</translation>
    </message>
    <message>
        <source>Field 'Subject' hasn't been set, please set a 'Subject'.</source>
        <translation>Das Feld „Betreff“ ist leer. Bitte geben Sie einen Betreff ein.</translation>
    </message>
    <message>
        <source>Field 'Description' hasn't been set, please set a 'Description'.</source>
        <translation>Das Feld „Beschreibung“ ist leer. Bitte geben Sie eine Beschreibung ein.</translation>
    </message>
    <message>
        <source>Field 'Login' is empty, please add an E-Mail Address which contain '.' and '@'.</source>
        <translation>Das Feld „E-Mail-Adresse“ ist leer. Bitte geben Sie eine E-Mail-Adresse ein, die „.“ und „@“ enthält.</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'E-Mail Address', please add a login which contain a '@'.</source>
        <translation>Im Feld „E-Mail-Adresse“ fehlt ein „@“. Bitte geben Sie eine Adresse ein, die ein „@“ enthält.</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'E-Mail Address', please add a login which contain a '.'.</source>
        <translation>Im Feld „E-Mail-Adresse“ fehlt ein „.“. Bitte geben Sie eine Adresse ein, die einen „.“ enthält.</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>Fehlende Angaben</translation>
    </message>
    <message>
        <source>Reset Application</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Are you really sure you want to send this feedback?</source>
        <translation>Möchten Sie dieses Feedback wirklich senden?</translation>
    </message>
    <message>
        <source>Failed to send feedback</source>
        <translation>Das Feedback konnte nicht gesendet werden</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, maybe the feedback service is unavailable for the moment. Please re-try later.</source>
        <translation>Ihr Feedback wurde nicht an unser Team gesendet, vielleicht ist der Feedback-Dienst zurzeit nicht erreichbar. Bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, because the following error occured:%1.</source>
        <translation>Ihr Feedback wurde nicht an unser Team gesendet, weil dieser Fehler aufgetreten ist: %1.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Betreff</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
</context>
<context>
    <name>TXImageViewer</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Image viewer</source>
        <translation>Bildbetrachter</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, pixel %2, %3: %4</source>
        <translation>%1, Pixel %2, %3: %4</translation>
    </message>
</context>
<context>
    <name>TXLogModel</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>TXLogWindow</name>
    <message>
        <source>Log Details:</source>
        <translation>Einzelheiten:</translation>
    </message>
    <message>
        <source>Log entries</source>
        <translation>Protokolleinträge</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Log Manager</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Warning &amp; Errors</source>
        <translation>Warnungen &amp; Fehler</translation>
    </message>
    <message>
        <source>Errors Only</source>
        <translation>Nur Fehler</translation>
    </message>
</context>
<context>
    <name>TXMailSender</name>
    <message>
        <source>The system is too busy to send a mail.</source>
        <translation>Das System ist zu ausgelastet, um eine Mail zu senden.</translation>
    </message>
</context>
<context>
    <name>TXProgressBar</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>TXReportAccessible</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>TXReportDocument</name>
    <message>
        <source>This is not a file name.</source>
        <translation>Das ist kein Dateiname.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The report could not be written to "%2": %1</source>
        <translation>Der Bericht konnte nicht in „%2“ geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The document's data could not be added to the PDF.</source>
        <translation>Die Daten des Dokuments konnten nicht in die PDF-Datei aufgenommen werden.</translation>
    </message>
    <message>
        <source>The printer "%1" does not take the page size of the report.</source>
        <translation>Der Drucker „%1“ nimmt das Seitenformat des Berichts nicht an.</translation>
    </message>
    <message>
        <source>The printer "%1" can't be started.</source>
        <translation>Der Drucker „%1“ kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The printer "%1" has stopped in the middle.</source>
        <translation>Der Drucker „%1“ hat mittendrin angehalten.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>Es gibt keinen Drucker.</translation>
    </message>
    <message>
        <source>The report has none of the pages that are to be printed.</source>
        <translation>Der Bericht hat keine der Seiten, die gedruckt werden sollen.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>The report is being written or printed already.</source>
        <translation>Der Bericht wird schon geschrieben oder gedruckt.</translation>
    </message>
    <message>
        <source>The report has no pages.</source>
        <translation>Der Bericht hat keine Seiten.</translation>
    </message>
    <message>
        <source>The margins, the header and the footer leave no room on the paper.</source>
        <translation>Ränder, Kopf- und Fußzeile lassen auf dem Papier keinen Platz.</translation>
    </message>
    <message>
        <source>page {page} of {pages}</source>
        <translation>Seite {page} von {pages}</translation>
    </message>
</context>
<context>
    <name>TXSelectDefaultEncodingWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Default Encoding</source>
        <translation>Standardkodierung</translation>
    </message>
</context>
<context>
    <name>TXSelectionItemWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>Neu anlegen</translation>
    </message>
</context>
<context>
    <name>TXTriggerEventWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Auslöser</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Each Hour</source>
        <translation>Jede Stunde</translation>
    </message>
    <message>
        <source>Each Month</source>
        <translation>Jeden Monat</translation>
    </message>
    <message>
        <source>Each Week</source>
        <translation>Jede Woche</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>Jeden Tag</translation>
    </message>
    <message>
        <source>Each Minute</source>
        <translation>Jede Minute</translation>
    </message>
</context>
<context>
    <name>TXVariantViewer</name>
    <message>
        <source>Copy value</source>
        <translation>Wert kopieren</translation>
    </message>
    <message>
        <source>The value was not copied. It is nested deeper than the %1 levels that its text in JSON may have.</source>
        <translation>Der Wert wurde nicht kopiert. Er ist tiefer verschachtelt als die %1 Ebenen, die sein Text in JSON haben darf.</translation>
    </message>
    <message>
        <source>Copy value (JSON encoded)</source>
        <translation>Wert kopieren (als JSON)</translation>
    </message>
    <message>
        <source>Copy string value</source>
        <translation>Text des Werts kopieren</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>kind and value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>value and kind</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>dictionary, one entry</source>
        <translation>Wörterbuch, ein Eintrag</translation>
    </message>
    <message numerus="yes">
        <source>dictionary, %n entries</source>
        <translation>
            <numerusform>Wörterbuch, %n Eintrag</numerusform>
            <numerusform>Wörterbuch, %n Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>list, one entry</source>
        <translation>Liste, ein Eintrag</translation>
    </message>
    <message numerus="yes">
        <source>list, %n entries</source>
        <translation>
            <numerusform>Liste, %n Eintrag</numerusform>
            <numerusform>Liste, %n Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>wahr oder falsch</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>ganze Zahl</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Einklappen</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Ausklappen</translation>
    </message>
</context>
<context>
    <name>TXWebInterfaceConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Enable HTTPS</source>
        <translation>HTTPS aktivieren</translation>
    </message>
    <message>
        <source>Certificate file</source>
        <translation>Zertifikatsdatei</translation>
    </message>
    <message>
        <source>Certificate File...</source>
        <translation>Zertifikatsdatei …</translation>
    </message>
    <message>
        <source>Choose certificate file</source>
        <translation>Zertifikatsdatei wählen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Addresses:</source>
        <translation>Aktive Adressen:</translation>
    </message>
    <message>
        <source>Choose Certificate File</source>
        <translation>Zertifikatsdatei wählen</translation>
    </message>
    <message>
        <source>Certificate Files (*.pem)</source>
        <translation>Zertifikatsdateien (*.pem)</translation>
    </message>
    <message>
        <source>&amp;nbsp;&amp;nbsp;&amp;nbsp;(to be used only from this computer)</source>
        <translation>&amp;nbsp;&amp;nbsp;&amp;nbsp;(nur von diesem Rechner aus zu benutzen)</translation>
    </message>
    <message>
        <source>Active Addresses</source>
        <translation>Aktive Adressen</translation>
    </message>
</context>
<context>
    <name>TXWidgetListWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elemente</translation>
    </message>
</context>
<context>
    <name>VariantMoreButton</name>
    <message>
        <source>Show %L1 more of %L2</source>
        <translation>%L1 weitere von %L2 zeigen</translation>
    </message>
</context>
<context>
    <name>WaitWidget</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
</TS>
