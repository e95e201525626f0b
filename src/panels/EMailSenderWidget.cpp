#include "EMailSenderWidget.h"

#include "PlainMessageBox.h"
#include "StoredSecret.h"
#include "TXMailSender.h"
#include "TestMailText.h"
#include "ui_EMailSenderWidget.h"

#include <QEvent>
#include <QPointer>

namespace {

constexpr int kDefaultPort = 25;

const QLatin1String kLoginKey("MailServerLogin");
const QLatin1String kPasswordKey("MailServerPassword");
const QLatin1String kServerKey("MailServerAddress");
const QLatin1String kPortKey("MailServerPort");
const QLatin1String kEncryptionKey("MailWithEncryption");
const QLatin1String kSenderKey("MailSender");
const QLatin1String kMainDestinationKey("MailMainDestination");
const QLatin1String kCopyDestinationKey("MailCopyDestination");

/// Names no colour, so that headings are readable in every palette.
constexpr char kHeadingTemplate[] =
    R"(<!DOCTYPE HTML PUBLIC "-//W3C//DTD HTML 4.0//EN" "http://www.w3.org/TR/REC-html40/strict.dtd">
<html><head><meta name="qrichtext" content="1" /><style type="text/css">
p, li { white-space: pre-wrap; }
</style></head><body style=" font-family:'Lucida Grande'; font-size:13pt; font-weight:400; font-style:normal;">
<p style=" margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;"><span style=" font-weight:600;">%1    </span>     %2</p></body></html>)";

/// What there is to say about an address; null is said of what may be so.
struct AddressMessages
{
    const char *isEmpty;
    const char *hasNoAt;
    const char *hasNoDot;
};

constexpr AddressMessages kSenderMessages = {
    QT_TRANSLATE_NOOP("EMailSenderWidget",
                      "Field 'Sender' is empty, please add sender address which contain '.' and "
                      "'@'."),
    QT_TRANSLATE_NOOP(
        "EMailSenderWidget",
        "Missing a '@' in the field 'Sender', please add sender address which contain "
        "a '@'."),
    QT_TRANSLATE_NOOP(
        "EMailSenderWidget",
        "Missing a '.' in the field 'Sender', please add sender address which contain "
        "a '.'."),
};

constexpr AddressMessages kMainDestinationMessages = {
    QT_TRANSLATE_NOOP(
        "EMailSenderWidget",
        "Field 'To' is empty, please add receiver address which contain '.' and '@'."),
    QT_TRANSLATE_NOOP(
        "EMailSenderWidget",
        "Missing a '@' in the field 'To', please add receiver address which contain a "
        "'@'."),
    QT_TRANSLATE_NOOP(
        "EMailSenderWidget",
        "Missing a '.' in the field 'To', please add receiver address which contain a "
        "'.'."),
};

constexpr AddressMessages kCopyDestinationMessages = {
    nullptr,
    QT_TRANSLATE_NOOP(
        "EMailSenderWidget",
        "Missing a '@' in the field 'cC', please add receiver address which contain a "
        "'@'."),
    QT_TRANSLATE_NOOP(
        "EMailSenderWidget",
        "Missing a '.' in the field 'cC', please add receiver address which contain a "
        "'.'."),
};

/// The message that fits the address, untranslated, or null.
const char *messageAbout(const QString &address, const AddressMessages &messages)
{
    if (address.isEmpty()) {
        return messages.isEmpty;
    }
    if (!address.contains(u'@')) {
        return messages.hasNoAt;
    }
    return address.contains(u'.') ? nullptr : messages.hasNoDot;
}

void freeLater(const QPointer<QObject> &sender)
{
    if (sender) {
        sender->deleteLater();
    }
}

QString heading(const QString &title, const QString &hint)
{
    return QString::fromLatin1(kHeadingTemplate).arg(title, hint);
}

} // namespace

EMailSenderWidget::EMailSenderWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::EMailSenderWidget>())
{
    ui->setupUi(this);
    setUpHeadings();
    fillEncryptionCombobox();
    connect(ui->testMailButton, SIGNAL(clicked()), this, SLOT(testEMailSenderConfiguration()));
    ui->portSpinBox->installEventFilter(this);
}

EMailSenderWidget::~EMailSenderWidget() = default;

// By value: hosts are built against this signature.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void EMailSenderWidget::load(QHash<QString, QVariant> settings)
{
    setLoginName(settings.value(kLoginKey).toString());
    const QString cipher = settings.value(kPasswordKey).toString();
    const QString password = QString::fromUtf8(StoredSecret::decipher(cipher));
    if (password.isEmpty()) {
        // The field ignores an empty text, and the password of another account must not stay.
        ui->passwordLineEdit->clear();
    }
    setPassword(password);
    setSMTPServerName(settings.value(kServerKey).toString());
    setPortNumber(settings.value(kPortKey).toInt());
    setEncryption(settings.value(kEncryptionKey).toString());
    setSenderName(settings.value(kSenderKey).toString());
    setMainDestinationAddress(settings.value(kMainDestinationKey).toString());
    setCopyDestinationAddress(settings.value(kCopyDestinationKey).toString());
}

QHash<QString, QVariant> EMailSenderWidget::save()
{
    return {
        {kLoginKey, loginName()},
        {kPasswordKey, StoredSecret::encipher(password().toUtf8())},
        {kServerKey, smtpServerName()},
        {kPortKey, portNumber()},
        {kEncryptionKey, encryption()},
        {kSenderKey, senderName()},
        {kMainDestinationKey, mainDestinationAddress()},
        {kCopyDestinationKey, copyDestincationAddress()},
    };
}

bool EMailSenderWidget::checkConfigurationField(QString &error)
{
    if (smtpServerName().isEmpty() && senderName().isEmpty()
        && mainDestinationAddress().isEmpty()) {
        return true;
    }
    const char *message = messageAbout(senderName(), kSenderMessages);
    if (!message) {
        message = messageAbout(mainDestinationAddress(), kMainDestinationMessages);
    }
    if (!message) {
        message = messageAbout(copyDestincationAddress(), kCopyDestinationMessages);
    }
    if (message) {
        error = tr(message);
    }
    return !message;
}

bool EMailSenderWidget::checkFieldBeforeAccept()
{
    QString error;
    const bool isAcceptable = checkConfigurationField(error);
    if (!isAcceptable) {
        PlainMessageBox::warning(this, tr("Uncompleted Mail Configuration"), error);
    }
    return isAcceptable;
}

void EMailSenderWidget::setLoginName(const QString &name)
{
    ui->loginLineEdit->setText(name);
}

QString EMailSenderWidget::loginName()
{
    return ui->loginLineEdit->text();
}

void EMailSenderWidget::setPassword(const QString &password)
{
    ui->passwordLineEdit->setText(password);
}

QString EMailSenderWidget::password()
{
    return ui->passwordLineEdit->text();
}

void EMailSenderWidget::setSMTPServerName(const QString &name)
{
    ui->smtpServerLineEdit->setText(name);
}

QString EMailSenderWidget::smtpServerName()
{
    return ui->smtpServerLineEdit->text();
}

void EMailSenderWidget::setPortNumber(int port)
{
    ui->portSpinBox->setValue(port < 1 ? kDefaultPort : port);
}

int EMailSenderWidget::portNumber()
{
    return ui->portSpinBox->value();
}

void EMailSenderWidget::setEncryption(const QString &encryption)
{
    const int entry = ui->encryptionComboBox->findData(encryption, Qt::UserRole,
                                                       Qt::MatchExactly | Qt::MatchCaseSensitive);
    ui->encryptionComboBox->setCurrentIndex(qMax(entry, 0));
}

QString EMailSenderWidget::encryption() const
{
    return ui->encryptionComboBox->currentData(Qt::UserRole).toString();
}

void EMailSenderWidget::setSenderName(const QString &name)
{
    ui->senderLineEdit->setText(name);
}

QString EMailSenderWidget::senderName()
{
    return ui->senderLineEdit->text();
}

void EMailSenderWidget::setMainDestinationAddress(const QString &address)
{
    ui->mainEMailAddress->setText(address);
}

QString EMailSenderWidget::mainDestinationAddress()
{
    return ui->mainEMailAddress->text();
}

void EMailSenderWidget::setCopyDestinationAddress(const QString &address)
{
    ui->ccMailAddress->setText(address);
}

QString EMailSenderWidget::copyDestincationAddress()
{
    return ui->ccMailAddress->text();
}

void EMailSenderWidget::fillEncryptionCombobox()
{
    QComboBox &box = *ui->encryptionComboBox;
    box.addItem(tr("None"), QStringLiteral("NONE"));
    box.addItem(tr("SSL"), QStringLiteral("SSL"));
    box.addItem(tr("TLS"), QStringLiteral("TLS"));
}

void EMailSenderWidget::testEMailSenderConfiguration()
{
    if (!checkFieldBeforeAccept()) {
        return;
    }
    TXMailSender *mail = TXMailSender::createTXMailSender(save(), TestMailText::body(),
                                                          TestMailText::subject(), {}, {});
    // A sender that has not answered yet goes with the panel, and stops sending.
    mail->setParent(this);
    connect(mail, SIGNAL(mailSendingSucceed()), this, SLOT(testEMailSucceed()));
    connect(mail, SIGNAL(mailSendingFailed(QString)), this, SLOT(testEMailFailed(QString)));
    mail->sendMessage();
}

void EMailSenderWidget::testEMailSucceed()
{
    const QPointer<QObject> answered = sender();
    PlainMessageBox::information(this, tr("Mail Sending Result"),
                                 tr("Mail has been sent successfully."));
    freeLater(answered);
}

void EMailSenderWidget::testEMailFailed(const QString &message)
{
    const QPointer<QObject> answered = sender();
    PlainMessageBox::warning(this, tr("Mail Sending Result"), message);
    freeLater(answered);
}

void EMailSenderWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
    }
}

bool EMailSenderWidget::eventFilter(QObject *object, QEvent *event)
{
    // A turn of the wheel while scrolling past must not change the port.
    const bool isSwallowed = object == ui->portSpinBox && event->type() == QEvent::Wheel;
    return isSwallowed || QWidget::eventFilter(object, event);
}

void EMailSenderWidget::setUpHeadings()
{
    ui->smtpMailLabel->setText(heading(tr("SMTP Mail Server:"), QString()));
    ui->senderAddressLabel->setText(heading(tr("Sender Address:"), tr("name@domain")));
    ui->destinationAddressLabel->setText(heading(tr("Destination:"), tr("name@domain")));
}
