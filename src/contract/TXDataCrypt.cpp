#include "TXDataCrypt.h"

#include "TXDataCryptKey.h"
#include "TXError.h"

#include <QStandardPaths>

#include <sodium.h>

namespace {

constexpr char kVersionMark[] = "TXC1.";
constexpr qsizetype kVersionMarkBytes = sizeof kVersionMark - 1;
constexpr qsizetype kNonceBytes = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr qsizetype kTagBytes = crypto_aead_xchacha20poly1305_ietf_ABYTES;
constexpr QByteArray::Base64Options kBase64 = QByteArray::Base64UrlEncoding
    | QByteArray::OmitTrailingEquals | QByteArray::AbortOnBase64DecodingErrors;

const unsigned char *keyBytes(TXError *error)
{
    static TXDataCryptKey key(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/TXGUICommon/datacrypt.key"));
    return key.bytes(error);
}

const unsigned char *bytesOf(const QByteArray &data)
{
    return reinterpret_cast<const unsigned char *>(data.constData());
}

unsigned char *bytesOf(QByteArray *data)
{
    return reinterpret_cast<unsigned char *>(data->data());
}

const unsigned char *versionMark()
{
    return reinterpret_cast<const unsigned char *>(kVersionMark);
}

/// Nonce, then cipher text with its tag.
QByteArray sealed(const QByteArray &clear, const unsigned char *key)
{
    QByteArray box(kNonceBytes + clear.size() + kTagBytes, Qt::Uninitialized);
    unsigned char *nonce = bytesOf(&box);
    randombytes_buf(nonce, kNonceBytes);
    crypto_aead_xchacha20poly1305_ietf_encrypt(nonce + kNonceBytes, nullptr, bytesOf(clear),
                                               clear.size(), versionMark(), kVersionMarkBytes,
                                               nullptr, nonce, key);
    return box;
}

bool open(const QByteArray &box, const unsigned char *key, QByteArray *clear)
{
    if (box.size() < kNonceBytes + kTagBytes) {
        return false;
    }
    clear->resize(box.size() - kNonceBytes - kTagBytes);
    const unsigned char *nonce = bytesOf(box);
    return crypto_aead_xchacha20poly1305_ietf_decrypt(bytesOf(clear), nullptr, nullptr,
                                                      nonce + kNonceBytes, box.size() - kNonceBytes,
                                                      versionMark(), kVersionMarkBytes, nonce, key)
        == 0;
}

QByteArray fail(TXError *error, const char *description)
{
    reportDataCryptError(error, TXStringI18n("TXDataCrypt", description, nullptr, -1));
    return {};
}

} // namespace

QByteArray TXDataCrypt::encrypt(const QByteArray &data, TXError *error)
{
    const unsigned char *key = keyBytes(error);
    return key ? kVersionMark + sealed(data, key).toBase64(kBase64) : QByteArray();
}

QByteArray TXDataCrypt::decrypt(const QByteArray &data, TXError *error)
{
    const auto box = QByteArray::fromBase64Encoding(data.mid(kVersionMarkBytes), kBase64);
    if (!data.startsWith(kVersionMark) || !box) {
        return fail(error, QT_TRANSLATE_NOOP("TXDataCrypt", "The data is not enciphered"));
    }
    const unsigned char *key = keyBytes(error);
    if (!key) {
        return {};
    }
    QByteArray clear;
    if (!open(*box, key, &clear)) {
        return fail(error,
                    QT_TRANSLATE_NOOP("TXDataCrypt",
                                      "The data is damaged or was enciphered with another key"));
    }
    return clear;
}
