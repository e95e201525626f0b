#pragma once

#include "DesktopMounts.h"
#include "LocalSambaServer.h"
#include "NetworkDriveFolder.h"
#include "NetworkDriveWorker.h"
#include "TXAutoMountManager.h"
#include "TXLogItem.h"
#include "TXLogManager.h"
#include "TestBase.h"

#include <QFile>
#include <QUrl>

#include <memory>
#include <optional>

/// Longer than a server on this machine takes.
constexpr int kLongMilliseconds = 20'000;

inline TXAutoMountManager *manager()
{
    return TXAutoMountManager::getInstance();
}

inline int stateOf(int row)
{
    return manager()->getDrive(row).getStatus();
}

inline AutoMountNetworkDrive makeDrive(quint16 port, const QString &path, QChar letter = 'N',
                                       const QString &password = "s3cret")
{
    QUrl url;
    url.setScheme("AFP");
    url.setHost("127.0.0.1");
    url.setPort(port);
    url.setUserName("mia");
    url.setPassword(password);
    url.setPath("//" + path);
    AutoMountNetworkDrive drive({});
    drive.setUrl(url);
    drive.setExtParameters({{"NetworkDriveMountPoint", letter + QString(":/")}});
    drive.setActivated(true);
    return drive;
}

/// All lines of the log.
inline QString logText()
{
    QString text;
    for (const auto &item : TXLogManager::applicationLog()->rootItem()->children) {
        text += item->message.toString(nullptr) + '\n';
    }
    return text;
}

/// The path of a file in a drive.
inline QString inDrive(const QString &name, QChar letter = 'N')
{
    return NetworkDriveFolder::path() + '/' + letter + '/' + name;
}

inline bool write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    return file.open(QFile::WriteOnly) && file.write(content) == content.size();
}

inline QByteArray read(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// What a manager in these tests goes by, to be set before it is made: often, and with the time
/// that real programs need.
inline NetworkDriveTiming timingOfServers()
{
    NetworkDriveTiming timing;
    timing.check = 200;
    timing.retry = 200;
    timing.step = 4'000;
    return timing;
}

/// What the tests of the manager with a real server and the desktop's real services have in common.
///
/// Without FUSE the shares have no local paths, so that no drive can come to be connected; what can
/// be seen then is seen.
class MountedDrivesTest : public TestBase
{
protected:
    void prepare() override
    {
        TXLogManager::applicationLog()->reset();
        server = std::make_unique<LocalSambaServer>();
        QVERIFY2(server->start(), qPrintable(server->error()));
    }

    void finish() override
    {
        manager()->stop();
        while (manager()->count() > 0) {
            manager()->remove(manager()->count() - 1);
        }
        QTRY_VERIFY(NetworkDriveFolder::letters().isEmpty());
        server.reset();
        QVERIFY(!logText().contains("s3cret") && !logText().contains("mia"));
    }

    /// The desktop's services, once for all tests.
    void startMounts()
    {
        mounts.emplace();
        QVERIFY2(mounts->start(), qPrintable(mounts->error()));
    }

    void endMounts() { mounts.reset(); }

    /// Whether the drive of this row comes to this state.
    [[nodiscard]] bool waitForState(int row, int state) const
    {
        return QTest::qWaitFor([row, state] { return stateOf(row) == state; }, kLongMilliseconds);
    }

    std::optional<DesktopMounts> mounts;
    std::unique_ptr<LocalSambaServer> server;
};
