#pragma once

#include "TXGUICommonExport.h"

#include <QString>

/// The connect options that a test of a database connection passes on to the driver.
///
/// Holds no state; any thread.
class TXGUICOMMON_PRIVATE_EXPORT DatabaseConnectOptions
{
public:
    /// How many seconds a test of a MySQL or MariaDB server waits for the connection, unless the
    /// user's own options tell.
    static constexpr int kConnectTimeoutSeconds = 15;

    DatabaseConnectOptions() = delete;

    /// The user's options as they are and behind them, each after a semicolon, what the driver of
    /// that name needs. For "QMYSQL" that is, in this order:
    /// - that a lost connection is made again,
    /// - a connect time-out, unless the user has set one: it ends the wait for a server that takes
    ///   no connection, does not greet or does not answer the log-in. It does not end that for a
    ///   server that lets the user in and falls silent then; MYSQL_OPT_READ_TIMEOUT does, which the
    ///   user may set.
    ///
    /// For any other driver nothing is added. A time-out counts as set when the driver would end by
    /// it: of several with the same name the last one, which must be a whole number above 0. Names
    /// are case-sensitive, blanks around name and number do not count.
    [[nodiscard]] static QString forTest(const QString &driver, const QString &userOptions);
};
