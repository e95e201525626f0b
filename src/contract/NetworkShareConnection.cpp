#include "NetworkShareConnection.h"

#include "GvfsPath.h"
#include "NetworkDriveFolder.h"
#include "ProgramEnvironment.h"

#include <QProcess>

#include <algorithm>
#include <optional>

namespace {

/// gvfs shows a share a moment after it is mounted, later when its FUSE part is only just starting.
constexpr int kPathLooks = 12;

QStringList unmountArguments(const QString &location)
{
    // By force: files that somebody has left open must not keep the old log-in alive, with which a
    // wrong password would look right at the next try.
    return {QStringLiteral("mount"), QStringLiteral("-u"), QStringLiteral("-f"), location};
}

/// By a program that outlives this one.
void unmountAlone(const QString &location)
{
    QProcess gio;
    gio.setProgram(ProgramEnvironment::find(QStringLiteral("gio")));
    gio.setArguments(unmountArguments(location));
    gio.setStandardInputFile(QProcess::nullDevice());
    gio.setStandardOutputFile(QProcess::nullDevice());
    gio.setStandardErrorFile(QProcess::nullDevice());
    if (!gio.program().isEmpty()) {
        gio.startDetached();
    }
}

bool hasLinkInto(const QString &path)
{
    const QList<QChar> letters = NetworkDriveFolder::letters();
    return std::any_of(letters.cbegin(), letters.cend(), [&path](QChar letter) {
        return (NetworkDriveFolder::target(letter) + u'/').startsWith(path + u'/');
    });
}

} // namespace

NetworkShareConnection::NetworkShareConnection(const QString &location,
                                               const NetworkDriveTiming &timing, QObject *parent)
    : QObject(parent)
    , location(location)
    , timing(timing)
    , program(this)
    , timer(this)
{
    timer.setSingleShot(true);
    connect(&timer, SIGNAL(timeout()), this, SLOT(timedOut()));
    connect(&program, SIGNAL(finished(ProgramResult)), this, SLOT(programEnded(ProgramResult)));
}

NetworkShareConnection::~NetworkShareConnection()
{
    program.cancel();
    if (isOurs && path.isEmpty()) {
        unmountAlone(location);
    }
}

bool NetworkShareConnection::join(const QObject *user, const NetworkCredentials &wanted)
{
    if (!users.isEmpty() && !(wanted == credentials)) {
        return false;
    }
    credentials = wanted;
    users.insert(user);
    if (step == Step::Idle) {
        mount();
    }
    return true;
}

void NetworkShareConnection::leave(const QObject *user)
{
    if (users.remove(user) && users.isEmpty()) {
        close();
    }
}

void NetworkShareConnection::timedOut()
{
    if (step == Step::Locating) {
        locate();
    } else if (step == Step::Abandoning) {
        program.cancel();
        closeMounted();
    } else {
        look();
    }
}

void NetworkShareConnection::programEnded(const ProgramResult &result)
{
    if (step == Step::Showing) {
        listed(result);
    } else {
        gioEnded({result, location});
    }
}

void NetworkShareConnection::gioEnded(const GioAnswer &answer)
{
    switch (step) {
    case Step::Mounting:
        mounted(answer);
        break;
    case Step::Abandoning:
        abandoned(answer);
        break;
    case Step::Locating:
        located(answer);
        break;
    case Step::Looking:
        looked(answer);
        break;
    case Step::Remounting:
        unmountedToRemount(answer);
        break;
    case Step::GivingUp:
        isOurs = !answer.isUnmounted();
        tellFailure(reasonToGiveUp);
        break;
    case Step::Closing:
        isOurs = !answer.isUnmounted();
        finishClosing();
        break;
    case Step::Idle:
    case Step::Showing:
    case Step::Watching:
        break;
    }
}

void NetworkShareConnection::mount()
{
    const QString problem = credentials.problem();
    if (!problem.isEmpty()) {
        fail(problem);
        return;
    }
    // Also when this is cut off: gvfs may go on with it.
    wasOursBefore = isOurs;
    isOurs = true;
    if (credentials.areAnonymous()) {
        runGio(Step::Mounting, {QStringLiteral("mount"), QStringLiteral("-a"), location});
    } else {
        runGio(Step::Mounting, {QStringLiteral("mount"), location}, credentials.answers());
    }
}

void NetworkShareConnection::mounted(const GioAnswer &answer)
{
    noteMounting(answer);
    if (answer.isMounted()) {
        pathLooks = kPathLooks;
        locate();
    } else {
        fail(answer.reason(credentials), answer.isRefused());
    }
}

void NetworkShareConnection::noteMounting(const GioAnswer &answer)
{
    const bool mayHaveMounted =
        answer.isMounted() || answer.result.end == ProgramResult::End::TimedOut;
    isOurs = answer.wasMounted() ? wasOursBefore : mayHaveMounted;
}

void NetworkShareConnection::abandoned(const GioAnswer &answer)
{
    timer.stop();
    noteMounting(answer);
    closeMounted();
}

void NetworkShareConnection::locate()
{
    runGio(Step::Locating, {QStringLiteral("info"), location + u'/'});
}

void NetworkShareConnection::located(const GioAnswer &answer)
{
    if (!answer.result.isGood()) {
        giveUp(answer.reason(credentials));
    } else if (const QString found = answer.localPath(); !found.isEmpty()) {
        show(found);
    } else {
        locateAgain();
    }
}

void NetworkShareConnection::show(const QString &found)
{
    foundPath = found;
    const std::optional<GvfsPath> gvfs = GvfsPath::of(found);
    if (gvfs) {
        step = Step::Showing;
        program.start(QStringLiteral("ls"), gvfs->listArguments(), {}, timing.step);
    } else {
        shown();
    }
}

void NetworkShareConnection::listed(const ProgramResult &result)
{
    switch (GvfsPath::of(foundPath).value_or(GvfsPath()).standing(result)) {
    case GvfsPath::Standing::Connected:
        shown();
        break;
    case GvfsPath::Standing::Gone:
        locateAgain();
        break;
    case GvfsPath::Standing::Unknown:
        giveUp(QStringLiteral("the folder in which gvfs shows the shares does not answer"));
        break;
    }
}

void NetworkShareConnection::shown()
{
    // Before the drives make theirs.
    isOurs = isOurs || hasLinkInto(foundPath);
    step = Step::Watching;
    path = foundPath;
    timer.start(timing.check);
    emit connected(path);
}

void NetworkShareConnection::locateAgain()
{
    if (--pathLooks > 0) {
        step = Step::Locating;
        timer.start(timing.path);
    } else {
        giveUp(QStringLiteral("its files cannot be reached as those of a folder; Debian's package "
                              "gvfs-fuse or the device /dev/fuse is missing"));
    }
}

void NetworkShareConnection::look()
{
    runGio(Step::Looking, {QStringLiteral("info"), location + u'/'});
}

void NetworkShareConnection::looked(const GioAnswer &answer)
{
    if (answer.result.isGood() && answer.localPath() == path) {
        step = Step::Watching;
        timer.start(timing.check);
        emit answered();
        return;
    }
    path.clear();
    reasonToGiveUp = answer.result.isGood() ? QStringLiteral("its files cannot be reached any more")
                                            : answer.reason(credentials);
    emit lost(reasonToGiveUp);
    if (isOurs) {
        unmount(Step::Remounting);
    } else {
        mount();
    }
}

void NetworkShareConnection::unmount(Step reasonToUnmount)
{
    runGio(reasonToUnmount, unmountArguments(location));
}

void NetworkShareConnection::unmountedToRemount(const GioAnswer &answer)
{
    isOurs = !answer.isUnmounted();
    // What gvfs cannot let go, since the server is mute, it cannot connect anew either.
    if (isOurs) {
        tellFailure(reasonToGiveUp);
    } else {
        mount();
    }
}

void NetworkShareConnection::giveUp(const QString &reason)
{
    if (isOurs) {
        reasonToGiveUp = reason;
        unmount(Step::GivingUp);
    } else {
        fail(reason);
    }
}

void NetworkShareConnection::fail(const QString &reason, bool isRefused)
{
    if (isOurs) {
        users.clear();
        unmount(Step::Closing);
        emit failed(reason, isRefused);
    } else {
        tellFailure(reason, isRefused);
    }
}

void NetworkShareConnection::tellFailure(const QString &reason, bool isRefused)
{
    users.clear();
    finishClosing();
    emit failed(reason, isRefused);
}

void NetworkShareConnection::close()
{
    timer.stop();
    path.clear();
    if (step == Step::Mounting) {
        step = Step::Abandoning;
        timer.start(timing.abandon);
    } else if (step == Step::Remounting || step == Step::GivingUp) {
        step = Step::Closing;
    } else if (step != Step::Abandoning && step != Step::Closing) {
        program.cancel();
        closeMounted();
    }
}

void NetworkShareConnection::closeMounted()
{
    if (isOurs) {
        unmount(Step::Closing);
    } else {
        finishClosing();
    }
}

void NetworkShareConnection::finishClosing()
{
    step = Step::Idle;
    if (users.isEmpty()) {
        emit closed();
    } else {
        mount();
    }
}

void NetworkShareConnection::runGio(Step nextStep, const QStringList &arguments,
                                    const QByteArray &input)
{
    step = nextStep;
    program.start(QStringLiteral("gio"), arguments, input, timing.step);
}
