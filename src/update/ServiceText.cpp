#include "ServiceText.h"

#include "ClippedText.h"
#include "RichNotes.h"

#include <QChar>
#include <QColor>
#include <QFontMetrics>
#include <QLabel>
#include <QPalette>
#include <QRegularExpression>
#include <QScreen>
#include <QString>
#include <QTextDocument>

#include <algorithm>

namespace {

constexpr qsizetype kLongestLineCharacters = 500;
// Of notes with their markup and pictures.
constexpr qsizetype kLongestNotesCharacters = 200000;

// What laying out plain text costs, in units of a letter; measured with QLabel, which takes 1 to
// 2 ms for a thousand units on a desktop computer.
constexpr qsizetype kAffordableCost = 60000;
constexpr qsizetype kLineCost = 20;
constexpr qsizetype kForeignLetterCost = 4;
constexpr char16_t kFirstForeignLetter = 0x0590;

constexpr QRgb kTextColour = 0xff1e1e1e;
constexpr QRgb kLinkColour = 0xff0b4fb3;

/// Letters of other writings are broken, turned or joined, or come from another font. A mark is
/// the dearer the more of them stand on one letter.
qsizetype costOf(QChar character, qsizetype marks)
{
    if (character == u'\n' || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator) {
        return kLineCost;
    }
    return marks + (character.unicode() < kFirstForeignLetter ? 1 : kForeignLetterCost);
}

void showPlain(const QString &words, QLabel &label)
{
    label.setTextFormat(Qt::PlainText);
    label.setText(ServiceText::shortened(words));
}

void showRich(const QString &notes, QLabel &label)
{
    label.setTextFormat(Qt::RichText);
    label.setText(notes);
    // The document of a rich text, which is filled only when it is laid out, colours its links by
    // the palette of the application.
    if (auto *document = label.findChild<QTextDocument *>()) {
        document->setDefaultStyleSheet(
            QStringLiteral("a { color: %1; }").arg(QColor::fromRgb(kLinkColour).name()));
    }
}

} // namespace

QString ServiceText::line(const QString &text)
{
    static const QRegularExpression lineBreak(QStringLiteral("[\\n\\r\\x{2028}\\x{2029}]"));
    return ClippedText::clipped(text, kLongestLineCharacters)
        .replace(lineBreak, QStringLiteral(" "));
}

void ServiceText::showLine(const QString &text, QLabel &label)
{
    const QString line = ServiceText::line(text);
    const int width = label.fontMetrics().horizontalAdvance(line);
    const int mostWidth = label.screen()->availableGeometry().width() * 9 / 10;
    label.setText(line);
    label.setMinimumWidth(std::min(width, mostWidth));
    label.setToolTip(width > mostWidth ? Qt::convertFromPlainText(line) : QString());
}

void ServiceText::prepareForNotes(QLabel &label)
{
    QPalette paper = label.palette();
    paper.setColor(QPalette::WindowText, QColor::fromRgb(kTextColour));
    paper.setColor(QPalette::Text, QColor::fromRgb(kTextColour));
    label.setPalette(paper);
}

void ServiceText::showNotes(const QString &text, QLabel &label)
{
    const QString notes = ClippedText::clipped(text, kLongestNotesCharacters);
    if (!Qt::mightBeRichText(notes)) {
        showPlain(notes, label);
    } else if (notes == text && RichNotes::areHarmless(notes)) {
        showRich(notes, label);
    } else {
        showPlain(RichNotes::words(notes), label);
    }
}

QString ServiceText::shortened(const QString &words)
{
    qsizetype cost = 0;
    qsizetype marks = 0;
    for (qsizetype place = 0; place < words.size(); ++place) {
        marks = words.at(place).isMark() ? marks + 1 : 0;
        cost += costOf(words.at(place), marks);
        if (cost > kAffordableCost) {
            return ClippedText::clipped(words, place);
        }
    }
    return words;
}
