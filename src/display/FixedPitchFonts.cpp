#include "FixedPitchFonts.h"

#include <QGuiApplication>
#include <QPointer>
#include <QRawFont>

namespace {

constexpr char16_t kFirstLetter = u' ';
constexpr char16_t kLastLetter = u'~';

/// Beyond any use; fonts come and go with scaling and style sheets.
constexpr qsizetype kKnownMaximum = 64;

constexpr qreal kWideEnoughPixels = 1e6;

QString everyLetter()
{
    QString letters;
    for (char16_t letter = kFirstLetter; letter <= kLastLetter; ++letter) {
        letters.append(QChar(letter));
    }
    return letters;
}

qint64 commonAdvance(const QTextLine &line)
{
    const qint64 advance = qRound64(line.cursorToX(1) * FixedPitchFonts::kStepsPerPixel);
    for (int i = 2; i <= line.textLength(); ++i) {
        if (qRound64(line.cursorToX(i) * FixedPitchFonts::kStepsPerPixel) != i * advance) {
            return 0;
        }
    }
    return advance;
}

FixedPitchFonts::Metrics measured(const QFont &font)
{
    QTextLayout layout(everyLetter(), font);
    const QTextLine line = FixedPitchFonts::layOutInOneLine(layout);
    return {commonAdvance(line), line.ascent(), line.descent(), line.leading()};
}

/// A font's own description tells its points, but not the resolution that makes pixels of them.
QString description(const QFont &font)
{
    return font.toString() + u',' + QString::number(QRawFont::fromFont(font).pixelSize()) + u','
        + QString::number(font.hintingPreference()) + u',' + font.families().join(u',');
}

} // namespace

FixedPitchFonts::FixedPitchFonts(QObject *parent)
    : QObject(parent)
{
    connect(qGuiApp, SIGNAL(fontDatabaseChanged()), this, SLOT(forget()));
}

FixedPitchFonts &FixedPitchFonts::instance()
{
    static QPointer<FixedPitchFonts> fonts;
    if (fonts.isNull()) {
        fonts = new FixedPitchFonts(qGuiApp);
    }
    return *fonts;
}

bool FixedPitchFonts::isCounted(QChar letter)
{
    return letter.unicode() >= kFirstLetter && letter.unicode() <= kLastLetter;
}

QTextLine FixedPitchFonts::layOutInOneLine(QTextLayout &layout)
{
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(kWideEnoughPixels);
    layout.endLayout();
    return line;
}

FixedPitchFonts::Metrics FixedPitchFonts::metrics(const QFont &font)
{
    QHash<QString, Metrics> &known = instance().known;
    const QString key = description(font);
    const auto place = known.constFind(key);
    if (place != known.cend()) {
        return *place;
    }
    if (known.size() == kKnownMaximum) {
        known.clear();
    }
    return *known.insert(key, measured(font));
}

void FixedPitchFonts::forget()
{
    known.clear();
}
