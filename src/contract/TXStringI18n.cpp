#include "TXStringI18n.h"

#include "TXFlatString.h"
#include "TXStringI18nData.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

using Argument = TXStringI18nData::Argument;

namespace {

constexpr qsizetype kLongestMultipliedCharacters = 1'000'000;
constexpr int kHighestMarker = 99;

// The fields of a flat form, in their order. A plain text has the one field.
constexpr qsizetype kPlainFields = 1;
enum TranslatableField { Context, Source, Disambiguation, Number, FixedFields };
enum ArgumentField { Text, FieldWidth, FillChar, FieldsOfAnArgument };

QString withNumber(QString text, int n)
{
    if (n < 0) {
        return text;
    }
    return text.replace(QLatin1String("%Ln"), QLocale().toString(n))
        .replace(QLatin1String("%n"), QString::number(n));
}

QString translated(const TXStringI18nData &data, QTranslator *translator)
{
    const char *disambiguation =
        data.disambiguation.isEmpty() ? nullptr : data.disambiguation.constData();
    if (!translator) {
        return QCoreApplication::translate(data.context, data.source, disambiguation, data.n);
    }
    const QString found = translator->translate(data.context, data.source, disambiguation, data.n);
    return withNumber(found.isNull() ? QString::fromUtf8(data.source) : found, data.n);
}

/// The number of a marker whose digits start there, -1 when there is none.
int markerNumber(const QString &text, qsizetype at)
{
    const int first = at < text.size() ? text.at(at).digitValue() : -1;
    const int second = at + 1 < text.size() ? text.at(at + 1).digitValue() : -1;
    return first < 0 || second < 0 ? first : 10 * first + second;
}

/// How many places the next QString::arg() fills: those with the lowest number.
qsizetype countLowestMarkers(const QString &text)
{
    qsizetype count = 0;
    int lowest = kHighestMarker + 1;
    for (qsizetype at = text.indexOf(u'%'); at >= 0; at = text.indexOf(u'%', at + 1)) {
        const bool isLocalised = at + 1 < text.size() && text.at(at + 1) == u'L';
        const int number = markerNumber(text, isLocalised ? at + 2 : at + 1);
        if (number >= 0 && number < lowest) {
            lowest = number;
            count = 0;
        }
        count += number == lowest ? 1 : 0;
    }
    return count;
}

/// Does what QString::arg() does, and returns false when nothing is to be done. QString::arg()
/// itself would warn then, although a translation may well leave a marker out.
///
/// Places that share a number multiply the text, and over several arguments that grows without
/// bound; past the limit such an argument is refused.
bool fill(QString *text, const Argument &argument)
{
    const qsizetype places = countLowestMarkers(*text);
    const qsizetype size = qMax<qsizetype>(argument.text.size(), qAbs(argument.fieldWidth));
    if (places == 0
        || (places > 1 && size > (kLongestMultipliedCharacters - text->size()) / places)) {
        return false;
    }
    *text = text->arg(argument.text, argument.fieldWidth, argument.fillChar);
    return true;
}

QStringList toFields(const TXStringI18nData &data)
{
    QStringList fields = {QString::fromLatin1(data.context), QString::fromLatin1(data.source),
                          QString::fromLatin1(data.disambiguation), QString::number(data.n)};
    for (const Argument &argument : data.arguments) {
        fields << argument.text << QString::number(argument.fieldWidth) << argument.fillChar;
    }
    return fields;
}

bool readArgument(const QStringList &fields, qsizetype first, Argument *argument)
{
    const QString &fillChar = fields.at(first + FillChar);
    bool isNumber = false;
    argument->text = fields.at(first + Text);
    argument->fieldWidth = fields.at(first + FieldWidth).toInt(&isNumber);
    if (!isNumber || fillChar.size() != 1
        || qAbs(qint64(argument->fieldWidth)) > TXStringI18n::kWidestFieldCharacters) {
        return false;
    }
    argument->fillChar = fillChar.front();
    return true;
}

bool readFields(const QStringList &fields, TXStringI18nData *data)
{
    const qsizetype argumentFields = fields.size() - FixedFields;
    if (argumentFields < 0 || argumentFields % FieldsOfAnArgument != 0
        || argumentFields / FieldsOfAnArgument > TXStringI18n::kMostArguments) {
        return false;
    }
    bool isNumber = false;
    data->context = fields.at(Context).toLatin1();
    data->source = fields.at(Source).toLatin1();
    data->disambiguation = fields.at(Disambiguation).toLatin1();
    data->n = fields.at(Number).toInt(&isNumber);
    for (qsizetype i = FixedFields; isNumber && i < fields.size(); i += FieldsOfAnArgument) {
        Argument argument;
        if (!readArgument(fields, i, &argument)) {
            return false;
        }
        data->arguments.append(argument);
    }
    return isNumber && !data->source.isEmpty();
}

} // namespace

TXStringI18n::TXStringI18n() = default;

TXStringI18n::TXStringI18n(const char *source)
    : TXStringI18n(nullptr, source, nullptr, -1)
{ }

TXStringI18n::TXStringI18n(const char *context, const char *source, const char *disambiguation,
                           int n)
{
    if (qstrlen(source) == 0) {
        return;
    }
    translatable = new TXStringI18nData;
    translatable->context = context ? context : "";
    translatable->source = source;
    translatable->disambiguation = disambiguation;
    translatable->n = n;
}

TXStringI18n::TXStringI18n(const TXStringI18n &other) = default;
TXStringI18n::TXStringI18n(TXStringI18n &&other) noexcept = default;
TXStringI18n &TXStringI18n::operator=(const TXStringI18n &other) = default;
TXStringI18n &TXStringI18n::operator=(TXStringI18n &&other) noexcept = default;
TXStringI18n::~TXStringI18n() = default;

TXStringI18n TXStringI18n::arg(const QString &a, int fieldWidth, QChar fillChar) const
{
    const Argument argument = {
        a, qBound(-kWidestFieldCharacters, fieldWidth, kWidestFieldCharacters), fillChar};
    TXStringI18n result = *this;
    if (!translatable) {
        fill(&result.text, argument);
    } else if (translatable->arguments.size() < kMostArguments) {
        result.translatable->arguments.append(argument);
    }
    return result;
}

QString TXStringI18n::toString(QTranslator *translator) const
{
    if (!translatable) {
        return text;
    }
    QString result = translated(*translatable, translator);
    for (const Argument &argument : translatable->arguments) {
        if (!fill(&result, argument)) {
            break;
        }
    }
    return result;
}

QString TXStringI18n::toFlatString() const
{
    if (translatable) {
        return TXFlatString::join(toFields(*translatable));
    }
    return TXFlatString::split(text) ? TXFlatString::join({text}) : text;
}

TXStringI18n TXStringI18n::fromString(const QString &text)
{
    TXStringI18n result;
    result.text = text;
    const std::optional<QStringList> fields = TXFlatString::split(text);
    if (!fields) {
        return result;
    }
    if (fields->size() == kPlainFields) {
        result.text = fields->front();
        return result;
    }
    QSharedDataPointer<TXStringI18nData> data(new TXStringI18nData);
    if (readFields(*fields, data.data())) {
        result.text.clear();
        result.translatable = data;
    }
    return result;
}

bool TXStringI18n::isEmpty() const
{
    return !translatable && text.isEmpty();
}

bool TXStringI18n::operator==(const TXStringI18n &other) const
{
    if (!translatable || !other.translatable) {
        return !translatable && !other.translatable && text == other.text;
    }
    return translatable.constData() == other.translatable.constData()
        || *translatable == *other.translatable;
}
