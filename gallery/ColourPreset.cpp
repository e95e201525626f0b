#include "ColourPreset.h"

#include "JsonFile.h"
#include "JsonObjectReader.h"
#include "ShortText.h"

#include "TXJSONSerializer.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace {

constexpr int kVersion = 1;
/// In UTF-16 units, so that with a suffix the name has at most 255 bytes on every file system.
constexpr qsizetype kLongestFileName = 80;

const QString kFormatKey = QStringLiteral("format");
const QString kVersionKey = QStringLiteral("version");
const QString kNameKey = QStringLiteral("name");
const QString kIntentKey = QStringLiteral("renderingIntent");
const QString kCompensationKey = QStringLiteral("blackPointCompensation");
const QString kPaperKey = QStringLiteral("paperWhite");
const QString kInkKey = QStringLiteral("inkLimitPercent");
const QString kLightnessKey = QStringLiteral("L");
const QString kAKey = QStringLiteral("a");
const QString kBKey = QStringLiteral("b");

const QString kFormatMark = QStringLiteral("TXGallery colour preset");

/// In the order of the intents, as they stand in a file.
const std::array kIntentWords = {QStringLiteral("perceptual"), QStringLiteral("relative"),
                                 QStringLiteral("saturation"), QStringLiteral("absolute")};

TXStringI18n message(const char *text)
{
    return {"ColourPreset", text, nullptr, -1};
}

/// What another program or a newer gallery has made is told as such, before its members are looked
/// at.
void checkFormat(JsonObjectReader &reader)
{
    if (reader.text(kFormatKey) != kFormatMark) {
        reader.fail(message(QT_TRANSLATE_NOOP("ColourPreset", "It is no colour preset.")));
    }
    const int version = reader.wholeNumber(kVersionKey, 1, std::numeric_limits<int>::max());
    if (version != kVersion) {
        reader.fail(message(QT_TRANSLATE_NOOP("ColourPreset", "Its version, %1, is not known."))
                        .arg(QString::number(version)));
    }
}

LabColour readPaper(JsonObjectReader &reader)
{
    JsonObjectReader lab = reader.object(kPaperKey);
    lab.allowOnly({kLightnessKey, kAKey, kBKey});
    const double limit = ColourPreset::kLargestChroma;
    const LabColour colour = {lab.number(kLightnessKey, 0, ColourPreset::kLargestLightness),
                              lab.number(kAKey, -limit, limit), lab.number(kBKey, -limit, limit)};
    reader.fail(lab.error());
    return colour;
}

ColourPreset::Intent readIntent(JsonObjectReader &reader)
{
    const QString word = reader.text(kIntentKey);
    const auto *found = std::find(kIntentWords.cbegin(), kIntentWords.cend(), word);
    if (found == kIntentWords.cend()) {
        reader.fail(message(QT_TRANSLATE_NOOP("ColourPreset", "\"%1\" is no rendering intent."))
                        .arg(shortText(word)));
        return ColourPreset::Intent::Perceptual;
    }
    return ColourPreset::kIntents[size_t(found - kIntentWords.cbegin())];
}

QString readName(JsonObjectReader &reader)
{
    const QString name = reader.text(kNameKey);
    reader.fail(ColourPreset::nameProblem(name));
    return name;
}

bool isShown(QChar character)
{
    const QChar::Category category = character.category();
    return category != QChar::Other_Control && category != QChar::Separator_Line
        && category != QChar::Separator_Paragraph;
}

} // namespace

QString ColourPreset::intentName(Intent intent)
{
    constexpr std::array kNames = {QT_TRANSLATE_NOOP("ColourPreset", "Perceptual"),
                                   QT_TRANSLATE_NOOP("ColourPreset", "Relative colorimetric"),
                                   QT_TRANSLATE_NOOP("ColourPreset", "Saturation"),
                                   QT_TRANSLATE_NOOP("ColourPreset", "Absolute colorimetric")};
    return QCoreApplication::translate("ColourPreset", kNames[size_t(intent)]);
}

TXStringI18n ColourPreset::nameProblem(const QString &name)
{
    if (name.trimmed().isEmpty()) {
        return message(QT_TRANSLATE_NOOP("ColourPreset", "The name is empty."));
    }
    if (name.size() > kLongestName) {
        return message(QT_TRANSLATE_NOOP("ColourPreset", "The name is longer than %1 characters."))
            .arg(QString::number(kLongestName));
    }
    if (!name.isValidUtf16() || !std::all_of(name.cbegin(), name.cend(), isShown)) {
        return message(
            QT_TRANSLATE_NOOP("ColourPreset", "The name has characters that cannot be shown."));
    }
    return {};
}

QString ColourPreset::summary() const
{
    const QLocale locale;
    const QString compensation = hasBlackPointCompensation
        ? QCoreApplication::translate("ColourPreset", "with black point compensation")
        : QCoreApplication::translate("ColourPreset", "without black point compensation");
    return QCoreApplication::translate("ColourPreset",
                                       "%1, %2, paper L* %3 a* %4 b* %5, at most %6 % ink")
        .arg(intentName(intent), compensation, locale.toString(paperWhite.lightness, 'f', 1),
             locale.toString(paperWhite.a, 'f', 1), locale.toString(paperWhite.b, 'f', 1),
             locale.toString(inkLimitPercent));
}

QString ColourPreset::fileName() const
{
    QString result;
    for (const QChar character : name) {
        const bool isFit = character.isLetterOrNumber() || character.isMark()
            || character.isSurrogate() || QStringLiteral(" -_").contains(character);
        result.append(isFit ? character : QChar(u'_'));
    }
    // A character takes up to three bytes, or four for two units.
    return startOf(result, kLongestFileName).trimmed() + QStringLiteral(".json");
}

bool ColourPreset::hasSameSettings(const ColourPreset &other) const
{
    return name == other.name && intent == other.intent
        && hasBlackPointCompensation == other.hasBlackPointCompensation
        && paperWhite.lightness == other.paperWhite.lightness && paperWhite.a == other.paperWhite.a
        && paperWhite.b == other.paperWhite.b && inkLimitPercent == other.inkLimitPercent;
}

QByteArray ColourPreset::toJson() const
{
    const QVariantMap paper = {
        {kLightnessKey, paperWhite.lightness}, {kAKey, paperWhite.a}, {kBKey, paperWhite.b}};
    const QVariantMap object = {{kFormatKey, kFormatMark},
                                {kVersionKey, kVersion},
                                {kNameKey, name},
                                {kIntentKey, kIntentWords[size_t(intent)]},
                                {kCompensationKey, hasBlackPointCompensation},
                                {kPaperKey, paper},
                                {kInkKey, inkLimitPercent}};
    return TXJSONSerializer::serialize(object, true);
}

ColourPresetReading ColourPreset::fromJson(const QVariant &value)
{
    JsonObjectReader reader(value);
    checkFormat(reader);
    reader.allowOnly(
        {kFormatKey, kVersionKey, kNameKey, kIntentKey, kCompensationKey, kPaperKey, kInkKey});
    ColourPreset preset;
    preset.name = readName(reader);
    preset.intent = readIntent(reader);
    preset.hasBlackPointCompensation = reader.flag(kCompensationKey);
    preset.paperWhite = readPaper(reader);
    preset.inkLimitPercent = reader.wholeNumber(kInkKey, 0, kLargestInkPercent);
    if (reader.hasFailed()) {
        return {std::nullopt, reader.error()};
    }
    return {preset, {}};
}

ColourPresetReading ColourPreset::fromFile(const QString &path)
{
    const JsonReading reading = readJsonFile(path);
    if (!reading.error.isEmpty()) {
        return {std::nullopt, reading.error};
    }
    return fromJson(reading.value);
}
