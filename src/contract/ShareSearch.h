#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

class SearchWarnings;

/// The shared folders of one host, as the smbclient program lists them.
class TXCORECOMMON_PRIVATE_EXPORT ShareSearch
{
public:
    /// How long a host may take to answer.
    static constexpr int kDefaultMilliseconds = 10'000;

    /// Asks the host of the URL and blocks until it has answered. `found` gets each share as a URL,
    /// "smb://nas.local/pictures", with the port of the given one and without user and password.
    /// Printers, the hidden shares whose names end with "$", and names that cannot be a share of a
    /// URL or hold control characters are left out, and so are those after the first 100,000.
    ///
    /// A URL without a user is asked without a password, too. With a user, who may be
    /// "DOMAIN;user", "DOMAIN\\user" or "user@realm", a wrong password or an unknown user lists
    /// nothing, also where the host would let anybody list. Any text can be a password. A user with
    /// "%", "/", a second backslash or a line break cannot be told to smbclient, nor can a domain
    /// with a line break, nor leading blanks of either. The program gets all of it by its standard
    /// input.
    ///
    /// The address is where the host answers, if it is known; without it smbclient looks the name
    /// of the host up.
    ///
    /// `cancelled` is asked at least each 50 ms, and true ends the search. Both are called on the
    /// calling thread, and may be null. What goes wrong becomes a warning, never with the password.
    static void run(const QUrl &host, const std::function<void(const QUrl &)> &found,
                    const std::function<bool()> &cancelled, SearchWarnings *warnings,
                    int timeoutMilliseconds = kDefaultMilliseconds, const QString &address = {});

    /// The name of the shared folder in a line that smbclient prints with --grepable: the type, the
    /// name and a comment with bars between them. Nothing for lines that tell something else, and
    /// for what run() leaves out.
    ///
    /// Nothing marks a bar that belongs to a text. SMB's names have none, so the first one ends the
    /// name.
    [[nodiscard]] static std::optional<QString> nameOf(const QByteArray &line);
};
