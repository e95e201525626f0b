#include "ReportTextLayouts.h"

#include "TextSizeCache.h"

#include <algorithm>
#include <utility>

namespace {

/// In characters; each takes about 50 bytes.
constexpr qsizetype kRememberedCharacters = qsizetype(12) * 1024;
constexpr qsizetype kCharactersForEachText = 16;

std::unique_ptr<ReportTextLayouts::Text> laidOut(QString text, const QFont &font)
{
    auto made = std::make_unique<ReportTextLayouts::Text>();
    made->size = TextSizeCache::measuredTextSize(text, font);
    QTextLayout &layout = made->layout;
    layout.setFont(font);
    layout.setText(text.replace(QLatin1Char('\n'), QChar::LineSeparator));
    layout.setCacheEnabled(true);
    layout.beginLayout();
    while (layout.createLine().isValid()) { }
    layout.endLayout();
    double y = 0.0;
    for (int i = 0; i < layout.lineCount(); ++i) {
        QTextLine line = layout.lineAt(i);
        line.setPosition(QPointF(0, y));
        y += line.height();
    }
    return made;
}

} // namespace

ReportTextLayouts::ReportTextLayouts(const QFont &font)
    : textFont(font)
    , remembered(kRememberedCharacters)
{ }

const ReportTextLayouts::Text &ReportTextLayouts::text(const QString &text)
{
    if (const Text *known = remembered.object(text)) {
        return *known;
    }
    std::unique_ptr<Text> made = laidOut(text, textFont);
    const qsizetype cost = text.size() + kCharactersForEachText;
    if (cost > remembered.maxCost()) {
        tooLong = std::move(made);
        return *tooLong;
    }
    const Text &result = *made;
    remembered.insert(text, made.release(), cost);
    return result;
}
