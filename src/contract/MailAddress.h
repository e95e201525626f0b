#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// A mail address, checked, with the name of its owner if there is one. Made by fromText() and
/// listFromText() only, so that every address that exists can go into a header and to a server.
/// Holds no state beyond that; any thread.
class TXCORECOMMON_PRIVATE_EXPORT MailAddress
{
public:
    /// Reads "mia@example.org", "<mia@example.org>", "Mia Moll <mia@example.org>" or
    /// "\"Moll, Mia\" <mia@example.org>"; blanks around are ignored. The name may hold any
    /// character, and control characters in it become blanks. The address has a local part of ASCII
    /// (also a quoted one, but not the empty one) and a domain name of any script or an address in
    /// brackets; control characters and blanks in it, and more than 254 characters, are refused.
    ///
    /// Nothing, with the reason in translated words in `reason` (never null), when it is none.
    static std::optional<MailAddress> fromText(const QString &text, QString *reason);

    /// Reads addresses with commas or semicolons in between, of which superfluous ones are ignored.
    /// A text without an address gives an empty list. Nothing, with the reason, when one of them is
    /// none. Costs time linear in the text.
    static std::optional<QList<MailAddress>> listFromText(const QString &text, QString *reason);

    /// The bare address in ASCII: "mia@example.org". A domain of another script is in its ASCII
    /// form.
    [[nodiscard]] QByteArray mailbox() const { return localPart + '@' + domainName; }

    /// What is behind the '@'.
    [[nodiscard]] QByteArray domain() const { return domainName; }

    /// The owner's name; may be empty.
    [[nodiscard]] QString name() const { return owner; }

    /// Name and address for a header, in which `column` characters stand before it on its line (40
    /// at most), folded where it is long.
    [[nodiscard]] QByteArray headerForm(qsizetype column) const;

private:
    MailAddress() = default;

    [[nodiscard]] bool readMailbox(const QString &text, QString *reason);

    QString owner;
    QByteArray localPart;
    QByteArray domainName;
};
