#pragma once

#include "NetworkDriveConnectionState.h"
#include "TXCoreCommonExport.h"

#include <QHash>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QUrl>
#include <QVariant>

#include <initializer_list>
#include <utility>

/// One network drive: where it is, where it is mounted, and how it stands.
///
/// A plain value; TXAutoMountManager holds the list of them. Registered with the meta-type system
/// under its name, so that it can travel in a queued signal and in a variant.
///
/// The address (scheme, host, user, password, path) is one URL. The rest is a dictionary, the
/// extra parameters, with these keys of the library; a host may add others:
///
/// | Key | Type | Meaning |
/// |---|---|---|
/// | "NetworkDriveMountPoint" | text | the drive letter and ":/", or the mount point |
/// | "NetworkDriveDomain" | text | the domain of the user, may be empty |
/// | "NetworkDrivePersistent" | bool | whether the system keeps the drive over a restart |
///
/// Thread: use a value on one thread at a time; copies are independent.
class TXCORECOMMON_EXPORT AutoMountNetworkDrive
{
public:
    /// An empty drive: no address, no extra parameters, not activated, disconnected.
    AutoMountNetworkDrive() = default;

    /// A drive from a dictionary as toVariantHash() makes it. The keys for address, password and
    /// activation are taken out, all others become the extra parameters. An empty dictionary gives
    /// an empty drive. A password that cannot be deciphered reads as empty, and toVariantHash()
    /// gives it back as it was until setUrl() is called.
    explicit AutoMountNetworkDrive(const QHash<QString, QVariant> &parameters);

    /// The same for a dictionary that is written out.
    AutoMountNetworkDrive(std::initializer_list<std::pair<QString, QVariant>> parameters)
        : AutoMountNetworkDrive(QHash<QString, QVariant>(parameters))
    { }

    /// Whether both name the same drive in the same way: the same address, password included, and
    /// the same extra parameters. A missing extra parameter equals an empty text or false, and the
    /// number of slashes before the path does not count, since "//share" and "/share" are the same
    /// share. Activation and status do not count: a drive stays the same drive when it is switched
    /// on or connected.
    bool operator==(const AutoMountNetworkDrive &other) const;
    /// The opposite of operator==.
    bool operator!=(const AutoMountNetworkDrive &other) const { return !(*this == other); }

    /// The address. The password is in it in clear: never log it or put it on a command line.
    [[nodiscard]] QUrl getUrl() const;
    /// Any URL is kept as it is, an invalid one too.
    void setUrl(QUrl url);

    /// The drive letter or mount point: the extra parameter "NetworkDriveMountPoint" as text.
    [[nodiscard]] QString getMountPoint() const;

    /// All extra parameters.
    [[nodiscard]] QHash<QString, QVariant> getExtParameters() const;
    /// Replaces all extra parameters. The keys of toVariantHash() for address, password and
    /// activation cannot be used as extra parameters and are left out.
    void setExtParameters(const QHash<QString, QVariant> &parameters);

    /// Whether the drive is to be kept connected while the manager runs. False by default.
    [[nodiscard]] bool isActivated() const;
    /// Changes this value only: nothing is connected or disconnected by it.
    void setActivated(bool on);

    /// How the drive stood when this value was made; a copy does not follow.
    [[nodiscard]] NetworkDriveConnectionState getStatus() const;
    /// For what connects drives. Changes this value only; see TXAutoMountManager::setDriveStatus().
    void setStatus(NetworkDriveConnectionState status);

    /// The drive as a dictionary that can be stored: the extra parameters, and under
    /// "NetworkDriveScheme", "…Host", "…Port", "…User", "…Path", "…Query", "…Fragment" the parts of
    /// the address that are there, under "NetworkDrivePassword" the password enciphered by
    /// TXDataCrypt, under "NetworkDriveActivated" the activation. The status is not in it. When the
    /// password cannot be enciphered its key is missing; it never stands there in clear.
    [[nodiscard]] QHash<QString, QVariant> toVariantHash() const;

    /// Disconnects the drive at once. Does nothing for a drive that is not connected, and none can
    /// be connected yet.
    void disconnectExplicitlyNetworkDrive();

    /// Lists the hosts under a URL, or the shares of a host. Blocks; call it on a worker thread.
    ///
    /// `found(url, context)` is called for each result as soon as it is there, on the calling
    /// thread; `cancelled(context)` is asked again and again, and true ends the search. Either may
    /// be null. Returns all results.
    ///
    /// Searching is not available yet: this returns an empty list at once and says so in the
    /// application's log, unless `cancelled` is true at the start.
    static QList<QUrl> findHostsOrShareFolders(QUrl url, void (*found)(QUrl, void *),
                                               bool (*cancelled)(void *), void *context);

private:
    QUrl url;
    QHash<QString, QVariant> extParameters;
    bool activated = false;
    NetworkDriveConnectionState status = NetworkDriveDisconnected;
    QString unreadablePassword;
};

Q_DECLARE_METATYPE(AutoMountNetworkDrive)
