#include "AutoMountNetworkDrive.h"

#include "TXDataCrypt.h"
#include "TXError.h"

namespace {

[[maybe_unused]] const int kTypeIds[] = {
    qRegisterMetaType<NetworkDriveConnectionState>("NetworkDriveConnectionState"),
    qRegisterMetaType<AutoMountNetworkDrive>("AutoMountNetworkDrive"),
};

const QString kMountPointKey = QStringLiteral("NetworkDriveMountPoint");
const QString kPortKey = QStringLiteral("NetworkDrivePort");
const QString kPasswordKey = QStringLiteral("NetworkDrivePassword");
const QString kActivatedKey = QStringLiteral("NetworkDriveActivated");

constexpr int kNoPort = -1;
constexpr int kHighestPort = 65535;

/// A part of the address, stored under a key of its own, so that an address that is no valid URL
/// as a whole is kept too.
struct UrlPart
{
    QString key;
    QString (*read)(const QUrl &url);
    void (*write)(QUrl &url, const QString &text);
};

const UrlPart kUrlParts[] = {
    {QStringLiteral("NetworkDriveScheme"), [](const QUrl &url) { return url.scheme(); },
     [](QUrl &url, const QString &text) {
         url.setScheme(text);
     }},
    {QStringLiteral("NetworkDriveHost"), [](const QUrl &url) { return url.host(); },
     [](QUrl &url, const QString &text) {
         url.setHost(text);
     }},
    {QStringLiteral("NetworkDriveUser"),
     [](const QUrl &url) { return url.userName(QUrl::FullyEncoded); },
     [](QUrl &url, const QString &text) {
         url.setUserName(text, QUrl::TolerantMode);
     }},
    {QStringLiteral("NetworkDrivePath"),
     [](const QUrl &url) { return url.path(QUrl::FullyEncoded); },
     [](QUrl &url, const QString &text) {
         url.setPath(text, QUrl::TolerantMode);
     }},
    {QStringLiteral("NetworkDriveQuery"),
     [](const QUrl &url) { return url.query(QUrl::FullyEncoded); },
     [](QUrl &url, const QString &text) {
         url.setQuery(text);
     }},
    {QStringLiteral("NetworkDriveFragment"),
     [](const QUrl &url) { return url.fragment(QUrl::FullyEncoded); },
     [](QUrl &url, const QString &text) {
         url.setFragment(text);
     }},
};

QUrl takeUrl(QHash<QString, QVariant> &parameters)
{
    QUrl url;
    for (const UrlPart &part : kUrlParts) {
        const QString text = parameters.take(part.key).toString();
        if (!text.isEmpty()) {
            part.write(url, text);
        }
    }
    const int port = parameters.value(kPortKey, kNoPort).toInt();
    parameters.remove(kPortKey);
    if (port >= 0 && port <= kHighestPort) {
        url.setPort(port);
    }
    return url;
}

void putUrl(QHash<QString, QVariant> &parameters, const QUrl &url)
{
    for (const UrlPart &part : kUrlParts) {
        const QString text = part.read(url);
        if (!text.isEmpty()) {
            parameters.insert(part.key, text);
        }
    }
    if (url.port() != kNoPort) {
        parameters.insert(kPortKey, url.port());
    }
}

/// Empty when the text cannot be enciphered.
QString enciphered(const QString &text)
{
    return QString::fromLatin1(TXDataCrypt::encrypt(text.toUtf8(), nullptr));
}

/// False when the text cannot be deciphered.
bool decipher(const QString &stored, QString &text)
{
    TXError error;
    text = QString::fromUtf8(TXDataCrypt::decrypt(stored.toUtf8(), &error));
    return !error.isValid();
}

QUrl withOneSlash(QUrl url)
{
    QString path = url.path(QUrl::FullyEncoded);
    while (path.startsWith(u"//")) {
        path.remove(0, 1);
    }
    url.setPath(path, QUrl::TolerantMode);
    return url;
}

bool isDefault(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return true;
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::QString:
        return value.toString().isEmpty();
    default:
        return false;
    }
}

QHash<QString, QVariant> withoutDefaults(QHash<QString, QVariant> parameters)
{
    parameters.removeIf(
        [](const QHash<QString, QVariant>::iterator &entry) { return isDefault(entry.value()); });
    return parameters;
}

} // namespace

AutoMountNetworkDrive::AutoMountNetworkDrive(const QHash<QString, QVariant> &parameters)
{
    QHash<QString, QVariant> rest = parameters;
    QUrl address = takeUrl(rest);
    const QString stored = rest.take(kPasswordKey).toString();
    QString password;
    if (!stored.isEmpty() && !decipher(stored, password)) {
        unreadablePassword = stored;
    } else if (!password.isEmpty()) {
        address.setPassword(password, QUrl::DecodedMode);
    }
    url = address;
    activated = rest.take(kActivatedKey).toBool();
    extParameters = rest;
}

bool AutoMountNetworkDrive::operator==(const AutoMountNetworkDrive &other) const
{
    return withOneSlash(url) == withOneSlash(other.url)
        && withoutDefaults(extParameters) == withoutDefaults(other.extParameters);
}

QUrl AutoMountNetworkDrive::getUrl() const
{
    return url;
}

void AutoMountNetworkDrive::setUrl(QUrl newUrl)
{
    url = std::move(newUrl);
    unreadablePassword.clear();
}

QString AutoMountNetworkDrive::getMountPoint() const
{
    return extParameters.value(kMountPointKey).toString();
}

QHash<QString, QVariant> AutoMountNetworkDrive::getExtParameters() const
{
    return extParameters;
}

void AutoMountNetworkDrive::setExtParameters(const QHash<QString, QVariant> &parameters)
{
    extParameters = parameters;
    takeUrl(extParameters);
    extParameters.remove(kPasswordKey);
    extParameters.remove(kActivatedKey);
}

bool AutoMountNetworkDrive::isActivated() const
{
    return activated;
}

void AutoMountNetworkDrive::setActivated(bool on)
{
    activated = on;
}

NetworkDriveConnectionState AutoMountNetworkDrive::getStatus() const
{
    return status;
}

void AutoMountNetworkDrive::setStatus(NetworkDriveConnectionState newStatus)
{
    status = newStatus;
}

QHash<QString, QVariant> AutoMountNetworkDrive::toVariantHash() const
{
    QHash<QString, QVariant> parameters = extParameters;
    putUrl(parameters, url);
    const QString password = url.password(QUrl::FullyDecoded);
    const QString stored = password.isEmpty() ? unreadablePassword : enciphered(password);
    if (!stored.isEmpty()) {
        parameters.insert(kPasswordKey, stored);
    }
    parameters.insert(kActivatedKey, activated);
    return parameters;
}
