#include "DriveSessionPanel.h"

#include "TXAutoMountManager.h"
#include "TXLogItem.h"
#include "TXLogManager.h"

#include <QRegularExpression>

namespace {

/// The value's name in the source, which is what a developer looks for.
QString nameOf(NetworkDriveConnectionState state)
{
    switch (state) {
    case NetworkDriveConnected:
        return QStringLiteral("NetworkDriveConnected");
    case NetworkDriveDisconnected:
        return QStringLiteral("NetworkDriveDisconnected");
    case NetworkDriveReconnectionFailed:
        return QStringLiteral("NetworkDriveReconnectionFailed");
    case NetworkDriveLetterTaken:
        return QStringLiteral("NetworkDriveLetterTaken");
    }
    return QString::number(state);
}

/// The library's lines on drives are in English in all languages.
bool isOnDrives(const QString &line)
{
    static const QRegularExpression words(QStringLiteral("\\b(drive|host|share)s?\\b"),
                                          QRegularExpression::CaseInsensitiveOption);
    return line.contains(words);
}

} // namespace

DriveSessionPanel::DriveSessionPanel(QWidget *parent)
    : SessionPanel(parent)
    , log(TXLogManager::applicationLog())
{
    retranslate();
    connect(log->rootItem().data(), SIGNAL(itemAppended(QSharedPointer<TXLogItem>)), this,
            SLOT(addEntry(QSharedPointer<TXLogItem>)));
    const TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    connect(manager,
            SIGNAL(statusNetworkDriveChanged(NetworkDriveConnectionState, AutoMountNetworkDrive)),
            this, SLOT(addState(NetworkDriveConnectionState, AutoMountNetworkDrive)));
    connect(manager, SIGNAL(started()), this, SLOT(addStart()));
    connect(manager, SIGNAL(stopped()), this, SLOT(addStop()));
}

void DriveSessionPanel::retranslate()
{
    SessionPanel::retranslate();
    setLabels(tr("Lo&g of the drives:"), tr("S&ignals of the manager:"));
}

void DriveSessionPanel::addEntry(QSharedPointer<TXLogItem> entry)
{
    const QString line = entry->message.toString();
    if (isOnDrives(line)) {
        addReceived(line);
    }
}

void DriveSessionPanel::addState(NetworkDriveConnectionState state, AutoMountNetworkDrive drive)
{
    addEmission(QStringLiteral("statusNetworkDriveChanged(%1, %2)")
                    .arg(nameOf(state), drive.getMountPoint()));
}

void DriveSessionPanel::addStart()
{
    addEmission(QStringLiteral("started()"));
}

void DriveSessionPanel::addStop()
{
    addEmission(QStringLiteral("stopped()"));
}
