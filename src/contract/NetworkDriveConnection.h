#pragma once

#include "AutoMountNetworkDrive.h"
#include "GvfsPath.h"
#include "NetworkDriveTiming.h"
#include "ProgramRun.h"
#include "TXCoreCommonExport.h"

#include <QObject>
#include <QString>
#include <QTimer>

class NetworkShareConnection;

/// Keeps one network drive connected: has its share connected and makes the link of its letter,
/// which leads to the folder of the drive in the share. Tries again and again what has failed; less
/// and less often when it is the log-in that was refused.
///
/// A folder in the share is looked for each time when the share has answered: the link is there
/// while the folder is.
///
/// The letter is taken while its entry in the user's folder is anything but a link to this drive,
/// or a link that a program which was killed has left behind: one into a share that is not
/// connected.
///
/// Tells the application's log when the drive is connected, when it is lost, and why it cannot be
/// connected; the same failure only once. Neither user nor password is told.
///
/// Thread: that of the object, which needs an event loop. Nothing here waits: what takes time runs
/// in other programs.
class TXCORECOMMON_PRIVATE_EXPORT NetworkDriveConnection : public QObject
{
    Q_OBJECT

public:
    /// The share is that of the drive's address, null when it names none; it outlives this. Other
    /// drives may have the same.
    NetworkDriveConnection(const AutoMountNetworkDrive &drive, NetworkShareConnection *share,
                           const NetworkDriveTiming &timing, QObject *parent = nullptr);

    /// Leaves the share connected and the link in place, as they are.
    ~NetworkDriveConnection() override;

    /// Begins; stateChanged() tells how it goes on, also from within this call.
    void open();

    /// Takes the link away at once and gives the share up. Nothing is emitted any more.
    void close();

    /// How the drive stands. Disconnected at first.
    [[nodiscard]] NetworkDriveConnectionState state() const { return currentState; }

signals:
    /// The drive stands differently now.
    void stateChanged(NetworkDriveConnectionState state);

private slots:
    void attempt();
    void shareConnected(const QString &path);
    void shareAnswered();
    void shareLost(const QString &reason);
    void shareFailed(const QString &reason, bool isRefused);
    void programEnded(const ProgramResult &result);

private:
    /// What another program is asked.
    enum class Question {
        OldLinkBeforeJoining, ///< whether the link in the way still leads into a connected share
        OldLinkBeforeLinking, ///< the same, when ours is to be made
        Folder, ///< where the folder in the share is found
        FolderAgain, ///< whether it still is
    };

    void attemptToJoin();
    [[nodiscard]] bool join();
    void leave();
    void askForOldLink(Question why);
    void oldLinkListed(GvfsPath::Standing standing);
    void askForFolder(Question why);
    void folderAnswered(const ProgramResult &result);
    void link(const QString &target);
    void place();
    void letterIsTaken();
    void unlink();
    void fail(NetworkDriveConnectionState state, const QString &reason);
    void retry();
    void retryLater(bool isRefused);
    void setState(NetworkDriveConnectionState state);
    [[nodiscard]] QString name() const;

    const AutoMountNetworkDrive drive;
    NetworkShareConnection *const share;
    const NetworkDriveTiming timing;
    QChar letter;
    QString location;
    QString folder;
    QTimer timer;
    ProgramRun program;
    Question question = Question::Folder;
    bool joined = false;
    int refusalWait;
    /// Where our link is to lead.
    QString wantedTarget;
    /// Where the link that was asked for leads.
    QString oldTarget;
    /// Where our link leads; empty without one.
    QString linkTarget;
    /// Where the link of somebody else leads, once that is known.
    QString foreignTarget;
    QString loggedReason;
    NetworkDriveConnectionState currentState = NetworkDriveDisconnected;
};
