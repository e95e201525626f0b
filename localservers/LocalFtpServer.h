#pragma once

#include "LocalCertificate.h"
#include "LocalServer.h"

#include <memory>

/// An FTP server with one user, who may do everything in an empty folder that is the server's root.
///
/// log() holds each command line as it came, "PASS" without what follows. Settings count from the
/// next start() on.
class LocalFtpServer : public LocalServer
{
    Q_OBJECT

public:
    enum class Silence {
        Never,
        /// Greets, and answers no command.
        AfterGreeting,
        /// Asks for the password after USER, and answers nothing from then on.
        AfterUser
    };

    explicit LocalFtpServer(QObject *parent = nullptr);

    /// Who is let in; "mia" with "s3cret" from the beginning. Everybody else gets 530. The name
    /// must not be empty.
    void setUser(const QString &name, const QString &password);

    /// Where the server stops to answer; Never from the beginning.
    void setSilence(Silence value) { silence = value; }

    /// With a certificate the server speaks TLS from the first byte on (scheme "ftps"). Null, the
    /// default, means in clear. Data connections are in clear in any case.
    void setCertificate(const std::shared_ptr<const LocalCertificate> &value);

    /// The user's folder on disc; empty when the server does not run.
    [[nodiscard]] QString homeFolder() const;

protected:
    [[nodiscard]] QString prepare() override;
    [[nodiscard]] QJsonObject options() const override;

private:
    QString user = QStringLiteral("mia");
    QString password = QStringLiteral("s3cret");
    Silence silence = Silence::Never;
    std::shared_ptr<const LocalCertificate> certificate;
};
