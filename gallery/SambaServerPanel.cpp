#include "SambaServerPanel.h"

#include "ClosedPort.h"
#include "LocalSambaServer.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLayout>

namespace {

const QString kUser = QStringLiteral("mia");
const QString kPassword = QStringLiteral("s3cret");
const QString kWrongPassword = QStringLiteral("forgotten");
const QString kUnknownShare = QStringLiteral("archive");

/// An empty drive would look like one that is not there.
void writeWelcome(const QString &folder)
{
    QFile file(folder + QStringLiteral("/Welcome.txt"));
    if (file.open(QFile::WriteOnly)) {
        file.write("This drive lies on the Samba server of the gallery, and goes with it.\n");
    }
}

} // namespace

SambaServerPanel::SambaServerPanel(QWidget *parent)
    : LocalServerPanel(parent)
    , troubleLabel(new QLabel(this))
    , troubleBox(new QComboBox(this))
    , portLabel(new QLabel(this))
{
    addOption(troubleLabel, troubleBox);
    portLabel->setWordWrap(true);
    portLabel->hide();
    layout()->addWidget(portLabel);
    hideFillIn();
    retranslate();
    connect(this, SIGNAL(started()), this, SLOT(welcome()));
    connect(troubleBox, SIGNAL(currentIndexChanged(int)), this, SLOT(applyTrouble()));
}

SambaServerPanel::~SambaServerPanel()
{
    // The server ends with the base, when there is nobody any more to announce it.
    if (serverLife) {
        serverLife->disconnect(this);
    }
}

void SambaServerPanel::setTrouble(Trouble trouble)
{
    troubleBox->setCurrentIndex(static_cast<int>(trouble));
}

QStringList SambaServerPanel::shares()
{
    return {QStringLiteral("pictures"), QStringLiteral("proofs")};
}

QUrl SambaServerPanel::serverUrl() const
{
    QUrl url;
    if (!isRunning()) {
        return url;
    }
    url.setScheme(QStringLiteral("smb"));
    url.setHost(QStringLiteral("127.0.0.1"));
    url.setPort(trouble() == Trouble::NobodyThere ? closedPort() : port());
    url.setUserName(kUser);
    url.setPassword(trouble() == Trouble::WrongPassword ? kWrongPassword : kPassword);
    return url;
}

QUrl SambaServerPanel::shareUrl(const QString &share) const
{
    QUrl url = serverUrl();
    if (!url.isEmpty()) {
        url.setPath(u'/' + (trouble() == Trouble::UnknownShare ? kUnknownShare : share));
    }
    return url;
}

std::unique_ptr<LocalServer> SambaServerPanel::makeServer()
{
    auto server = std::make_unique<LocalSambaServer>();
    server->setUser(kUser, kPassword);
    server->setShares(shares());
    server->setWantedPort(lastPort);
    serverLife = new QObject(server.get());
    connect(serverLife, SIGNAL(destroyed()), this, SLOT(announce()));
    return server;
}

void SambaServerPanel::retranslate()
{
    setTitle(tr("Local Samba server"));
    troubleLabel->setText(tr("&Trouble:"));
    setEntries(troubleBox,
               {tr("None"), tr("Wrong password"), tr("Unknown share"), tr("Silent server"),
                tr("Nobody listens")});
    portLabel->setText(
        tr("The server has another port now: drives added before do not lead to it."));
    LocalServerPanel::retranslate();
}

void SambaServerPanel::welcome()
{
    const auto *server = static_cast<const LocalSambaServer *>(runningServer());
    const QStringList names = shares();
    for (const QString &share : names) {
        writeWelcome(server->shareFolder(share));
    }
    applyTrouble();
    comparePort();
    announce();
}

void SambaServerPanel::comparePort()
{
    portLabel->setVisible(lastPort > 0 && port() != lastPort);
    lastPort = port();
}

/// All but the silence lies in the addresses.
void SambaServerPanel::applyTrouble()
{
    auto *server = static_cast<LocalSambaServer *>(runningServer());
    if (server && trouble() == Trouble::Silent) {
        server->hold();
    } else if (server) {
        server->goOn();
    }
}

void SambaServerPanel::announce()
{
    emit runningChanged(isRunning());
}

SambaServerPanel::Trouble SambaServerPanel::trouble() const
{
    return static_cast<Trouble>(troubleBox->currentIndex());
}
