<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AboutAppWindow</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Patent and Legal Notices</source>
        <translation>Brevets et mentions légales</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>À propos de %1</translation>
    </message>
</context>
<context>
    <name>AutoMountManagerMainWindow</name>
    <message>
        <source>AutoMount Manager</source>
        <translation>Gestionnaire de lecteurs réseau</translation>
    </message>
    <message>
        <source>Network Drives</source>
        <translation>Lecteurs réseau</translation>
    </message>
    <message>
        <source>Add Network Drive</source>
        <translation>Ajouter un lecteur réseau</translation>
    </message>
    <message>
        <source>Remove Network Drive</source>
        <translation>Supprimer le lecteur réseau</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>There is no Network Drive letter available.
Please disconnect a network Network Drive and retry.</source>
        <translation>Aucune lettre de lecteur n’est disponible.
Veuillez déconnecter un lecteur réseau et réessayer.</translation>
    </message>
    <message>
        <source>Edit Network Drive Parameters</source>
        <translation>Modifier les paramètres du lecteur réseau</translation>
    </message>
    <message>
        <source>Warning: Network Drive Delete?</source>
        <translation>Avertissement : supprimer le lecteur réseau ?</translation>
    </message>
    <message>
        <source>Do you want to remove selected Network Drive?</source>
        <translation>Voulez-vous supprimer le lecteur réseau sélectionné ?</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveEditor</name>
    <message>
        <source>Network Drive</source>
        <translation>Lecteur réseau</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocole</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <source>(required)</source>
        <translation>(obligatoire)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domaine</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveModel</name>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>Network Drive</source>
        <translation>Lecteur réseau</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partage</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>This Network Drive is connected</source>
        <translation>Ce lecteur réseau est connecté</translation>
    </message>
    <message>
        <source>This nNetwork Drive is disconnected</source>
        <translation>Ce lecteur réseau est déconnecté</translation>
    </message>
    <message>
        <source>Impossible to reconnect the Network Drive, please check the address, the password and the user name</source>
        <translation>Impossible de reconnecter le lecteur réseau, veuillez vérifier l’adresse, le mot de passe et le nom d’utilisateur</translation>
    </message>
    <message>
        <source>This Network Drive letter is already used, please choose another letter to connect the Network Drive</source>
        <translation>Cette lettre de lecteur est déjà utilisée, veuillez en choisir une autre pour connecter le lecteur réseau</translation>
    </message>
</context>
<context>
    <name>CredentialDialog</name>
    <message>
        <source>Credentials</source>
        <translation>Identifiants</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>Mémoriser</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBoxWithSliderWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
</context>
<context>
    <name>EMailSenderWidget</name>
    <message>
        <source>Login:</source>
        <translation>Identifiant :</translation>
    </message>
    <message>
        <source>(Optional)</source>
        <translation>(facultatif)</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>SMTP Server:</source>
        <translation>Serveur SMTP :</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(obligatoire)</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Chiffrement</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>De :</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>À :</translation>
    </message>
    <message>
        <source>Cc:</source>
        <translation>Cc :</translation>
    </message>
    <message>
        <source>Send Test Mail</source>
        <translation>Envoyer un test</translation>
    </message>
    <message>
        <source>Field 'Sender' is empty, please add sender address which contain '.' and '@'.</source>
        <translation>Le champ « Expéditeur » est vide, veuillez saisir une adresse d’expéditeur contenant « . » et « @ ».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'Sender', please add sender address which contain a '@'.</source>
        <translation>Il manque un « @ » dans le champ « Expéditeur », veuillez saisir une adresse d’expéditeur contenant un « @ ».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'Sender', please add sender address which contain a '.'.</source>
        <translation>Il manque un « . » dans le champ « Expéditeur », veuillez saisir une adresse d’expéditeur contenant un « . ».</translation>
    </message>
    <message>
        <source>Field 'To' is empty, please add receiver address which contain '.' and '@'.</source>
        <translation>Le champ « À » est vide, veuillez saisir une adresse de destinataire contenant « . » et « @ ».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'To', please add receiver address which contain a '@'.</source>
        <translation>Il manque un « @ » dans le champ « À », veuillez saisir une adresse de destinataire contenant un « @ ».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'To', please add receiver address which contain a '.'.</source>
        <translation>Il manque un « . » dans le champ « À », veuillez saisir une adresse de destinataire contenant un « . ».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'cC', please add receiver address which contain a '@'.</source>
        <translation>Il manque un « @ » dans le champ « Cc », veuillez saisir une adresse de destinataire contenant un « @ ».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'cC', please add receiver address which contain a '.'.</source>
        <translation>Il manque un « . » dans le champ « Cc », veuillez saisir une adresse de destinataire contenant un « . ».</translation>
    </message>
    <message>
        <source>Uncompleted Mail Configuration</source>
        <translation>Configuration du courriel incomplète</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
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
        <translation>Résultat de l’envoi du courriel</translation>
    </message>
    <message>
        <source>Mail has been sent successfully.</source>
        <translation>Le courriel a été envoyé.</translation>
    </message>
    <message>
        <source>SMTP Mail Server:</source>
        <translation>Serveur de messagerie SMTP :</translation>
    </message>
    <message>
        <source>Sender Address:</source>
        <translation>Expéditeur :</translation>
    </message>
    <message>
        <source>name@domain</source>
        <translation>nom@domaine</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>Destinataire :</translation>
    </message>
    <message>
        <source>This is a test message sent by Tovra ProofKeeper software.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</source>
        <translation>Ceci est un message de test envoyé par le logiciel Tovra ProofKeeper.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>This is a test message sent by %1 software.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</source>
        <translation>Ceci est un message de test envoyé par le logiciel %1.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>Tovra ProofKeeper test message.</source>
        <translation>Message de test de Tovra ProofKeeper.</translation>
    </message>
    <message>
        <source>%1 test message.</source>
        <translation>Message de test de %1.</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>SMTP Server</source>
        <translation>Serveur SMTP</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
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
        <translation>Importation FTP</translation>
    </message>
    <message>
        <source>FTP Export Dialog</source>
        <translation>Exportation FTP</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationWidget</name>
    <message>
        <source>Active</source>
        <translation>Actif</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocole</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Distant Path</source>
        <translation>Chemin distant</translation>
    </message>
    <message>
        <source>Erase Distant Files</source>
        <translation>Effacer les fichiers distants</translation>
    </message>
    <message>
        <source>Check Connection</source>
        <translation>Vérifier la connexion</translation>
    </message>
    <message>
        <source>Please check the user name and password</source>
        <translation>Veuillez vérifier le nom d’utilisateur et le mot de passe</translation>
    </message>
    <message>
        <source>Please check the host name and port number</source>
        <translation>Veuillez vérifier le nom d’hôte et le numéro de port</translation>
    </message>
    <message>
        <source>Try to connect again to the FTP</source>
        <translation>Essayez de nouveau de vous connecter au serveur FTP</translation>
    </message>
    <message>
        <source>Erase Local Files</source>
        <translation>Effacer les fichiers locaux</translation>
    </message>
    <message>
        <source>Checking the connection</source>
        <translation>Vérification de la connexion</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>Connexion réussie</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>Échec de la connexion</translation>
    </message>
</context>
<context>
    <name>LockerFirstPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Verrouiller l’interface</translation>
    </message>
    <message>
        <source>Enter Password (twice)</source>
        <translation>Saisir le mot de passe (deux fois)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Password again</source>
        <translation>Répéter le mot de passe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>LockerPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Verrouiller l’interface</translation>
    </message>
    <message>
        <source>Enter Current Password</source>
        <translation>Saisir le mot de passe actuel</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Mot de passe actuel</translation>
    </message>
    <message>
        <source>Enter a New Password (twice)</source>
        <translation>Saisir un nouveau mot de passe (deux fois)</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <source>New password again</source>
        <translation>Répéter le nouveau mot de passe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>LockerUIDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Verrouiller l’interface</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Modifier le mot de passe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This kind of address is not supported.</source>
        <translation>Ce type d’adresse n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>L’adresse n’est pas valable.</translation>
    </message>
    <message>
        <source>No server of that name was found.</source>
        <translation>Aucun serveur de ce nom n’a été trouvé.</translation>
    </message>
    <message>
        <source>The server cannot be reached, or nothing answers on that port.</source>
        <translation>Le serveur est injoignable ou rien ne répond sur ce port.</translation>
    </message>
    <message>
        <source>The server gave an unexpected answer.</source>
        <translation>Le serveur a donné une réponse inattendue.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>Le serveur a refusé l’accès.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>Le serveur n’a pas répondu à temps.</translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Perhaps the port is not for encrypted connections.</source>
        <translation>Aucune connexion chiffrée n’a pu être établie. Le port n’est peut-être pas destiné aux connexions chiffrées.</translation>
    </message>
    <message>
        <source>The transfer was cancelled.</source>
        <translation>Le transfert a été annulé.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>Le serveur a fermé la connexion.</translation>
    </message>
    <message>
        <source>The connection was broken or the server refused what was sent.</source>
        <translation>La connexion a été interrompue ou le serveur a refusé ce qui a été envoyé.</translation>
    </message>
    <message>
        <source>The connection was broken by the server.</source>
        <translation>La connexion a été interrompue par le serveur.</translation>
    </message>
    <message>
        <source>The identity of the server could not be verified: its certificate or key is not trusted or belongs to another server.</source>
        <translation>L’identité du serveur n’a pas pu être vérifiée : son certificat ou sa clé n’est pas digne de confiance ou appartient à un autre serveur.</translation>
    </message>
    <message>
        <source>The server does not offer an encrypted connection.</source>
        <translation>Le serveur ne propose pas de connexion chiffrée.</translation>
    </message>
    <message>
        <source>The server refused the login. Check user name and password.</source>
        <translation>Le serveur a refusé l’identification. Vérifiez le nom d’utilisateur et le mot de passe.</translation>
    </message>
    <message>
        <source>The file of trusted certificate authorities cannot be read.</source>
        <translation>Le fichier des autorités de certification de confiance ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The server does not have that file or folder.</source>
        <translation>Ce fichier ou ce dossier n’existe pas sur le serveur.</translation>
    </message>
    <message>
        <source>The SSH connection to the server failed.</source>
        <translation>La connexion SSH au serveur a échoué.</translation>
    </message>
    <message>
        <source>The server's last message: %1</source>
        <translation>Dernier message du serveur : %1</translation>
    </message>
    <message>
        <source>This mail address holds a line break or a control character: %1</source>
        <translation>Cette adresse de courriel contient un saut de ligne ou un caractère de contrôle : %1</translation>
    </message>
    <message>
        <source>This mail address is too long: %1</source>
        <translation>Cette adresse de courriel est trop longue : %1</translation>
    </message>
    <message>
        <source>Letters such as those before the '@' of this address cannot be sent: %1</source>
        <translation>Des lettres comme celles qui précèdent le « @ » de cette adresse ne peuvent pas être envoyées : %1</translation>
    </message>
    <message>
        <source>This is not a mail address: %1</source>
        <translation>Ce n’est pas une adresse de courriel : %1</translation>
    </message>
    <message>
        <source>The mail settings name no sender (field 'From').</source>
        <translation>Les paramètres du courriel n’indiquent pas d’expéditeur (champ « De »).</translation>
    </message>
    <message>
        <source>The mail settings name no receiver (field 'To').</source>
        <translation>Les paramètres du courriel n’indiquent pas de destinataire (champ « À »).</translation>
    </message>
    <message>
        <source>The mail server demands a login or encryption.</source>
        <translation>Le serveur de messagerie exige une identification ou un chiffrement.</translation>
    </message>
    <message>
        <source>The mail server refused the sender's address.</source>
        <translation>Le serveur de messagerie a refusé l’adresse de l’expéditeur.</translation>
    </message>
    <message>
        <source>The mail server refused a receiver's address. The mail was sent to nobody.</source>
        <translation>Le serveur de messagerie a refusé l’adresse d’un destinataire. Le courriel n’a été envoyé à personne.</translation>
    </message>
    <message>
        <source>The mail server refused the mail.</source>
        <translation>Le serveur de messagerie a refusé le courriel.</translation>
    </message>
    <message>
        <source>The mail settings name no server (field 'SMTP Server').</source>
        <translation>Les paramètres du courriel n’indiquent pas de serveur (champ « Serveur SMTP »).</translation>
    </message>
    <message>
        <source>This is not the name of a mail server: %1</source>
        <translation>Ce n’est pas le nom d’un serveur de messagerie : %1</translation>
    </message>
    <message>
        <source>The mail server's port is above 65535: %1</source>
        <translation>Le port du serveur de messagerie dépasse 65535 : %1</translation>
    </message>
    <message>
        <source>The mail settings ask for an unknown encryption: '%1'</source>
        <translation>Les paramètres du courriel demandent un chiffrement inconnu : « %1 »</translation>
    </message>
    <message>
        <source>The stored password for the mail server cannot be read, please enter it again. %1</source>
        <translation>Le mot de passe stocké pour le serveur de messagerie ne peut pas être lu, veuillez le saisir à nouveau. %1</translation>
    </message>
    <message>
        <source>Select your translation file</source>
        <translation>Sélectionnez votre fichier de traduction</translation>
    </message>
    <message numerus="yes">
        <source>No Style has been loaded.</source>
        <translation>
            <numerusform>Aucun style n’a été chargé.</numerusform>
            <numerusform>Aucun style n’a été chargé.</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning: Cannot open PDF File</source>
        <translation>Avertissement : impossible d’ouvrir le fichier PDF</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if the file exist at the following path : %2</source>
        <translation>Impossible d’ouvrir le PDF suivant : %1

Veuillez vérifier que le fichier existe à cet emplacement : %2</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if a pdf reader has been installed on your computer</source>
        <translation>Impossible d’ouvrir le PDF suivant : %1

Veuillez vérifier qu’un lecteur de PDF est installé sur votre ordinateur</translation>
    </message>
</context>
<context>
    <name>ShareBrowser</name>
    <message>
        <source>Choose Network Drive folder</source>
        <translation>Choisir le dossier du lecteur réseau</translation>
    </message>
    <message>
        <source>Hosts and shared folders</source>
        <translation>Hôtes et dossiers partagés</translation>
    </message>
    <message>
        <source>Searching the network</source>
        <translation>Recherche sur le réseau</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateConfigWidget</name>
    <message>
        <source>Check For Updates</source>
        <translation>Recherche de mises à jour</translation>
    </message>
    <message>
        <source>Automatically Check for Updates</source>
        <translation>Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <source>Check for Updates at Startup</source>
        <translation>Rechercher les mises à jour au démarrage</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Rechercher maintenant</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateWidget</name>
    <message>
        <source>Check for Updates</source>
        <translation>Rechercher les mises à jour</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Recherche d’une mise à jour...</translation>
    </message>
    <message>
        <source>Checking for update</source>
        <translation>Recherche d’une mise à jour</translation>
    </message>
    <message>
        <source>Version Name</source>
        <translation>Nom de la version</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>Version description</source>
        <translation>Description de la version</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Télécharger et installer</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>(rev %1)</source>
        <translation>(rév. %1)</translation>
    </message>
    <message>
        <source>Choose Download Directory</source>
        <translation>Choisir le dossier de téléchargement</translation>
    </message>
    <message>
        <source>%1 will be installed on your computer.
Please make sure to have administrator rights before attempting the software update.</source>
        <translation>%1 va être installé sur votre ordinateur.
Assurez-vous de disposer des droits d’administrateur avant de mettre le logiciel à jour.</translation>
    </message>
    <message>
        <source>Installing Update</source>
        <translation>Installation de la mise à jour</translation>
    </message>
    <message>
        <source>Do you want to install this update?
The application will exit.</source>
        <translation>Voulez-vous installer cette mise à jour ?
L’application va se fermer.</translation>
    </message>
    <message>
        <source>%1 is up to date.</source>
        <translation>%1 est à jour.</translation>
    </message>
    <message>
        <source>Impossible to connect to the Check for Updates service, please check your Internet connection.</source>
        <translation>Impossible de joindre le service de mise à jour, veuillez vérifier votre connexion Internet.</translation>
    </message>
    <message>
        <source>%1 is available.</source>
        <translation>%1 est disponible.</translation>
    </message>
</context>
<context>
    <name>TXColorSquareWidget</name>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>Aucune couleur</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Dégradé</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Pattern in %1</source>
        <translation>Motif en %1</translation>
    </message>
</context>
<context>
    <name>TXDBNavWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Page :</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
</context>
<context>
    <name>TXDataCrypt</name>
    <message>
        <source>The data is not enciphered</source>
        <translation>Les données ne sont pas chiffrées</translation>
    </message>
    <message>
        <source>The data is damaged or was enciphered with another key</source>
        <translation>Les données sont endommagées ou ont été chiffrées avec une autre clé</translation>
    </message>
    <message numerus="yes">
        <source>The key file %2 cannot be made: %1</source>
        <translation>
            <numerusform>Impossible de créer le fichier de clé %2 : %1</numerusform>
            <numerusform>Impossible de créer le fichier de clé %2 : %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The cipher cannot be started</source>
        <translation>
            <numerusform>Impossible de démarrer le chiffrement</numerusform>
            <numerusform>Impossible de démarrer le chiffrement</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %1 cannot be read</source>
        <translation>
            <numerusform>Impossible de lire le fichier de clé %1</numerusform>
            <numerusform>Impossible de lire le fichier de clé %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %3 is damaged: it has %1 bytes instead of %2</source>
        <translation>
            <numerusform>Le fichier de clé %3 est endommagé : il compte %1 octets au lieu de %2</numerusform>
            <numerusform>Le fichier de clé %3 est endommagé : il compte %1 octets au lieu de %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The folder %1 cannot be made</source>
        <translation>
            <numerusform>Impossible de créer le dossier %1</numerusform>
            <numerusform>Impossible de créer le dossier %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TXDatabaseConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Internal Database</source>
        <translation>Base de données interne</translation>
    </message>
    <message>
        <source>MySQL/MariaDB Database</source>
        <translation>Base de données MySQL/MariaDB</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Hôte</translation>
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
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>root</source>
        <translation>root</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de données</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Tester</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>Connexion réussie</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>Échec de la connexion</translation>
    </message>
</context>
<context>
    <name>TXDeltaGradientWidget</name>
    <message>
        <source>Colour differences</source>
        <translation>Écarts de couleur</translation>
    </message>
    <message>
        <source>Average %1, limit %2 with %3 % of the pixels below, maximum %4</source>
        <translation>Moyenne %1, limite %2 avec %3 % des pixels en dessous, maximum %4</translation>
    </message>
    <message>
        <source>∆EMin</source>
        <translation>∆Emin</translation>
    </message>
    <message>
        <source>∆Eavg: %1    %2 % of pixels &lt; ∆E Limit</source>
        <translation>∆Emoy : %1    %2 % des pixels &lt; limite ∆E</translation>
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
        <translation>Domaine : %1</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Code : %1</translation>
    </message>
</context>
<context>
    <name>TXFTP</name>
    <message>
        <source>The user name or the password contains a control character.</source>
        <translation>Le nom d’utilisateur ou le mot de passe contient un caractère de contrôle.</translation>
    </message>
    <message>
        <source>The user name or the password is too long.</source>
        <translation>Le nom d’utilisateur ou le mot de passe est trop long.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>L’adresse n’est pas valable.</translation>
    </message>
    <message>
        <source>The address has to begin with ftp, ftps or sftp.</source>
        <translation>L’adresse doit commencer par ftp, ftps ou sftp.</translation>
    </message>
    <message>
        <source>The address names no server.</source>
        <translation>L’adresse n’indique pas de serveur.</translation>
    </message>
    <message>
        <source>The port number has to be between 1 and 65535.</source>
        <translation>Le numéro de port doit être compris entre 1 et 65535.</translation>
    </message>
</context>
<context>
    <name>TXFeedbackDialog</name>
    <message>
        <source>Feedback</source>
        <translation>Commentaires</translation>
    </message>
</context>
<context>
    <name>TXFeedbackWidget</name>
    <message>
        <source>Sender Information:</source>
        <translation>Informations sur l’expéditeur :</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(obligatoire)</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>Adresse de courriel</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>Entreprise :</translation>
    </message>
    <message>
        <source>Feedback Description:</source>
        <translation>Vos commentaires :</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Objet :</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description :</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Field 'Name' hasn't been set, please set a "Name".</source>
        <translation>Le champ « Nom » est vide, veuillez indiquer un nom.</translation>
    </message>
    <message>
        <source>Field 'Company' hasn't been set, please set a 'Company'.</source>
        <translation>Le champ « Entreprise » est vide, veuillez indiquer une entreprise.</translation>
    </message>
    <message>
        <source>Field 'Subject' hasn't been set, please set a 'Subject'.</source>
        <translation>Le champ « Objet » est vide, veuillez indiquer un objet.</translation>
    </message>
    <message>
        <source>Field 'Description' hasn't been set, please set a 'Description'.</source>
        <translation>Le champ « Description » est vide, veuillez saisir une description.</translation>
    </message>
    <message>
        <source>Field 'Login' is empty, please add an E-Mail Address which contain '.' and '@'.</source>
        <translation>Le champ « Adresse de courriel » est vide, veuillez saisir une adresse de courriel contenant « . » et « @ ».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'E-Mail Address', please add a login which contain a '@'.</source>
        <translation>Il manque un « @ » dans le champ « Adresse de courriel », veuillez saisir une adresse contenant un « @ ».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'E-Mail Address', please add a login which contain a '.'.</source>
        <translation>Il manque un « . » dans le champ « Adresse de courriel », veuillez saisir une adresse contenant un « . ».</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>Informations manquantes</translation>
    </message>
    <message>
        <source>Reset Application</source>
        <translation>Envoyer les commentaires</translation>
    </message>
    <message>
        <source>Are you really sure you want to send this feedback?</source>
        <translation>Voulez-vous vraiment envoyer ces commentaires ?</translation>
    </message>
    <message>
        <source>Failed to send feedback</source>
        <translation>Échec de l’envoi des commentaires</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, maybe the feedback service is unavailable for the moment. Please re-try later.</source>
        <translation>Vos commentaires n’ont pas été envoyés à notre équipe, le service de commentaires est peut-être indisponible pour le moment. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, because the following error occured:%1.</source>
        <translation>Vos commentaires n’ont pas été envoyés à notre équipe, car l’erreur suivante s’est produite : %1.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
</context>
<context>
    <name>TXImageViewer</name>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Image viewer</source>
        <translation>Visionneuse d’images</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, pixel %2, %3: %4</source>
        <translation>%1, pixel %2, %3 : %4</translation>
    </message>
</context>
<context>
    <name>TXLogModel</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
</context>
<context>
    <name>TXLogWindow</name>
    <message>
        <source>Log Details:</source>
        <translation>Détails du journal :</translation>
    </message>
    <message>
        <source>Log entries</source>
        <translation>Entrées du journal</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Vider la liste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Log Manager</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Warning &amp; Errors</source>
        <translation>Avertissements et erreurs</translation>
    </message>
    <message>
        <source>Errors Only</source>
        <translation>Erreurs seulement</translation>
    </message>
</context>
<context>
    <name>TXMailSender</name>
    <message>
        <source>The system is too busy to send a mail.</source>
        <translation>Le système est trop occupé pour envoyer un courriel.</translation>
    </message>
</context>
<context>
    <name>TXProgressBar</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>TXReportAccessible</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>TXReportDocument</name>
    <message>
        <source>This is not a file name.</source>
        <translation>Ce n’est pas un nom de fichier.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The report could not be written to "%2": %1</source>
        <translation>Le rapport n’a pas pu être écrit dans « %2 » : %1</translation>
    </message>
    <message>
        <source>The document's data could not be added to the PDF.</source>
        <translation>Les données du document n’ont pas pu être ajoutées au PDF.</translation>
    </message>
    <message>
        <source>The printer "%1" does not take the page size of the report.</source>
        <translation>L’imprimante « %1 » n’accepte pas le format de page du rapport.</translation>
    </message>
    <message>
        <source>The printer "%1" can't be started.</source>
        <translation>L’imprimante « %1 » ne peut pas être démarrée.</translation>
    </message>
    <message>
        <source>The printer "%1" has stopped in the middle.</source>
        <translation>L’imprimante « %1 » s’est arrêtée en cours d’impression.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>Il n’y a pas d’imprimante.</translation>
    </message>
    <message>
        <source>The report has none of the pages that are to be printed.</source>
        <translation>Le rapport ne contient aucune des pages à imprimer.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>The report is being written or printed already.</source>
        <translation>Le rapport est déjà en cours d’écriture ou d’impression.</translation>
    </message>
    <message>
        <source>The report has no pages.</source>
        <translation>Le rapport n’a pas de pages.</translation>
    </message>
    <message>
        <source>The margins, the header and the footer leave no room on the paper.</source>
        <translation>Les marges, l’en-tête et le pied de page ne laissent pas de place sur le papier.</translation>
    </message>
    <message>
        <source>page {page} of {pages}</source>
        <translation>page {page} sur {pages}</translation>
    </message>
</context>
<context>
    <name>TXSelectDefaultEncodingWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Default Encoding</source>
        <translation>Encodage par défaut</translation>
    </message>
</context>
<context>
    <name>TXSelectionItemWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Charger</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>Créer</translation>
    </message>
</context>
<context>
    <name>TXTriggerEventWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Déclencheur</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Périodicité</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Each Hour</source>
        <translation>Toutes les heures</translation>
    </message>
    <message>
        <source>Each Month</source>
        <translation>Tous les mois</translation>
    </message>
    <message>
        <source>Each Week</source>
        <translation>Toutes les semaines</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>Tous les jours</translation>
    </message>
    <message>
        <source>Each Minute</source>
        <translation>Toutes les minutes</translation>
    </message>
</context>
<context>
    <name>TXVariantViewer</name>
    <message>
        <source>Copy value</source>
        <translation>Copier la valeur</translation>
    </message>
    <message>
        <source>The value was not copied. It is nested deeper than the %1 levels that its text in JSON may have.</source>
        <translation>La valeur n’a pas été copiée. Son imbrication dépasse les %1 niveaux que son texte en JSON peut avoir.</translation>
    </message>
    <message>
        <source>Copy value (JSON encoded)</source>
        <translation>Copier la valeur (en JSON)</translation>
    </message>
    <message>
        <source>Copy string value</source>
        <translation>Copier le texte de la valeur</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>kind and value</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>value and kind</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>dictionary, one entry</source>
        <translation>dictionnaire, une entrée</translation>
    </message>
    <message numerus="yes">
        <source>dictionary, %n entries</source>
        <translation>
            <numerusform>dictionnaire, %n entrée</numerusform>
            <numerusform>dictionnaire, %n entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>list, one entry</source>
        <translation>liste, une entrée</translation>
    </message>
    <message numerus="yes">
        <source>list, %n entries</source>
        <translation>
            <numerusform>liste, %n entrée</numerusform>
            <numerusform>liste, %n entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>text</source>
        <translation>texte</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>vrai ou faux</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>nombre entier</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>date</source>
        <translation>date</translation>
    </message>
    <message>
        <source>time</source>
        <translation>heure</translation>
    </message>
    <message>
        <source>date and time</source>
        <translation>date et heure</translation>
    </message>
    <message>
        <source>address</source>
        <translation>adresse</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valeur</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Replier</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Déplier</translation>
    </message>
</context>
<context>
    <name>TXWebInterfaceConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activée</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d’utilisateur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Enable HTTPS</source>
        <translation>Activer HTTPS</translation>
    </message>
    <message>
        <source>Certificate file</source>
        <translation>Fichier de certificat</translation>
    </message>
    <message>
        <source>Certificate File...</source>
        <translation>Fichier de certificat...</translation>
    </message>
    <message>
        <source>Choose certificate file</source>
        <translation>Choisir le fichier de certificat</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Addresses:</source>
        <translation>Adresses actives :</translation>
    </message>
    <message>
        <source>Choose Certificate File</source>
        <translation>Choisir le fichier de certificat</translation>
    </message>
    <message>
        <source>Certificate Files (*.pem)</source>
        <translation>Fichiers de certificat (*.pem)</translation>
    </message>
    <message>
        <source>&amp;nbsp;&amp;nbsp;&amp;nbsp;(to be used only from this computer)</source>
        <translation>&amp;nbsp;&amp;nbsp;&amp;nbsp;(utilisable depuis cet ordinateur seulement)</translation>
    </message>
    <message>
        <source>Active Addresses</source>
        <translation>Adresses actives</translation>
    </message>
</context>
<context>
    <name>TXWidgetListWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
</context>
<context>
    <name>VariantMoreButton</name>
    <message>
        <source>Show %L1 more of %L2</source>
        <translation>Afficher %L1 de plus sur %L2</translation>
    </message>
</context>
<context>
    <name>WaitWidget</name>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
</context>
</TS>
