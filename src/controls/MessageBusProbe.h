#pragma once

class QDeadlineTimer;
class QString;

/// A question to a message bus that any bus answers at once, to learn whether it is alive before
/// QtDBus goes there: a connection of that blocks for as long as a mute bus likes.
class MessageBusProbe
{
public:
    MessageBusProbe() = delete;

    /// Whether a bus at this address has answered until the deadline. Only a socket of this machine
    /// ("unix:path=" and "unix:abstract=", percent-encoded) can have one.
    ///
    /// A bus that is silent is not waited for again: as long as it owes the answer, half a minute
    /// at most, later calls fail at once. One that has answered in the meantime is asked anew.
    ///
    /// Thread: the GUI thread.
    static bool isAnswering(const QString &address, const QDeadlineTimer &deadline);
};
