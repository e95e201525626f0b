#include "AddressText.h"

#include "ClippedText.h"

#include <QChar>
#include <QString>

#include <algorithm>

namespace {

constexpr qsizetype kLongestCharacters = 500;

constexpr QChar kLeftToRightIsolate(0x2066);
constexpr QChar kPopDirectionalIsolate(0x2069);

/// Marks, embeddings, overrides and isolates of direction.
bool turnsDirection(QChar character)
{
    const char16_t code = character.unicode();
    return code == 0x061c || code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e)
        || (code >= 0x2066 && code <= 0x2069);
}

bool isUnfit(QChar character)
{
    return character.category() == QChar::Other_Control || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator || turnsDirection(character);
}

} // namespace

QString AddressText::drawn(const QString &text)
{
    if (text.isEmpty()) {
        return {};
    }
    QString line = ClippedText::clipped(text, kLongestCharacters);
    std::replace_if(line.begin(), line.end(), isUnfit, QChar(QChar::ReplacementCharacter));
    return kLeftToRightIsolate + line + kPopDirectionalIsolate;
}
