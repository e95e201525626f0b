#include "NetworkDriveConnection.h"

#include "DriveLetters.h"
#include "GioAnswer.h"
#include "NetworkCredentials.h"
#include "NetworkDriveFolder.h"
#include "NetworkShare.h"
#include "NetworkShareConnection.h"
#include "TXLogItem.h"
#include "TXLogPrint.h"

#include <QUrl>

#include <optional>

namespace {

/// With a slash before it; empty for the share itself.
QString encodedPath(const QString &folder)
{
    if (folder.isEmpty()) {
        return {};
    }
    QUrl url;
    url.setPath(u'/' + folder, QUrl::DecodedMode);
    return url.path(QUrl::FullyEncoded);
}

} // namespace

NetworkDriveConnection::NetworkDriveConnection(const AutoMountNetworkDrive &drive,
                                               NetworkShareConnection *share,
                                               const NetworkDriveTiming &timing, QObject *parent)
    : QObject(parent)
    , drive(drive)
    , share(share)
    , timing(timing)
    , letter(DriveLetters::letterOf(drive.getMountPoint()))
    , timer(this)
    , program(this)
    , refusalWait(timing.retry)
{
    if (const std::optional<NetworkShare> place = NetworkShare::fromUrl(drive.getUrl())) {
        location = place->location;
        folder = place->folder;
    }
    timer.setSingleShot(true);
    connect(&timer, SIGNAL(timeout()), this, SLOT(attempt()));
    connect(&program, SIGNAL(finished(ProgramResult)), this, SLOT(programEnded(ProgramResult)));
}

NetworkDriveConnection::~NetworkDriveConnection() = default;

void NetworkDriveConnection::open()
{
    attempt();
}

void NetworkDriveConnection::close()
{
    disconnect(this, SIGNAL(stateChanged(NetworkDriveConnectionState)), nullptr, nullptr);
    timer.stop();
    if (currentState == NetworkDriveConnected) {
        TXLogPrint(name() + QStringLiteral(" is disconnected."), TXLogItem::Information);
    }
    unlink();
    leave();
    setState(NetworkDriveDisconnected);
}

void NetworkDriveConnection::attempt()
{
    const QString target = NetworkDriveFolder::target(letter);
    if (!share) {
        fail(NetworkDriveReconnectionFailed,
             QStringLiteral("its address names no host and share of a network that is known here"));
    } else if (letter.isNull()) {
        fail(NetworkDriveReconnectionFailed, QStringLiteral("its mount point is no drive letter"));
    } else if (!GvfsPath::of(target)) {
        if (NetworkDriveFolder::letters().contains(letter)) {
            letterIsTaken();
        } else {
            attemptToJoin();
        }
    } else if (target == foreignTarget) {
        askForOldLink(Question::OldLinkBeforeJoining);
    } else {
        // It may be one that an earlier run has left for this drive.
        attemptToJoin();
    }
}

void NetworkDriveConnection::attemptToJoin()
{
    if (join()) {
        if (!share->localPath().isEmpty()) {
            shareConnected(share->localPath());
        }
    } else {
        fail(NetworkDriveReconnectionFailed,
             QStringLiteral("another drive has connected its share with another user name, domain "
                            "or password"));
        retry();
    }
}

bool NetworkDriveConnection::join()
{
    if (joined) {
        return true;
    }
    joined = true;
    connect(share, SIGNAL(connected(QString)), this, SLOT(shareConnected(QString)));
    connect(share, SIGNAL(answered()), this, SLOT(shareAnswered()));
    connect(share, SIGNAL(lost(QString)), this, SLOT(shareLost(QString)));
    connect(share, SIGNAL(failed(QString, bool)), this, SLOT(shareFailed(QString, bool)));
    const bool isWelcome = share->join(this, NetworkCredentials::of(drive));
    if (!isWelcome) {
        leave();
    }
    return isWelcome;
}

void NetworkDriveConnection::leave()
{
    program.cancel();
    if (joined) {
        joined = false;
        share->disconnect(this);
        share->leave(this);
    }
}

void NetworkDriveConnection::shareConnected(const QString &path)
{
    timer.stop();
    program.cancel();
    if (folder.isEmpty()) {
        link(path);
    } else {
        askForFolder(Question::Folder);
    }
}

void NetworkDriveConnection::shareAnswered()
{
    if (linkTarget.isEmpty() || program.isRunning()) {
        return;
    }
    // The folder of the links is the user's, who may have taken ours away.
    if (NetworkDriveFolder::target(letter) != linkTarget) {
        link(QString(linkTarget));
    } else if (!folder.isEmpty()) {
        askForFolder(Question::FolderAgain);
    }
}

void NetworkDriveConnection::shareLost(const QString &reason)
{
    timer.stop();
    program.cancel();
    unlink();
    TXLogPrint(name() + QStringLiteral(" was lost: %1.").arg(reason), TXLogItem::Warning);
    setState(NetworkDriveDisconnected);
}

void NetworkDriveConnection::shareFailed(const QString &reason, bool isRefused)
{
    leave();
    retryLater(isRefused);
    fail(NetworkDriveReconnectionFailed, reason);
}

void NetworkDriveConnection::programEnded(const ProgramResult &result)
{
    switch (question) {
    case Question::OldLinkBeforeJoining:
    case Question::OldLinkBeforeLinking:
        oldLinkListed(GvfsPath::of(oldTarget).value_or(GvfsPath()).standing(result));
        break;
    case Question::Folder:
    case Question::FolderAgain:
        folderAnswered(result);
        break;
    }
}

void NetworkDriveConnection::askForOldLink(Question why)
{
    question = why;
    oldTarget = NetworkDriveFolder::target(letter);
    program.start(QStringLiteral("ls"),
                  GvfsPath::of(oldTarget).value_or(GvfsPath()).listArguments(), {}, timing.step);
}

void NetworkDriveConnection::oldLinkListed(GvfsPath::Standing standing)
{
    if (standing == GvfsPath::Standing::Connected) {
        foreignTarget = oldTarget;
        letterIsTaken();
    } else if (standing == GvfsPath::Standing::Unknown) {
        leave();
        fail(NetworkDriveReconnectionFailed,
             QStringLiteral("its letter has a link into a folder that does not answer"));
        retry();
    } else if (question == Question::OldLinkBeforeLinking) {
        NetworkDriveFolder::remove(letter, oldTarget);
        place();
    } else {
        attemptToJoin();
    }
}

void NetworkDriveConnection::askForFolder(Question why)
{
    question = why;
    program.start(QStringLiteral("gio"), {QStringLiteral("info"), location + encodedPath(folder)},
                  {}, timing.step);
}

void NetworkDriveConnection::folderAnswered(const ProgramResult &result)
{
    const GioAnswer answer{result, location + encodedPath(folder)};
    if (!result.isGood() || answer.localPath().isEmpty()) {
        unlink();
        fail(NetworkDriveReconnectionFailed,
             QStringLiteral("the folder in the share cannot be reached: %1")
                 .arg(answer.reason(NetworkCredentials::of(drive))));
        retry();
    } else if (question == Question::Folder) {
        link(answer.localPath());
    }
}

void NetworkDriveConnection::link(const QString &target)
{
    wantedTarget = target;
    linkTarget.clear();
    const QString present = NetworkDriveFolder::target(letter);
    if (present != wantedTarget && GvfsPath::of(present)) {
        askForOldLink(Question::OldLinkBeforeLinking);
    } else {
        place();
    }
}

void NetworkDriveConnection::place()
{
    if (NetworkDriveFolder::place(letter, wantedTarget)) {
        linkTarget = wantedTarget;
        foreignTarget.clear();
        loggedReason.clear();
        refusalWait = timing.retry;
        if (currentState != NetworkDriveConnected) {
            TXLogPrint(name() + QStringLiteral(" is connected."), TXLogItem::Information);
        }
        setState(NetworkDriveConnected);
    } else if (NetworkDriveFolder::letters().contains(letter)) {
        letterIsTaken();
    } else {
        fail(NetworkDriveReconnectionFailed,
             QStringLiteral("no link can be made in the folder \"%1\"")
                 .arg(NetworkDriveFolder::path()));
        retry();
    }
}

void NetworkDriveConnection::letterIsTaken()
{
    leave();
    fail(NetworkDriveLetterTaken, QStringLiteral("its letter is used by something else"));
    retry();
}

void NetworkDriveConnection::unlink()
{
    if (!linkTarget.isEmpty()) {
        NetworkDriveFolder::remove(letter, linkTarget);
        linkTarget.clear();
    }
}

void NetworkDriveConnection::fail(NetworkDriveConnectionState state, const QString &reason)
{
    if (reason != loggedReason) {
        loggedReason = reason;
        TXLogPrint(name() + QStringLiteral(" cannot be connected: %1.").arg(reason),
                   TXLogItem::Warning);
    }
    setState(state);
}

void NetworkDriveConnection::retry()
{
    timer.start(timing.retry);
}

void NetworkDriveConnection::retryLater(bool isRefused)
{
    if (isRefused) {
        refusalWait = refusalWait < timing.longestRetry / 2 ? refusalWait * 2 : timing.longestRetry;
    }
    timer.start(isRefused ? refusalWait : timing.retry);
}

void NetworkDriveConnection::setState(NetworkDriveConnectionState state)
{
    if (currentState != state) {
        currentState = state;
        emit stateChanged(state);
    }
}

QString NetworkDriveConnection::name() const
{
    const QString address = location.isEmpty()
        ? QString()
        : QStringLiteral(" (%1)").arg(location + encodedPath(folder));
    return QStringLiteral("Network drive %1").arg(drive.getMountPoint()) + address;
}
