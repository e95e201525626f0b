#include "ColourProfileCheck.h"

#include "TXError.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QtEndian>

namespace {

constexpr int kHeaderBytes = 128;
constexpr int kMajorVersionAt = 8;
constexpr int kClassAt = 12;
constexpr int kSignatureAt = 36;
constexpr int kTagBytes = 4;
constexpr int kOldestVersion = 2;
constexpr int kNewestVersion = 4;

TXStringI18n message(const char *source)
{
    return {"ColourProfileCheck", source, nullptr, -1};
}

TXStringI18n message(const char *source, const QString &argument)
{
    return message(source).arg(argument);
}

TXError makeError(const TXStringI18n &description)
{
    TXError error;
    error.setDescription(description);
    return error;
}

/// What stands there, in a form that can be shown.
QString shown(const QByteArray &tag)
{
    QString text;
    for (const char byte : tag) {
        const bool isPrintable = byte >= ' ' && byte <= '~';
        text += isPrintable ? QLatin1Char(byte) : QChar(0x00B7);
    }
    return text;
}

void checkSize(QList<TXError> &reasons, const QByteArray &header, qint64 fileBytes)
{
    const auto told = qFromBigEndian<quint32>(header.constData());
    if (told == fileBytes) {
        return;
    }
    const QLocale locale;
    reasons.append(makeError(
        message(QT_TRANSLATE_NOOP("ColourProfileCheck", "%1 bytes by the header, %2 in the file."))
            .arg(locale.toString(told))
            .arg(locale.toString(fileBytes))));
}

void checkSignature(QList<TXError> &reasons, const QByteArray &header)
{
    const QByteArray signature = header.mid(kSignatureAt, kTagBytes);
    if (signature != "acsp") {
        reasons.append(makeError(message(
            QT_TRANSLATE_NOOP("ColourProfileCheck", "The signature is \"%1\" instead of \"acsp\"."),
            shown(signature))));
    }
}

void checkVersion(QList<TXError> &reasons, const QByteArray &header)
{
    const int version = uchar(header[kMajorVersionAt]);
    if (version < kOldestVersion || version > kNewestVersion) {
        reasons.append(makeError(
            message(QT_TRANSLATE_NOOP("ColourProfileCheck", "Version %1 is not supported."),
                    QString::number(version))));
    }
}

void checkClass(QList<TXError> &reasons, const QByteArray &header)
{
    const QByteArray deviceClass = header.mid(kClassAt, kTagBytes);
    for (const char *known : {"scnr", "mntr", "prtr", "link", "spac", "abst", "nmcl"}) {
        if (deviceClass == known) {
            return;
        }
    }
    reasons.append(makeError(
        message(QT_TRANSLATE_NOOP("ColourProfileCheck", "The device class \"%1\" is unknown."),
                shown(deviceClass))));
}

QList<TXError> findReasons(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        TXError reason = makeError(
            message(QT_TRANSLATE_NOOP("ColourProfileCheck", "The file cannot be opened.")));
        reason.subErrors.append(makeError(TXStringI18n::fromString(file.errorString())));
        return {reason};
    }
    const QByteArray header = file.read(kHeaderBytes);
    if (header.size() < kHeaderBytes) {
        return {
            makeError(message(QT_TRANSLATE_NOOP("ColourProfileCheck",
                                                "The file ends within the header, after %1 bytes."),
                              QString::number(header.size())))};
    }
    QList<TXError> reasons;
    checkSignature(reasons, header);
    checkSize(reasons, header, file.size());
    checkVersion(reasons, header);
    checkClass(reasons, header);
    return reasons;
}

} // namespace

bool checkColourProfile(const QString &path, TXError *error)
{
    const QList<TXError> reasons = findReasons(path);
    if (reasons.isEmpty()) {
        return true;
    }
    if (error) {
        error->domain = QStringLiteral("ColourProfileErrorDomain");
        error->code = 0;
        error->subErrors = reasons;
        error->setDescription(message(QT_TRANSLATE_NOOP("ColourProfileCheck",
                                                        "\"%1\" cannot be used as a colour "
                                                        "profile."),
                                      QFileInfo(path).fileName()));
    }
    return false;
}
