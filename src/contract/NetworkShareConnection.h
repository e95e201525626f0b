#pragma once

#include "GioAnswer.h"
#include "NetworkCredentials.h"
#include "NetworkDriveTiming.h"
#include "ProgramRun.h"
#include "TXCoreCommonExport.h"

#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

/// Keeps one share connected by the gio program while there are users, who are the connections of
/// its drives: mounts it, finds its path, looks again and again whether it still answers, and
/// mounts it anew when it does not. Unmounts it when the last user leaves.
///
/// A share that somebody else has mounted before is taken as it is, so that the credentials are not
/// tried, and it is never unmounted here. It counts as mounted by an earlier run, and so as the
/// own, when a link of the folder "Network Drives" leads into it.
///
/// Thread: that of the object, which needs an event loop. Nothing here waits: what takes time runs
/// in other programs.
class TXCORECOMMON_PRIVATE_EXPORT NetworkShareConnection : public QObject
{
    Q_OBJECT

public:
    /// The share as NetworkShare tells its location. Nothing is done before the first join().
    NetworkShareConnection(const QString &location, const NetworkDriveTiming &timing,
                           QObject *parent = nullptr);

    /// Leaves the share connected if it is. A program that still runs is killed; what it leaves
    /// half done, connecting or disconnecting, is unmounted by one that outlives this process.
    ~NetworkShareConnection() override;

    /// A user who wants the share connected. False, and nothing changed, when others have it
    /// connected with other credentials. While it is still being unmounted for those before, it is
    /// connected anew after that. Without user and password it is connected as a guest.
    ///
    /// Read localPath() after this; otherwise the signals tell, from within this call on.
    [[nodiscard]] bool join(const QObject *user, const NetworkCredentials &wanted);

    /// The user does not need the share any more; one that is not a user is ignored.
    void leave(const QObject *user);

    /// Whether nothing is connected and nothing runs.
    [[nodiscard]] bool isIdle() const { return step == Step::Idle; }

    /// Where the share is found among the files; empty while it is not connected.
    [[nodiscard]] QString localPath() const { return path; }

signals:
    /// The share is connected.
    void connected(const QString &localPath);
    /// The share was looked at and is still connected.
    void answered();
    /// The share does not answer any more and is about to be connected anew. No user may leave it
    /// while it hears this.
    void lost(const QString &reason);
    /// The share could not be connected; refused when the server did not want the log-in. It has no
    /// users any more: who wants to try again joins again, and so may others with other credentials
    /// meanwhile.
    void failed(const QString &reason, bool isRefused);
    /// Nothing is connected any more, and there is no user.
    void closed();

private slots:
    void timedOut();
    void programEnded(const ProgramResult &result);

private:
    enum class Step {
        Idle,
        Mounting,
        Locating, ///< asking gio for the path
        Showing, ///< asking whether gvfs shows the path
        Watching, ///< connected, until the next look
        Looking,
        Remounting, ///< unmounting a share that was lost, to mount it anew
        GivingUp, ///< unmounting a share that cannot be used
        Abandoning, ///< still mounting, for nobody
        Closing, ///< unmounting for good
    };

    void gioEnded(const GioAnswer &answer);
    void mount();
    void mounted(const GioAnswer &answer);
    void noteMounting(const GioAnswer &answer);
    void abandoned(const GioAnswer &answer);
    void locate();
    void located(const GioAnswer &answer);
    void show(const QString &found);
    void listed(const ProgramResult &result);
    void shown();
    void locateAgain();
    void look();
    void looked(const GioAnswer &answer);
    void unmount(Step reasonToUnmount);
    void unmountedToRemount(const GioAnswer &answer);
    void giveUp(const QString &reason);
    void fail(const QString &reason, bool isRefused = false);
    void tellFailure(const QString &reason, bool isRefused = false);
    void close();
    void closeMounted();
    void finishClosing();
    void runGio(Step nextStep, const QStringList &arguments, const QByteArray &input = {});

    const QString location;
    const NetworkDriveTiming timing;
    QSet<const QObject *> users;
    NetworkCredentials credentials;
    ProgramRun program;
    QTimer timer;
    Step step = Step::Idle;
    /// Empty while the share is not connected.
    QString path;
    /// What becomes the path when gvfs shows it.
    QString foundPath;
    QString reasonToGiveUp;
    int pathLooks = 0;
    /// Whether we have mounted the share, or may have.
    bool isOurs = false;
    bool wasOursBefore = false;
};
