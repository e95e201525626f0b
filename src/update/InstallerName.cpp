#include "InstallerName.h"

#include <QChar>
#include <QStringView>

#include <algorithm>
#include <array>

namespace {

QStringView lastComponent(QStringView path)
{
    const qsizetype slash = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
    return path.mid(slash + 1);
}

/// Dots and blanks at the end of a name do not count on Windows, so such a name is the folder.
bool isDotOrBlank(QChar character)
{
    return character == u'.' || character.isSpace();
}

bool isForbidden(QChar character)
{
    return character == u':' || character.category() == QChar::Other_Control;
}

bool isSameName(QStringView name, QStringView other)
{
    return name.compare(other, Qt::CaseInsensitive) == 0;
}

/// "COM" or "LPT" with one digit, of which there are raised ones too.
bool isPort(QStringView name)
{
    return name.size() == 4
        && (isSameName(name.left(3), u"COM") || isSameName(name.left(3), u"LPT"))
        && QStringView(u"0123456789\u00b9\u00b2\u00b3").contains(name.back());
}

bool isDevice(QStringView name)
{
    static constexpr std::array<QStringView, 6> kDevices = {u"CON", u"PRN",    u"AUX",
                                                            u"NUL", u"CONIN$", u"CONOUT$"};
    const qsizetype dot = name.indexOf(u'.');
    const QStringView base = (dot < 0 ? name : name.left(dot)).trimmed();
    return isPort(base) || std::any_of(kDevices.begin(), kDevices.end(), [&](QStringView device) {
               return isSameName(base, device);
           });
}

} // namespace

QString InstallerName::in(const QString &path)
{
    const QStringView name = lastComponent(path);
    const bool isNoFile = std::all_of(name.cbegin(), name.cend(), isDotOrBlank)
        || std::any_of(name.cbegin(), name.cend(), isForbidden) || isDevice(name);
    return isNoFile ? QString() : name.toString();
}
