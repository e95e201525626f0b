#include "MarkupReader.h"

#include <QChar>
#include <QLatin1String>

#include <algorithm>

namespace {

bool isOfName(QChar character)
{
    return character.unicode() < 128
        && (character.isLetterOrNumber() || character == u'-' || character == u':');
}

} // namespace

MarkupReader::MarkupReader(QStringView text)
    : text(text)
{ }

bool MarkupReader::atEnd() const
{
    return place >= text.size();
}

MarkupReader::Piece MarkupReader::next()
{
    Piece piece;
    const qsizetype start = place;
    if (atEnd()) {
        return piece;
    }
    if (text.at(place) != u'<') {
        const qsizetype end = text.indexOf(u'<', place);
        place = end < 0 ? text.size() : end;
    } else if (startsHere(QLatin1String("<!"))) {
        readRemark(piece);
    } else if (!readTag(piece)) {
        piece.kind = Kind::Odd;
        place = start + 1;
        skipOddTag();
    }
    piece.text = text.mid(start, place - start);
    return piece;
}

bool MarkupReader::startsHere(QLatin1String start) const
{
    return text.mid(place).startsWith(start);
}

QStringView MarkupReader::takeName()
{
    const qsizetype start = place;
    while (!atEnd() && isOfName(text.at(place))) {
        ++place;
    }
    return text.mid(start, place - start);
}

void MarkupReader::skipSpaces()
{
    while (!atEnd() && text.at(place).isSpace()) {
        ++place;
    }
}

void MarkupReader::skipBehind(QLatin1String end)
{
    const qsizetype found = text.indexOf(end, place);
    place = found < 0 ? text.size() : found + end.size();
}

/// Skips what looks like a tag. An angle that is not closed before the next one stands for itself.
void MarkupReader::skipOddTag()
{
    qsizetype end = place;
    while (end < text.size() && text.at(end) != u'<' && text.at(end) != u'>') {
        ++end;
    }
    const bool isTag = end > place && end < text.size() && text.at(end) == u'>'
        && !text.at(place).isSpace() && !text.at(place).isDigit();
    place = isTag ? end + 1 : place;
}

void MarkupReader::readRemark(Piece &piece)
{
    piece.kind = Kind::Remark;
    const bool isComment = startsHere(QLatin1String("<!--"));
    place += isComment ? 4 : 2;
    skipBehind(isComment ? QLatin1String("-->") : QLatin1String(">"));
}

/// Whether the tag was written in the usual way to its end.
bool MarkupReader::readTag(Piece &piece)
{
    const bool isClosing = startsHere(QLatin1String("</"));
    piece.kind = isClosing ? Kind::ClosingTag : Kind::OpeningTag;
    place += isClosing ? 2 : 1;
    piece.name = takeName();
    if (piece.name.isEmpty()) {
        return false;
    }
    for (skipSpaces(); !atEnd(); skipSpaces()) {
        const bool isSingle = startsHere(QLatin1String("/>"));
        if (isSingle || text.at(place) == u'>') {
            place += isSingle ? 2 : 1;
            return true;
        }
        if (isClosing || !readAttribute(piece)) {
            return false;
        }
    }
    return false;
}

bool MarkupReader::readAttribute(Piece &piece)
{
    const QStringView name = takeName();
    QStringView value;
    skipSpaces();
    const bool isRead = !startsHere(QLatin1String("=")) || readValue(value);
    piece.attributes.append({name, value});
    return isRead && !name.isEmpty();
}

bool MarkupReader::readValue(QStringView &value)
{
    ++place;
    skipSpaces();
    if (startsHere(QLatin1String("\"")) || startsHere(QLatin1String("'"))) {
        return readQuoted(value);
    }
    const qsizetype start = place;
    while (!atEnd() && !text.at(place).isSpace() && text.at(place) != u'>'
           && !startsHere(QLatin1String("/>"))) {
        if (QStringView(u"<=\"'").contains(text.at(place))) {
            return false;
        }
        ++place;
    }
    value = text.mid(start, place - start);
    return true;
}

bool MarkupReader::readQuoted(QStringView &value)
{
    const qsizetype start = place + 1;
    const qsizetype end = text.indexOf(text.at(place), start);
    value = text.mid(start, std::max<qsizetype>(end - start, 0));
    place = end < 0 ? text.size() : end + 1;
    // Qt takes a quote behind a backslash for a part of the value.
    return end >= 0 && !value.contains(u'\\');
}
