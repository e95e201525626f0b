#pragma once

#include "TXGUICommonExport.h"

#include <QString>

/// The connect options that a test of a database connection passes on to the driver.
///
/// Holds no state; any thread.
class TXGUICOMMON_PRIVATE_EXPORT DatabaseConnectOptions
{
public:
    /// How long a test of a MySQL or MariaDB server waits for the connection, unless the user's own
    /// options tell.
    static constexpr int kConnectTimeoutSeconds = 15;

    DatabaseConnectOptions() = delete;

    /// The user's options with those behind them that the driver needs: for "QMYSQL" that a lost
    /// connection is made again, and a time-out where the user has set none.
    [[nodiscard]] static QString forTest(const QString &driver, const QString &userOptions);
};
