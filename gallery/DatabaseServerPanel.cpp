#include "DatabaseServerPanel.h"

#include "ClosedPort.h"
#include "LocalMariaDbServer.h"
#include "SilentServer.h"

#include "TXDataCrypt.h"

#include <QComboBox>
#include <QLabel>

namespace {

constexpr int kSilenceSeconds = 2;

const QString kUser = QStringLiteral("mia");
const QString kPassword = QStringLiteral("s3cret");
const QString kWrongPassword = QStringLiteral("forgotten");
const QString kDatabase = QStringLiteral("measurements");
const QString kClosedDatabase = QStringLiteral("payroll");

} // namespace

DatabaseServerPanel::DatabaseServerPanel(QWidget *parent)
    : LocalServerPanel(parent)
    , troubleLabel(new QLabel(this))
    , troubleBox(new QComboBox(this))
{
    addOption(troubleLabel, troubleBox);
    retranslate();
    connect(troubleBox, SIGNAL(currentIndexChanged(int)), this, SLOT(troubleChosen()));
}

DatabaseServerPanel::~DatabaseServerPanel() = default;

void DatabaseServerPanel::setTrouble(Trouble trouble)
{
    troubleBox->setCurrentIndex(static_cast<int>(trouble));
}

QHash<QString, QVariant> DatabaseServerPanel::exampleSettings() const
{
    const QString password = trouble() == Trouble::WrongPassword ? kWrongPassword : kPassword;
    const QByteArray cipher = TXDataCrypt::encrypt(password.toUtf8(), nullptr);
    const QString options = trouble() == Trouble::Silent
        ? QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT=%1").arg(kSilenceSeconds)
        : QString();
    const QHash<QString, QVariant> parameters = {
        {QStringLiteral("Host"), QStringLiteral("127.0.0.1")},
        {QStringLiteral("Port"), usedPort()},
        {QStringLiteral("User"), kUser},
        {QStringLiteral("Password"), QString::fromLatin1(cipher)},
        {QStringLiteral("Options"), options},
    };
    return {
        {QStringLiteral("Driver"), QStringLiteral("QMYSQL")},
        {QStringLiteral("Connection"),
         trouble() == Trouble::ClosedDatabase ? kClosedDatabase : kDatabase},
        {QStringLiteral("Parameters"), parameters},
    };
}

std::unique_ptr<LocalServer> DatabaseServerPanel::makeServer()
{
    auto server = std::make_unique<LocalMariaDbServer>();
    server->setUser(kUser, kPassword);
    server->setDatabase(kDatabase);
    silentServer = std::make_unique<SilentServer>();
    return server;
}

void DatabaseServerPanel::retranslate()
{
    setTitle(tr("Local MariaDB server"));
    troubleLabel->setText(tr("&Trouble:"));
    setEntries(troubleBox,
               {tr("None"), tr("Wrong password"), tr("No right to the database"),
                tr("Silent server"), tr("Nobody listens")});
    LocalServerPanel::retranslate();
}

/// The server itself is well in each case, and goes on: what goes wrong lies in the settings.
void DatabaseServerPanel::troubleChosen()
{
    if (isRunning()) {
        emit fillInWanted();
    }
}

DatabaseServerPanel::Trouble DatabaseServerPanel::trouble() const
{
    return static_cast<Trouble>(troubleBox->currentIndex());
}

int DatabaseServerPanel::usedPort() const
{
    switch (trouble()) {
    case Trouble::Silent:
        return silentServer ? silentServer->port() : 0;
    case Trouble::NobodyThere:
        return closedPort();
    default:
        return port();
    }
}
