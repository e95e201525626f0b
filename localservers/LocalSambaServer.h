#pragma once

#include "LocalServer.h"

/// A Samba server with one user and some shared folders.
///
/// Clients connect to 127.0.0.1 at port(); nothing is announced on the network. The user exists for
/// the server alone, not for the system, and the server needs no rights: it runs as whoever starts
/// it. Settings count from the next start() on. The shares are empty folders then, see
/// shareFolder().
///
/// log() stays empty. Needs Debian's packages samba, libnss-wrapper and libuid-wrapper; start()
/// fails with words about the one that is missing.
class LocalSambaServer : public LocalServer
{
    Q_OBJECT

public:
    explicit LocalSambaServer(QObject *parent = nullptr);

    /// Who is let in; "mia" with "s3cret" from the beginning. The name must be one that Unix takes
    /// for a user; the password any text of 1 to 127 characters without line feeds and nulls, tabs
    /// and carriage returns included. Else start() fails and tells. The password stands in no log
    /// and on no command line.
    void setUser(const QString &name, const QString &password);

    /// The names of the shares; "pictures" and "proofs" from the beginning. start() fails, and
    /// tells, for names that SMB cannot have or that its server gives another meaning: empty, above
    /// 80 characters, with a line break or one of []%/\, with blanks at an end or two together, in
    /// quotes, "global" and the like; and for names that differ in upper and lower case only.
    void setShares(const QStringList &names);

    /// Where the server is to listen, if nobody listens there when it starts; it takes another port
    /// else. 0, from the beginning: any free port. For servers that clients are to find again.
    void setWantedPort(quint16 port);

    /// The folder of a share of the running server, writable for the server's user; empty when it
    /// does not run.
    [[nodiscard]] QString shareFolder(const QString &share) const;

    /// Lets all the server's processes hold their breath: connections are taken and get no answer,
    /// those that are there fall silent. Does nothing when the server does not run.
    void hold();

    /// Lets them go on: what was asked meanwhile is answered.
    void goOn();

protected:
    [[nodiscard]] QJsonObject options() const override;

private:
    void signalServer(int signal) const;

    QString user = QStringLiteral("mia");
    QString password = QStringLiteral("s3cret");
    QStringList shares = {QStringLiteral("pictures"), QStringLiteral("proofs")};
    quint16 wantedPort = 0;
};
