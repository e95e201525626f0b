#pragma once

#include <QMetaType>

/// How a network drive stands. The numbers are fixed; a number that is none of these reads as
/// unknown.
///
/// Registered with the meta-type system under its name, so that it can travel in a queued signal.
enum NetworkDriveConnectionState : int {
    /// The drive is connected and can be used.
    NetworkDriveConnected = 0,
    /// The drive is not connected.
    NetworkDriveDisconnected = 1,
    /// The drive could not be connected, or was lost and could not be connected again;
    /// TXAutoMountManager tells for which reasons.
    NetworkDriveReconnectionFailed = 2,
    /// The drive letter or mount point is used by something else.
    NetworkDriveLetterTaken = 3,
};

Q_DECLARE_METATYPE(NetworkDriveConnectionState)
