#pragma once

#include "SearchWarnings.h"
#include "ShareSearch.h"

#include <QStringList>
#include <QUrl>

/// Longer than any server takes.
constexpr int kLongMilliseconds = 50'000;

/// What is asked for shares, or stands in for it.
constexpr const char *kListingProgram = "smbclient";

/// The address of a server on this machine.
inline QUrl urlOf(quint16 port, const QString &user = {}, const QString &password = {})
{
    QUrl url;
    url.setScheme("smb");
    url.setHost("127.0.0.1");
    url.setPort(port);
    url.setUserName(user, QUrl::DecodedMode);
    url.setPassword(password, QUrl::DecodedMode);
    return url;
}

/// What is found at the address, as URLs.
inline QStringList search(const QUrl &url, int milliseconds = kLongMilliseconds)
{
    SearchWarnings warnings;
    QStringList shares;
    ShareSearch::run(
        url, [&shares](const QUrl &share) { shares.append(share.toString(QUrl::FullyEncoded)); },
        [] { return false; }, &warnings, milliseconds);
    return shares;
}

/// The names of the shares that are found at the address.
inline QStringList namesIn(const QUrl &url)
{
    SearchWarnings warnings;
    QStringList names;
    ShareSearch::run(
        url, [&names](const QUrl &share) { names.append(share.path(QUrl::FullyDecoded).mid(1)); },
        [] { return false; }, &warnings, kLongMilliseconds);
    return names;
}
