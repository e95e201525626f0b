#include "AutoMountNetworkDrive.h"

#include "TXDataCrypt.h"
#include "TXError.h"

#include <algorithm>
#include <array>

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

/// Without the slashes before it, as "//share", "/share" and "share" are the same share.
QString comparedPath(const QUrl &url)
{
    QString path = url.path(QUrl::FullyDecoded);
    qsizetype slashes = 0;
    while (slashes < path.size() && path.at(slashes) == u'/') {
        ++slashes;
    }
    return path.remove(0, slashes);
}

/// The texts by which addresses are compared. Missing and empty are the same to QString.
std::array<QString, 7> comparedTexts(const QUrl &url)
{
    return {url.scheme(),
            url.host(),
            url.userName(QUrl::FullyDecoded),
            url.password(QUrl::FullyDecoded),
            comparedPath(url),
            url.query(QUrl::FullyEncoded),
            url.fragment(QUrl::FullyEncoded)};
}

bool areSameAddress(const QUrl &one, const QUrl &other)
{
    // Mostly they are copies of each other.
    return one == other
        || (one.port() == other.port() && comparedTexts(one) == comparedTexts(other));
}

/// The same for the same address, and 0 for an empty one.
size_t hashOf(const QUrl &url)
{
    auto hash = static_cast<size_t>(url.port() - kNoPort);
    size_t seed = 0;
    for (const QString &text : comparedTexts(url)) {
        ++seed;
        hash += text.isEmpty() ? 0 : qHash(text, seed);
    }
    return hash;
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

qsizetype countWithoutDefaults(const QHash<QString, QVariant> &parameters)
{
    return std::count_if(parameters.cbegin(), parameters.cend(),
                         [](const QVariant &value) { return !isDefault(value); });
}

/// The same for equal parameters, in whichever order, and 0 for none. Of the values only texts
/// count, as a value of any other type can equal one of yet another type.
size_t hashOf(const QHash<QString, QVariant> &parameters)
{
    size_t hash = 0;
    for (auto entry = parameters.cbegin(); entry != parameters.cend(); ++entry) {
        const QVariant &value = entry.value();
        if (isDefault(value)) {
            continue;
        }
        const bool isText = value.typeId() == QMetaType::QString;
        hash += qHash(entry.key(), isText ? qHash(value.toString()) : 0);
    }
    return hash;
}

bool equalButForDefaults(const QHash<QString, QVariant> &one, const QHash<QString, QVariant> &other)
{
    // A value need not equal itself, such as one of a type that cannot be compared; a copy of a
    // drive equals the drive all the same.
    if (one.isSharedWith(other)) {
        return true;
    }
    for (auto entry = one.cbegin(); entry != one.cend(); ++entry) {
        if (isDefault(entry.value())) {
            continue;
        }
        // A number 0 equals false, which is a default and as good as missing.
        const auto found = other.constFind(entry.key());
        if (found == other.cend() || isDefault(*found) || *found != entry.value()) {
            return false;
        }
    }
    return countWithoutDefaults(one) == countWithoutDefaults(other);
}

/// Leaves a dictionary without this key alone; QHash::remove() would make it a copy of its own.
void removeKey(QHash<QString, QVariant> &parameters, const QString &key)
{
    if (parameters.contains(key)) {
        parameters.remove(key);
    }
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
    addressHash = hashOf(url);
    parametersHash = hashOf(extParameters);
}

bool AutoMountNetworkDrive::operator==(const AutoMountNetworkDrive &other) const
{
    // Searches compare one drive with all, so that nearly all comparisons end at the hashes.
    return addressHash == other.addressHash && parametersHash == other.parametersHash
        && areSameAddress(url, other.url)
        && equalButForDefaults(extParameters, other.extParameters);
}

QUrl AutoMountNetworkDrive::getUrl() const
{
    return url;
}

void AutoMountNetworkDrive::setUrl(QUrl newUrl)
{
    url = std::move(newUrl);
    addressHash = hashOf(url);
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
    for (const UrlPart &part : kUrlParts) {
        removeKey(extParameters, part.key);
    }
    for (const QString &key : {kPortKey, kPasswordKey, kActivatedKey}) {
        removeKey(extParameters, key);
    }
    parametersHash = hashOf(extParameters);
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
