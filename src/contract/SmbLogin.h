#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class QUrl;

/// Who a program of Samba's is to log in as, in the form of its authentication file. It gets the
/// file as its standard input, so that no secret stands on a command line, in the environment or on
/// a disk.
class TXCORECOMMON_PRIVATE_EXPORT SmbLogin
{
public:
    /// User and password of the URL, decoded. The user may have a domain before a ";" or a
    /// backslash. A password without a user is left out of account: nobody could have it.
    explicit SmbLogin(const QUrl &url);

    /// Whether there is no user, so that nothing is asked for.
    [[nodiscard]] bool isAnonymous() const { return user.isEmpty() && domain.isEmpty(); }

    /// Whether the authentication file can tell user and domain: it takes a user apart at "%", "/"
    /// and backslashes, drops blanks before it, and has one line for each. Any password can be
    /// told.
    [[nodiscard]] bool isUsable() const;

    /// The contents of the file; empty when isAnonymous(). Only for a login that isUsable().
    [[nodiscard]] QByteArray authenticationFile() const;

    /// What has to be on the command line with it: how the password is told, never what it is.
    [[nodiscard]] QStringList arguments() const;

private:
    [[nodiscard]] bool needsHash() const;

    QString domain;
    QString user;
    QString password;
};
