#include "ColouredLine.h"

#include <QLatin1String>
#include <QStringView>

#include <array>
#include <optional>

namespace {

constexpr std::array<QLatin1String, 2> kOpenings{
    QLatin1String("<span style=\"font-family: monospace; overflow: hidden\">"),
    QLatin1String("<span style=\"font-family: monospace\">"),
};
constexpr QLatin1String kCloseSpan("</span>");
constexpr QLatin1String kOpenColour("<span style=\"color: #");
constexpr QLatin1String kEndColour("\">");
constexpr QLatin1String kOpenBold("<b>");
constexpr QLatin1String kCloseBold("</b>");
constexpr qsizetype kColourDigits = 6;

/// Qt looks for the end of an entity in so many characters.
constexpr qsizetype kEntityMaximum = 9;

constexpr char16_t kFirstRightToLeft = 0x0590;
constexpr char16_t kFirstUnusual = 0x2000;

struct Entity
{
    QLatin1String name;
    char16_t meaning;
};
constexpr std::array<Entity, 4> kEntities{{
    {QLatin1String("lt;"), u'<'},
    {QLatin1String("gt;"), u'>'},
    {QLatin1String("amp;"), u'&'},
    {QLatin1String("quot;"), u'"'},
}};

bool isPlainLetter(char16_t letter)
{
    return letter > u' ' && letter < 0x7f && letter != u'<' && letter != u'&';
}

/// Characters that part paragraphs or stand for objects in Qt's documents.
bool isDocumentMark(char16_t letter)
{
    return letter == QChar::ParagraphSeparator || letter == QChar::ObjectReplacementCharacter
        || letter == 0xfdd0 || letter == 0xfdd1;
}

bool isSpace(QChar letter)
{
    return letter.isSpace() && letter != QChar::Nbsp;
}

bool isDirected(char32_t letter)
{
    switch (QChar::direction(letter)) {
    case QChar::DirL:
    case QChar::DirEN:
    case QChar::DirES:
    case QChar::DirET:
    case QChar::DirCS:
    case QChar::DirB:
    case QChar::DirS:
    case QChar::DirWS:
    case QChar::DirON:
    case QChar::DirNSM:
    case QChar::DirBN:
        return false;
    default:
        return true;
    }
}

std::optional<QRgb> colourOf(QStringView digits)
{
    QRgb value = 0;
    for (const QChar digit : digits) {
        const char16_t code = digit.unicode();
        QRgb number = 0;
        if (code >= u'0' && code <= u'9') {
            number = code - u'0';
        } else if (code >= u'a' && code <= u'f') {
            number = code - u'a' + 10U;
        } else {
            return std::nullopt;
        }
        value = value * 16 + number;
    }
    return value | 0xff000000U;
}

} // namespace

/// Reads the markup once, from its start to its end.
class ColouredLineParser
{
public:
    ColouredLineParser(ColouredLine &target, QStringView markup)
        : line(target)
        , rest(markup)
    { }

    void parse()
    {
        takeSurroundings();
        // Room for all is asked for at once; what is not written to costs nothing.
        line.words.resize(rest.size());
        output = line.words.data();
        const QChar *const outputStart = output;
        while (!rest.isEmpty()) {
            takeNext();
        }
        if (openCount > 0) {
            line.foreign = true;
        }
        line.words.truncate(output - outputStart);
        line.words.squeeze();
    }

private:
    enum class Tag : std::uint8_t { Colour, Bold };

    void takeSurroundings()
    {
        for (const QLatin1String opening : kOpenings) {
            if (rest.startsWith(opening) && rest.endsWith(kCloseSpan)) {
                rest = rest.sliced(opening.size()).chopped(kCloseSpan.size());
                return;
            }
        }
        line.foreign = true;
    }

    void takeNext()
    {
        const char16_t letter = rest.front().unicode();
        if (isPlainLetter(letter)) {
            takePlainLetters();
        } else if (letter == u'<') {
            takeTag();
        } else if (letter == u'&') {
            takeEntity();
        } else if (isSpace(letter) && letter != QChar::ParagraphSeparator) {
            takeSpace();
        } else {
            takeOther(letter);
        }
    }

    void takePlainLetters()
    {
        beginLetters();
        const QChar *input = rest.begin();
        const QChar *const end = rest.end();
        while (input != end && isPlainLetter(input->unicode())) {
            *output++ = *input++;
        }
        rest = QStringView(input, end);
    }

    void takeSpace()
    {
        if (!isAfterSpace) {
            put(u' ');
            isAfterSpace = true;
        }
        rest = rest.sliced(1);
    }

    void takeOther(char16_t letter)
    {
        if (letter >= kFirstUnusual && isDocumentMark(letter)) {
            line.foreign = true;
            put(QChar::ReplacementCharacter);
        } else {
            noteDirection(letter);
            put(letter);
        }
        rest = rest.sliced(1);
    }

    void noteDirection(char16_t letter)
    {
        if (letter < kFirstRightToLeft || line.rightToLeft) {
            return;
        }
        char32_t whole = letter;
        if (QChar::isHighSurrogate(letter) && rest.size() > 1 && rest[1].isLowSurrogate()) {
            whole = QChar::surrogateToUcs4(letter, rest[1].unicode());
        }
        line.rightToLeft = isDirected(whole);
    }

    void takeTag()
    {
        if (!takeColourSpan() && !takeOpenBold() && !takeClosing(kCloseSpan, Tag::Colour)
            && !takeClosing(kCloseBold, Tag::Bold)) {
            line.foreign = true;
            ++line.unknownTags;
            put(u'<');
            rest = rest.sliced(1);
        }
    }

    bool takeColourSpan()
    {
        if (style.isColoured || !rest.startsWith(kOpenColour)) {
            return false;
        }
        const QStringView behind = rest.sliced(kOpenColour.size());
        if (behind.size() < kColourDigits + kEndColour.size()
            || !behind.sliced(kColourDigits).startsWith(kEndColour)) {
            return false;
        }
        const std::optional<QRgb> colour = colourOf(behind.first(kColourDigits));
        if (!colour) {
            return false;
        }
        style.colour = *colour;
        style.isColoured = true;
        open(Tag::Colour, kOpenColour.size() + kColourDigits + kEndColour.size());
        return true;
    }

    bool takeOpenBold()
    {
        if (style.isBold || !rest.startsWith(kOpenBold)) {
            return false;
        }
        style.isBold = true;
        open(Tag::Bold, kOpenBold.size());
        return true;
    }

    void open(Tag tag, qsizetype length)
    {
        openTags[openCount++] = tag;
        rest = rest.sliced(length);
    }

    bool takeClosing(QLatin1String text, Tag tag)
    {
        if (openCount == 0 || openTags[openCount - 1] != tag || !rest.startsWith(text)) {
            return false;
        }
        --openCount;
        if (tag == Tag::Bold) {
            style.isBold = false;
        } else {
            style.isColoured = false;
            style.colour = 0;
        }
        rest = rest.sliced(text.size());
        return true;
    }

    void takeEntity()
    {
        const QStringView behind = rest.sliced(1);
        for (const Entity &entity : kEntities) {
            if (behind.startsWith(entity.name)) {
                put(entity.meaning);
                rest = behind.sliced(entity.name.size());
                return;
            }
        }
        if (mayBeEntity(behind)) {
            line.foreign = true;
        }
        put(u'&');
        rest = behind;
    }

    /// Whether Qt might take it for an entity. The closing tag that was taken off stands behind it.
    [[nodiscard]] static bool mayBeEntity(QStringView behind)
    {
        const QStringView name = behind.first(qMin(behind.size(), kEntityMaximum));
        for (const QChar letter : name) {
            if (letter.isSpace()) {
                return false;
            }
            if (letter == u';') {
                return true;
            }
        }
        return false;
    }

    void put(char16_t letter)
    {
        beginLetters();
        *output++ = letter;
    }

    /// Before letters that are not white space, or are the first white space.
    void beginLetters()
    {
        isAfterSpace = false;
        if (line.pieces.empty() || !(line.pieces.back().style == style)) {
            line.pieces.push_back({output - line.words.constData(), style});
        }
    }

    ColouredLine &line;
    QStringView rest;
    QChar *output = nullptr;
    ColouredLine::Style style;
    std::array<Tag, 2> openTags{};
    std::size_t openCount = 0;
    bool isAfterSpace = true;
};

ColouredLine::ColouredLine(const QString &markup)
{
    ColouredLineParser(*this, markup).parse();
}
