#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <filesystem>

/// A program named "gio" in front of the PATH that behaves as told and writes down what it was
/// asked for. Shares appear as folders of a gvfs folder of its own. Ends with the object, which
/// puts the PATH back.
class StandInGio
{
public:
    StandInGio()
        : oldPath(qgetenv("PATH"))
    {
        QDir().mkpath(gvfs());
        write("gio", kScript);
        QFile::setPermissions(folder.filePath("gio"), QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", folder.path().toUtf8() + ':' + oldPath);
        qputenv("STAND_IN", folder.path().toUtf8());
    }

    ~StandInGio() { qputenv("PATH", oldPath); }

    StandInGio(const StandInGio &) = delete;
    StandInGio &operator=(const StandInGio &) = delete;
    StandInGio(StandInGio &&) = delete;
    StandInGio &operator=(StandInGio &&) = delete;

    /// The program is not found any more, and no other one of that name.
    void uninstall() { qputenv("PATH", folder.filePath("empty").toUtf8()); }

    /// The folder of all shares does not answer any more to who lists it.
    void hangFolder() const
    {
        write("ls", "#!/bin/sh\nexec sleep 600\n");
        QFile::setPermissions(folder.filePath("ls"), QFile::ReadOwner | QFile::ExeOwner);
    }

    /// From now on the step ("mount", "info", "unmount") of a share goes so: "refuse" (the log-in),
    /// "check" (refuse the password "wrong"), "down", "hang", "nopath", "tell" (the log-in, as an
    /// error), "wait" (until it is another); empty for well. The step "folder" is what is below the
    /// share: "gone" or there.
    void set(const QString &step, const QString &location, const QByteArray &mode) const
    {
        write(key(location) + '.' + step, mode);
    }

    /// What was asked for, "mount -u smb://nas/share", in order.
    QStringList calls() const
    {
        return QString::fromUtf8(read("calls")).split('\n', Qt::SkipEmptyParts);
    }

    /// The file of all calls.
    QString log() const { return folder.filePath("calls"); }

    int count(const QString &call) const { return int(calls().count(call)); }

    void forgetCalls() const { QFile::remove(folder.filePath("calls")); }

    /// What the last mounting of the share got as its standard input.
    QByteArray input(const QString &location) const { return read(key(location) + ".stdin"); }

    /// The arguments and the environment of all calls.
    QByteArray surroundings() const { return read("surroundings"); }

    /// Whether a call is still at work.
    bool isRunning() const
    {
        const QList<QByteArray> processes = read("processes").split('\n');
        return std::any_of(processes.cbegin(), processes.cend(), [](const QByteArray &process) {
            QFile line("/proc/" + QString::fromLatin1(process) + "/cmdline");
            // One that is dead and not buried yet has none.
            return !process.isEmpty() && line.open(QFile::ReadOnly) && !line.readAll().isEmpty();
        });
    }

    bool isMounted(const QString &location) const { return QDir(path(location)).exists(); }

    /// Connects a share as somebody else.
    void mount(const QString &location) const { QDir().mkpath(path(location)); }

    /// Where a share is shown.
    QString path(const QString &location) const { return gvfs() + "/smb-share:" + key(location); }

    QString gvfs() const { return folder.filePath("gvfs"); }

private:
    static inline const QByteArray kScript = R"script(#!/bin/sh
cd "$STAND_IN" || exit 9
for last; do :; done
location=$(printf %s "$last" | cut -d/ -f1-4)
inside=$(printf %s "$last" | cut -s -d/ -f5-)
key=$(printf %s "$location" | tr -c A-Za-z0-9 _)
step=$1
[ "$2" = -u ] && step=unmount
tr '\0' '\n' < /proc/$$/cmdline >> surroundings
tr '\0' '\n' < /proc/$$/environ >> surroundings
echo $$ >> processes
echo "$*" >> calls
mode=$(cat "$key.$step" 2>/dev/null)
complain() { echo "gio: $location/: $1" >&2; exit 2; }
[ "$mode" = hang ] && exec sleep 600
while [ "$mode" = wait ]; do sleep 0.02; mode=$(cat "$key.$step" || echo wait); done
[ "$mode" = down ] && complain "Connection refused"
case $step in
mount)
  [ -d "gvfs/smb-share:$key" ] && complain "Location is already mounted"
  cat > "$key.stdin"
  [ "$mode" = check ] && grep -q wrong "$key.stdin" && mode=refuse
  [ "$mode" = refuse ] && echo "Authentication Required" && exit 2
  [ "$mode" = tell ] && complain "refused $(head -c 3 "$key.stdin")"
  mkdir "gvfs/smb-share:$key" ;;
info)
  [ -d "gvfs/smb-share:$key" ] || complain "The specified location is not mounted"
  [ -n "$inside" ] && [ "$(cat "$key.folder" 2>/dev/null)" = gone ] && inside=missing
  [ "$inside" = missing ] && complain "No such file or directory"
  [ "$mode" = nopath ] && exit 0
  echo "uri: $last"
  echo "local path: $PWD/gvfs/smb-share:$key${inside:+/}$inside" ;;
unmount)
  rmdir "gvfs/smb-share:$key" 2>/dev/null || complain "The specified location is not mounted" ;;
esac
)script";

    static QString key(const QString &location)
    {
        QString text = location;
        for (QChar &character : text) {
            const bool isPlain = character.unicode() < 128 && character.isLetterOrNumber();
            character = isPlain ? character : QChar('_');
        }
        return text;
    }

    QByteArray read(const QString &name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    // In one step, since the program may read it meanwhile.
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(folder.filePath(name + ".new"));
        if (!file.open(QFile::WriteOnly) || file.write(content) != content.size()) {
            qFatal("no stand-in can be written");
        }
        file.close();
        std::filesystem::rename(folder.filePath(name + ".new").toStdString(),
                                folder.filePath(name).toStdString());
    }

    QTemporaryDir folder;
    QByteArray oldPath;
};
