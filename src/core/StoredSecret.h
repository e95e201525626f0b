#pragma once

#include "TXGUICommonExport.h"

#include <QByteArray>
#include <QString>

/// The form in which passwords and other secrets stand in settings: enciphered for this user on
/// this machine, as text of printable ASCII characters. Holds no state; any thread.
class TXGUICOMMON_PRIVATE_EXPORT StoredSecret
{
public:
    /// The bytes as text for the settings, another one at each call; empty when there is no key.
    static QString encipher(const QByteArray &secret);

    /// What was given to encipher(); empty when the text is no cipher or was written with another
    /// key.
    static QByteArray decipher(const QString &text);
};
