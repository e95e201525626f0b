#include "PdfDocumentInfo.h"

#include <QLibraryInfo>
#include <QRegularExpression>
#include <QStringEncoder>

#include <algorithm>

namespace {

constexpr qint64 kMostOffset = 9'999'999'999; // ten digits are all that a cross-reference has

/// UTF-16 with its mark, as hexadecimal digits, which need no escaping.
QByteArray pdfText(const QString &text)
{
    QStringEncoder encoder(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom);
    const QByteArray encoded = encoder(text);
    return '<' + encoded.toHex().toUpper() + '>';
}

QByteArray entry(const QByteArray &key, const QString &text)
{
    return text.isEmpty() ? QByteArray() : '/' + key + ' ' + pdfText(text) + '\n';
}

bool holdsLineEndByte(const QString &text)
{
    constexpr ushort kReturn = 0x0d;
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c.cell() == kReturn || c.row() == kReturn; });
}

struct Trailer
{
    QByteArray dictionary;
    qint64 crossReference = -1;
    int size = 0;
    int infoNumber = 0;
};

int numberOf(const QString &dictionary, const QString &pattern)
{
    return QRegularExpression(pattern).match(dictionary).captured(1).toInt();
}

Trailer trailerIn(const QByteArray &tail)
{
    const QString text = QString::fromLatin1(tail.mid(tail.lastIndexOf("trailer")));
    static const QRegularExpression form(
        QStringLiteral("\\Atrailer\\s*<<(.*)>>\\s*startxref\\s+(\\d+)\\s*%%EOF\\s*\\z"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = form.match(text);
    const QString dictionary = match.captured(1);
    return {dictionary.trimmed().toLatin1(), match.hasMatch() ? match.captured(2).toLongLong() : -1,
            numberOf(dictionary, QStringLiteral("/Size\\s+(\\d+)")),
            numberOf(dictionary, QStringLiteral("/Info\\s+(\\d+)\\s+0\\s+R"))};
}

bool isUnderstood(const Trailer &trailer, qint64 size)
{
    return trailer.crossReference > 0 && trailer.crossReference < size && trailer.infoNumber > 0
        && trailer.infoNumber < trailer.size && !trailer.dictionary.contains("/Prev");
}

} // namespace

bool PdfDocumentInfo::needsUpdate() const
{
    return !author.isEmpty() || holdsLineEndByte(title) || holdsLineEndByte(creator);
}

QByteArray PdfDocumentInfo::dictionary() const
{
    QByteArray entries = entry("Title", title) + entry("Author", author) + entry("Creator", creator)
        + entry("Producer", QStringLiteral("Qt ") + QLibraryInfo::version().toString());
    if (creationTime.isValid()) {
        entries += "/CreationDate (D:"
            + creationTime.toUTC().toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1() + "Z)\n";
    }
    return "<<\n" + entries + ">>";
}

QByteArray PdfDocumentInfo::update(const QByteArray &tail, qint64 size) const
{
    const Trailer trailer = trailerIn(tail);
    if (!isUnderstood(trailer, size)) {
        return {};
    }
    const QByteArray number = QByteArray::number(trailer.infoNumber);
    const QByteArray object = number + " 0 obj\n" + dictionary() + "\nendobj\n";
    const qint64 objectAt = size + 1; // behind the line break that comes first
    if (objectAt > kMostOffset) {
        return {};
    }
    const QByteArray place = QByteArray::number(objectAt).rightJustified(10, '0');
    return '\n' + object + "xref\n" + number + " 1\n" + place + " 00000 n \ntrailer\n<<\n"
        + trailer.dictionary + "\n/Prev " + QByteArray::number(trailer.crossReference)
        + "\n>>\nstartxref\n" + QByteArray::number(objectAt + object.size()) + "\n%%EOF\n";
}
