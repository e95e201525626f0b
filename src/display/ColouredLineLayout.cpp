#include "ColouredLineLayout.h"

#include <QPainter>
#include <QTextBoundaryFinder>
#include <QTextCharFormat>
#include <QTextLayout>
#include <QtMath>

#include <algorithm>

namespace {

constexpr qsizetype kChunkCharacters = 256;
constexpr qsizetype kShortestChunk = 128;
constexpr std::size_t kRecentMaximum = 16;
constexpr qreal kWideEnoughPixels = 1e6;
constexpr int kSteps = FixedPitchFonts::kStepsPerPixel;

QFont monospaced(QFont font, bool isBold)
{
    font.setFamilies({QStringLiteral("monospace")});
    if (isBold) {
        font.setBold(true);
    }
    return font;
}

bool isPlain(QStringView letters)
{
    return std::all_of(letters.begin(), letters.end(), [](QChar letter) {
        return letter.unicode() >= u' ' && letter.unicode() <= u'~';
    });
}

/// The last place up to the end of the text where no letter is torn from its marks. When there is
/// none, the end; even then no pair of surrogates is torn.
qsizetype endOfLetters(QStringView text, qsizetype end)
{
    const QStringView window = text.first(qMin(text.size(), end + kShortestChunk));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, window);
    finder.setPosition(end);
    const qsizetype place = finder.isAtBoundary() ? end : finder.toPreviousBoundary();
    if (place > 0) {
        return place;
    }
    return text[end].isLowSurrogate() ? end - 1 : end;
}

QTextCharFormat formatOf(const ColouredLine::Style &style)
{
    QTextCharFormat format;
    if (style.isColoured) {
        format.setForeground(QColor(style.colour));
    }
    if (style.isBold) {
        format.setFontWeight(QFont::Bold);
    }
    return format;
}

void layOutInOneLine(QTextLayout &layout)
{
    layout.beginLayout();
    layout.createLine().setLineWidth(kWideEnoughPixels);
    layout.endLayout();
}

} // namespace

ColouredLineLayout::ColouredLineLayout(ColouredLine line, const QFont &font)
    : content(std::move(line))
    , regularFont(font)
{
    if (content.text().isEmpty()) {
        measureEmpty();
        return;
    }
    regularFont = monospaced(font, false);
    boldFont = monospaced(font, true);
    regular = FixedPitchFonts::metrics(regularFont);
    bold = FixedPitchFonts::metrics(boldFont);
    measureStyles();
    measureChunks();
    measureLastChunk();
}

ColouredLineLayout::~ColouredLineLayout() = default;

void ColouredLineLayout::measureEmpty()
{
    chunks.push_back({});
    QTextLayout layout(QString(), regularFont);
    layOutInOneLine(layout);
    const QTextLine line = layout.lineAt(0);
    include(line.ascent(), line.descent(), line.leading());
}

void ColouredLineLayout::measureStyles()
{
    bool hasRegular = false;
    bool hasBold = false;
    for (const ColouredLine::Run &run : content.runs()) {
        hasBold = hasBold || run.style.isBold;
        hasRegular = hasRegular || !run.style.isBold;
    }
    if (hasRegular) {
        include(regular.ascent, regular.descent, regular.leading);
    }
    if (hasBold) {
        include(bold.ascent, bold.descent, bold.leading);
    }
}

void ColouredLineLayout::include(qreal itemAscent, qreal itemDescent, qreal itemLeading)
{
    ascent = qMax(ascent, itemAscent);
    descent = qMax(descent, itemDescent);
    ascentWithLeading = qMax(ascentWithLeading, itemAscent + itemLeading);
}

void ColouredLineLayout::measureChunks()
{
    const qsizetype size = content.text().size();
    const std::vector<ColouredLine::Run> &runs = content.runs();
    Chunk chunk;
    while (chunk.start < size && chunk.leftSteps < qint64(kWidestPixels) * kSteps) {
        chunks.push_back(chunk);
        const qsizetype end = chunkEnd(chunk.start, chunk.firstRun);
        chunk.leftSteps += widthSteps(chunk, end);
        chunk.start = end;
        while (chunk.firstRun + 1 < runs.size() && runs[chunk.firstRun + 1].start <= end) {
            ++chunk.firstRun;
        }
    }
    chunks.push_back(chunk);
}

void ColouredLineLayout::measureLastChunk()
{
    const std::size_t last = chunks.size() - 2;
    const qreal left = qreal(chunks[last].leftSteps) / kSteps;
    const qreal width = laidOut(last).lineAt(0).naturalTextWidth();
    fullWidth = qMin(qMax(left + width, advance()), qreal(kWidestPixels));
}

qsizetype ColouredLineLayout::chunkEnd(qsizetype start, std::size_t firstRun) const
{
    const QString &text = content.text();
    if (text.size() - start <= kChunkCharacters) {
        return text.size();
    }
    const qsizetype latest = start + kChunkCharacters;
    const qsizetype run = lastRunStart(start + kShortestChunk, latest, firstRun);
    if (run > 0) {
        return run;
    }
    const QStringView candidates = QStringView(text).sliced(start + kShortestChunk, kShortestChunk);
    const qsizetype blank = candidates.lastIndexOf(u' ');
    if (blank >= 0) {
        return start + kShortestChunk + blank + 1;
    }
    return start + endOfLetters(QStringView(text).sliced(start), kChunkCharacters);
}

qsizetype ColouredLineLayout::lastRunStart(qsizetype from, qsizetype to, std::size_t run) const
{
    const std::vector<ColouredLine::Run> &runs = content.runs();
    while (run + 1 < runs.size() && runs[run + 1].start <= to) {
        ++run;
    }
    return runs[run].start > from ? runs[run].start : 0;
}

qint64 ColouredLineLayout::widthSteps(const Chunk &chunk, qsizetype end)
{
    const qsizetype length = end - chunk.start;
    const bool isCounted = regular.advanceSteps > 0 && bold.advanceSteps > 0;
    if (isCounted && isPlain(QStringView(content.text()).sliced(chunk.start, length))) {
        return countedSteps(chunk, end);
    }
    // Layouts of many million characters would hold the program up for seconds.
    if (laidOutCharacters + length > kLaidOutMaximum) {
        return length * qMax(regular.advanceSteps, qint64(kSteps));
    }
    laidOutCharacters += length;
    return laidOutSteps(chunk, end);
}

qint64 ColouredLineLayout::countedSteps(const Chunk &chunk, qsizetype end) const
{
    if (regular.advanceSteps == bold.advanceSteps) {
        return (end - chunk.start) * regular.advanceSteps;
    }
    const std::vector<ColouredLine::Run> &runs = content.runs();
    qint64 steps = 0;
    qsizetype start = chunk.start;
    for (std::size_t run = chunk.firstRun; start < end; ++run) {
        const qsizetype runEnd = run + 1 < runs.size() ? qMin(runs[run + 1].start, end) : end;
        const bool isBold = runs[run].style.isBold;
        steps += (runEnd - start) * (isBold ? bold.advanceSteps : regular.advanceSteps);
        start = runEnd;
    }
    return steps;
}

qint64 ColouredLineLayout::laidOutSteps(const Chunk &chunk, qsizetype end)
{
    const std::unique_ptr<QTextLayout> layout = layOut(chunk, end);
    const QTextLine line = layout->lineAt(0);
    include(line.ascent(), line.descent(), line.leading());
    return qRound64(line.horizontalAdvance() * kSteps);
}

std::unique_ptr<QTextLayout> ColouredLineLayout::layOut(const Chunk &chunk, qsizetype end) const
{
    const std::vector<ColouredLine::Run> &runs = content.runs();
    auto layout = std::make_unique<QTextLayout>(content.text().mid(chunk.start, end - chunk.start),
                                                regularFont);
    QList<QTextLayout::FormatRange> formats;
    for (std::size_t run = chunk.firstRun; run < runs.size() && runs[run].start < end; ++run) {
        const qsizetype start = qMax(runs[run].start, chunk.start);
        const qsizetype runEnd = run + 1 < runs.size() ? qMin(runs[run + 1].start, end) : end;
        formats.append({int(start - chunk.start), int(runEnd - start), formatOf(runs[run].style)});
    }
    layout->setFormats(formats);
    layout->setCacheEnabled(true);
    QTextOption option;
    option.setWrapMode(QTextOption::ManualWrap);
    option.setTextDirection(Qt::LeftToRight);
    layout->setTextOption(option);
    layOutInOneLine(*layout);
    return layout;
}

const QTextLayout &ColouredLineLayout::laidOut(std::size_t chunk) const
{
    const auto place = std::find_if(recent.begin(), recent.end(),
                                    [chunk](const LaidOut &entry) { return entry.chunk == chunk; });
    if (place != recent.end()) {
        return *place->layout;
    }
    if (recent.size() == kRecentMaximum) {
        recent.erase(recent.begin());
    }
    recent.push_back({chunk, layOut(chunks[chunk], chunks[chunk + 1].start)});
    return *recent.back().layout;
}

qreal ColouredLineLayout::advance() const
{
    return qreal(chunks.back().leftSteps) / kSteps;
}

int ColouredLineLayout::height() const
{
    return qCeil(descent + qMax(ascent, ascentWithLeading));
}

std::size_t ColouredLineLayout::firstChunkAt(qreal left) const
{
    const auto behind =
        std::upper_bound(chunks.begin(), chunks.end(), left, [](qreal x, const Chunk &chunk) {
            return x < qreal(chunk.leftSteps) / kSteps;
        });
    return behind == chunks.begin() ? 0 : std::size_t(behind - chunks.begin()) - 1;
}

void ColouredLineLayout::draw(QPainter &painter, const QPointF &topLeft, qreal left,
                              qreal right) const
{
    // Slanted and stacked letters reach beyond their room.
    const qreal overhang = height();
    for (std::size_t i = firstChunkAt(left - overhang); i + 1 < chunks.size(); ++i) {
        const qreal x = qreal(chunks[i].leftSteps) / kSteps;
        if (x >= right + overhang) {
            return;
        }
        const QTextLayout &layout = laidOut(i);
        layout.draw(&painter, topLeft + QPointF(x, ascent - layout.lineAt(0).ascent()));
    }
}
