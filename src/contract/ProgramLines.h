#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

/// Another program that is read line by line while the caller waits, and that ends when the caller
/// does not want to wait any longer. For worker threads without an event loop, where events of the
/// thread's own objects are delivered meanwhile; see ProgramRun for the others.
///
/// The program speaks English, and runs in a session of its own, so that it asks nobody at a
/// terminal. When it is killed, so is what it has started. What a program that ends by itself
/// leaves running is left alone: it may be a service that others use too. One object reads one
/// program at a time, on any thread, while there is an application object.
struct TXCORECOMMON_PRIVATE_EXPORT ProgramLines
{
    /// How reading came to its end.
    enum class End {
        Finished, ///< the program ended by itself; exitCode tells more
        NotInstalled, ///< there is no such program
        TimedOut, ///< it was killed, since it took too long
        Cancelled, ///< it was killed, since the caller wanted no more
        Failed, ///< it could not be started or was killed by somebody else
    };

    /// The program, looked for in the PATH.
    QString program;
    /// What it gets as they are: no shell reads them.
    QStringList arguments;
    /// What it gets as its standard input, which is closed behind it; secrets go here.
    QByteArray input;
    /// How long it may take. 0 and less kills it at once.
    int timeoutMilliseconds = 0;

    /// Runs the program and blocks until it is over; one that cannot be killed is waited for no
    /// longer than 50 ms, and buried by the application's thread when it ends.
    ///
    /// `line` gets each line of its standard output as it comes, without the line end; a last line
    /// without an end counts when the program ended by itself. Lines of more than 65,536 bytes are
    /// left out. `cancelled` is asked before anything else, before each line and at least each 50
    /// ms; true kills the program at once, and `line` is not called any more. Both are called on
    /// the calling thread, and may be null.
    [[nodiscard]] End read(const std::function<void(const QByteArray &)> &line,
                           const std::function<bool()> &cancelled);

    /// After read(): the code of a program that has ended by itself, else -1.
    int exitCode = -1;
    /// After read(): what it wrote to its standard error, the first 65,536 bytes of it.
    QString error;
};
