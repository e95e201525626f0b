#include "ExampleDrives.h"

#include "AutoMountNetworkDrive.h"
#include "DriveLetters.h"
#include "TXAutoMountManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QStringList>
#include <QThread>
#include <QUrl>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace {

const QString kMountPointKey = QStringLiteral("NetworkDriveMountPoint");
const QString kMarkKey = QStringLiteral("GalleryDrive");
const QString kShareName = QStringLiteral("smb-share:");

/// In the order in which they are tried: the first letters are those of disks on many systems.
const QString kLetters = QStringLiteral("NOPQRSTUVWXYZABCDEFGHIJKLM");

constexpr int kLongestWaitMilliseconds = 2000;
constexpr int kLookMilliseconds = 20;

QSet<QChar> takenLetters()
{
    QSet<QChar> taken;
    const QStringList inUse = DriveLetters::inUse();
    for (const QString &mountPoint : inUse) {
        taken.insert(DriveLetters::letterOf(mountPoint));
    }
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    for (int row = 0; row < manager->count(); ++row) {
        taken.insert(DriveLetters::letterOf(manager->getDrive(row).getMountPoint()));
    }
    return taken;
}

QString freeMountPoint()
{
    const QSet<QChar> taken = takenLetters();
    for (const QChar letter : kLetters) {
        if (!taken.contains(letter)) {
            return DriveLetters::mountPoint(letter);
        }
    }
    return {};
}

QString linkOf(const AutoMountNetworkDrive &drive)
{
    return ExampleDrives::linkFolder() + u'/' + drive.getMountPoint().left(1);
}

/// What the name of a connected share tells: "smb-share:port=4450,server=nas,share=pictures". The
/// order is not the same everywhere.
QSet<QString> partsOf(const QString &folder)
{
    const QString name = QFileInfo(folder).fileName();
    if (!name.startsWith(kShareName)) {
        return {};
    }
    const QStringList parts = name.mid(kShareName.size()).split(u',');
    return {parts.cbegin(), parts.cend()};
}

/// The port tells it: a link may be another drive's by now.
bool isLinkTo(const QString &link, const QUrl &address)
{
    const QSet<QString> wanted = {
        QStringLiteral("server=%1").arg(address.host()),
        QStringLiteral("port=%1").arg(address.port()),
        QStringLiteral("share=%1").arg(address.path().remove(u'/').toLower()),
    };
    return partsOf(QFileInfo(link).symLinkTarget()).contains(wanted);
}

/// Reads the names that stand beside the folder, and never looks at the folder itself: its server
/// may be mute.
bool isThere(const QString &folder)
{
    std::error_code error;
    const std::filesystem::path path(folder.toStdU16String());
    std::filesystem::directory_iterator entry(path.parent_path(), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        if (entry->path().filename() == path.filename()) {
            return true;
        }
    }
    return false;
}

/// Nobody waits for it: the server is gone as a rule.
void disconnectShare(QUrl address)
{
    QProcess program;
    address.setUserInfo({});
    program.setProgram(QStringLiteral("gio"));
    program.setArguments({QStringLiteral("mount"), QStringLiteral("-u"), address.toString()});
    program.setStandardInputFile(QProcess::nullDevice());
    program.setStandardOutputFile(QProcess::nullDevice());
    program.setStandardErrorFile(QProcess::nullDevice());
    program.startDetached();
}

/// With the share that it leads to. Neither is touched when the link is somebody else's.
void removeLeftLink(const AutoMountNetworkDrive &drive)
{
    const QString link = linkOf(drive);
    if (!isLinkTo(link, drive.getUrl())) {
        return;
    }
    if (isThere(QFileInfo(link).symLinkTarget())) {
        disconnectShare(drive.getUrl());
    }
    QFile::remove(link);
}

/// Where the links of the marked drives lead that are connected. Not where letters are no links.
QStringList connectedFolders()
{
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    QStringList folders;
    for (int row = 0; row < manager->count(); ++row) {
        const AutoMountNetworkDrive drive = manager->getDrive(row);
        const QString folder = QFileInfo(linkOf(drive)).symLinkTarget();
        if (ExampleDrives::isMarked(drive) && drive.getStatus() == NetworkDriveConnected
            && !folder.isEmpty()) {
            folders.append(folder);
        }
    }
    return folders;
}

bool isAnyThere(const QStringList &folders)
{
    return std::any_of(folders.cbegin(), folders.cend(), isThere);
}

template<class Condition>
int countDrives(Condition condition)
{
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    int count = 0;
    for (int row = 0; row < manager->count(); ++row) {
        const AutoMountNetworkDrive drive = manager->getDrive(row);
        count += ExampleDrives::isMarked(drive) && condition(drive) ? 1 : 0;
    }
    return count;
}

/// What is not decided yet may be connected after it was asked to go, when nobody is there any
/// more.
void waitForDecisions()
{
    QElapsedTimer timer;
    timer.start();
    while (TXAutoMountManager::getInstance()->isRunning() && ExampleDrives::undecidedCount() > 0
           && timer.elapsed() < kLongestWaitMilliseconds) {
        // The manager hears of states, and of new drives, in events.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(kLookMilliseconds);
    }
}

} // namespace

QString ExampleDrives::linkFolder()
{
    return QDir::homePath() + QStringLiteral("/Network Drives");
}

ExampleDrives::ExampleDrives(QAbstractItemModel *model)
    : model(model)
{ }

QString ExampleDrives::add(const QUrl &address, bool isActivated)
{
    const QString mountPoint = freeMountPoint();
    if (!mountPoint.isEmpty()) {
        addAt(mountPoint, address, isActivated);
    }
    return mountPoint;
}

void ExampleDrives::addAt(const QString &mountPoint, const QUrl &address, bool isActivated)
{
    if (!model) {
        return;
    }
    AutoMountNetworkDrive drive;
    drive.setUrl(address);
    drive.setExtParameters({{kMountPointKey, mountPoint}, {kMarkKey, true}});
    drive.setActivated(isActivated);
    model->insertRows(model->rowCount(), 1);
    model->setData(model->index(model->rowCount() - 1, 0), QVariant::fromValue(drive),
                   Qt::EditRole);
}

void ExampleDrives::removeAll()
{
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    if (!model || count() == 0) {
        return;
    }
    for (int row = manager->count() - 1; row >= 0; --row) {
        AutoMountNetworkDrive drive = manager->getDrive(row);
        if (isMarked(drive)) {
            drive.disconnectExplicitlyNetworkDrive();
            model->removeRows(row, 1);
        }
    }
    manager->saveDriveList();
}

void ExampleDrives::removeAllAndWait()
{
    waitForDecisions();
    const QStringList folders = connectedFolders();
    removeAll();
    // Done by the library beside this thread, which has no event loop any more.
    QElapsedTimer timer;
    timer.start();
    while (isAnyThere(folders) && timer.elapsed() < kLongestWaitMilliseconds) {
        QThread::msleep(kLookMilliseconds);
    }
}

void ExampleDrives::removeLeftovers()
{
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    for (int row = 0; row < manager->count(); ++row) {
        const AutoMountNetworkDrive drive = manager->getDrive(row);
        if (isMarked(drive)) {
            removeLeftLink(drive);
        }
    }
    removeAll();
}

bool ExampleDrives::isMarked(const AutoMountNetworkDrive &drive)
{
    return drive.getExtParameters().value(kMarkKey).toBool();
}

int ExampleDrives::count()
{
    return countDrives([](const AutoMountNetworkDrive &) { return true; });
}

int ExampleDrives::undecidedCount()
{
    return countDrives([](const AutoMountNetworkDrive &drive) {
        return drive.isActivated() && drive.getStatus() == NetworkDriveDisconnected;
    });
}
