#include "FtpServerPanel.h"

#include "ClosedPort.h"
#include "LocalFtpServer.h"
#include "LocalSftpServer.h"

#include "TXDataCrypt.h"

#include <QComboBox>
#include <QLabel>
#include <QUrl>

namespace {

constexpr int kSilenceMilliseconds = 2000;

const QString kUser = QStringLiteral("mia");
const QString kPassword = QStringLiteral("s3cret");
const QString kWrongPassword = QStringLiteral("forgotten");
const QString kPath = QStringLiteral("/jobs/");

template<class Server>
std::unique_ptr<LocalServer> makeServerOf(bool isSilent)
{
    auto server = std::make_unique<Server>();
    server->setUser(kUser, kPassword);
    if (isSilent) {
        server->setSilence(Server::Silence::AfterGreeting);
    }
    return server;
}

} // namespace

FtpServerPanel::FtpServerPanel(QWidget *parent)
    : LocalServerPanel(parent)
    , protocolLabel(new QLabel(this))
    , protocolBox(new QComboBox(this))
    , troubleLabel(new QLabel(this))
    , troubleBox(new QComboBox(this))
{
    addOption(protocolLabel, protocolBox);
    addOption(troubleLabel, troubleBox);
    retranslate();
    connect(protocolBox, SIGNAL(currentIndexChanged(int)), this, SLOT(restart()));
    connect(troubleBox, SIGNAL(currentIndexChanged(int)), this, SLOT(restart()));
}

void FtpServerPanel::setProtocol(Protocol protocol)
{
    protocolBox->setCurrentIndex(static_cast<int>(protocol));
}

void FtpServerPanel::setTrouble(Trouble trouble)
{
    troubleBox->setCurrentIndex(static_cast<int>(trouble));
}

QHash<QString, QVariant> FtpServerPanel::exampleSettings() const
{
    QUrl url;
    url.setScheme(protocol() == Protocol::Ftp ? QStringLiteral("ftp") : QStringLiteral("sftp"));
    url.setHost(QStringLiteral("127.0.0.1"));
    url.setPort(trouble() == Trouble::NobodyThere ? closedPort() : port());
    url.setUserName(kUser);
    url.setPassword(trouble() == Trouble::WrongPassword ? kWrongPassword : kPassword);
    url.setPath(kPath);
    const QByteArray cipher = TXDataCrypt::encrypt(url.toEncoded(), nullptr);
    return {
        {QStringLiteral("FTPServerURL"), QString::fromLatin1(cipher)},
        {QStringLiteral("EraseSourceFiles"), false},
        {QStringLiteral("FTPIsActivated"), true},
    };
}

std::unique_ptr<LocalServer> FtpServerPanel::makeServer()
{
    const bool isSilent = trouble() == Trouble::Silent;
    return protocol() == Protocol::Ftp ? makeServerOf<LocalFtpServer>(isSilent)
                                       : makeServerOf<LocalSftpServer>(isSilent);
}

TransferSettingsWish FtpServerPanel::transferSettings() const
{
    TransferSettingsWish wish;
    if (trouble() == Trouble::Silent) {
        wish.timeoutMilliseconds = kSilenceMilliseconds;
    }
    return wish;
}

void FtpServerPanel::retranslate()
{
    setTitle(tr("Local server"));
    protocolLabel->setText(tr("Protoc&ol:"));
    setEntries(protocolBox, {tr("FTP"), tr("SFTP")});
    troubleLabel->setText(tr("&Trouble:"));
    setEntries(troubleBox,
               {tr("None"), tr("Wrong password"), tr("Silent server"), tr("Nobody listens")});
    LocalServerPanel::retranslate();
}

FtpServerPanel::Protocol FtpServerPanel::protocol() const
{
    return static_cast<Protocol>(protocolBox->currentIndex());
}

FtpServerPanel::Trouble FtpServerPanel::trouble() const
{
    return static_cast<Trouble>(troubleBox->currentIndex());
}
