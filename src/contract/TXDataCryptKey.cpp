#include "TXDataCryptKey.h"

#include "TXError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <sodium.h>

#include <utility>

static_assert(TXDataCryptKey::kBytes == crypto_aead_xchacha20poly1305_ietf_KEYBYTES);

namespace {

bool fail(TXError *error, const TXStringI18n &description)
{
    reportDataCryptError(error, description);
    return false;
}

bool failToMake(TXError *error, const QString &path, const QString &reason)
{
    return fail(error,
                TXStringI18n("TXDataCrypt", "The key file %2 cannot be made: %1", nullptr, -1)
                    .arg(reason)
                    .arg(path));
}

bool makePrivateFolder(const QString &path)
{
    const QFileInfo folder(path);
    QDir().mkpath(folder.path());
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder.isDir();
}

/// Writes a new key to a file of its own beside the path, which its user alone may read. The result
/// is the name of that file, empty on failure.
QString writeNewKey(const QString &path, QString *reason)
{
    QTemporaryFile place(path + QStringLiteral(".XXXXXX"));
    if (!place.open()) {
        *reason = place.errorString();
        return {};
    }
    // Opened again, since the temporary file would leave the key in its buffer.
    QFile file(place.fileName());
    std::array<char, TXDataCryptKey::kBytes> bytes;
    randombytes_buf(bytes.data(), bytes.size());
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        && file.write(bytes.data(), bytes.size()) == TXDataCryptKey::kBytes;
    sodium_memzero(bytes.data(), bytes.size());
    place.setAutoRemove(!isWritten);
    *reason = file.errorString();
    return isWritten ? file.fileName() : QString();
}

} // namespace

TXDataCryptKey::TXDataCryptKey(QString path)
    : path(std::move(path))
{ }

TXDataCryptKey::~TXDataCryptKey()
{
    sodium_memzero(key.data(), key.size());
}

const unsigned char *TXDataCryptKey::bytes(TXError *error)
{
    const QMutexLocker locker(&mutex);
    isLoaded = isLoaded || load(error);
    return isLoaded ? key.data() : nullptr;
}

bool TXDataCryptKey::load(TXError *error)
{
    if (sodium_init() < 0) {
        return fail(error,
                    TXStringI18n("TXDataCrypt", "The cipher cannot be started", nullptr, -1));
    }
    // Whoever was first, what counts is what the file holds now.
    return (QFileInfo::exists(path) || make(error)) && read(error);
}

bool TXDataCryptKey::read(TXError *error)
{
    QFile file(path);
    // Opening a pipe would wait for somebody who writes to it.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return fail(
            error,
            TXStringI18n("TXDataCrypt", "The key file %1 cannot be read", nullptr, -1).arg(path));
    }
    const qint64 size = file.size();
    if (size != kBytes || file.read(reinterpret_cast<char *>(key.data()), kBytes) != kBytes) {
        return fail(error,
                    TXStringI18n("TXDataCrypt",
                                 "The key file %3 is damaged: it has %1 bytes instead of %2",
                                 nullptr, -1)
                        .arg(QString::number(size))
                        .arg(QString::number(kBytes))
                        .arg(path));
    }
    return true;
}

bool TXDataCryptKey::make(TXError *error) const
{
    const QString folder = QFileInfo(path).path();
    if (!makePrivateFolder(folder)) {
        return fail(
            error,
            TXStringI18n("TXDataCrypt", "The folder %1 cannot be made", nullptr, -1).arg(folder));
    }
    QString reason;
    const QString temporary = writeNewKey(path, &reason);
    return (!temporary.isEmpty() && publishFileUnlessExists(temporary, path, &reason))
        || failToMake(error, path, reason);
}

void reportDataCryptError(TXError *error, const TXStringI18n &description)
{
    if (error) {
        error->domain = QStringLiteral("DataCryptErrorDomain");
        error->code = 0;
        error->setDescription(description);
    }
}
