#include "MailHeaderText.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr qsizetype kLineCharacters = 76;
constexpr qsizetype kWordCharacters = 75;
constexpr qsizetype kLongestPlainWord = 36;
constexpr char kWordStart[] = "=?UTF-8?B?";
constexpr char kWordEnd[] = "?=";
constexpr qsizetype kWordFrame = sizeof kWordStart + sizeof kWordEnd - 2;

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// How many bytes from `start` on fit, without cutting a character in two.
qsizetype wholeCharacters(const QByteArray &utf8, qsizetype start, qsizetype bytes)
{
    qsizetype end = std::min(start + bytes, utf8.size());
    while (end < utf8.size() && (utf8.at(end) & 0xc0) == 0x80) {
        --end;
    }
    return end - start;
}

bool isShort(const QByteArray &word)
{
    return word.size() <= kLongestPlainWord;
}

/// Whether a reader gives back the same text, although lines are folded at its blanks.
bool canStayAsItIs(const QString &text)
{
    if (!isAscii(text) || text.contains(QLatin1String("=?")) || text != text.simplified()) {
        return false;
    }
    const QByteArrayList words = text.toLatin1().split(' ');
    return std::all_of(words.begin(), words.end(), isShort);
}

QByteArray foldedAtBlanks(const QByteArray &text, qsizetype column)
{
    QByteArray folded;
    const QByteArrayList words = text.split(' ');
    for (const QByteArray &word : words) {
        if (!folded.isEmpty()) {
            const bool isFull = column + 1 + word.size() > kLineCharacters;
            folded += isFull ? "\r\n " : " ";
            column = isFull ? 1 : column + 1;
        }
        folded += word;
        column += word.size();
    }
    return folded;
}

} // namespace

bool isControlOrBreak(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph;
}

QString withoutControls(const QString &text)
{
    QString clean = text;
    clean.replace(QLatin1String("\r\n"), QLatin1String(" "));
    std::replace_if(clean.begin(), clean.end(), isControlOrBreak, u' ');
    return clean;
}

QByteArray encodedWords(const QString &text, qsizetype column)
{
    const QByteArray utf8 = withoutControls(text).toUtf8();
    QByteArray words;
    for (qsizetype start = 0; start < utf8.size();) {
        // Four characters of base64 hold three bytes.
        const qsizetype space = std::min(kWordCharacters, kLineCharacters - column) - kWordFrame;
        const qsizetype bytes = wholeCharacters(utf8, start, space / 4 * 3);
        words += words.isEmpty() ? "" : "\r\n ";
        words += kWordStart + utf8.mid(start, bytes).toBase64() + kWordEnd;
        start += bytes;
        column = 1;
    }
    return words;
}

QByteArray unstructuredHeader(const QString &text, qsizetype column)
{
    const QString clean = withoutControls(text);
    return canStayAsItIs(clean) ? foldedAtBlanks(clean.toLatin1(), column)
                                : encodedWords(clean, column);
}
