#pragma once

#include "StoredSecret.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QWidget>

/// What the tests of the FTP panel and of its dialog share.
namespace FtpTest {

using Settings = QHash<QString, QVariant>;

template<class Child>
Child *child(const QWidget &parent, const char *name)
{
    return parent.findChild<Child *>(QString::fromLatin1(name));
}

/// The settings of a panel for the URL, as the panel itself would write them.
inline Settings settingsFor(const QByteArray &url, bool activated = true, bool erase = false)
{
    return {{QStringLiteral("FTPServerURL"), StoredSecret::encipher(url)},
            {QStringLiteral("EraseSourceFiles"), erase},
            {QStringLiteral("FTPIsActivated"), activated}};
}

/// The URL that lies in the settings, as the bytes that were enciphered.
inline QByteArray storedUrl(const Settings &settings)
{
    return StoredSecret::decipher(settings.value(QStringLiteral("FTPServerURL")).toString());
}

} // namespace FtpTest
