#include "JsonText.h"

#include "TXJSONSerializer.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QLocale>

namespace {

TXStringI18n message(const char *text)
{
    return {"JsonText", text, nullptr, -1};
}

/// At least as many as the text holds, and no more than one too many for each empty list.
qsizetype countValues(const QByteArray &text)
{
    qsizetype count = 1;
    bool isInString = false;
    bool isEscaped = false;
    for (const char character : text) {
        if (isInString) {
            isInString = isEscaped || character != '"';
            isEscaped = !isEscaped && character == '\\';
        } else if (character == '"') {
            isInString = true;
        } else if (character == ',' || character == '[' || character == '{') {
            ++count;
        }
    }
    return count;
}

/// Where the parser gave up, and on what.
TXStringI18n mistakeIn(const QByteArray &text)
{
    QJsonParseError mistake;
    QJsonDocument::fromJson(text, &mistake);
    if (text.trimmed().isEmpty()) {
        return message(QT_TRANSLATE_NOOP("JsonText", "It is empty."));
    }
    const auto line = text.left(mistake.offset).count('\n') + 1;
    return message(QT_TRANSLATE_NOOP("JsonText", "It is no JSON (line %1: %2)."))
        .arg(QLocale().toString(line))
        .arg(mistake.errorString());
}

} // namespace

JsonReading readJsonText(const QByteArray &text)
{
    const QLocale locale;
    if (text.size() > kLargestJsonBytes) {
        return {{},
                message(QT_TRANSLATE_NOOP("JsonText", "It is too large: more than %1."))
                    .arg(locale.formattedDataSize(kLargestJsonBytes))};
    }
    if (countValues(text) > kMostJsonValues) {
        return {{},
                message(QT_TRANSLATE_NOOP("JsonText", "It holds too many values: more than %1."))
                    .arg(locale.toString(qint64(kMostJsonValues)))};
    }
    const QVariant value = TXJSONSerializer::deserialize(text);
    return value.isValid() ? JsonReading{value, {}} : JsonReading{{}, mistakeIn(text)};
}
