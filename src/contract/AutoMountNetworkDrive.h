#pragma once

#include "NetworkDriveConnectionState.h"
#include "TXCoreCommonExport.h"

#include <QHash>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QUrl>
#include <QVariant>

#include <cstddef>
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

    /// Whether both name the same drive: the same address, password included, and the same extra
    /// parameters.
    ///
    /// Of the addresses scheme, host, port, and user, password and path fully decoded are compared,
    /// so that "a%21b" and "a!b" are the same path; query and fragment are compared as they are. A
    /// part that is missing equals an empty one. The slashes before the path do not count, none
    /// included: "//share" and "/share" are the same share, and a host without a path is its root.
    ///
    /// A missing extra parameter equals an empty text or false. Parameters that are copies of each
    /// other are equal, also when they hold values that cannot be compared.
    ///
    /// Activation and status do not count: a drive stays the same drive when it is switched on or
    /// connected.
    ///
    /// Costs next to nothing for different drives, which hashes made beforehand tell apart.
    bool operator==(const AutoMountNetworkDrive &other) const;
    /// The opposite of operator==.
    bool operator!=(const AutoMountNetworkDrive &other) const { return !(*this == other); }

    /// The address. The password is in it in clear: never log it or put it on a command line.
    [[nodiscard]] QUrl getUrl() const;
    /// Any URL is kept as it is, an invalid one too.
    void setUrl(QUrl url);

    /// Whether the drive was made from a stored password that cannot be deciphered, so that the
    /// address has none. Until setUrl() is called.
    [[nodiscard]] bool hasUnreadablePassword() const { return !unreadablePassword.isEmpty(); }

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

    /// Disconnects the drive, if it is in the list of TXAutoMountManager and connected; does
    /// nothing else. Never waits: the link of the letter goes and the share is unmounted in the
    /// background.
    ///
    /// The drive stays disconnected until it is replaced by another one, switched off and on, or
    /// the manager is started again. This value is disconnected at once; the manager tells when the
    /// drive of its list is. Thread: the GUI thread.
    void disconnectExplicitlyNetworkDrive();

    /// Lists the hosts of the network and their shares, or the shares of one host. Blocks; call it
    /// on a worker thread.
    ///
    /// An empty URL searches the network: each host that announces itself is found ("smb://nas"),
    /// and after it, as it answers, the shares that it lists without a password
    /// ("smb://nas/pictures"). Several hosts are asked at a time, each for 10 seconds at most.
    ///
    /// A URL with a host finds the shares of that host, for the URL's user (who may be
    /// "DOMAIN;user" or "DOMAIN\\user"), password and port; the path does not count. A wrong
    /// password finds nothing, also where the host would let anybody list. The scheme is "smb";
    /// "afp" and none mean the same. Any other URL finds nothing.
    ///
    /// The finds are URLs of the scheme "smb" without user and password. Printers and hidden shares
    /// (a "$" at the end) are left out.
    ///
    /// `found(url, context)` is called for each find as soon as it is there; `cancelled(context)`
    /// is asked before each find and at least each 50 ms, and true ends the search within 250 ms,
    /// with no program left behind. Both are called on the calling thread, and either may be null;
    /// while `found` does not return, nothing else is called. Returns all finds.
    ///
    /// Searching needs the programs avahi-browse and smbclient, which there are none of on Windows.
    /// What goes wrong (a program is not installed, a host cannot be reached, a password is wrong)
    /// is told by a warning in the application's log, one of each kind in a search, and never with
    /// the password.
    static QList<QUrl> findHostsOrShareFolders(QUrl url, void (*found)(QUrl, void *),
                                               bool (*cancelled)(void *), void *context);

private:
    QUrl url;
    QHash<QString, QVariant> extParameters;
    bool activated = false;
    NetworkDriveConnectionState status = NetworkDriveDisconnected;
    QString unreadablePassword;
    // What operator== compares first. 0 for an empty address, and for no parameters.
    size_t addressHash = 0;
    size_t parametersHash = 0;
};

Q_DECLARE_METATYPE(AutoMountNetworkDrive)
