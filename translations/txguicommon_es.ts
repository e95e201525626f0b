<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AboutAppWindow</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Patent and Legal Notices</source>
        <translation>Patentes y avisos legales</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Acerca de %1</translation>
    </message>
</context>
<context>
    <name>AutoMountManagerMainWindow</name>
    <message>
        <source>AutoMount Manager</source>
        <translation>Gestor de unidades de red</translation>
    </message>
    <message>
        <source>Network Drives</source>
        <translation>Unidades de red</translation>
    </message>
    <message>
        <source>Add Network Drive</source>
        <translation>Añadir unidad de red</translation>
    </message>
    <message>
        <source>Remove Network Drive</source>
        <translation>Quitar unidad de red</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitado</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>There is no Network Drive letter available.
Please disconnect a network Network Drive and retry.</source>
        <translation>No queda ninguna letra de unidad libre.
Desconecte una unidad de red y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Edit Network Drive Parameters</source>
        <translation>Editar los parámetros de la unidad de red</translation>
    </message>
    <message>
        <source>Warning: Network Drive Delete?</source>
        <translation>Advertencia: ¿quitar la unidad de red?</translation>
    </message>
    <message>
        <source>Do you want to remove selected Network Drive?</source>
        <translation>¿Quiere quitar la unidad de red seleccionada?</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveEditor</name>
    <message>
        <source>Network Drive</source>
        <translation>Unidad de red</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocolo</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>(required)</source>
        <translation>(obligatorio)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Dominio</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveModel</name>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>Network Drive</source>
        <translation>Unidad de red</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Recurso compartido</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>This Network Drive is connected</source>
        <translation>Esta unidad de red está conectada</translation>
    </message>
    <message>
        <source>This nNetwork Drive is disconnected</source>
        <translation>Esta unidad de red está desconectada</translation>
    </message>
    <message>
        <source>Impossible to reconnect the Network Drive, please check the address, the password and the user name</source>
        <translation>No se puede volver a conectar la unidad de red; compruebe la dirección, la contraseña y el nombre de usuario</translation>
    </message>
    <message>
        <source>This Network Drive letter is already used, please choose another letter to connect the Network Drive</source>
        <translation>Esta letra de unidad ya está en uso; elija otra letra para conectar la unidad de red</translation>
    </message>
</context>
<context>
    <name>CredentialDialog</name>
    <message>
        <source>Credentials</source>
        <translation>Credenciales</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>Recordar</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBoxWithSliderWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
</context>
<context>
    <name>EMailSenderWidget</name>
    <message>
        <source>Login:</source>
        <translation>Usuario:</translation>
    </message>
    <message>
        <source>(Optional)</source>
        <translation>(opcional)</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>SMTP Server:</source>
        <translation>Servidor SMTP:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(obligatorio)</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>De:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Para:</translation>
    </message>
    <message>
        <source>Cc:</source>
        <translation>Cc:</translation>
    </message>
    <message>
        <source>Send Test Mail</source>
        <translation>Enviar correo de prueba</translation>
    </message>
    <message>
        <source>Field 'Sender' is empty, please add sender address which contain '.' and '@'.</source>
        <translation>El campo «Remitente» está vacío. Introduzca una dirección de remitente que contenga «.» y «@».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'Sender', please add sender address which contain a '@'.</source>
        <translation>Falta una «@» en el campo «Remitente». Introduzca una dirección de remitente que contenga una «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'Sender', please add sender address which contain a '.'.</source>
        <translation>Falta un «.» en el campo «Remitente». Introduzca una dirección de remitente que contenga un «.».</translation>
    </message>
    <message>
        <source>Field 'To' is empty, please add receiver address which contain '.' and '@'.</source>
        <translation>El campo «Para» está vacío. Introduzca una dirección de destinatario que contenga «.» y «@».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'To', please add receiver address which contain a '@'.</source>
        <translation>Falta una «@» en el campo «Para». Introduzca una dirección de destinatario que contenga una «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'To', please add receiver address which contain a '.'.</source>
        <translation>Falta un «.» en el campo «Para». Introduzca una dirección de destinatario que contenga un «.».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'cC', please add receiver address which contain a '@'.</source>
        <translation>Falta una «@» en el campo «Cc». Introduzca una dirección de destinatario que contenga una «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'cC', please add receiver address which contain a '.'.</source>
        <translation>Falta un «.» en el campo «Cc». Introduzca una dirección de destinatario que contenga un «.».</translation>
    </message>
    <message>
        <source>Uncompleted Mail Configuration</source>
        <translation>Ajustes de correo incompletos</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
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
        <translation>Resultado del envío del correo</translation>
    </message>
    <message>
        <source>Mail has been sent successfully.</source>
        <translation>El correo se ha enviado correctamente.</translation>
    </message>
    <message>
        <source>SMTP Mail Server:</source>
        <translation>Servidor de correo SMTP:</translation>
    </message>
    <message>
        <source>Sender Address:</source>
        <translation>Remitente:</translation>
    </message>
    <message>
        <source>name@domain</source>
        <translation>nombre@dominio</translation>
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
        <translation>Este es un mensaje de prueba enviado por el software Tovra ProofKeeper.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>This is a test message sent by %1 software.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</source>
        <translation>Este es un mensaje de prueba enviado por el software %1.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>Tovra ProofKeeper test message.</source>
        <translation>Mensaje de prueba de Tovra ProofKeeper.</translation>
    </message>
    <message>
        <source>%1 test message.</source>
        <translation>Mensaje de prueba de %1.</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>SMTP Server</source>
        <translation>Servidor SMTP</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Para</translation>
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
        <translation>Importación por FTP</translation>
    </message>
    <message>
        <source>FTP Export Dialog</source>
        <translation>Exportación por FTP</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationWidget</name>
    <message>
        <source>Active</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protocolo</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Distant Path</source>
        <translation>Ruta remota</translation>
    </message>
    <message>
        <source>Erase Distant Files</source>
        <translation>Borrar archivos remotos</translation>
    </message>
    <message>
        <source>Check Connection</source>
        <translation>Comprobar conexión</translation>
    </message>
    <message>
        <source>Please check the user name and password</source>
        <translation>Compruebe el nombre de usuario y la contraseña</translation>
    </message>
    <message>
        <source>Please check the host name and port number</source>
        <translation>Compruebe el nombre del servidor y el número de puerto</translation>
    </message>
    <message>
        <source>Try to connect again to the FTP</source>
        <translation>Intente conectarse de nuevo al servidor FTP</translation>
    </message>
    <message>
        <source>Erase Local Files</source>
        <translation>Borrar archivos locales</translation>
    </message>
    <message>
        <source>Checking the connection</source>
        <translation>Comprobando la conexión</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>Conexión establecida</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>Error de conexión</translation>
    </message>
</context>
<context>
    <name>LockerFirstPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Bloquear la interfaz</translation>
    </message>
    <message>
        <source>Enter Password (twice)</source>
        <translation>Introduzca la contraseña (dos veces)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Password again</source>
        <translation>Repetir contraseña</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>LockerPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Bloquear la interfaz</translation>
    </message>
    <message>
        <source>Enter Current Password</source>
        <translation>Introduzca la contraseña actual</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Contraseña actual</translation>
    </message>
    <message>
        <source>Enter a New Password (twice)</source>
        <translation>Introduzca una contraseña nueva (dos veces)</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Contraseña nueva</translation>
    </message>
    <message>
        <source>New password again</source>
        <translation>Repetir contraseña nueva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>LockerUIDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>Bloquear la interfaz</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This kind of address is not supported.</source>
        <translation>Este tipo de dirección no se admite.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>La dirección no es válida.</translation>
    </message>
    <message>
        <source>No server of that name was found.</source>
        <translation>No se ha encontrado ningún servidor con ese nombre.</translation>
    </message>
    <message>
        <source>The server cannot be reached, or nothing answers on that port.</source>
        <translation>No se puede acceder al servidor, o nada responde en ese puerto.</translation>
    </message>
    <message>
        <source>The server gave an unexpected answer.</source>
        <translation>El servidor ha dado una respuesta inesperada.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>El servidor ha denegado el acceso.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>El servidor no ha respondido a tiempo.</translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Perhaps the port is not for encrypted connections.</source>
        <translation>No se ha podido establecer una conexión cifrada. Quizá el puerto no sea para conexiones cifradas.</translation>
    </message>
    <message>
        <source>The transfer was cancelled.</source>
        <translation>La transferencia se ha cancelado.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>El servidor ha cerrado la conexión.</translation>
    </message>
    <message>
        <source>The connection was broken or the server refused what was sent.</source>
        <translation>La conexión se ha interrumpido o el servidor ha rechazado lo enviado.</translation>
    </message>
    <message>
        <source>The connection was broken by the server.</source>
        <translation>El servidor ha interrumpido la conexión.</translation>
    </message>
    <message>
        <source>The identity of the server could not be verified: its certificate or key is not trusted or belongs to another server.</source>
        <translation>No se ha podido verificar la identidad del servidor: su certificado o su clave no es de confianza o pertenece a otro servidor.</translation>
    </message>
    <message>
        <source>The server does not offer an encrypted connection.</source>
        <translation>El servidor no ofrece conexiones cifradas.</translation>
    </message>
    <message>
        <source>The server refused the login. Check user name and password.</source>
        <translation>El servidor ha rechazado el inicio de sesión. Compruebe el nombre de usuario y la contraseña.</translation>
    </message>
    <message>
        <source>The file of trusted certificate authorities cannot be read.</source>
        <translation>No se puede leer el archivo de autoridades de certificación de confianza.</translation>
    </message>
    <message>
        <source>The server does not have that file or folder.</source>
        <translation>El servidor no tiene ese archivo o carpeta.</translation>
    </message>
    <message>
        <source>The SSH connection to the server failed.</source>
        <translation>La conexión SSH con el servidor ha fallado.</translation>
    </message>
    <message>
        <source>The server's last message: %1</source>
        <translation>Último mensaje del servidor: %1</translation>
    </message>
    <message>
        <source>This mail address holds a line break or a control character: %1</source>
        <translation>Esta dirección de correo contiene un salto de línea o un carácter de control: %1</translation>
    </message>
    <message>
        <source>This mail address is too long: %1</source>
        <translation>Esta dirección de correo es demasiado larga: %1</translation>
    </message>
    <message>
        <source>Letters such as those before the '@' of this address cannot be sent: %1</source>
        <translation>No se pueden enviar letras como las que preceden a la «@» de esta dirección: %1</translation>
    </message>
    <message>
        <source>This is not a mail address: %1</source>
        <translation>Esto no es una dirección de correo: %1</translation>
    </message>
    <message>
        <source>The mail settings name no sender (field 'From').</source>
        <translation>Los ajustes de correo no indican ningún remitente (campo «De»).</translation>
    </message>
    <message>
        <source>The mail settings name no receiver (field 'To').</source>
        <translation>Los ajustes de correo no indican ningún destinatario (campo «Para»).</translation>
    </message>
    <message>
        <source>The mail server demands a login or encryption.</source>
        <translation>El servidor de correo exige inicio de sesión o cifrado.</translation>
    </message>
    <message>
        <source>The mail server refused the sender's address.</source>
        <translation>El servidor de correo ha rechazado la dirección del remitente.</translation>
    </message>
    <message>
        <source>The mail server refused a receiver's address. The mail was sent to nobody.</source>
        <translation>El servidor de correo ha rechazado la dirección de un destinatario. El correo no se ha enviado a nadie.</translation>
    </message>
    <message>
        <source>The mail server refused the mail.</source>
        <translation>El servidor de correo ha rechazado el correo.</translation>
    </message>
    <message>
        <source>The mail settings name no server (field 'SMTP Server').</source>
        <translation>Los ajustes de correo no indican ningún servidor (campo «Servidor SMTP»).</translation>
    </message>
    <message>
        <source>This is not the name of a mail server: %1</source>
        <translation>Esto no es el nombre de un servidor de correo: %1</translation>
    </message>
    <message>
        <source>The mail server's port is above 65535: %1</source>
        <translation>El puerto del servidor de correo es mayor que 65535: %1</translation>
    </message>
    <message>
        <source>The mail settings ask for an unknown encryption: '%1'</source>
        <translation>Los ajustes de correo piden un cifrado desconocido: «%1»</translation>
    </message>
    <message>
        <source>The stored password for the mail server cannot be read, please enter it again. %1</source>
        <translation>No se puede leer la contraseña guardada del servidor de correo; vuelva a introducirla. %1</translation>
    </message>
    <message>
        <source>Select your translation file</source>
        <translation>Seleccione el archivo de traducción</translation>
    </message>
    <message numerus="yes">
        <source>No Style has been loaded.</source>
        <translation>
            <numerusform>No se ha cargado ningún estilo.</numerusform>
            <numerusform>No se ha cargado ningún estilo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning: Cannot open PDF File</source>
        <translation>Advertencia: no se puede abrir el archivo PDF</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if the file exist at the following path : %2</source>
        <translation>No se puede abrir este PDF: %1

Compruebe si el archivo existe en esta ruta: %2</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if a pdf reader has been installed on your computer</source>
        <translation>No se puede abrir este PDF: %1

Compruebe si hay un lector de PDF instalado en su equipo</translation>
    </message>
</context>
<context>
    <name>ShareBrowser</name>
    <message>
        <source>Choose Network Drive folder</source>
        <translation>Elegir carpeta de la unidad de red</translation>
    </message>
    <message>
        <source>Hosts and shared folders</source>
        <translation>Servidores y carpetas compartidas</translation>
    </message>
    <message>
        <source>Searching the network</source>
        <translation>Buscando en la red</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateConfigWidget</name>
    <message>
        <source>Check For Updates</source>
        <translation>Búsqueda de actualizaciones</translation>
    </message>
    <message>
        <source>Automatically Check for Updates</source>
        <translation>Buscar actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>Check for Updates at Startup</source>
        <translation>Buscar actualizaciones al iniciar</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Buscar ahora</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateWidget</name>
    <message>
        <source>Check for Updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>Buscando actualizaciones...</translation>
    </message>
    <message>
        <source>Checking for update</source>
        <translation>Buscando actualizaciones</translation>
    </message>
    <message>
        <source>Version Name</source>
        <translation>Nombre de la versión</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>Version description</source>
        <translation>Descripción de la versión</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>Descargar e instalar</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>(rev %1)</source>
        <translation>(rev. %1)</translation>
    </message>
    <message>
        <source>Choose Download Directory</source>
        <translation>Elegir carpeta de descarga</translation>
    </message>
    <message>
        <source>%1 will be installed on your computer.
Please make sure to have administrator rights before attempting the software update.</source>
        <translation>%1 se instalará en su equipo.
Asegúrese de tener derechos de administrador antes de actualizar el software.</translation>
    </message>
    <message>
        <source>Installing Update</source>
        <translation>Instalar la actualización</translation>
    </message>
    <message>
        <source>Do you want to install this update?
The application will exit.</source>
        <translation>¿Quiere instalar esta actualización?
La aplicación se cerrará.</translation>
    </message>
    <message>
        <source>%1 is up to date.</source>
        <translation>%1 está actualizado.</translation>
    </message>
    <message>
        <source>Impossible to connect to the Check for Updates service, please check your Internet connection.</source>
        <translation>No se puede conectar con el servicio de actualizaciones; compruebe su conexión a Internet.</translation>
    </message>
    <message>
        <source>%1 is available.</source>
        <translation>%1 está disponible.</translation>
    </message>
</context>
<context>
    <name>TXColorSquareWidget</name>
    <message>
        <source>Colour</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>Sin color</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Degradado</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Pattern in %1</source>
        <translation>Patrón en %1</translation>
    </message>
</context>
<context>
    <name>TXDBNavWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Página:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
</context>
<context>
    <name>TXDataCrypt</name>
    <message>
        <source>The data is not enciphered</source>
        <translation>Los datos no están cifrados</translation>
    </message>
    <message>
        <source>The data is damaged or was enciphered with another key</source>
        <translation>Los datos están dañados o se cifraron con otra clave</translation>
    </message>
    <message numerus="yes">
        <source>The key file %2 cannot be made: %1</source>
        <translation>
            <numerusform>No se puede crear el archivo de clave %2: %1</numerusform>
            <numerusform>No se puede crear el archivo de clave %2: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The cipher cannot be started</source>
        <translation>
            <numerusform>No se puede iniciar el cifrado</numerusform>
            <numerusform>No se puede iniciar el cifrado</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %1 cannot be read</source>
        <translation>
            <numerusform>No se puede leer el archivo de clave %1</numerusform>
            <numerusform>No se puede leer el archivo de clave %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %3 is damaged: it has %1 bytes instead of %2</source>
        <translation>
            <numerusform>El archivo de clave %3 está dañado: tiene %1 bytes en lugar de %2</numerusform>
            <numerusform>El archivo de clave %3 está dañado: tiene %1 bytes en lugar de %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The folder %1 cannot be made</source>
        <translation>
            <numerusform>No se puede crear la carpeta %1</numerusform>
            <numerusform>No se puede crear la carpeta %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TXDatabaseConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Internal Database</source>
        <translation>Base de datos interna</translation>
    </message>
    <message>
        <source>MySQL/MariaDB Database</source>
        <translation>Base de datos MySQL/MariaDB</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>127.0.0.1</source>
        <translation>127.0.0.1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>root</source>
        <translation>root</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de datos</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>Conexión establecida</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>Error de conexión</translation>
    </message>
</context>
<context>
    <name>TXDeltaGradientWidget</name>
    <message>
        <source>Colour differences</source>
        <translation>Diferencias de color</translation>
    </message>
    <message>
        <source>Average %1, limit %2 with %3 % of the pixels below, maximum %4</source>
        <translation>Media %1, límite %2 con el %3 % de los píxeles por debajo, máximo %4</translation>
    </message>
    <message>
        <source>∆EMin</source>
        <translation>∆Emín</translation>
    </message>
    <message>
        <source>∆Eavg: %1    %2 % of pixels &lt; ∆E Limit</source>
        <translation>∆E media: %1    %2 % de los píxeles &lt; límite de ∆E</translation>
    </message>
    <message>
        <source>∆EMax</source>
        <translation>∆Emáx</translation>
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
        <translation>Dominio: %1</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>Código: %1</translation>
    </message>
</context>
<context>
    <name>TXFTP</name>
    <message>
        <source>The user name or the password contains a control character.</source>
        <translation>El nombre de usuario o la contraseña contiene un carácter de control.</translation>
    </message>
    <message>
        <source>The user name or the password is too long.</source>
        <translation>El nombre de usuario o la contraseña son demasiado largos.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>La dirección no es válida.</translation>
    </message>
    <message>
        <source>The address has to begin with ftp, ftps or sftp.</source>
        <translation>La dirección debe empezar por ftp, ftps o sftp.</translation>
    </message>
    <message>
        <source>The address names no server.</source>
        <translation>La dirección no indica ningún servidor.</translation>
    </message>
    <message>
        <source>The port number has to be between 1 and 65535.</source>
        <translation>El número de puerto debe estar entre 1 y 65535.</translation>
    </message>
</context>
<context>
    <name>TXFeedbackDialog</name>
    <message>
        <source>Feedback</source>
        <translation>Comentarios</translation>
    </message>
</context>
<context>
    <name>TXFeedbackWidget</name>
    <message>
        <source>Sender Information:</source>
        <translation>Datos del remitente:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(obligatorio)</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>Dirección de correo</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>Empresa:</translation>
    </message>
    <message>
        <source>Feedback Description:</source>
        <translation>Sus comentarios:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>Asunto:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Field 'Name' hasn't been set, please set a "Name".</source>
        <translation>El campo «Nombre» está vacío. Introduzca un nombre.</translation>
    </message>
    <message>
        <source>Field 'Company' hasn't been set, please set a 'Company'.</source>
        <translation>El campo «Empresa» está vacío. Introduzca una empresa.</translation>
    </message>
    <message>
        <source>Field 'Subject' hasn't been set, please set a 'Subject'.</source>
        <translation>El campo «Asunto» está vacío. Introduzca un asunto.</translation>
    </message>
    <message>
        <source>Field 'Description' hasn't been set, please set a 'Description'.</source>
        <translation>El campo «Descripción» está vacío. Introduzca una descripción.</translation>
    </message>
    <message>
        <source>Field 'Login' is empty, please add an E-Mail Address which contain '.' and '@'.</source>
        <translation>El campo «Dirección de correo» está vacío. Introduzca una dirección de correo que contenga «.» y «@».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'E-Mail Address', please add a login which contain a '@'.</source>
        <translation>Falta una «@» en el campo «Dirección de correo». Introduzca una dirección que contenga una «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'E-Mail Address', please add a login which contain a '.'.</source>
        <translation>Falta un «.» en el campo «Dirección de correo». Introduzca una dirección que contenga un «.».</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>Faltan datos</translation>
    </message>
    <message>
        <source>Reset Application</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Are you really sure you want to send this feedback?</source>
        <translation>¿Seguro que quiere enviar estos comentarios?</translation>
    </message>
    <message>
        <source>Failed to send feedback</source>
        <translation>No se han podido enviar los comentarios</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, maybe the feedback service is unavailable for the moment. Please re-try later.</source>
        <translation>Sus comentarios no se han enviado a nuestro equipo; quizá el servicio de comentarios no esté disponible en este momento. Vuelva a intentarlo más tarde.</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, because the following error occured:%1.</source>
        <translation>Sus comentarios no se han enviado a nuestro equipo porque se ha producido este error: %1.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Asunto</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
</context>
<context>
    <name>TXImageViewer</name>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Image viewer</source>
        <translation>Visor de imágenes</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Sin imagen</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, pixel %2, %3: %4</source>
        <translation>%1, píxel %2, %3: %4</translation>
    </message>
</context>
<context>
    <name>TXLogModel</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
</context>
<context>
    <name>TXLogWindow</name>
    <message>
        <source>Log Details:</source>
        <translation>Detalles:</translation>
    </message>
    <message>
        <source>Log entries</source>
        <translation>Entradas del registro</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>Vaciar lista</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Log Manager</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Warning &amp; Errors</source>
        <translation>Advertencias y errores</translation>
    </message>
    <message>
        <source>Errors Only</source>
        <translation>Solo errores</translation>
    </message>
</context>
<context>
    <name>TXMailSender</name>
    <message>
        <source>The system is too busy to send a mail.</source>
        <translation>El sistema está demasiado ocupado para enviar un correo.</translation>
    </message>
</context>
<context>
    <name>TXProgressBar</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>TXReportAccessible</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>TXReportDocument</name>
    <message>
        <source>This is not a file name.</source>
        <translation>Esto no es un nombre de archivo.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>Esto no es un archivo normal.</translation>
    </message>
    <message>
        <source>The report could not be written to "%2": %1</source>
        <translation>No se ha podido escribir el informe en «%2»: %1</translation>
    </message>
    <message>
        <source>The document's data could not be added to the PDF.</source>
        <translation>No se han podido añadir los datos del documento al PDF.</translation>
    </message>
    <message>
        <source>The printer "%1" does not take the page size of the report.</source>
        <translation>La impresora «%1» no admite el tamaño de página del informe.</translation>
    </message>
    <message>
        <source>The printer "%1" can't be started.</source>
        <translation>No se puede iniciar la impresora «%1».</translation>
    </message>
    <message>
        <source>The printer "%1" has stopped in the middle.</source>
        <translation>La impresora «%1» se ha detenido a medias.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>No hay ninguna impresora.</translation>
    </message>
    <message>
        <source>The report has none of the pages that are to be printed.</source>
        <translation>El informe no tiene ninguna de las páginas que se van a imprimir.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>The report is being written or printed already.</source>
        <translation>El informe ya se está escribiendo o imprimiendo.</translation>
    </message>
    <message>
        <source>The report has no pages.</source>
        <translation>El informe no tiene páginas.</translation>
    </message>
    <message>
        <source>The margins, the header and the footer leave no room on the paper.</source>
        <translation>Los márgenes, el encabezado y el pie no dejan espacio en el papel.</translation>
    </message>
    <message>
        <source>page {page} of {pages}</source>
        <translation>página {page} de {pages}</translation>
    </message>
</context>
<context>
    <name>TXSelectDefaultEncodingWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Default Encoding</source>
        <translation>Codificación predeterminada</translation>
    </message>
</context>
<context>
    <name>TXSelectionItemWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Cargar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>Crear nuevo</translation>
    </message>
</context>
<context>
    <name>TXTriggerEventWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Disparador</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periodo</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Each Hour</source>
        <translation>Cada hora</translation>
    </message>
    <message>
        <source>Each Month</source>
        <translation>Cada mes</translation>
    </message>
    <message>
        <source>Each Week</source>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Each Minute</source>
        <translation>Cada minuto</translation>
    </message>
</context>
<context>
    <name>TXVariantViewer</name>
    <message>
        <source>Copy value</source>
        <translation>Copiar valor</translation>
    </message>
    <message>
        <source>The value was not copied. It is nested deeper than the %1 levels that its text in JSON may have.</source>
        <translation>El valor no se ha copiado. Está anidado a más profundidad que los %1 niveles que puede tener su texto en JSON.</translation>
    </message>
    <message>
        <source>Copy value (JSON encoded)</source>
        <translation>Copiar valor (en JSON)</translation>
    </message>
    <message>
        <source>Copy string value</source>
        <translation>Copiar texto del valor</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
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
        <translation>diccionario, una entrada</translation>
    </message>
    <message numerus="yes">
        <source>dictionary, %n entries</source>
        <translation>
            <numerusform>diccionario, %n entrada</numerusform>
            <numerusform>diccionario, %n entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>list, one entry</source>
        <translation>lista, una entrada</translation>
    </message>
    <message numerus="yes">
        <source>list, %n entries</source>
        <translation>
            <numerusform>lista, %n entrada</numerusform>
            <numerusform>lista, %n entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>verdadero o falso</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>número entero</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>date</source>
        <translation>fecha</translation>
    </message>
    <message>
        <source>time</source>
        <translation>hora</translation>
    </message>
    <message>
        <source>date and time</source>
        <translation>fecha y hora</translation>
    </message>
    <message>
        <source>address</source>
        <translation>dirección</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Contraer</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Expandir</translation>
    </message>
</context>
<context>
    <name>TXWebInterfaceConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Habilitada</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Enable HTTPS</source>
        <translation>Habilitar HTTPS</translation>
    </message>
    <message>
        <source>Certificate file</source>
        <translation>Archivo de certificado</translation>
    </message>
    <message>
        <source>Certificate File...</source>
        <translation>Archivo de certificado...</translation>
    </message>
    <message>
        <source>Choose certificate file</source>
        <translation>Elegir archivo de certificado</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Addresses:</source>
        <translation>Direcciones activas:</translation>
    </message>
    <message>
        <source>Choose Certificate File</source>
        <translation>Elegir archivo de certificado</translation>
    </message>
    <message>
        <source>Certificate Files (*.pem)</source>
        <translation>Archivos de certificado (*.pem)</translation>
    </message>
    <message>
        <source>&amp;nbsp;&amp;nbsp;&amp;nbsp;(to be used only from this computer)</source>
        <translation>&amp;nbsp;&amp;nbsp;&amp;nbsp;(para usar solo desde este equipo)</translation>
    </message>
    <message>
        <source>Active Addresses</source>
        <translation>Direcciones activas</translation>
    </message>
</context>
<context>
    <name>TXWidgetListWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulario</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elementos</translation>
    </message>
</context>
<context>
    <name>VariantMoreButton</name>
    <message>
        <source>Show %L1 more of %L2</source>
        <translation>Mostrar %L1 más de %L2</translation>
    </message>
</context>
<context>
    <name>WaitWidget</name>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
</context>
</TS>
