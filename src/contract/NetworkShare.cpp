#include "NetworkShare.h"

#include <QStringList>
#include <QUrl>

#include <utility>

namespace {

constexpr int kUsualPort = 445;

/// A path without its first slash, as it may be typed, is all that may be wrong.
bool isUsable(const QUrl &url)
{
    return !url.host().isEmpty() && url.port() != 0
        && (url.isValid() || !url.path().startsWith(u'/'));
}

/// The parts of the path that say something; nothing when one of them leads out of the share or is
/// no name.
QStringList partsOf(const QUrl &url)
{
    QStringList parts = url.path(QUrl::FullyDecoded).split(u'/', Qt::SkipEmptyParts);
    parts.removeAll(QStringLiteral("."));
    for (const QString &part : std::as_const(parts)) {
        if (part == u".." || part.contains(QChar::Null)) {
            return {};
        }
    }
    return parts;
}

} // namespace

bool NetworkShare::isSpoken(const QString &scheme)
{
    return scheme.isEmpty() || scheme == u"smb" || scheme == u"afp";
}

std::optional<NetworkShare> NetworkShare::fromUrl(const QUrl &url)
{
    QStringList parts = partsOf(url);
    if (!isSpoken(url.scheme()) || !isUsable(url) || parts.isEmpty()) {
        return {};
    }
    QUrl share;
    share.setScheme(QStringLiteral("smb"));
    share.setHost(url.host());
    share.setPort(url.port() == kUsualPort ? -1 : url.port());
    share.setPath(u'/' + parts.takeFirst().toCaseFolded(), QUrl::DecodedMode);
    return NetworkShare{share.toString(QUrl::FullyEncoded), parts.join(u'/')};
}
