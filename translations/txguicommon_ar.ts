<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AboutAppWindow</name>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>Patent and Legal Notices</source>
        <translation>براءات الاختراع والإشعارات القانونية</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>حول %1</translation>
    </message>
</context>
<context>
    <name>AutoMountManagerMainWindow</name>
    <message>
        <source>AutoMount Manager</source>
        <translation>مدير محركات أقراص الشبكة</translation>
    </message>
    <message>
        <source>Network Drives</source>
        <translation>محركات أقراص الشبكة</translation>
    </message>
    <message>
        <source>Add Network Drive</source>
        <translation>إضافة محرك أقراص الشبكة</translation>
    </message>
    <message>
        <source>Remove Network Drive</source>
        <translation>إزالة محرك أقراص الشبكة</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>تحرير...</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُمكّن</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>There is no Network Drive letter available.
Please disconnect a network Network Drive and retry.</source>
        <translation>لا يتوفر أي حرف لمحرك أقراص الشبكة.
يُرجى قطع اتصال أحد محركات أقراص الشبكة ثم إعادة المحاولة.</translation>
    </message>
    <message>
        <source>Edit Network Drive Parameters</source>
        <translation>تحرير إعدادات محرك أقراص الشبكة</translation>
    </message>
    <message>
        <source>Warning: Network Drive Delete?</source>
        <translation>تحذير: إزالة محرك أقراص الشبكة؟</translation>
    </message>
    <message>
        <source>Do you want to remove selected Network Drive?</source>
        <translation>هل تريد إزالة محرك أقراص الشبكة المحدد؟</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveEditor</name>
    <message>
        <source>Network Drive</source>
        <translation>محرك أقراص الشبكة</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>البروتوكول</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>المضيف</translation>
    </message>
    <message>
        <source>(required)</source>
        <translation>(مطلوب)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>استعراض...</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>المجال</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
</context>
<context>
    <name>AutoMountNetworkDriveModel</name>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>نشط</translation>
    </message>
    <message>
        <source>Network Drive</source>
        <translation>محرك أقراص الشبكة</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>المضيف</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>المشاركة</translation>
    </message>
    <message>
        <source>User</source>
        <translation>المستخدم</translation>
    </message>
    <message>
        <source>This Network Drive is connected</source>
        <translation>محرك أقراص الشبكة هذا متصل</translation>
    </message>
    <message>
        <source>This nNetwork Drive is disconnected</source>
        <translation>محرك أقراص الشبكة هذا غير متصل</translation>
    </message>
    <message>
        <source>Impossible to reconnect the Network Drive, please check the address, the password and the user name</source>
        <translation>تتعذر إعادة الاتصال بمحرك أقراص الشبكة، يُرجى التحقق من العنوان وكلمة المرور واسم المستخدم</translation>
    </message>
    <message>
        <source>This Network Drive letter is already used, please choose another letter to connect the Network Drive</source>
        <translation>حرف محرك أقراص الشبكة هذا مستخدم بالفعل، يُرجى اختيار حرف آخر لتوصيل محرك أقراص الشبكة</translation>
    </message>
</context>
<context>
    <name>CredentialDialog</name>
    <message>
        <source>Credentials</source>
        <translation>بيانات الاعتماد</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Remember</source>
        <translation>تذكّر</translation>
    </message>
</context>
<context>
    <name>DoubleSpinBoxWithSliderWidget</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
</context>
<context>
    <name>EMailSenderWidget</name>
    <message>
        <source>Login:</source>
        <translation>اسم الدخول:</translation>
    </message>
    <message>
        <source>(Optional)</source>
        <translation>(اختياري)</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>كلمة المرور:</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>SMTP Server:</source>
        <translation>خادم SMTP:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(مطلوب)</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>التشفير</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>من:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>إلى:</translation>
    </message>
    <message>
        <source>Cc:</source>
        <translation>نسخة:</translation>
    </message>
    <message>
        <source>Send Test Mail</source>
        <translation>إرسال رسالة اختبار</translation>
    </message>
    <message>
        <source>Field 'Sender' is empty, please add sender address which contain '.' and '@'.</source>
        <translation>الحقل «من» فارغ، يُرجى إدخال عنوان مرسل يحتوي على «.» و«@».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'Sender', please add sender address which contain a '@'.</source>
        <translation>ينقص «@» في الحقل «من»، يُرجى إدخال عنوان مرسل يحتوي على «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'Sender', please add sender address which contain a '.'.</source>
        <translation>تنقص «.» في الحقل «من»، يُرجى إدخال عنوان مرسل يحتوي على «.».</translation>
    </message>
    <message>
        <source>Field 'To' is empty, please add receiver address which contain '.' and '@'.</source>
        <translation>الحقل «إلى» فارغ، يُرجى إدخال عنوان مستلم يحتوي على «.» و«@».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'To', please add receiver address which contain a '@'.</source>
        <translation>ينقص «@» في الحقل «إلى»، يُرجى إدخال عنوان مستلم يحتوي على «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'To', please add receiver address which contain a '.'.</source>
        <translation>تنقص «.» في الحقل «إلى»، يُرجى إدخال عنوان مستلم يحتوي على «.».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'cC', please add receiver address which contain a '@'.</source>
        <translation>ينقص «@» في الحقل «نسخة»، يُرجى إدخال عنوان مستلم يحتوي على «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'cC', please add receiver address which contain a '.'.</source>
        <translation>تنقص «.» في الحقل «نسخة»، يُرجى إدخال عنوان مستلم يحتوي على «.».</translation>
    </message>
    <message>
        <source>Uncompleted Mail Configuration</source>
        <translation>إعدادات البريد غير مكتملة</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
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
        <translation>نتيجة إرسال البريد</translation>
    </message>
    <message>
        <source>Mail has been sent successfully.</source>
        <translation>تم إرسال الرسالة بنجاح.</translation>
    </message>
    <message>
        <source>SMTP Mail Server:</source>
        <translation>‫خادم بريد SMTP:</translation>
    </message>
    <message>
        <source>Sender Address:</source>
        <translation>‫عنوان المرسل:</translation>
    </message>
    <message>
        <source>name@domain</source>
        <translation>name@domain</translation>
    </message>
    <message>
        <source>Destination:</source>
        <translation>‫عنوان المستلم:</translation>
    </message>
    <message>
        <source>This is a test message sent by Tovra ProofKeeper software.<byte value="xd" />
<byte value="xd" />
Copyright %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</source>
        <translation>هذه رسالة اختبار من برنامج Tovra ProofKeeper.<byte value="xd" />
<byte value="xd" />
حقوق النشر %1 Tovra Hue Works<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>This is a test message sent by %1 software.<byte value="xd" />
<byte value="xd" />
Copyright %2 %3<byte value="xd" />
https://www.tovra.example</source>
        <translation>هذه رسالة اختبار من برنامج %1.<byte value="xd" />
<byte value="xd" />
حقوق النشر %2 %3<byte value="xd" />
https://www.tovra.example</translation>
    </message>
    <message>
        <source>Tovra ProofKeeper test message.</source>
        <translation>رسالة اختبار من Tovra ProofKeeper.</translation>
    </message>
    <message>
        <source>%1 test message.</source>
        <translation>رسالة اختبار من %1.</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>اسم الدخول</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>SMTP Server</source>
        <translation>خادم SMTP</translation>
    </message>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>To</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>Cc</source>
        <translation>نسخة</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationDialog</name>
    <message>
        <source>FTP Import Dialog</source>
        <translation>الاستيراد عبر FTP</translation>
    </message>
    <message>
        <source>FTP Export Dialog</source>
        <translation>التصدير عبر FTP</translation>
    </message>
</context>
<context>
    <name>FTPConfigurationWidget</name>
    <message>
        <source>Active</source>
        <translation>نشط</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>المضيف</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>البروتوكول</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Distant Path</source>
        <translation>المسار البعيد</translation>
    </message>
    <message>
        <source>Erase Distant Files</source>
        <translation>حذف الملفات البعيدة</translation>
    </message>
    <message>
        <source>Check Connection</source>
        <translation>اختبار الاتصال</translation>
    </message>
    <message>
        <source>Please check the user name and password</source>
        <translation>يُرجى التحقق من اسم المستخدم وكلمة المرور</translation>
    </message>
    <message>
        <source>Please check the host name and port number</source>
        <translation>يُرجى التحقق من اسم المضيف ورقم المنفذ</translation>
    </message>
    <message>
        <source>Try to connect again to the FTP</source>
        <translation>حاول الاتصال بخادم FTP مرة أخرى</translation>
    </message>
    <message>
        <source>Erase Local Files</source>
        <translation>حذف الملفات المحلية</translation>
    </message>
    <message>
        <source>Checking the connection</source>
        <translation>يجري اختبار الاتصال</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>نجح الاتصال</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>فشل الاتصال</translation>
    </message>
</context>
<context>
    <name>LockerFirstPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>قفل واجهة المستخدم</translation>
    </message>
    <message>
        <source>Enter Password (twice)</source>
        <translation>إدخال كلمة المرور (مرتين)</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Password again</source>
        <translation>تكرار كلمة المرور</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
</context>
<context>
    <name>LockerPasswordDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>قفل واجهة المستخدم</translation>
    </message>
    <message>
        <source>Enter Current Password</source>
        <translation>إدخال كلمة المرور الحالية</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>كلمة المرور الحالية</translation>
    </message>
    <message>
        <source>Enter a New Password (twice)</source>
        <translation>إدخال كلمة مرور جديدة (مرتين)</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>كلمة المرور الجديدة</translation>
    </message>
    <message>
        <source>New password again</source>
        <translation>تكرار كلمة المرور الجديدة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
</context>
<context>
    <name>LockerUIDialog</name>
    <message>
        <source>Lock User Interface</source>
        <translation>قفل واجهة المستخدم</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>تغيير كلمة المرور</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This kind of address is not supported.</source>
        <translation>هذا النوع من العناوين غير مدعوم.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>العنوان غير صالح.</translation>
    </message>
    <message>
        <source>No server of that name was found.</source>
        <translation>لم يُعثر على خادم بهذا الاسم.</translation>
    </message>
    <message>
        <source>The server cannot be reached, or nothing answers on that port.</source>
        <translation>لا يمكن الوصول إلى الخادم، أو لا شيء يجيب على ذلك المنفذ.</translation>
    </message>
    <message>
        <source>The server gave an unexpected answer.</source>
        <translation>أرسل الخادم ردًا غير متوقع.</translation>
    </message>
    <message>
        <source>The server denied access.</source>
        <translation>رفض الخادم الوصول.</translation>
    </message>
    <message>
        <source>The server did not answer in time.</source>
        <translation>لم يجب الخادم في الوقت المناسب.</translation>
    </message>
    <message>
        <source>No encrypted connection could be made. Perhaps the port is not for encrypted connections.</source>
        <translation>تعذّر إنشاء اتصال مشفّر. ربما ليس المنفذ مخصصًا للاتصالات المشفّرة.</translation>
    </message>
    <message>
        <source>The transfer was cancelled.</source>
        <translation>أُلغي النقل.</translation>
    </message>
    <message>
        <source>The server closed the connection.</source>
        <translation>أغلق الخادم الاتصال.</translation>
    </message>
    <message>
        <source>The connection was broken or the server refused what was sent.</source>
        <translation>انقطع الاتصال أو رفض الخادم ما أُرسل إليه.</translation>
    </message>
    <message>
        <source>The connection was broken by the server.</source>
        <translation>قطع الخادم الاتصال.</translation>
    </message>
    <message>
        <source>The identity of the server could not be verified: its certificate or key is not trusted or belongs to another server.</source>
        <translation>تعذّر التحقق من هوية الخادم: شهادته أو مفتاحه غير موثوق به أو يخص خادمًا آخر.</translation>
    </message>
    <message>
        <source>The server does not offer an encrypted connection.</source>
        <translation>لا يوفر الخادم اتصالًا مشفّرًا.</translation>
    </message>
    <message>
        <source>The server refused the login. Check user name and password.</source>
        <translation>رفض الخادم تسجيل الدخول. تحقق من اسم المستخدم وكلمة المرور.</translation>
    </message>
    <message>
        <source>The file of trusted certificate authorities cannot be read.</source>
        <translation>تتعذر قراءة ملف المراجع المصدقة الموثوق بها.</translation>
    </message>
    <message>
        <source>The server does not have that file or folder.</source>
        <translation>هذا الملف أو المجلد غير موجود على الخادم.</translation>
    </message>
    <message>
        <source>The SSH connection to the server failed.</source>
        <translation>فشل اتصال SSH بالخادم.</translation>
    </message>
    <message>
        <source>The server's last message: %1</source>
        <translation>آخر رسالة من الخادم: ‎%1‎</translation>
    </message>
    <message>
        <source>This mail address holds a line break or a control character: %1</source>
        <translation>يحتوي عنوان البريد هذا على فاصل أسطر أو حرف تحكم: %1</translation>
    </message>
    <message>
        <source>This mail address is too long: %1</source>
        <translation>عنوان البريد هذا طويل جدًا: %1</translation>
    </message>
    <message>
        <source>Letters such as those before the '@' of this address cannot be sent: %1</source>
        <translation>لا يمكن إرسال أحرف كالتي قبل «@» في هذا العنوان: %1</translation>
    </message>
    <message>
        <source>This is not a mail address: %1</source>
        <translation>هذا ليس عنوان بريد: %1</translation>
    </message>
    <message>
        <source>The mail settings name no sender (field 'From').</source>
        <translation>لا تحدد إعدادات البريد أي مرسل (الحقل «من»).</translation>
    </message>
    <message>
        <source>The mail settings name no receiver (field 'To').</source>
        <translation>لا تحدد إعدادات البريد أي مستلم (الحقل «إلى»).</translation>
    </message>
    <message>
        <source>The mail server demands a login or encryption.</source>
        <translation>يتطلب خادم البريد تسجيل الدخول أو التشفير.</translation>
    </message>
    <message>
        <source>The mail server refused the sender's address.</source>
        <translation>رفض خادم البريد عنوان المرسل.</translation>
    </message>
    <message>
        <source>The mail server refused a receiver's address. The mail was sent to nobody.</source>
        <translation>رفض خادم البريد عنوان أحد المستلمين. لم تُرسل الرسالة إلى أحد.</translation>
    </message>
    <message>
        <source>The mail server refused the mail.</source>
        <translation>رفض خادم البريد الرسالة.</translation>
    </message>
    <message>
        <source>The mail settings name no server (field 'SMTP Server').</source>
        <translation>لا تحدد إعدادات البريد أي خادم (الحقل «خادم SMTP»).</translation>
    </message>
    <message>
        <source>This is not the name of a mail server: %1</source>
        <translation>هذا ليس اسم خادم بريد: %1</translation>
    </message>
    <message>
        <source>The mail server's port is above 65535: %1</source>
        <translation>منفذ خادم البريد أكبر من 65535: %1</translation>
    </message>
    <message>
        <source>The mail settings ask for an unknown encryption: '%1'</source>
        <translation>تطلب إعدادات البريد تشفيرًا غير معروف: «%1»</translation>
    </message>
    <message>
        <source>The stored password for the mail server cannot be read, please enter it again. %1</source>
        <translation>تتعذر قراءة كلمة المرور المخزنة لخادم البريد، يُرجى إدخالها مجددًا. %1</translation>
    </message>
    <message>
        <source>Select your translation file</source>
        <translation>اختر ملف الترجمة</translation>
    </message>
    <message numerus="yes">
        <source>No Style has been loaded.</source>
        <translation>
            <numerusform>لم يُحمَّل أي نمط.</numerusform>
            <numerusform>لم يُحمَّل أي نمط.</numerusform>
            <numerusform>لم يُحمَّل أي نمط.</numerusform>
            <numerusform>لم يُحمَّل أي نمط.</numerusform>
            <numerusform>لم يُحمَّل أي نمط.</numerusform>
            <numerusform>لم يُحمَّل أي نمط.</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning: Cannot open PDF File</source>
        <translation>تحذير: يتعذر فتح ملف PDF</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if the file exist at the following path : %2</source>
        <translation>يتعذر فتح ملف PDF التالي: ‎%1

يُرجى التحقق من وجود الملف في المسار التالي: ‎%2</translation>
    </message>
    <message>
        <source>Impossible to open the following PDF : %1

Please check if a pdf reader has been installed on your computer</source>
        <translation>يتعذر فتح ملف PDF التالي: ‎%1

يُرجى التحقق من تثبيت قارئ PDF على جهاز الكمبيوتر</translation>
    </message>
</context>
<context>
    <name>ShareBrowser</name>
    <message>
        <source>Choose Network Drive folder</source>
        <translation>اختيار مجلد محرك أقراص الشبكة</translation>
    </message>
    <message>
        <source>Hosts and shared folders</source>
        <translation>المضيفات والمجلدات المشتركة</translation>
    </message>
    <message>
        <source>Searching the network</source>
        <translation>يجري البحث في الشبكة</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateConfigWidget</name>
    <message>
        <source>Check For Updates</source>
        <translation>البحث عن تحديثات</translation>
    </message>
    <message>
        <source>Automatically Check for Updates</source>
        <translation>البحث عن تحديثات تلقائيًا</translation>
    </message>
    <message>
        <source>Check for Updates at Startup</source>
        <translation>البحث عن تحديثات عند بدء التشغيل</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>البحث الآن</translation>
    </message>
</context>
<context>
    <name>TXCheckForUpdateWidget</name>
    <message>
        <source>Check for Updates</source>
        <translation>البحث عن تحديثات</translation>
    </message>
    <message>
        <source>Checking for update...</source>
        <translation>يجري البحث عن تحديث...</translation>
    </message>
    <message>
        <source>Checking for update</source>
        <translation>البحث عن تحديث</translation>
    </message>
    <message>
        <source>Version Name</source>
        <translation>اسم الإصدار</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>ملاحظات الإصدار</translation>
    </message>
    <message>
        <source>Version description</source>
        <translation>وصف الإصدار</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>تنزيل</translation>
    </message>
    <message>
        <source>Download and Install</source>
        <translation>تنزيل وتثبيت</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>(rev %1)</source>
        <translation>(مراجعة %1)</translation>
    </message>
    <message>
        <source>Choose Download Directory</source>
        <translation>اختيار مجلد التنزيل</translation>
    </message>
    <message>
        <source>%1 will be installed on your computer.
Please make sure to have administrator rights before attempting the software update.</source>
        <translation>سيُثبَّت %1 على جهاز الكمبيوتر.
يُرجى التأكد من امتلاك صلاحيات المسؤول قبل محاولة تحديث البرنامج.</translation>
    </message>
    <message>
        <source>Installing Update</source>
        <translation>تثبيت التحديث</translation>
    </message>
    <message>
        <source>Do you want to install this update?
The application will exit.</source>
        <translation>هل تريد تثبيت هذا التحديث؟
سيُغلق التطبيق.</translation>
    </message>
    <message>
        <source>%1 is up to date.</source>
        <translation>أحدث إصدار من %1 مثبّت بالفعل.</translation>
    </message>
    <message>
        <source>Impossible to connect to the Check for Updates service, please check your Internet connection.</source>
        <translation>يتعذر الاتصال بخدمة البحث عن التحديثات، يُرجى التحقق من اتصال الإنترنت.</translation>
    </message>
    <message>
        <source>%1 is available.</source>
        <translation>يتوفر %1.</translation>
    </message>
</context>
<context>
    <name>TXColorSquareWidget</name>
    <message>
        <source>Colour</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>بلا لون</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>تدرج</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>Pattern in %1</source>
        <translation>نقش بلون %1</translation>
    </message>
</context>
<context>
    <name>TXDBNavWidget</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>الصفحة:</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>الصفحة</translation>
    </message>
</context>
<context>
    <name>TXDataCrypt</name>
    <message>
        <source>The data is not enciphered</source>
        <translation>البيانات غير مشفّرة</translation>
    </message>
    <message>
        <source>The data is damaged or was enciphered with another key</source>
        <translation>البيانات تالفة أو شُفّرت بمفتاح آخر</translation>
    </message>
    <message numerus="yes">
        <source>The key file %2 cannot be made: %1</source>
        <translation>
            <numerusform>يتعذر إنشاء ملف المفتاح ‎%2: %1</numerusform>
            <numerusform>يتعذر إنشاء ملف المفتاح ‎%2: %1</numerusform>
            <numerusform>يتعذر إنشاء ملف المفتاح ‎%2: %1</numerusform>
            <numerusform>يتعذر إنشاء ملف المفتاح ‎%2: %1</numerusform>
            <numerusform>يتعذر إنشاء ملف المفتاح ‎%2: %1</numerusform>
            <numerusform>يتعذر إنشاء ملف المفتاح ‎%2: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The cipher cannot be started</source>
        <translation>
            <numerusform>يتعذر بدء التشفير</numerusform>
            <numerusform>يتعذر بدء التشفير</numerusform>
            <numerusform>يتعذر بدء التشفير</numerusform>
            <numerusform>يتعذر بدء التشفير</numerusform>
            <numerusform>يتعذر بدء التشفير</numerusform>
            <numerusform>يتعذر بدء التشفير</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %1 cannot be read</source>
        <translation>
            <numerusform>تتعذر قراءة ملف المفتاح ‎%1</numerusform>
            <numerusform>تتعذر قراءة ملف المفتاح ‎%1</numerusform>
            <numerusform>تتعذر قراءة ملف المفتاح ‎%1</numerusform>
            <numerusform>تتعذر قراءة ملف المفتاح ‎%1</numerusform>
            <numerusform>تتعذر قراءة ملف المفتاح ‎%1</numerusform>
            <numerusform>تتعذر قراءة ملف المفتاح ‎%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The key file %3 is damaged: it has %1 bytes instead of %2</source>
        <translation>
            <numerusform>ملف المفتاح ‎%3 تالف: حجمه %1 بايت بدلًا من %2</numerusform>
            <numerusform>ملف المفتاح ‎%3 تالف: حجمه %1 بايت بدلًا من %2</numerusform>
            <numerusform>ملف المفتاح ‎%3 تالف: حجمه %1 بايت بدلًا من %2</numerusform>
            <numerusform>ملف المفتاح ‎%3 تالف: حجمه %1 بايت بدلًا من %2</numerusform>
            <numerusform>ملف المفتاح ‎%3 تالف: حجمه %1 بايت بدلًا من %2</numerusform>
            <numerusform>ملف المفتاح ‎%3 تالف: حجمه %1 بايت بدلًا من %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The folder %1 cannot be made</source>
        <translation>
            <numerusform>يتعذر إنشاء المجلد ‎%1</numerusform>
            <numerusform>يتعذر إنشاء المجلد ‎%1</numerusform>
            <numerusform>يتعذر إنشاء المجلد ‎%1</numerusform>
            <numerusform>يتعذر إنشاء المجلد ‎%1</numerusform>
            <numerusform>يتعذر إنشاء المجلد ‎%1</numerusform>
            <numerusform>يتعذر إنشاء المجلد ‎%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TXDatabaseConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Internal Database</source>
        <translation>قاعدة بيانات داخلية</translation>
    </message>
    <message>
        <source>MySQL/MariaDB Database</source>
        <translation>قاعدة بيانات MySQL/MariaDB</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>المضيف</translation>
    </message>
    <message>
        <source>127.0.0.1</source>
        <translation>127.0.0.1</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>root</source>
        <translation>root</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>قاعدة البيانات</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>اختبار</translation>
    </message>
    <message>
        <source>Connection succeeded</source>
        <translation>نجح الاتصال</translation>
    </message>
    <message>
        <source>Connection failed</source>
        <translation>فشل الاتصال</translation>
    </message>
</context>
<context>
    <name>TXDeltaGradientWidget</name>
    <message>
        <source>Colour differences</source>
        <translation>الفروق اللونية</translation>
    </message>
    <message>
        <source>Average %1, limit %2 with %3 % of the pixels below, maximum %4</source>
        <translation>المتوسط %1، والحد %2 ودونه %3 % من وحدات البكسل، والأقصى %4</translation>
    </message>
    <message>
        <source>∆EMin</source>
        <translation>‎∆Emin</translation>
    </message>
    <message>
        <source>∆Eavg: %1    %2 % of pixels &lt; ∆E Limit</source>
        <translation>متوسط ‎∆E‏: %1    ‏%2 % من وحدات البكسل دون حد ‎∆E</translation>
    </message>
    <message>
        <source>∆EMax</source>
        <translation>‎∆Emax</translation>
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
        <translation>مجال الخطأ: %1</translation>
    </message>
    <message>
        <source>Code: %1</source>
        <translation>الرمز: %1</translation>
    </message>
</context>
<context>
    <name>TXFTP</name>
    <message>
        <source>The user name or the password contains a control character.</source>
        <translation>يحتوي اسم المستخدم أو كلمة المرور على حرف تحكم.</translation>
    </message>
    <message>
        <source>The user name or the password is too long.</source>
        <translation>اسم المستخدم أو كلمة المرور أطول من اللازم.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>العنوان غير صالح.</translation>
    </message>
    <message>
        <source>The address has to begin with ftp, ftps or sftp.</source>
        <translation>يجب أن يبدأ العنوان بـ ftp أو ftps أو sftp.</translation>
    </message>
    <message>
        <source>The address names no server.</source>
        <translation>لا يحدد العنوان أي خادم.</translation>
    </message>
    <message>
        <source>The port number has to be between 1 and 65535.</source>
        <translation>يجب أن يكون رقم المنفذ بين 1 و65535.</translation>
    </message>
</context>
<context>
    <name>TXFeedbackDialog</name>
    <message>
        <source>Feedback</source>
        <translation>الملاحظات</translation>
    </message>
</context>
<context>
    <name>TXFeedbackWidget</name>
    <message>
        <source>Sender Information:</source>
        <translation>معلومات المرسل:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>الاسم:</translation>
    </message>
    <message>
        <source>(Required)</source>
        <translation>(مطلوب)</translation>
    </message>
    <message>
        <source>E-Mail Address</source>
        <translation>عنوان البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Company:</source>
        <translation>الشركة:</translation>
    </message>
    <message>
        <source>Feedback Description:</source>
        <translation>ملاحظاتك:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <translation>الموضوع:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>الوصف:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Field 'Name' hasn't been set, please set a "Name".</source>
        <translation>الحقل «الاسم» فارغ، يُرجى إدخال اسم.</translation>
    </message>
    <message>
        <source>Field 'Company' hasn't been set, please set a 'Company'.</source>
        <translation>الحقل «الشركة» فارغ، يُرجى إدخال شركة.</translation>
    </message>
    <message>
        <source>Field 'Subject' hasn't been set, please set a 'Subject'.</source>
        <translation>الحقل «الموضوع» فارغ، يُرجى إدخال موضوع.</translation>
    </message>
    <message>
        <source>Field 'Description' hasn't been set, please set a 'Description'.</source>
        <translation>الحقل «الوصف» فارغ، يُرجى إدخال وصف.</translation>
    </message>
    <message>
        <source>Field 'Login' is empty, please add an E-Mail Address which contain '.' and '@'.</source>
        <translation>الحقل «عنوان البريد الإلكتروني» فارغ، يُرجى إدخال عنوان بريد إلكتروني يحتوي على «.» و«@».</translation>
    </message>
    <message>
        <source>Missing a '@' in the field 'E-Mail Address', please add a login which contain a '@'.</source>
        <translation>ينقص «@» في الحقل «عنوان البريد الإلكتروني»، يُرجى إدخال عنوان يحتوي على «@».</translation>
    </message>
    <message>
        <source>Missing a '.' in the field 'E-Mail Address', please add a login which contain a '.'.</source>
        <translation>تنقص «.» في الحقل «عنوان البريد الإلكتروني»، يُرجى إدخال عنوان يحتوي على «.».</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>معلومات ناقصة</translation>
    </message>
    <message>
        <source>Reset Application</source>
        <translation>إرسال الملاحظات</translation>
    </message>
    <message>
        <source>Are you really sure you want to send this feedback?</source>
        <translation>هل تريد حقًا إرسال هذه الملاحظات؟</translation>
    </message>
    <message>
        <source>Failed to send feedback</source>
        <translation>تعذّر إرسال الملاحظات</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, maybe the feedback service is unavailable for the moment. Please re-try later.</source>
        <translation>لم تُرسل الملاحظات إلى فريقنا، ربما خدمة الملاحظات غير متاحة حاليًا. يُرجى إعادة المحاولة لاحقًا.</translation>
    </message>
    <message>
        <source>Feedback hasn't been send to our team, because the following error occured:%1.</source>
        <translation>لم تُرسل الملاحظات إلى فريقنا بسبب الخطأ التالي: %1.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>الشركة</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>الموضوع</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
</context>
<context>
    <name>TXImageViewer</name>
    <message>
        <source>none</source>
        <translation>بلا لون</translation>
    </message>
    <message>
        <source>Image viewer</source>
        <translation>عارض الصور</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>ملاءمة</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>لا توجد صورة</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1, pixel %2, %3: %4</source>
        <translation>%1، بكسل %2، %3: %4</translation>
    </message>
</context>
<context>
    <name>TXLogModel</name>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>الرسالة</translation>
    </message>
</context>
<context>
    <name>TXLogWindow</name>
    <message>
        <source>Log Details:</source>
        <translation>التفاصيل:</translation>
    </message>
    <message>
        <source>Log entries</source>
        <translation>إدخالات السجل</translation>
    </message>
    <message>
        <source>Clear List</source>
        <translation>مسح القائمة</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Log Manager</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Warning &amp; Errors</source>
        <translation>التحذيرات والأخطاء</translation>
    </message>
    <message>
        <source>Errors Only</source>
        <translation>الأخطاء فقط</translation>
    </message>
</context>
<context>
    <name>TXMailSender</name>
    <message>
        <source>The system is too busy to send a mail.</source>
        <translation>النظام مشغول جدًا بحيث يتعذر إرسال رسالة.</translation>
    </message>
</context>
<context>
    <name>TXProgressBar</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
</context>
<context>
    <name>TXReportAccessible</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>الصفحة %1 من %2</translation>
    </message>
</context>
<context>
    <name>TXReportDocument</name>
    <message>
        <source>This is not a file name.</source>
        <translation>هذا ليس اسم ملف.</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>هذا ليس ملفًا عاديًا.</translation>
    </message>
    <message>
        <source>The report could not be written to "%2": %1</source>
        <translation>تعذّرت كتابة التقرير في «‎%2»: %1</translation>
    </message>
    <message>
        <source>The document's data could not be added to the PDF.</source>
        <translation>تعذّرت إضافة بيانات المستند إلى ملف PDF.</translation>
    </message>
    <message>
        <source>The printer "%1" does not take the page size of the report.</source>
        <translation>لا تقبل الطابعة «%1» مقاس صفحات التقرير.</translation>
    </message>
    <message>
        <source>The printer "%1" can't be started.</source>
        <translation>يتعذر تشغيل الطابعة «%1».</translation>
    </message>
    <message>
        <source>The printer "%1" has stopped in the middle.</source>
        <translation>توقفت الطابعة «%1» في منتصف العمل.</translation>
    </message>
    <message>
        <source>There is no printer.</source>
        <translation>لا توجد طابعة.</translation>
    </message>
    <message>
        <source>The report has none of the pages that are to be printed.</source>
        <translation>لا يحتوي التقرير على أي من الصفحات المطلوب طباعتها.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>صفحة %1 من %2</translation>
    </message>
    <message>
        <source>The report is being written or printed already.</source>
        <translation>تجري كتابة التقرير أو طباعته بالفعل.</translation>
    </message>
    <message>
        <source>The report has no pages.</source>
        <translation>لا يحتوي التقرير على صفحات.</translation>
    </message>
    <message>
        <source>The margins, the header and the footer leave no room on the paper.</source>
        <translation>لا تترك الهوامش والرأس والتذييل مساحة على الورق.</translation>
    </message>
    <message>
        <source>page {page} of {pages}</source>
        <translation>صفحة {page} من {pages}</translation>
    </message>
</context>
<context>
    <name>TXSelectDefaultEncodingWidget</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Default Encoding</source>
        <translation>الترميز الافتراضي</translation>
    </message>
</context>
<context>
    <name>TXSelectionItemWidget</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>تصدير</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>تحميل</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Create New</source>
        <translation>إنشاء جديد</translation>
    </message>
</context>
<context>
    <name>TXTriggerEventWidget</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>المُشغِّل</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>الفترة</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>الساعة</translation>
    </message>
    <message>
        <source>Each Hour</source>
        <translation>كل ساعة</translation>
    </message>
    <message>
        <source>Each Month</source>
        <translation>كل شهر</translation>
    </message>
    <message>
        <source>Each Week</source>
        <translation>كل أسبوع</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>كل يوم</translation>
    </message>
    <message>
        <source>Each Minute</source>
        <translation>كل دقيقة</translation>
    </message>
</context>
<context>
    <name>TXVariantViewer</name>
    <message>
        <source>Copy value</source>
        <translation>نسخ القيمة</translation>
    </message>
    <message>
        <source>The value was not copied. It is nested deeper than the %1 levels that its text in JSON may have.</source>
        <translation>لم تُنسخ القيمة. تداخلها أعمق من عدد المستويات المسموح به لنصها في JSON، وهو %1.</translation>
    </message>
    <message>
        <source>Copy value (JSON encoded)</source>
        <translation>نسخ القيمة (بترميز JSON)</translation>
    </message>
    <message>
        <source>Copy string value</source>
        <translation>نسخ القيمة النصية</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>kind and value</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>value and kind</comment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>dictionary, one entry</source>
        <translation>قاموس، عنصر واحد</translation>
    </message>
    <message numerus="yes">
        <source>dictionary, %n entries</source>
        <translation>
            <numerusform>قاموس، بلا عناصر</numerusform>
            <numerusform>قاموس، عنصر واحد</numerusform>
            <numerusform>قاموس، عنصران</numerusform>
            <numerusform>قاموس، %n عناصر</numerusform>
            <numerusform>قاموس، %n عنصرًا</numerusform>
            <numerusform>قاموس، %n عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>list, one entry</source>
        <translation>قائمة، عنصر واحد</translation>
    </message>
    <message numerus="yes">
        <source>list, %n entries</source>
        <translation>
            <numerusform>قائمة، بلا عناصر</numerusform>
            <numerusform>قائمة، عنصر واحد</numerusform>
            <numerusform>قائمة، عنصران</numerusform>
            <numerusform>قائمة، %n عناصر</numerusform>
            <numerusform>قائمة، %n عنصرًا</numerusform>
            <numerusform>قائمة، %n عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>صحيح أو خطأ</translation>
    </message>
    <message>
        <source>whole number</source>
        <translation>عدد صحيح</translation>
    </message>
    <message>
        <source>number</source>
        <translation>عدد</translation>
    </message>
    <message>
        <source>date</source>
        <translation>تاريخ</translation>
    </message>
    <message>
        <source>time</source>
        <translation>وقت</translation>
    </message>
    <message>
        <source>date and time</source>
        <translation>تاريخ ووقت</translation>
    </message>
    <message>
        <source>address</source>
        <translation>عنوان</translation>
    </message>
    <message>
        <source>value</source>
        <translation>قيمة</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>طي</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>توسيع</translation>
    </message>
</context>
<context>
    <name>TXWebInterfaceConfigurationWidget</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>مُمكّن</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>المنفذ</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>المسار</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Enable HTTPS</source>
        <translation>تمكين HTTPS</translation>
    </message>
    <message>
        <source>Certificate file</source>
        <translation>ملف الشهادة</translation>
    </message>
    <message>
        <source>Certificate File...</source>
        <translation>ملف الشهادة...</translation>
    </message>
    <message>
        <source>Choose certificate file</source>
        <translation>اختيار ملف الشهادة</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Addresses:</source>
        <translation>العناوين النشطة:</translation>
    </message>
    <message>
        <source>Choose Certificate File</source>
        <translation>اختيار ملف الشهادة</translation>
    </message>
    <message>
        <source>Certificate Files (*.pem)</source>
        <translation>ملفات الشهادات (*.pem)</translation>
    </message>
    <message>
        <source>&amp;nbsp;&amp;nbsp;&amp;nbsp;(to be used only from this computer)</source>
        <translation>&amp;nbsp;&amp;nbsp;&amp;nbsp;(للاستخدام من هذا الكمبيوتر فقط)</translation>
    </message>
    <message>
        <source>Active Addresses</source>
        <translation>العناوين النشطة</translation>
    </message>
</context>
<context>
    <name>TXWidgetListWidget</name>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>العناصر</translation>
    </message>
</context>
<context>
    <name>VariantMoreButton</name>
    <message>
        <source>Show %L1 more of %L2</source>
        <translation>عرض %L1 إضافية من %L2</translation>
    </message>
</context>
<context>
    <name>WaitWidget</name>
    <message>
        <source>Busy</source>
        <translation>مشغول</translation>
    </message>
</context>
</TS>
