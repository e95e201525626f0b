#include "GioAnswer.h"

namespace {

/// The last line that gio has written as an error, without its name and the share's.
QString lastWords(const QString &error, const QString &location)
{
    const QString words = error.trimmed().section(u'\n', -1).trimmed();
    const QString ownName = QStringLiteral("gio: ");
    if (!words.startsWith(ownName)) {
        return words;
    }
    // gvfs may write the address in another way, but always as a folder.
    const QString folderEnd = QStringLiteral("/: ");
    if (const qsizetype end = words.indexOf(folderEnd); end >= 0) {
        return words.mid(end + folderEnd.size());
    }
    const QString named = ownName + location + QStringLiteral(": ");
    return words.mid(words.startsWith(named) ? named.size() : ownName.size());
}

QString endedReason(const ProgramResult &result, QString words)
{
    if (words.isEmpty() && result.output.contains("Authentication Required")) {
        return QStringLiteral("the user name or the password was refused");
    }
    if (words.contains(u"not supported") || words.contains(u"implement mount")) {
        return words
            + QStringLiteral(" (Debian's package gvfs-backends may be missing, or there is no "
                             "session bus)");
    }
    return words.isEmpty() ? QStringLiteral("gio ended with code %1").arg(result.exitCode) : words;
}

} // namespace

bool GioAnswer::isMounted() const
{
    return result.isGood() || wasMounted();
}

bool GioAnswer::wasMounted() const
{
    return !result.isGood() && result.error.contains(u"already mounted");
}

bool GioAnswer::isRefused() const
{
    const bool isAskedAgain = result.output.contains("Authentication Required")
        && lastWords(result.error, location).isEmpty();
    return result.end == ProgramResult::End::Finished && !isMounted()
        && (isAskedAgain || result.error.contains(u"denied"));
}

bool GioAnswer::isUnmounted() const
{
    return result.isGood() || result.error.contains(u"not mounted");
}

QString GioAnswer::localPath() const
{
    const QByteArray key("local path: ");
    const QList<QByteArray> lines = result.output.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(key)) {
            return QString::fromUtf8(line.mid(key.size()));
        }
    }
    return {};
}

QString GioAnswer::reason(const NetworkCredentials &credentials) const
{
    const QString words = lastWords(result.error, location);
    switch (result.end) {
    case ProgramResult::End::NotInstalled:
        return QStringLiteral("the program gio is missing; Debian's packages libglib2.0-bin and "
                              "gvfs-backends are needed");
    case ProgramResult::End::TimedOut:
        return QStringLiteral("the server did not answer in time");
    case ProgramResult::End::Finished:
        return endedReason(result, credentials.isIn(words) ? QString() : words);
    case ProgramResult::End::Failed:
        break;
    }
    return QStringLiteral("the program gio could not be run");
}
