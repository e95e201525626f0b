#include "TXJSONSerializer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QUuid>

#include <algorithm>
#include <limits>
#include <optional>

// Qt's JSON keeps integers exactly as long as they fit a signed one. Greater ones travel through it
// as strings, told from real strings by a mark that is made anew each time.

namespace {

constexpr char kByteOrderMark[] = "\xef\xbb\xbf";
constexpr int kDigitsThatAlwaysFit = std::numeric_limits<qint64>::digits10;

QByteArray makeMark()
{
    return QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
}

// ---- Writing

bool isObject(const QVariant &variant)
{
    const int type = variant.typeId();
    return type == QMetaType::QVariantMap || type == QMetaType::QVariantHash
        || type == QMetaType::QJsonObject
        || (type >= QMetaType::User && variant.canConvert<QVariantMap>());
}

bool isArray(const QVariant &variant)
{
    const int type = variant.typeId();
    return type == QMetaType::QVariantList || type == QMetaType::QStringList
        || type == QMetaType::QByteArrayList || type == QMetaType::QJsonArray
        || (type >= QMetaType::User && variant.canConvert<QVariantList>());
}

QJsonValue toJson(quint64 number, const QByteArray &mark)
{
    if (number <= quint64(std::numeric_limits<qint64>::max())) {
        return qint64(number);
    }
    return QString::fromLatin1(mark + QByteArray::number(number));
}

QJsonValue scalarToJson(const QVariant &variant, const QByteArray &mark)
{
    switch (variant.typeId()) {
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::Long:
        return variant.toLongLong();
    case QMetaType::UChar:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return toJson(variant.toULongLong(), mark);
    default:
        if (variant.metaType().flags().testFlag(QMetaType::IsEnumeration)) {
            return variant.toLongLong();
        }
        return QJsonValue::fromVariant(variant);
    }
}

std::optional<QJsonValue> toJson(const QVariant &variant, const QByteArray &mark, int levels);

/// In the order of the keys, since to insert before others costs a JSON object their number.
std::optional<QJsonValue> objectToJson(const QVariantMap &map, const QByteArray &mark, int levels)
{
    QJsonObject object;
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        const auto member = toJson(it.value(), mark, levels);
        if (!member) {
            return std::nullopt;
        }
        object.insert(it.key(), *member);
    }
    return object;
}

std::optional<QJsonValue> arrayToJson(const QVariantList &list, const QByteArray &mark, int levels)
{
    QJsonArray array;
    for (const QVariant &entry : list) {
        const auto element = toJson(entry, mark, levels);
        if (!element) {
            return std::nullopt;
        }
        array.append(*element);
    }
    return array;
}

/// Nothing when the value has more levels of objects and arrays than may still come.
std::optional<QJsonValue> toJson(const QVariant &variant, const QByteArray &mark, int levels)
{
    if (variant.typeId() == QMetaType::QJsonValue) {
        return toJson(variant.toJsonValue().toVariant(), mark, levels);
    }
    if (variant.typeId() == QMetaType::QJsonDocument) {
        return toJson(variant.toJsonDocument().toVariant(), mark, levels);
    }
    const bool object = isObject(variant);
    if (!object && !isArray(variant)) {
        return scalarToJson(variant, mark);
    }
    if (levels == 0) {
        return std::nullopt;
    }
    return object ? objectToJson(variant.toMap(), mark, levels - 1)
                  : arrayToJson(variant.toList(), mark, levels - 1);
}

QByteArray toText(const QJsonValue &value, bool indented)
{
    const auto format = indented ? QJsonDocument::Indented : QJsonDocument::Compact;
    if (value.isObject()) {
        return QJsonDocument(value.toObject()).toJson(format);
    }
    if (value.isArray()) {
        return QJsonDocument(value.toArray()).toJson(format);
    }
    // A document holds no scalars, so one is taken out of an array.
    const QByteArray text = QJsonDocument(QJsonArray({value})).toJson(QJsonDocument::Compact);
    return text.mid(1, text.size() - 2);
}

/// Turns the marked strings of a text into numbers.
QByteArray withNumbers(const QByteArray &json, const QByteArray &mark)
{
    const QByteArray opening = '"' + mark;
    QByteArray result;
    qsizetype done = 0;
    for (qsizetype at = json.indexOf(opening); at >= 0; at = json.indexOf(opening, done)) {
        const qsizetype digits = at + opening.size();
        const qsizetype end = json.indexOf('"', digits);
        result += QByteArrayView(json).sliced(done, at - done);
        result += QByteArrayView(json).sliced(digits, end - digits);
        done = end + 1;
    }
    return done == 0 ? json : result + json.mid(done);
}

// ---- Reading

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool startsNumber(char character)
{
    return isDigit(character) || character == '-' || character == '.';
}

bool isOfNumber(char character)
{
    return isDigit(character) || QByteArrayView("+-.eE").contains(character);
}

/// A quick look, before anything is copied: whether there is an integer too large for Qt's JSON.
bool mayHoldLargeNumber(const QByteArray &json)
{
    int run = 0;
    for (const char character : json) {
        run = isDigit(character) ? run + 1 : 0;
        if (run > kDigitsThatAlwaysFit) {
            return true;
        }
    }
    return false;
}

bool isLargeInteger(const QByteArray &number)
{
    const auto digits = number.cbegin() + (number.startsWith('-') ? 1 : 0);
    bool fits = false;
    number.toLongLong(&fits);
    return !fits && std::all_of(digits, number.cend(), isDigit);
}

qsizetype endOfString(const QByteArray &json, qsizetype from)
{
    qsizetype end = from + 1;
    while (end < json.size() && json.at(end) != '"') {
        end += json.at(end) == '\\' ? 2 : 1;
    }
    return qMin(end + 1, json.size());
}

qsizetype endOfNumber(const QByteArray &json, qsizetype from)
{
    const auto end = std::find_if_not(json.cbegin() + from, json.cend(), isOfNumber);
    return end - json.cbegin();
}

/// Turns the large integers of a text, which must be valid JSON, into marked strings.
QByteArray withMarks(const QByteArray &json, const QByteArray &mark)
{
    const QByteArrayView view(json);
    QByteArray result;
    qsizetype end = 0;
    for (qsizetype at = 0; at < json.size(); at = end) {
        if (!startsNumber(json.at(at))) {
            end = json.at(at) == '"' ? endOfString(json, at) : at + 1;
            result += view.sliced(at, end - at);
            continue;
        }
        end = endOfNumber(json, at);
        const QByteArray number = json.mid(at, end - at);
        result += isLargeInteger(number) ? '"' + mark + number + '"' : number;
    }
    return result;
}

QVariant stringToVariant(const QString &text, const QByteArray &mark)
{
    if (mark.isEmpty() || !text.startsWith(QLatin1String(mark))) {
        return text;
    }
    const QString digits = text.mid(mark.size());
    bool fits = false;
    const qulonglong number = digits.toULongLong(&fits);
    return fits ? QVariant(number) : QVariant(digits.toDouble());
}

/// Its depth is that of the document, which Qt's parser limits.
QVariant toVariant(const QJsonValue &value, const QByteArray &mark)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        QVariantHash hash;
        for (auto it = object.begin(); it != object.end(); ++it) {
            hash.insert(it.key(), toVariant(it.value(), mark));
        }
        return hash;
    }
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        QVariantList list;
        for (const QJsonValue element : array) {
            list.append(toVariant(element, mark));
        }
        return list;
    }
    return value.isString() ? stringToVariant(value.toString(), mark) : value.toVariant();
}

bool isObjectOrArray(const QByteArray &json)
{
    const auto start = std::find_if_not(json.cbegin(), json.cend(), [](char character) {
        return QByteArrayView(" \t\r\n").contains(character);
    });
    return start != json.cend() && (*start == '{' || *start == '[');
}

} // namespace

QByteArray TXJSONSerializer::serialize(const QVariant &value, bool indented)
{
    const QByteArray mark = makeMark();
    const auto json = toJson(value, mark, kDeepestNesting);
    return json ? withNumbers(toText(*json, indented), mark) : QByteArray();
}

QVariant TXJSONSerializer::deserialize(const QByteArray &json)
{
    const QByteArray text = json.startsWith(kByteOrderMark) ? json.mid(3) : json;
    const bool isScalar = !isObjectOrArray(text);
    const QByteArray source = isScalar ? '[' + text + ']' : text;
    QJsonDocument document = QJsonDocument::fromJson(source);
    QByteArray mark;
    if (!document.isNull() && mayHoldLargeNumber(source)) {
        mark = makeMark();
        document = QJsonDocument::fromJson(withMarks(source, mark));
    }
    if (document.isObject()) {
        return toVariant(document.object(), mark);
    }
    const QJsonArray array = document.array();
    if (!isScalar) {
        return document.isArray() ? toVariant(array, mark) : QVariant();
    }
    return array.size() == 1 ? toVariant(array.at(0), mark) : QVariant();
}
