#include "DesktopMounts.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {

constexpr int kStartMilliseconds = 30000;
constexpr int kEndMilliseconds = 10000;
constexpr int kLookAgainMilliseconds = 10;

const QString kDaemon = QStringLiteral("/usr/libexec/gvfsd");
const QString kMetadata = QStringLiteral("/usr/libexec/gvfsd-metadata");

struct Needed
{
    QString program;
    QString package;
};

QList<Needed> neededPrograms()
{
    return {{QStringLiteral("dbus-daemon"), QStringLiteral("dbus-daemon")},
            {QStringLiteral("gdbus"), QStringLiteral("libglib2.0-bin")},
            {QStringLiteral("gio"), QStringLiteral("libglib2.0-bin")},
            {kDaemon, QStringLiteral("gvfs-daemons")},
            {kMetadata, QStringLiteral("gvfs-daemons")},
            {QStringLiteral("/usr/libexec/gvfsd-smb"), QStringLiteral("gvfs-backends")}};
}

bool canUseFuse()
{
    const int device = ::open("/dev/fuse", O_RDWR | O_CLOEXEC);
    if (device >= 0) {
        ::close(device);
    }
    return device >= 0 && !QStandardPaths::findExecutable(QStringLiteral("fusermount3")).isEmpty()
        && QFileInfo::exists(QStringLiteral("/usr/libexec/gvfsd-fuse"));
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// The services that were started with this folder as that of their session.
QList<pid_t> servicesIn(const QString &runtimeFolder)
{
    const QByteArray mark = "XDG_RUNTIME_DIR=" + QFile::encodeName(runtimeFolder);
    QList<pid_t> found;
    const QStringList processes =
        QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    for (const QString &process : processes) {
        const QString folder = QStringLiteral("/proc/") + process;
        if (contents(folder + QStringLiteral("/comm")).startsWith("gvfs")
            && contents(folder + QStringLiteral("/environ")).split('\0').contains(mark)) {
            found.append(process.toInt());
        }
    }
    return found;
}

} // namespace

DesktopMounts::~DesktopMounts()
{
    if (!bus) {
        return;
    }
    // Without the bus no service starts another one.
    bus.reset();
    unmountShareRoot();
    endProcesses();
    qputenv("XDG_RUNTIME_DIR", runtimeBefore);
}

bool DesktopMounts::start()
{
    failure = missingProgram();
    if (!failure.isEmpty() || !startBus() || !startDaemon()) {
        return false;
    }
    isFuseThere = fuse == Fuse::IfThere && canUseFuse() && waitForShareRoot();
    qInfo("%s",
          isFuseThere ? "connected shares have local paths (FUSE)"
                      : "connected shares have no local paths: there is no FUSE");
    return true;
}

QString DesktopMounts::shareRoot() const
{
    return runtime.filePath(QStringLiteral("gvfs"));
}

QString DesktopMounts::missingProgram() const
{
    const QList<Needed> programs = neededPrograms();
    for (const Needed &needed : programs) {
        if (QStandardPaths::findExecutable(needed.program).isEmpty()) {
            return QStringLiteral("%1 is missing; Debian's package %2 has it")
                .arg(needed.program, needed.package);
        }
    }
    return {};
}

bool DesktopMounts::startBus()
{
    runtimeBefore = qgetenv("XDG_RUNTIME_DIR");
    // A temporary folder is for its owner alone, as this one has to be.
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    // Else whoever asks for drives starts the services for telephones, cameras and the like.
    qputenv("GVFS_REMOTE_VOLUME_MONITOR_IGNORE", "1");
    bus = std::make_unique<LocalMessageBus>();
    const QString option = fuse == Fuse::Never ? QStringLiteral(" --no-fuse") : QString();
    const bool isUp = runtime.isValid()
        && bus->announce(QStringLiteral("org.gtk.vfs.Daemon"), kDaemon + option)
        && bus->announce(QStringLiteral("org.gtk.vfs.Metadata"), kMetadata) && bus->start();
    if (!isUp) {
        failure = QStringLiteral("the message bus does not start");
    }
    return isUp;
}

bool DesktopMounts::startDaemon()
{
    QProcess call;
    call.setProcessChannelMode(QProcess::MergedChannels);
    call.start(QStringLiteral("gdbus"),
               {QStringLiteral("call"), QStringLiteral("--session"), QStringLiteral("--dest"),
                QStringLiteral("org.freedesktop.DBus"), QStringLiteral("--object-path"),
                QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("--method"),
                QStringLiteral("org.freedesktop.DBus.StartServiceByName"),
                QStringLiteral("org.gtk.vfs.Daemon"), QStringLiteral("0")});
    const bool isUp = call.waitForFinished(kStartMilliseconds)
        && call.exitStatus() == QProcess::NormalExit && call.exitCode() == 0;
    if (!isUp) {
        failure = QStringLiteral("gvfsd does not start: ") + QString::fromUtf8(call.readAll());
    }
    return isUp;
}

/// gvfsd starts the file system by itself, beside its own start.
bool DesktopMounts::waitForShareRoot() const
{
    const QDeadlineTimer deadline(kStartMilliseconds);
    const int table = ::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC);
    // The system tells when the table has changed.
    pollfd change = {table, POLLPRI, 0};
    while (!isShareRootMounted() && !deadline.hasExpired()) {
        ::poll(&change, 1, static_cast<int>(deadline.remainingTime()));
    }
    ::close(table);
    // Looked at, it answers when it is ready.
    return isShareRootMounted() && QFileInfo(shareRoot()).isDir();
}

bool DesktopMounts::isShareRootMounted() const
{
    return contents(QStringLiteral("/proc/self/mountinfo"))
        .contains(' ' + QFile::encodeName(shareRoot()) + ' ');
}

void DesktopMounts::unmountShareRoot() const
{
    // Lazily: also under somebody who still looks at it, or when a server hangs.
    if (isShareRootMounted() && ::umount2(QFile::encodeName(shareRoot()), MNT_DETACH) != 0) {
        QProcess::execute(QStringLiteral("fusermount3"),
                          {QStringLiteral("-u"), QStringLiteral("-z"), shareRoot()});
    }
}

void DesktopMounts::endProcesses() const
{
    const QDeadlineTimer deadline(kEndMilliseconds);
    QList<pid_t> left = servicesIn(runtime.path());
    while (!left.isEmpty() && !deadline.hasExpired()) {
        for (const pid_t process : std::as_const(left)) {
            ::kill(process, SIGKILL);
        }
        // They are nobody's children here, so nobody tells of their end.
        ::poll(nullptr, 0, kLookAgainMilliseconds);
        left = servicesIn(runtime.path());
    }
}
