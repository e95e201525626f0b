#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>

class TXError;

/// Enciphers small secrets, such as passwords, that lie in settings files.
///
/// The result is bound to the user: the key lies in the file "TXGUICommon/datacrypt.key" in the
/// user's general configuration folder (QStandardPaths::GenericConfigLocation), readable by that
/// user alone. It is made when it is first needed, is shared by all applications of the family,
/// whatever their names, and is never written again. Without the key file what was enciphered is
/// lost. This protects settings that are copied, mailed or backed up without the key; it does not
/// protect against programs that run as the same user.
///
/// Thread: any, for both functions. The first call reads or makes the key file; a failure to do so
/// is tried again by the next call.
class TXCORECOMMON_EXPORT TXDataCrypt
{
public:
    TXDataCrypt() = delete;

    /// The data as a line of printable ASCII without blanks, other at each call. Empty data can be
    /// enciphered too. On failure (no key file and none can be made, or the key file is damaged)
    /// the result is empty and `error`, unless it is null, tells why, with the domain
    /// "DataCryptErrorDomain". On success `error` is left alone.
    static QByteArray encrypt(const QByteArray &data, TXError *error);

    /// The data again. Anything that encrypt() did not make with this user's key (empty, cut off,
    /// changed, or of a later version) gives an empty result and an error as in encrypt().
    static QByteArray decrypt(const QByteArray &data, TXError *error);
};
