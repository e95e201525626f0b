#pragma once

#include "TXCoreCommonExport.h"

#include <QString>

#include <mutex>
#include <set>

/// The warnings of one search of the network, as they go to the application's log: one line of each
/// kind, so that a hundred hosts that are switched off do not fill it. Thread: any.
class TXCORECOMMON_PRIVATE_EXPORT SearchWarnings
{
public:
    /// What can go wrong.
    enum class Kind {
        NotInstalled, ///< the program that searches is not there
        NoDaemon, ///< the daemon that knows the network does not run
        UnusableAddress, ///< what was to be searched is no host, or its user cannot be told
        Unreachable, ///< nothing answers at the host
        TimedOut, ///< it took too long
        WrongLogin, ///< the host does not take user and password
        NotAllowed, ///< the host does not list its shares for this user, or for nobody
        TooMany, ///< more was found than anybody can look through
        Failed, ///< anything else
    };

    /// Writes the text to the application's log as a warning, unless there was one of its kind.
    /// Never hand in a password.
    void warn(Kind kind, const QString &text);

private:
    std::mutex mutex;
    std::set<Kind> told;
};
