#pragma once

#include "LocalServer.h"

/// A MariaDB server with one user, who may do everything in one empty database. A second one,
/// "payroll", is closed to that user (error 1044). Nobody else is let in (error 1045).
///
/// Clients connect to 127.0.0.1 by TCP; there is no Unix socket, so the host "localhost" leads
/// nowhere. The data folder is made anew at each start(), which takes about half a second; what was
/// stored is lost with stop(). Settings count from the next start() on. There are no help texts
/// (HELP) and no database "sys".
///
/// log() stays empty, see statements(). Needs Debian's package mariadb-server-core; start() fails
/// with words about it when it is missing.
class LocalMariaDbServer : public LocalServer
{
    Q_OBJECT

public:
    explicit LocalMariaDbServer(QObject *parent = nullptr);

    /// Who is let in; "mia" with "s3cret" from the beginning. Any characters will do, but U+0000.
    /// The name must have 1 to 128 characters, else start() fails; the password may be empty. It
    /// stands in no log, on no command line and in no file.
    void setUser(const QString &name, const QString &password);

    /// The user's database; "measurements" from the beginning. The name must have 1 to 64
    /// characters, not end with a space, not be "payroll" and not be one of the server's own
    /// ("mysql", "information_schema", "performance_schema"), else start() fails.
    void setDatabase(const QString &name);

    /// What clients have sent since start(), oldest first: an element for each statement, as it was
    /// sent, line ends included. What a driver sends by itself is among them ("SET NAMES utf8mb4"),
    /// and so is what the server refuses or cannot make sense of. Choosing a database without a
    /// statement, as a client does when it connects, does not show.
    ///
    /// A prepared statement shows each time that it is executed, with its values filled in:
    /// "insert into t values (7)". Its preparation alone does not show. An EXECUTE that is itself a
    /// statement shows as such, and then what it executes.
    ///
    /// Read from the server's general log at each call, which takes a time in proportion to it. A
    /// statement is here before its answer is sent. Empty when the server does not run.
    [[nodiscard]] QStringList statements() const;

    /// The log-ins since start(), oldest first: "mia@127.0.0.1 on measurements using TCP/IP" for
    /// each try, and behind it "Access denied for user 'mia'@'127.0.0.1' (using password: YES)"
    /// when name or password is wrong. A right log-in to a closed database shows as its try alone.
    ///
    /// Read as statements() is. Empty when the server does not run.
    [[nodiscard]] QStringList connections() const;

protected:
    [[nodiscard]] QString prepare() override;
    [[nodiscard]] QJsonObject options() const override;

private:
    [[nodiscard]] QByteArray generalLog() const;

    QString user = QStringLiteral("mia");
    QString password = QStringLiteral("s3cret");
    QString database = QStringLiteral("measurements");
};
