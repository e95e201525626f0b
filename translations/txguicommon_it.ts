<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AboutAppWindow</name>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Patent and Legal Notices</source>
        <translation>Brevetti e note legali</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Informazioni su %1</translation>
    </message>
</context>
<context>
    <name>AutoMountManagerMainWindow</name>
    <message>
        <source>AutoMount Manager</source>
        <translation>Gestione delle unità di rete</translation>
    </message>
    <message>
        <source>Network Drives</source>
        <translation>Unità di rete</translation>
    </message>
    <message>
        <source>Add Network Drive</source>
        <translation>Aggiungi unità di rete</translation>
    </message>
    <message>
        <source>Remove Network Drive</source>
        <translation>Rimuovi unità di rete</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifica...</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitato</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>There is no Network Drive letter available.
Please disconnect a network Network Drive and retry.</source>
        <translation>Non è disponibile alcuna lettera di unità.
Disconnettere un'unità di rete e riprovare.</translation>
    </message>
    <message>
        <source>Edit Network Drive Parameters</source>
        <translation>Modifica i parametri dell'unità di rete</translation>
    </message>
    <message>
        <source>Warning: Network Drive Delete?</source>
        <translation>Avviso: rimuovere l'unità di rete?</translation>
    </message>
    <message>
        <source>Do you want to remove selected Network Drive?</source>
        <translation>Rimuovere l'unità di rete selezionata?</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveEditor</name>
    <message>
        <source>Network Drive</source>
        <translation>Unità di rete</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocollo</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>(required)</source>
        <translation>(obbligatorio)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Dominio</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveModel</name>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Attiva</translation>
    </message>
    <message>
        <source>Network Drive</source>
        <translation>Unità di rete</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Condivisione</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>This Network Drive is connected</source>
        <translation>Questa unità di rete è connessa</translation>
    </message>
    <message>
        <source>This nNetwork Drive is disconnected</source>
        <translation>Questa unità di rete è disconnessa</translation>
    </message>
    <message>
        <source>Impossible to reconnect the Network Drive, please check the address, the password and the user name</source>
        <translation>Impossibile riconnettere l'unità di rete: controllare l'indirizzo, la password e il nome utente</translation>
    </message>
    <message>
        <source>This Network Drive letter is already used, please choose another letter to connect the Network Drive</source>
        <translation>Questa lettera di unità è già usata: scegliere un'altra lettera per connettere l'unità di rete</translation>
    </message>
</context>
<context>
    <name>CredentialDialog</name>
    <message>
        <source>Credentials</source>
        <translation>Credenziali</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>Ricorda</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBoxWithSliderWidget</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
</context>
<context>
    <name>EMailSenderWidget</name>
    <message>
        <source>Login:</source>
        <translation>Nome di accesso:</translation>
    </message>
    <message>
        <source>(Optional)</source>
        <translation>(facoltativo)</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>SMTP Server:</source>
        <translation>Server SMTP:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(obbligatorio)</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifratura</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Da:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>A:</translation>
    </message>
    <message>
        <source>Cc:</source>
        <translation>Cc:</translation>
    </message>
    <message>
        <source>Send Test Mail</source>
        <translation>Invia messaggio di prova</translation>
    </message>
    <message>
        <source>Field 'Sender' is empty, please add sender address which contain '.' and '@'.</source>
        <translation>Il campo «Mittente» è vuoto: immettere un indirizzo di mittente che contenga «.» e «@».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'Sender', please add sender address which contain a '@'.</source>
        <translation>Nel campo «Mittente» manca una «@»: immettere un indirizzo di mittente che contenga una «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'Sender', please add sender address which contain a '.'.</source>
        <translation>Nel campo «Mittente» manca un «.»: immettere un indirizzo di mittente che contenga un «.».</translation>
    </message>
    <message>
        <source>Field 'To' is empty, please add receiver address which contain '.' and '@'.</source>
        <translation>Il campo «A» è vuoto: immettere un indirizzo di destinatario che contenga «.» e «@».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'To', please add receiver address which contain a '@'.</source>
        <translation>Nel campo «A» manca una «@»: immettere un indirizzo di destinatario che contenga una «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'To', please add receiver address which contain a '.'.</source>
        <translation>Nel campo «A» manca un «.»: immettere un indirizzo di destinatario che contenga un «.».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'cC', please add receiver address which contain a '@'.</source>
        <translation>Nel campo «Cc» manca una «@»: immettere un indirizzo di destinatario che contenga una «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'cC', please add receiver address which contain a '.'.</source>
        <translation>Nel campo «Cc» manca un «.»: immettere un indirizzo di destinatario che contenga un «.».</translation>
    </message>
    <message>
        <source>Uncompleted Mail Configuration</source>
        <translation>Configurazione della posta incompleta</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuna</translation>
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
        <translation>Esito dell'invio</translation>
    </message>
    <message>
        <source>Mail has been sent successfully.</source>
        <translation>Il messaggio è stato inviato.</translation>
    </message>
    <message>
        <source>SMTP Mail Server:</source>
        <translation>Server di posta SMTP:</translation>
    </message>
    <message>
        <source>Sender Address:</source>
        <translation>Mittente:</translation>
    </message>
    <message>
        <source>name@domain</source>
        <translation>nome@dominio</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Destinatario:</translation>
    </message>
    <message>
        <source>This is a test message sent by Tovra ProofKeeper software.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</source>
        <translation>Questo è un messaggio di prova inviato dal software Tovra ProofKeeper.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>This is a test message sent by %1 software.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</source>
        <translation>Questo è un messaggio di prova inviato dal software %1.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>Tovra ProofKeeper test message.</source>
        <translation>Messaggio di prova di Tovra ProofKeeper.</translation>
    </message>
    <message>
        <source>%1 test message.</source>
        <translation>Messaggio di prova di %1.</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Nome di accesso</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>SMTP Server</source>
        <translation>Server SMTP</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
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
        <translation>Importazione FTP</translation>
    </message>
    <message>
        <source>FTP Export Dialog</source>
        <translation>Esportazione FTP</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationWidget</name>
    <message>
        <source>Active</source>
        <translation>Attivo</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocollo</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Distant Path</source>
        <translation>Percorso remoto</translation>
    </message>
    <message>
        <source>Erase Distant Files</source>
        <translation>Elimina i file remoti</translation>
    </message>
    <message>
        <source>Check Connection</source>
        <translation>Verifica connessione</translation>
    </message>
    <message>
        <source>Please check the user name and password</source>
        <translation>Controllare il nome utente e la password</translation>
    </message>
    <message>
        <source>Please check the host name and port number</source>
        <translation>Controllare il nome del server e il numero di porta</translation>
    </message>
    <message>
        <source>Try to connect again to the FTP</source>
        <translation>Provare di nuovo a connettersi al server FTP</translation>
    </message>
    <message>
        <source>Erase Local Files</source>
        <translation>Elimina i file locali</translation>
    </message>
    <message>
        <source>Checking the connection</source>
        <translation>Verifica della connessione in corso</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>Connessione riuscita</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>Connessione non riuscita</translation>
    </message>
</context>
<context>
    <name>LockerFirstPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Blocca interfaccia utente</translation>
    </message>
    <message>
        <source>Enter Password (twice)</source>
        <translation>Immettere la password (due volte)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Password again</source>
        <translation>Ripeti password</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
</context>
<context>
    <name>LockerPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Blocca interfaccia utente</translation>
    </message>
    <message>
        <source>Enter Current Password</source>
        <translation>Immettere la password attuale</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Password attuale</translation>
    </message>
    <message>
        <source>Enter a New Password (twice)</source>
        <translation>Immettere una nuova password (due volte)</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nuova password</translation>
    </message>
    <message>
        <source>New password again</source>
        <translation>Ripeti nuova password</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
</context>
<context>
    <name>LockerUIDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Blocca interfaccia utente</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Cambia password</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This kind of address is not supported.</source>
        <translation>Questo tipo di indirizzo non è supportato.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>L'indirizzo non è valido.</translation>
    </message>
    <message>
        <source>No server of that name was found.</source>
        <translation>Non è stato trovato alcun server con questo nome.</translation>
    </message>
    <message>
        <source>The server cannot be reached, or nothing answers on that port.</source>
        <translation>Il server non è raggiungibile, oppure su quella porta non risponde nulla.</translation>
    </message>
    <message>
        <source>The server gave an unexpected answer.</source>
        <translation>Il server ha dato una risposta imprevista.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>Il server ha negato l'accesso.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Il server non ha risposto in tempo.</translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Perhaps the port is not for encrypted connections.</source>
        <translation>Impossibile stabilire una connessione cifrata. Forse la porta non è destinata alle connessioni cifrate.</translation>
    </message>
    <message>
        <source>The transfer was cancelled.</source>
        <translation>Il trasferimento è stato annullato.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>Il server ha chiuso la connessione.</translation>
    </message>
    <message>
        <source>The connection was broken or the server refused what was sent.</source>
        <translation>La connessione si è interrotta o il server ha rifiutato quanto inviato.</translation>
    </message>
    <message>
        <source>The connection was broken by the server.</source>
        <translation>La connessione è stata interrotta dal server.</translation>
    </message>
    <message>
        <source>The identity of the server could not be verified: its certificate or key is not trusted or belongs to another server.</source>
        <translation>Impossibile verificare l'identità del server: il suo certificato o la sua chiave non sono attendibili o appartengono a un altro server.</translation>
    </message>
    <message>
        <source>The server does not offer an encrypted connection.</source>
        <translation>Il server non offre connessioni cifrate.</translation>
    </message>
    <message>
        <source>The server refused the login. Check user name and password.</source>
        <translation>Il server ha rifiutato l'accesso. Controllare nome utente e password.</translation>
    </message>
    <message>
        <source>The file of trusted certificate authorities cannot be read.</source>
        <translation>Impossibile leggere il file delle autorità di certificazione attendibili.</translation>
    </message>
    <message>
        <source>The server does not have that file or folder.</source>
        <translation>Il file o la cartella non esiste sul server.</translation>
    </message>
    <message>
        <source>The SSH connection to the server failed.</source>
        <translation>La connessione SSH al server non è riuscita.</translation>
    </message>
    <message>
        <source>The server's last message: %1</source>
        <translation>Ultimo messaggio del server: %1</translation>
    </message>
    <message>
        <source>This mail address holds a line break or a control character: %1</source>
        <translation>Questo indirizzo di posta contiene un'interruzione di riga o un carattere di controllo: %1</translation>
    </message>
    <message>
        <source>This mail address is too long: %1</source>
        <translation>Questo indirizzo di posta è troppo lungo: %1</translation>
    </message>
    <message>
        <source>Letters such as those before the '@' of this address cannot be sent: %1</source>
        <translation>Impossibile inviare lettere come quelle prima della «@» di questo indirizzo: %1</translation>
    </message>
    <message>
        <source>This is not a mail address: %1</source>
        <translation>Questo non è un indirizzo di posta: %1</translation>
    </message>
    <message>
        <source>The mail settings name no sender (field 'From').</source>
        <translation>Nelle impostazioni della posta manca il mittente (campo «Da»).</translation>
    </message>
    <message>
        <source>The mail settings name no receiver (field 'To').</source>
        <translation>Nelle impostazioni della posta manca il destinatario (campo «A»).</translation>
    </message>
    <message>
        <source>The mail server demands a login or encryption.</source>
        <translation>Il server di posta richiede un accesso o la cifratura.</translation>
    </message>
    <message>
        <source>The mail server refused the sender's address.</source>
        <translation>Il server di posta ha rifiutato l'indirizzo del mittente.</translation>
    </message>
    <message>
        <source>The mail server refused a receiver's address. The mail was sent to nobody.</source>
        <translation>Il server di posta ha rifiutato l'indirizzo di un destinatario. Il messaggio non è stato inviato a nessuno.</translation>
    </message>
    <message>
        <source>The mail server refused the mail.</source>
        <translation>Il server di posta ha rifiutato il messaggio.</translation>
    </message>
    <message>
        <source>The mail settings name no server (field 'SMTP Server').</source>
        <translation>Nelle impostazioni della posta manca il server (campo «Server SMTP»).</translation>
    </message>
    <message>
        <source>This is not the name of a mail server: %1</source>
        <translation>Questo non è il nome di un server di posta: %1</translation>
    </message>
    <message>
        <source>The mail server's port is above 65535: %1</source>
        <translation>La porta del server di posta è superiore a 65535: %1</translation>
    </message>
    <message>
        <source>The mail settings ask for an unknown encryption: '%1'</source>
        <translation>Le impostazioni della posta richiedono una cifratura sconosciuta: «%1»</translation>
    </message>
    <message>
        <source>The stored password for the mail server cannot be read, please enter it again. %1</source>
        <translation>Impossibile leggere la password salvata per il server di posta: immetterla di nuovo. %1</translation>
    </message>
    <message>
        <source>Select your translation file</source>
        <translation>Selezionare il file di traduzione</translation>
    </message>
    <message numerus="yes">
        <source>No Style has been loaded.</source>
        <translation>
            <numerusform>Non è stato caricato alcuno stile.</numerusform>
            <numerusform>Non è stato caricato alcuno stile.</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning: Cannot open PDF File</source>
        <translation>Avviso: impossibile aprire il file PDF</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if the file exist at the following path : %2</source>
        <translation>Impossibile aprire il seguente PDF: %1

Controllare se il file esiste nel seguente percorso: %2</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if a pdf reader has been installed on your computer</source>
        <translation>Impossibile aprire il seguente PDF: %1

Controllare se sul computer è installato un lettore di PDF</translation>
    </message>
</context>
<context>
    <name>ShareBrowser</name>
    <message>
        <source>Choose Network Drive folder</source>
        <translation>Scegli la cartella dell'unità di rete</translation>
    </message>
    <message>
        <source>Hosts and shared folders</source>
        <translation>Server e cartelle condivise</translation>
    </message>
    <message>
        <source>Searching the network</source>
        <translation>Ricerca nella rete in corso</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateConfigWidget</name>
    <message>
        <source>Check For Updates</source>
        <translation>Ricerca di aggiornamenti</translation>
    </message>
    <message>
        <source>Automatically Check for Updates</source>
        <translation>Cerca automaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>Check for Updates at Startup</source>
        <translation>Cerca aggiornamenti all'avvio</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Cerca ora</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateWidget</name>
    <message>
        <source>Check for Updates</source>
        <translation>Cerca aggiornamenti</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Ricerca di un aggiornamento in corso...</translation>
    </message>
    <message>
        <source>Checking for update</source>
        <translation>Ricerca di un aggiornamento</translation>
    </message>
    <message>
        <source>Version Name</source>
        <translation>Nome della versione</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Note di rilascio</translation>
    </message>
    <message>
        <source>Version description</source>
        <translation>Descrizione della versione</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Scarica e installa</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>Scegli la cartella di scaricamento</translation>
    </message>
    <message>
        <source>%1 will be installed on your computer.
Please make sure to have administrator rights before attempting the software update.</source>
        <translation>%1 verrà installato sul computer.
Assicurarsi di disporre dei diritti di amministratore prima di aggiornare il software.</translation>
    </message>
    <message>
        <source>Installing Update</source>
        <translation>Installazione dell'aggiornamento</translation>
    </message>
    <message>
        <source>Do you want to install this update?
The application will exit.</source>
        <translation>Installare questo aggiornamento?
L'applicazione verrà chiusa.</translation>
    </message>
    <message>
        <source>%1 is up to date.</source>
        <translation>%1 è aggiornato.</translation>
    </message>
    <message>
        <source>Impossible to connect to the Check for Updates service, please check your Internet connection.</source>
        <translation>Impossibile connettersi al servizio di aggiornamento: controllare la connessione a Internet.</translation>
    </message>
    <message>
        <source>%1 is available.</source>
        <translation>%1 è disponibile.</translation>
    </message>
</context>
<context>
    <name>TXColorSquareWidget</name>
    <message>
        <source>Colour</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>Nessun colore</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Sfumatura</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Pattern in %1</source>
        <translation>Motivo in %1</translation>
    </message>
</context>
<context>
    <name>TXDBNavWidget</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Pagina:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Pagina</translation>
    </message>
</context>
<context>
    <name>TXDataCrypt</name>
    <message>
        <source>The data is not enciphered</source>
        <translation>I dati non sono cifrati</translation>
    </message>
    <message>
        <source>The data is damaged or was enciphered with another key</source>
        <translation>I dati sono danneggiati o sono stati cifrati con un'altra chiave</translation>
    </message>
    <message numerus="yes">
        <source>The key file %2 cannot be made: %1</source>
        <translation>
            <numerusform>Impossibile creare il file di chiave %2: %1</numerusform>
            <numerusform>Impossibile creare il file di chiave %2: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The cipher cannot be started</source>
        <translation>
            <numerusform>Impossibile avviare la cifratura</numerusform>
            <numerusform>Impossibile avviare la cifratura</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %1 cannot be read</source>
        <translation>
            <numerusform>Impossibile leggere il file di chiave %1</numerusform>
            <numerusform>Impossibile leggere il file di chiave %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %3 is damaged: it has %1 bytes instead of %2</source>
        <translation>
            <numerusform>Il file di chiave %3 è danneggiato: ha %1 byte invece di %2</numerusform>
            <numerusform>Il file di chiave %3 è danneggiato: ha %1 byte invece di %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The folder %1 cannot be made</source>
        <translation>
            <numerusform>Impossibile creare la cartella %1</numerusform>
            <numerusform>Impossibile creare la cartella %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TXDatabaseConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Internal Database</source>
        <translation>Database interno</translation>
    </message>
    <message>
        <source>MySQL/MariaDB Database</source>
        <translation>Database MySQL/MariaDB</translation>
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
        <translation>Porta</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>root</source>
        <translation>root</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Prova</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>Connessione riuscita</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>Connessione non riuscita</translation>
    </message>
</context>
<context>
    <name>TXDeltaGradientWidget</name>
    <message>
        <source>Colour differences</source>
        <translation>Differenze di colore</translation>
    </message>
    <message>
        <source>Average %1, limit %2 with %3 % of the pixels below, maximum %4</source>
        <translation>Media %1, limite %2 con il %3 % dei pixel al di sotto, massimo %4</translation>
    </message>
    <message>
        <source>∆EMin</source>
        <translation>∆Emin</translation>
    </message>
    <message>
        <source>∆Eavg: %1    %2 % of pixels &lt; ∆E Limit</source>
        <translation>∆E medio: %1    %2 % dei pixel &lt; limite ∆E</translation>
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
        <translation>Ambito: %1</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Codice: %1</translation>
    </message>
</context>
<context>
    <name>TXFTP</name>
    <message>
        <source>The user name or the password contains a control character.</source>
        <translation>Il nome utente o la password contiene un carattere di controllo.</translation>
    </message>
    <message>
        <source>The user name or the password is too long.</source>
        <translation>Il nome utente o la password sono troppo lunghi.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>L'indirizzo non è valido.</translation>
    </message>
    <message>
        <source>The address has to begin with ftp, ftps or sftp.</source>
        <translation>L'indirizzo deve iniziare con ftp, ftps o sftp.</translation>
    </message>
    <message>
        <source>The address names no server.</source>
        <translation>L'indirizzo non indica alcun server.</translation>
    </message>
    <message>
        <source>The port number has to be between 1 and 65535.</source>
        <translation>Il numero di porta deve essere compreso tra 1 e 65535.</translation>
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
        <translation>Dati del mittente:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(obbligatorio)</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>Indirizzo e-mail</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>Azienda:</translation>
    </message>
    <message>
        <source>Feedback Description:</source>
        <translation>Feedback:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Oggetto:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descrizione:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Field 'Name' hasn't been set, please set a "Name".</source>
        <translation>Il campo «Nome» è vuoto: immettere un nome.</translation>
    </message>
    <message>
        <source>Field 'Company' hasn't been set, please set a 'Company'.</source>
        <translation>Il campo «Azienda» è vuoto: immettere un'azienda.</translation>
    </message>
    <message>
        <source>Field 'Subject' hasn't been set, please set a 'Subject'.</source>
        <translation>Il campo «Oggetto» è vuoto: immettere un oggetto.</translation>
    </message>
    <message>
        <source>Field 'Description' hasn't been set, please set a 'Description'.</source>
        <translation>Il campo «Descrizione» è vuoto: immettere una descrizione.</translation>
    </message>
    <message>
        <source>Field 'Login' is empty, please add an E-Mail Address which contain '.' and '@'.</source>
        <translation>Il campo «Indirizzo e-mail» è vuoto: immettere un indirizzo e-mail che contenga «.» e «@».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'E-Mail Address', please add a login which contain a '@'.</source>
        <translation>Nel campo «Indirizzo e-mail» manca una «@»: immettere un indirizzo che contenga una «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'E-Mail Address', please add a login which contain a '.'.</source>
        <translation>Nel campo «Indirizzo e-mail» manca un «.»: immettere un indirizzo che contenga un «.».</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>Dati mancanti</translation>
    </message>
    <message>
        <source>Reset Application</source>
        <translation>Invia feedback</translation>
    </message>
    <message>
        <source>Are you really sure you want to send this feedback?</source>
        <translation>Inviare davvero questo feedback?</translation>
    </message>
    <message>
        <source>Failed to send feedback</source>
        <translation>Invio del feedback non riuscito</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, maybe the feedback service is unavailable for the moment. Please re-try later.</source>
        <translation>Il feedback non è stato inviato al nostro team: forse il servizio di feedback non è al momento disponibile. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, because the following error occured:%1.</source>
        <translation>Il feedback non è stato inviato al nostro team a causa del seguente errore: %1.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Azienda</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Oggetto</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
</context>
<context>
    <name>TXImageViewer</name>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>Image viewer</source>
        <translation>Visualizzatore di immagini</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Nessuna immagine</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, pixel %2, %3: %4</source>
        <translation>%1, pixel %2, %3: %4</translation>
    </message>
</context>
<context>
    <name>TXLogModel</name>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
</context>
<context>
    <name>TXLogWindow</name>
    <message>
        <source>Log Details:</source>
        <translation>Dettagli:</translation>
    </message>
    <message>
        <source>Log entries</source>
        <translation>Voci del registro</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Svuota elenco</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Log Manager</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Warning &amp; Errors</source>
        <translation>Avvisi ed errori</translation>
    </message>
    <message>
        <source>Errors Only</source>
        <translation>Solo errori</translation>
    </message>
</context>
<context>
    <name>TXMailSender</name>
    <message>
        <source>The system is too busy to send a mail.</source>
        <translation>Il sistema è troppo occupato per inviare un messaggio.</translation>
    </message>
</context>
<context>
    <name>TXProgressBar</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
</context>
<context>
    <name>TXReportAccessible</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
</context>
<context>
    <name>TXReportDocument</name>
    <message>
        <source>This is not a file name.</source>
        <translation>Questo non è un nome di file.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Questo non è un file regolare.</translation>
    </message>
    <message>
        <source>The report could not be written to "%2": %1</source>
        <translation>Impossibile scrivere il rapporto in «%2»: %1</translation>
    </message>
    <message>
        <source>The document's data could not be added to the PDF.</source>
        <translation>Impossibile aggiungere i dati del documento al PDF.</translation>
    </message>
    <message>
        <source>The printer "%1" does not take the page size of the report.</source>
        <translation>La stampante «%1» non accetta il formato di pagina del rapporto.</translation>
    </message>
    <message>
        <source>The printer "%1" can't be started.</source>
        <translation>Impossibile avviare la stampante «%1».</translation>
    </message>
    <message>
        <source>The printer "%1" has stopped in the middle.</source>
        <translation>La stampante «%1» si è fermata a metà.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>Non c'è alcuna stampante.</translation>
    </message>
    <message>
        <source>The report has none of the pages that are to be printed.</source>
        <translation>Il rapporto non contiene nessuna delle pagine da stampare.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Pagina %1 di %2</translation>
    </message>
    <message>
        <source>The report is being written or printed already.</source>
        <translation>Il rapporto è già in fase di scrittura o di stampa.</translation>
    </message>
    <message>
        <source>The report has no pages.</source>
        <translation>Il rapporto non ha pagine.</translation>
    </message>
    <message>
        <source>The margins, the header and the footer leave no room on the paper.</source>
        <translation>I margini, l'intestazione e il piè di pagina non lasciano spazio sul foglio.</translation>
    </message>
    <message>
        <source>page {page} of {pages}</source>
        <translation>pagina {page} di {pages}</translation>
    </message>
</context>
<context>
    <name>TXSelectDefaultEncodingWidget</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Default Encoding</source>
        <translation>Codifica predefinita</translation>
    </message>
</context>
<context>
    <name>TXSelectionItemWidget</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importa</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplica</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>Crea nuovo</translation>
    </message>
</context>
<context>
    <name>TXTriggerEventWidget</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Attivazione</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periodo</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Giorno</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Each Hour</source>
        <translation>Ogni ora</translation>
    </message>
    <message>
        <source>Each Month</source>
        <translation>Ogni mese</translation>
    </message>
    <message>
        <source>Each Week</source>
        <translation>Ogni settimana</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>Ogni giorno</translation>
    </message>
    <message>
        <source>Each Minute</source>
        <translation>Ogni minuto</translation>
    </message>
</context>
<context>
    <name>TXVariantViewer</name>
    <message>
        <source>Copy value</source>
        <translation>Copia valore</translation>
    </message>
    <message>
        <source>The value was not copied. It is nested deeper than the %1 levels that its text in JSON may have.</source>
        <translation>Il valore non è stato copiato. È annidato oltre i %1 livelli che il suo testo in JSON può avere.</translation>
    </message>
    <message>
        <source>Copy value (JSON encoded)</source>
        <translation>Copia valore (come JSON)</translation>
    </message>
    <message>
        <source>Copy string value</source>
        <translation>Copia testo del valore</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
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
        <translation>dizionario, una voce</translation>
    </message>
    <message numerus="yes">
        <source>dictionary, %n entries</source>
        <translation>
            <numerusform>dizionario, %n voce</numerusform>
            <numerusform>dizionario, %n voci</numerusform>
        </translation>
    </message>
    <message>
        <source>list, one entry</source>
        <translation>elenco, una voce</translation>
    </message>
    <message numerus="yes">
        <source>list, %n entries</source>
        <translation>
            <numerusform>elenco, %n voce</numerusform>
            <numerusform>elenco, %n voci</numerusform>
        </translation>
    </message>
    <message>
        <source>text</source>
        <translation>testo</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niente</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>vero o falso</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>numero intero</translation>
    </message>
    <message>
        <source>number</source>
        <translation>numero</translation>
    </message>
    <message>
        <source>date</source>
        <translation>data</translation>
    </message>
    <message>
        <source>time</source>
        <translation>ora</translation>
    </message>
    <message>
        <source>date and time</source>
        <translation>data e ora</translation>
    </message>
    <message>
        <source>address</source>
        <translation>indirizzo</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valore</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Comprimi</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Espandi</translation>
    </message>
</context>
<context>
    <name>TXWebInterfaceConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitata</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Enable HTTPS</source>
        <translation>Abilita HTTPS</translation>
    </message>
    <message>
        <source>Certificate file</source>
        <translation>File del certificato</translation>
    </message>
    <message>
        <source>Certificate File...</source>
        <translation>File del certificato...</translation>
    </message>
    <message>
        <source>Choose certificate file</source>
        <translation>Scegli il file del certificato</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Addresses:</source>
        <translation>Indirizzi attivi:</translation>
    </message>
    <message>
        <source>Choose Certificate File</source>
        <translation>Scegli il file del certificato</translation>
    </message>
    <message>
        <source>Certificate Files (*.pem)</source>
        <translation>File di certificato (*.pem)</translation>
    </message>
    <message>
        <source>&amp;nbsp;&amp;nbsp;&amp;nbsp;(to be used only from this computer)</source>
        <translation>&amp;nbsp;&amp;nbsp;&amp;nbsp;(da usare solo da questo computer)</translation>
    </message>
    <message>
        <source>Active Addresses</source>
        <translation>Indirizzi attivi</translation>
    </message>
</context>
<context>
    <name>TXWidgetListWidget</name>
    <message>
        <source>Form</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elementi</translation>
    </message>
</context>
<context>
    <name>VariantMoreButton</name>
    <message>
        <source>Show %L1 more of %L2</source>
        <translation>Mostra altri %L1 di %L2</translation>
    </message>
</context>
<context>
    <name>WaitWidget</name>
    <message>
        <source>Busy</source>
        <translation>Occupato</translation>
    </message>
</context>
</TS>
