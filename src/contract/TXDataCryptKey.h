#pragma once

#include "TXCoreCommonExport.h"

#include <QMutex>
#include <QString>

#include <array>

class TXError;
class TXStringI18n;

/// The secret key in a file, and its copy in memory, which is wiped on destruction.
class TXCORECOMMON_PRIVATE_EXPORT TXDataCryptKey
{
public:
    static constexpr qint64 kBytes = 32;

    /// Touches nothing yet.
    explicit TXDataCryptKey(QString path);
    ~TXDataCryptKey();
    Q_DISABLE_COPY_MOVE(TXDataCryptKey)

    /// The key's kBytes bytes, valid for as long as this object lives.
    ///
    /// The first call reads the file, or makes it and its folder when there is none. Processes and
    /// threads that do so together agree on one key. A file that exists is never changed. On
    /// failure the result is null, `error` is filled unless it is null, and the next call tries
    /// again. Callable from any thread.
    const unsigned char *bytes(TXError *error);

private:
    bool load(TXError *error);
    bool read(TXError *error);
    bool make(TXError *error) const;

    const QString path;
    QMutex mutex;
    bool isLoaded = false;
    std::array<unsigned char, kBytes> key = {};
};

/// Fills an error of the cipher, unless it is null.
void reportDataCryptError(TXError *error, const TXStringI18n &description);

/// Gives a finished file its final name, provided that no file has that name yet, in one step that
/// survives a loss of power. True also when another process was quicker; the file under the old
/// name is gone in any case. One source for each platform.
TXCORECOMMON_PRIVATE_EXPORT bool publishFileUnlessExists(const QString &from, const QString &to,
                                                         QString *reason);
