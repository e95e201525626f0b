#pragma once

class QDBusConnection;

/// The message bus of the user's session, where the reference implementation of the protocol looks
/// for it on a desktop of today: at the addresses in the variable DBUS_SESSION_BUS_ADDRESS, or,
/// without that, in the file "bus" of the folder that XDG_RUNTIME_DIR names.
///
/// Not QDBusConnection::sessionBus(): that blocks for good, at the first call and at the end of
/// the program, when the bus takes connections and is mute; and once it has failed, it stays so.
class SessionBus
{
public:
    SessionBus() = delete;

    /// A connection to the first bus that shows within a second that it is alive; the same for all
    /// calls as long as it holds. Not connected when there is none. Buses that cannot be asked by a
    /// socket of this machine count as none.
    ///
    /// Thread: the GUI thread.
    static QDBusConnection connection();
};
