#pragma once

#include "SessionPanel.h"

#include "AutoMountNetworkDrive.h"

#include <QSharedPointer>

class TXLogItem;
class TXLogManager;

/// What the library tells of the network drives, live: the lines of the application's log that
/// speak of drives, and the signals of the manager.
class DriveSessionPanel final : public SessionPanel
{
    Q_OBJECT

public:
    explicit DriveSessionPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void addEntry(QSharedPointer<TXLogItem> entry);
    void addState(NetworkDriveConnectionState state, AutoMountNetworkDrive drive);
    void addStart();
    void addStop();

private:
    QSharedPointer<TXLogManager> log;
};
