#include "MailServerPanel.h"

#include "ClosedPort.h"

#include "TXDataCrypt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include <algorithm>
#include <iterator>

namespace {

constexpr int kSilenceMilliseconds = 2000;

const QString kLogin = QStringLiteral("mia");
const QString kPassword = QStringLiteral("s3cret");
const QString kWrongPassword = QStringLiteral("forgotten");
const QString kSender = QStringLiteral("ada@example.org");
const QString kReceiver = QStringLiteral("mia@example.org");
const QString kCopyReceiver = QStringLiteral("leo@example.org");

/// In the order of the box.
constexpr LocalMailServer::Security kSecurities[] = {
    LocalMailServer::Security::Plain,
    LocalMailServer::Security::StartTls,
    LocalMailServer::Security::ImplicitTls,
};

/// The mail panel's word for it.
QString encryptionFor(LocalMailServer::Security security)
{
    switch (security) {
    case LocalMailServer::Security::StartTls:
        return QStringLiteral("TLS");
    case LocalMailServer::Security::ImplicitTls:
        return QStringLiteral("SSL");
    default:
        return QStringLiteral("NONE");
    }
}

} // namespace

MailServerPanel::MailServerPanel(QWidget *parent)
    : LocalServerPanel(parent)
    , securityLabel(new QLabel(this))
    , securityBox(new QComboBox(this))
    , troubleLabel(new QLabel(this))
    , troubleBox(new QComboBox(this))
    , loginBox(new QCheckBox(this))
{
    addOption(securityLabel, securityBox);
    addOption(nullptr, loginBox);
    addOption(troubleLabel, troubleBox);
    setTabOrder(loginBox, troubleBox);
    retranslate();
    setSecurity(LocalMailServer::Security::StartTls);
    loginBox->setChecked(true);
    connect(securityBox, SIGNAL(currentIndexChanged(int)), this, SLOT(restart()));
    connect(troubleBox, SIGNAL(currentIndexChanged(int)), this, SLOT(restart()));
    connect(loginBox, SIGNAL(toggled(bool)), this, SLOT(restart()));
}

void MailServerPanel::setSecurity(LocalMailServer::Security security)
{
    const auto *place = std::find(std::begin(kSecurities), std::end(kSecurities), security);
    securityBox->setCurrentIndex(static_cast<int>(place - std::begin(kSecurities)));
}

void MailServerPanel::setTrouble(Trouble trouble)
{
    troubleBox->setCurrentIndex(static_cast<int>(trouble));
}

QHash<QString, QVariant> MailServerPanel::exampleSettings() const
{
    const QString password = trouble() == Trouble::WrongPassword ? kWrongPassword : kPassword;
    const QByteArray cipher = TXDataCrypt::encrypt(password.toUtf8(), nullptr);
    const int usedPort = trouble() == Trouble::NobodyThere ? closedPort() : port();
    return {
        {QStringLiteral("MailServerAddress"), QStringLiteral("127.0.0.1")},
        {QStringLiteral("MailServerPort"), usedPort},
        {QStringLiteral("MailWithEncryption"), encryptionFor(security())},
        {QStringLiteral("MailServerLogin"), isLoginNeeded() ? kLogin : QString()},
        {QStringLiteral("MailServerPassword"), QString::fromLatin1(cipher)},
        {QStringLiteral("MailSender"), kSender},
        {QStringLiteral("MailMainDestination"), kReceiver},
        {QStringLiteral("MailCopyDestination"), kCopyReceiver},
    };
}

std::unique_ptr<LocalServer> MailServerPanel::makeServer()
{
    auto server = std::make_unique<LocalMailServer>();
    server->setSecurity(security());
    if (security() != LocalMailServer::Security::Plain) {
        setUpCertificate();
        server->setCertificate(certificate);
    }
    if (isLoginNeeded()) {
        server->setLogin(kLogin, kPassword);
    }
    if (trouble() == Trouble::ReceiverRefused) {
        server->setRefusedReceiver(kReceiver);
    }
    if (trouble() == Trouble::Silent) {
        server->setSilentAt(LocalMailServer::Stage::Greeting);
    }
    passedOn = 0;
    connect(server.get(), SIGNAL(mailReceived()), this, SLOT(passOnMails()));
    return server;
}

TransferSettingsWish MailServerPanel::transferSettings() const
{
    TransferSettingsWish wish;
    if (security() != LocalMailServer::Security::Plain) {
        wish.certificateAuthoritiesFile = certificate->certificateFile();
    }
    if (trouble() == Trouble::Silent) {
        wish.timeoutMilliseconds = kSilenceMilliseconds;
    }
    return wish;
}

void MailServerPanel::retranslate()
{
    setTitle(tr("Local mail server"));
    securityLabel->setText(tr("Se&curity:"));
    setEntries(securityBox, {tr("Plain"), tr("STARTTLS"), tr("TLS")});
    troubleLabel->setText(tr("&Trouble:"));
    setEntries(troubleBox,
               {tr("None"), tr("Wrong password"), tr("Receiver refused"), tr("Silent server"),
                tr("Nobody listens")});
    loginBox->setText(tr("Login &needed"));
    LocalServerPanel::retranslate();
}

void MailServerPanel::passOnMails()
{
    // Taking the mails may itself bring more of them, and call this once more.
    const QList<ReceivedMail> mails = static_cast<LocalMailServer *>(sender())->mails();
    while (passedOn < mails.size()) {
        emit mailReceived(mails[passedOn++]);
    }
}

LocalMailServer::Security MailServerPanel::security() const
{
    return kSecurities[securityBox->currentIndex()];
}

MailServerPanel::Trouble MailServerPanel::trouble() const
{
    return static_cast<Trouble>(troubleBox->currentIndex());
}

bool MailServerPanel::isLoginNeeded() const
{
    return loginBox->isChecked() || trouble() == Trouble::WrongPassword;
}

void MailServerPanel::setUpCertificate()
{
    if (!certificate || !certificate->isValid()) {
        certificate = std::make_shared<const LocalCertificate>();
    }
}
