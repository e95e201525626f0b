#include "LocalMessageBus.h"

#include "ChildProcess.h"

#include <QDir>
#include <QFile>

#include <csignal>

namespace {

constexpr int kStartMilliseconds = 30000;
constexpr int kEndMilliseconds = 3000;

const QString kConfiguration = QStringLiteral(R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <listen>unix:abstract=%1/abstract</listen>
  <auth>EXTERNAL</auth>
  <servicedir>%1/services</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
  <limit name="max_replies_per_connection">50000</limit>
</busconfig>
)");

} // namespace

LocalMessageBus::~LocalMessageBus()
{
    daemon.kill();
    daemon.waitForFinished(kEndMilliseconds);
}

bool LocalMessageBus::announce(const QString &service, const QString &command)
{
    return writeFile(QStringLiteral("services/%1.service").arg(service),
                     QStringLiteral("[D-BUS Service]\nName=%1\nExec=%2\n").arg(service, command));
}

bool LocalMessageBus::start()
{
    if (!writeFile(QStringLiteral("bus.conf"), kConfiguration.arg(folder.path()))) {
        return false;
    }
    daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    endWithThisThread(daemon);
    daemon.start(QStringLiteral("/usr/bin/dbus-daemon"),
                 {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                  QStringLiteral("--config-file=") + folder.filePath(QStringLiteral("bus.conf"))});
    if (!daemon.waitForReadyRead(kStartMilliseconds)) {
        return false;
    }
    // It prints the address of each socket that it listens at, in no order that it tells.
    return daemon.readLine().contains(';')
        && qputenv("DBUS_SESSION_BUS_ADDRESS", address().toUtf8());
}

QString LocalMessageBus::address() const
{
    return QStringLiteral("unix:path=") + socket();
}

QString LocalMessageBus::abstractAddress() const
{
    return QStringLiteral("unix:abstract=%1/abstract").arg(folder.path());
}

QString LocalMessageBus::socket() const
{
    return folder.filePath(QStringLiteral("bus"));
}

void LocalMessageBus::hold()
{
    ::kill(static_cast<pid_t>(daemon.processId()), SIGSTOP);
}

void LocalMessageBus::goOn()
{
    ::kill(static_cast<pid_t>(daemon.processId()), SIGCONT);
}

bool LocalMessageBus::writeFile(const QString &name, const QString &text) const
{
    QFile file(folder.filePath(name));
    const QByteArray bytes = text.toUtf8();
    return QDir(folder.path()).mkpath(QStringLiteral("services")) && file.open(QFile::WriteOnly)
        && file.write(bytes) == bytes.size();
}
