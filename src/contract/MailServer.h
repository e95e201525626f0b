#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QVariant>

#include <optional>

/// Which server takes the mails of this host, as the settings of the mail panel tell. Any thread.
struct TXCORECOMMON_PRIVATE_EXPORT MailServer
{
    enum class Security {
        /// In clear.
        None,
        /// Begins in clear and must go over to TLS (STARTTLS) before anything else.
        StartTls,
        /// TLS from the first byte on.
        ImplicitTls,
    };

    /// Reads and checks the settings "MailServerAddress", "MailServerPort", "MailWithEncryption",
    /// "MailServerLogin" and "MailServerPassword".
    ///
    /// A port below 1, also a missing one, stands for 25; a missing encryption for "NONE". The
    /// password is deciphered, and looked at only with a login. Nothing, with the reason in
    /// translated words in `reason` (never null), when the server is missing or no name or address,
    /// the port above 65535, the encryption none of the three words, or the password no cipher.
    static std::optional<MailServer> fromSettings(const QHash<QString, QVariant> &settings,
                                                  QString *reason);

    /// "smtp://host:port", or "smtps" for implicit TLS.
    [[nodiscard]] QByteArray url() const;

    /// A host name in ASCII, an IPv4 address, or an IPv6 address in brackets.
    QByteArray host;
    int port = 25;
    Security security = Security::None;
    /// Empty means that there is no login.
    QByteArray login;
    /// In clear.
    QByteArray password;
};
