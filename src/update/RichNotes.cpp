#include "RichNotes.h"

#include "MarkupReader.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QSize>
#include <QString>
#include <QStringView>
#include <QTextDocument>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Kind = MarkupReader::Kind;
using Piece = MarkupReader::Piece;

// What laying out costs, in units of a character in a paragraph; measured with QLabel, which takes
// about 5 ms for a thousand units on a desktop computer.
constexpr qsizetype kAffordableCost = 20000;
constexpr qsizetype kTagCost = 20;
constexpr qsizetype kTableTagCost = 120;
// Each rule is compared with each tag.
constexpr qsizetype kStyleCost = 10;
constexpr qint64 kMostPixels = 1000000;

bool isSame(QStringView name, QLatin1String other)
{
    return name.compare(other, Qt::CaseInsensitive) == 0;
}

template<std::size_t Count>
bool isOneOf(QStringView name, const std::array<QLatin1String, Count> &names)
{
    return std::any_of(names.begin(), names.end(),
                       [name](QLatin1String other) { return isSame(name, other); });
}

bool matches(QStringView text, const QRegularExpression &whole)
{
    return whole.match(text).hasMatch();
}

bool isSpan(QStringView value)
{
    static const QRegularExpression number(QStringLiteral("\\A[0-9]{1,2}\\z"));
    return matches(value, number);
}

bool isLength(QStringView value)
{
    static const QRegularExpression length(
        QStringLiteral("\\A[+-]?[0-9]{1,3}(\\.[0-9]{1,3})?(px|pt|em|ex|%)?\\z"));
    return matches(value, length);
}

bool namesLength(QStringView attribute)
{
    static const std::array words = {QLatin1String("width"),   QLatin1String("height"),
                                     QLatin1String("size"),    QLatin1String("padding"),
                                     QLatin1String("spacing"), QLatin1String("border"),
                                     QLatin1String("margin"),  QLatin1String("indent")};
    return std::any_of(words.begin(), words.end(), [attribute](QLatin1String word) {
        return attribute.contains(word, Qt::CaseInsensitive);
    });
}

/// Whether style rules use none but common characters, so that no escape, comment, import or
/// address is among them (Qt itself writes symbols as escapes), and no number of more than three
/// digits.
bool isWrittenHarmlessly(QStringView style)
{
    static const QRegularExpression harmless(
        QStringLiteral("\\A(#[0-9a-f]+|-?[a-z_][a-z0-9_-]*|"
                       "[+-]?[0-9]{1,3}(\\.[0-9]{1,3})?(px|pt|em|ex|%)?(?![0-9.a-z%])|"
                       "\"\\\\26[0-9a-f]{2}\"|[\\s,;:(){}'\"!>*.])*+\\z"),
        QRegularExpression::CaseInsensitiveOption);
    return matches(style, harmless);
}

/// Whether style rules ask for letters of hundreds of points or for a multiple of a line's height,
/// which together with a long text are more than a layout can count.
bool asksForHugeLetters(QStringView style)
{
    static const QRegularExpression huge(
        QStringLiteral("line-height|font[a-z-]*\\s*:[^:;}]*[0-9]{3}[a-z%.]"),
        QRegularExpression::CaseInsensitiveOption);
    return matches(style, huge);
}

bool isHarmlessStyle(QStringView style)
{
    return isWrittenHarmlessly(style) && !asksForHugeLetters(style)
        && !style.contains(u"url", Qt::CaseInsensitive);
}

/// The pixels of a whole picture that is written as an address, -1 for every other address.
qint64 pixelsWithin(QStringView address)
{
    static const QRegularExpression start(
        QStringLiteral("\\Adata:image/(png|jpeg|gif);base64,(?=[A-Za-z0-9+/=]*+\\z)"));
    const QRegularExpressionMatch match = start.match(address);
    if (!match.hasMatch()) {
        return -1;
    }
    QByteArray bytes = QByteArray::fromBase64(address.mid(match.capturedEnd()).toLatin1());
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, match.captured(1).toLatin1());
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    const qint64 pixels = qint64(size.width()) * size.height();
    // A broken picture would be read again with each layout.
    return size.isValid() && pixels <= kMostPixels && !reader.read().isNull() ? pixels : -1;
}

/// Adds up what notes cost from piece to piece.
class Estimate
{
public:
    /// Whether the notes are harmless up to this piece, which is the next one.
    [[nodiscard]] bool allows(const Piece &piece)
    {
        const bool isKnown = piece.kind == Kind::Words ? allowsWords(piece.text)
            : piece.kind == Kind::OpeningTag           ? allowsTag(piece)
                                                       : piece.kind != Kind::Odd;
        if (piece.kind == Kind::ClosingTag) {
            isInStyle = false;
            isInTable = isInTable && !isSame(piece.name, QLatin1String("table"));
        }
        return isKnown && cost <= kAffordableCost && pixels <= kMostPixels;
    }

private:
    bool allowsWords(QStringView words)
    {
        cost += words.size() * (isInStyle ? kStyleCost : 1);
        return cost <= kAffordableCost && (!isInStyle || isHarmlessStyle(words));
    }

    bool allowsTag(const Piece &tag)
    {
        const bool isTable = isSame(tag.name, QLatin1String("table"));
        const bool isOfTable = tag.name.startsWith(u't', Qt::CaseInsensitive);
        cost += isOfTable ? kTableTagCost : kTagCost;
        isInStyle = isSame(tag.name, QLatin1String("style"));
        // Each table within another one multiplies the time by three.
        const bool isNested = isTable && isInTable;
        isInTable = isInTable || isTable;
        return !isNested && !isSame(tag.name, QLatin1String("link"))
            && std::all_of(tag.attributes.begin(), tag.attributes.end(),
                           [this](const auto &attribute) {
                               return allowsAttribute(attribute.first, attribute.second);
                           });
    }

    bool allowsAttribute(QStringView name, QStringView value)
    {
        if (isSame(name, QLatin1String("style"))) {
            cost += value.size();
            return cost <= kAffordableCost && isHarmlessStyle(value);
        }
        if (isSame(name, QLatin1String("src"))) {
            const qint64 size = pixelsWithin(value);
            pixels += size;
            return size >= 0;
        }
        if (name.endsWith(QLatin1String("span"), Qt::CaseInsensitive)) {
            cost += value.toInt() * kTableTagCost;
            return isSpan(value);
        }
        return !isSame(name, QLatin1String("background"))
            && (!namesLength(name) || isLength(value));
    }

    qsizetype cost = 0;
    qint64 pixels = 0;
    bool isInStyle = false;
    bool isInTable = false;
};

bool isHidden(QStringView tag)
{
    static const std::array hidden = {QLatin1String("style"), QLatin1String("script"),
                                      QLatin1String("title")};
    return isOneOf(tag, hidden);
}

bool isInline(QStringView tag)
{
    static const std::array names = {
        QLatin1String("a"),      QLatin1String("b"),     QLatin1String("i"),
        QLatin1String("u"),      QLatin1String("s"),     QLatin1String("em"),
        QLatin1String("strong"), QLatin1String("code"),  QLatin1String("tt"),
        QLatin1String("span"),   QLatin1String("font"),  QLatin1String("big"),
        QLatin1String("sub"),    QLatin1String("small"), QLatin1String("sup"),
        QLatin1String("img"),    QLatin1String("kbd"),   QLatin1String("var")};
    return isOneOf(tag, names);
}

/// What stands for a tag among words alone.
QString spaceFor(const Piece &tag)
{
    const bool isCell =
        isSame(tag.name, QLatin1String("td")) || isSame(tag.name, QLatin1String("th"));
    if (isCell || tag.kind == Kind::Odd) {
        return QStringLiteral(" ");
    }
    return isInline(tag.name) ? QString() : QStringLiteral("<br>");
}

/// The words with line breaks and prepared text as the only tags.
QString withoutTags(QStringView notes)
{
    QString words;
    bool isShown = true;
    bool isPrepared = false;
    MarkupReader reader(notes);
    while (!reader.atEnd()) {
        const Piece piece = reader.next();
        const bool isTag = piece.kind == Kind::OpeningTag || piece.kind == Kind::ClosingTag;
        if (isTag && isHidden(piece.name)) {
            isShown = piece.kind == Kind::ClosingTag;
        } else if (isTag && isSame(piece.name, QLatin1String("pre"))) {
            // Never one within another, which takes Qt the square of their number.
            if (isPrepared != (piece.kind == Kind::OpeningTag)) {
                isPrepared = !isPrepared;
                words += isPrepared ? QLatin1String("<pre>") : QLatin1String("</pre>");
            }
        } else if (isShown && piece.kind == Kind::Words) {
            words += piece.text;
        } else if (isShown && piece.text == QLatin1String("<")) {
            words += QLatin1String("&lt;");
        } else if (isShown && piece.kind != Kind::Remark) {
            words += spaceFor(piece);
        }
    }
    return words;
}

} // namespace

bool RichNotes::areHarmless(const QString &notes)
{
    Estimate estimate;
    MarkupReader reader(notes);
    while (!reader.atEnd()) {
        if (!estimate.allows(reader.next())) {
            return false;
        }
    }
    return true;
}

QString RichNotes::words(const QString &notes)
{
    static const QRegularExpression emptyLines(QStringLiteral("\\n\\s*\\n"));
    // Reads the entities. Nothing is laid out as long as nobody asks for the layout.
    QTextDocument document;
    document.setHtml(withoutTags(notes));
    return document.toPlainText().replace(emptyLines, QStringLiteral("\n")).trimmed();
}
