#include "TXFlatString.h"

#include <QCryptographicHash>

namespace {

constexpr QStringView kMark = u"@TXi18n1:";
constexpr QChar kEscape = u'%';
constexpr QChar kSeparator = u';';
constexpr int kChecksumCharacters = 8;
constexpr int kUnitDigits = 4;

bool isPlain(QChar character)
{
    return character > u' ' && character <= u'~' && character != kEscape && character != kSeparator;
}

QString escaped(const QString &field)
{
    QString result;
    result.reserve(field.size());
    for (const QChar character : field) {
        if (isPlain(character)) {
            result += character;
        } else {
            result += kEscape
                + QString::number(character.unicode(), 16).rightJustified(kUnitDigits, u'0');
        }
    }
    return result;
}

std::optional<QString> unescaped(QStringView field)
{
    QString result;
    result.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        if (field[i] != kEscape) {
            result += field[i];
            continue;
        }
        bool isNumber = false;
        const QStringView digits = field.mid(i + 1, kUnitDigits);
        const ushort unit = digits.toUShort(&isNumber, 16);
        if (!isNumber || digits.size() != kUnitDigits) {
            return std::nullopt;
        }
        result += QChar(unit);
        i += kUnitDigits;
    }
    return result;
}

QString checksum(QStringView data)
{
    const QByteArray digest =
        QCryptographicHash::hash(data.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QString::fromLatin1(digest.left(kChecksumCharacters));
}

} // namespace

QString TXFlatString::join(const QStringList &fields)
{
    QStringList parts;
    parts.reserve(fields.size());
    for (const QString &field : fields) {
        parts.append(escaped(field));
    }
    const QString data = parts.join(kSeparator);
    return kMark.toString() + checksum(data) + kSeparator + data;
}

std::optional<QStringList> TXFlatString::split(const QString &text)
{
    if (!text.startsWith(kMark)) {
        return std::nullopt;
    }
    const QStringView rest = QStringView(text).mid(kMark.size());
    const QStringView data = rest.mid(kChecksumCharacters + 1);
    if (rest.left(kChecksumCharacters + 1) != checksum(data) + kSeparator) {
        return std::nullopt;
    }

    QStringList fields;
    for (const QStringView part : data.split(kSeparator)) {
        const std::optional<QString> field = unescaped(part);
        if (!field) {
            return std::nullopt;
        }
        fields.append(*field);
    }
    return fields;
}
