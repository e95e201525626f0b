#pragma once

#include <QString>

/// The password of the user interface as a host keeps it between two lock dialogs.
///
/// The dialogs take and give the stored text in one of two forms, and the text does not tell which:
/// a host has to remember the form beside it.
struct StoredPassword
{
    /// What is stored: 32 hexadecimal digits of an MD5 digest, or the password itself. Empty when
    /// no password has been set.
    QString text;
    /// True for the digest. Given to each lock dialog's constructor.
    bool useHash = true;

    [[nodiscard]] bool isSet() const { return !text.isEmpty(); }

    /// Whether the typed text is the password. Nothing matches while none is set.
    [[nodiscard]] bool matches(const QString &typed) const;

    /// Stores the typed password in the present form. An empty one is none.
    void set(const QString &typed);

    /// Goes over to the other form. A plain password is replaced by its digest; a digest cannot be
    /// turned back, so the password is then forgotten. No effect when this is the form already.
    void setUseHash(bool isHashWanted);
};
