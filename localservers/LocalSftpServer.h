#pragma once

#include "LocalServer.h"

/// An SFTP server with one user, who logs in with a password and may do everything in an empty
/// folder that is the server's root. Its host key is made anew at each start().
///
/// log() holds "key of NAME" for each key that a client tries (none is accepted), "login NAME" for
/// a password, then "accepted" or "refused", then "OPERATION PATH" for each operation
/// ("realpath .", "open /a"). Settings count from the next start() on.
class LocalSftpServer : public LocalServer
{
    Q_OBJECT

public:
    enum class Silence {
        Never,
        /// Tells its version, and answers nothing.
        AfterGreeting,
        /// Takes user and password, and never says whether they are right.
        AfterUser
    };

    explicit LocalSftpServer(QObject *parent = nullptr);

    /// Who is let in; "mia" with "s3cret" from the beginning.
    void setUser(const QString &name, const QString &password);

    /// Where the server stops to answer; Never from the beginning.
    void setSilence(Silence value) { silence = value; }

    /// The public half of the running server's host key, "ssh-ed25519 AAAA…", as a file of known
    /// hosts has it behind the name of the host; empty when the server does not run.
    [[nodiscard]] QByteArray hostKey() const;

    /// The user's folder on disc; empty when the server does not run.
    [[nodiscard]] QString homeFolder() const;

protected:
    [[nodiscard]] QJsonObject options() const override;

private:
    QString user = QStringLiteral("mia");
    QString password = QStringLiteral("s3cret");
    Silence silence = Silence::Never;
};
