#include "ColouredLineLayout.h"

#include <QPainter>
#include <QTextBoundaryFinder>
#include <QTextCharFormat>
#include <QTextLayout>
#include <QtMath>

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype kChunkCharacters = 256;
constexpr qsizetype kShortestChunk = 128;
constexpr std::size_t kRecentMaximum = ColouredLineLayout::kStackedMaximum;
constexpr int kSteps = FixedPitchFonts::kStepsPerPixel;

QFont monospaced(QFont font, bool isBold)
{
    font.setFamilies({QStringLiteral("monospace")});
    if (isBold) {
        font.setBold(true);
    }
    return font;
}

bool takesRoom(QChar letter)
{
    const QChar::Category category = letter.category();
    return category != QChar::Mark_NonSpacing && category != QChar::Mark_Enclosing
        && category != QChar::Other_Format;
}

qint64 countSpacing(QStringView letters)
{
    return std::count_if(letters.begin(), letters.end(), takesRoom);
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
    measureChunks();
    measureLastChunk();
}

ColouredLineLayout::~ColouredLineLayout() = default;

void ColouredLineLayout::measureEmpty()
{
    chunks.push_back({});
    QTextLayout layout(QString(), regularFont);
    const QTextLine line = FixedPitchFonts::layOutInOneLine(layout);
    include(line.ascent(), line.descent(), line.leading());
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
        const qsizetype end = chunkEnd(chunk.start, chunk.firstRun);
        const qint64 steps = measure(chunk, end);
        chunks.push_back(chunk);
        chunk.leftSteps += steps;
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
    const QTextLine line = laidOut(last).lineAt(0);
    if (std::exchange(chunks[last].isEstimated, false)) {
        chunks.back().leftSteps =
            chunks[last].leftSteps + qRound64(line.horizontalAdvance() * kSteps);
    }
    const qreal width = line.naturalTextWidth();
    fullWidth = qMin(qMax(leftOf(last) + width, advance()), qreal(kWidestPixels));
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

qint64 ColouredLineLayout::measure(Chunk &chunk, qsizetype end)
{
    const QStringView letters = QStringView(content.text()).sliced(chunk.start, end - chunk.start);
    const bool isFixedPitch = regular.advanceSteps > 0 && bold.advanceSteps > 0;
    chunk.isEstimated = false;
    if (isFixedPitch && std::all_of(letters.begin(), letters.end(), FixedPitchFonts::isCounted)) {
        return countedSteps(chunk, end);
    }
    // Layouts of many million characters would hold the program up for seconds.
    if (laidOutCharacters + letters.size() > kLaidOutMaximum) {
        chunk.isEstimated = true;
        return estimatedSteps(letters);
    }
    const qint64 steps = laidOutSteps(chunk, end);
    laidOutCharacters += letters.size();
    spacingLetters += countSpacing(letters);
    spacingSteps += steps;
    return steps;
}

qint64 ColouredLineLayout::estimatedSteps(QStringView letters) const
{
    qint64 average = regular.advanceSteps;
    if (spacingLetters > 0) {
        average = (spacingSteps + spacingLetters - 1) / spacingLetters;
    } else if (average == 0) {
        average = qint64(qCeil(regular.ascent)) * kSteps;
    }
    return countSpacing(letters) * average;
}

/// Only here the styles count for the height: elsewhere letters may come from other fonts.
qint64 ColouredLineLayout::countedSteps(const Chunk &chunk, qsizetype end)
{
    const std::vector<ColouredLine::Run> &runs = content.runs();
    qint64 steps = 0;
    qsizetype start = chunk.start;
    for (std::size_t run = chunk.firstRun; start < end; ++run) {
        const qsizetype runEnd = run + 1 < runs.size() ? qMin(runs[run + 1].start, end) : end;
        const FixedPitchFonts::Metrics &metrics = runs[run].style.isBold ? bold : regular;
        include(metrics.ascent, metrics.descent, metrics.leading);
        steps += (runEnd - start) * metrics.advanceSteps;
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
    const QString &text = content.text();
    const std::vector<ColouredLine::Run> &runs = content.runs();
    // Qt shows soft hyphens at the end of a line, which the end of the chunk is not.
    while (end < text.size() && end > chunk.start && text[end - 1] == QChar::SoftHyphen) {
        --end;
    }
    auto layout =
        std::make_unique<QTextLayout>(text.mid(chunk.start, end - chunk.start), regularFont);
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
    FixedPitchFonts::layOutInOneLine(*layout);
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

void ColouredLineLayout::forgetPainted()
{
    recent.clear();
}

qreal ColouredLineLayout::leftOf(std::size_t chunk) const
{
    return qreal(chunks[chunk].leftSteps) / kSteps;
}

qreal ColouredLineLayout::advance() const
{
    return leftOf(chunks.size() - 1);
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

/// Whether so many others begin where the chunk does that it is not painted. Each of a million
/// letters without width would be laid out anew for each painting.
bool ColouredLineLayout::isBuried(std::size_t chunk) const
{
    const std::size_t last = chunk + kStackedMaximum;
    return last + 1 < chunks.size() && chunks[last].leftSteps < chunks[chunk].leftSteps + kSteps;
}

void ColouredLineLayout::draw(QPainter &painter, const QPointF &topLeft, qreal left,
                              qreal right) const
{
    // Slanted and stacked letters reach beyond their room.
    const qreal overhang = height();
    for (std::size_t i = firstChunkAt(left - overhang); i + 1 < chunks.size(); ++i) {
        if (leftOf(i) >= right + overhang) {
            return;
        }
        if (!isBuried(i)) {
            drawChunk(painter, topLeft + QPointF(leftOf(i), 0), i);
        }
    }
}

void ColouredLineLayout::drawChunk(QPainter &painter, const QPointF &topLeft,
                                   std::size_t chunk) const
{
    const QTextLayout &layout = laidOut(chunk);
    const QTextLine line = layout.lineAt(0);
    const QPointF place = topLeft + QPointF(0, ascent - line.ascent());
    const qreal room = leftOf(chunk + 1) - leftOf(chunk);
    if (!chunks[chunk].isEstimated || line.horizontalAdvance() <= room) {
        layout.draw(&painter, place);
        return;
    }
    painter.save();
    painter.setClipRect(QRectF(topLeft, QSizeF(room, height())), Qt::IntersectClip);
    layout.draw(&painter, place);
    painter.restore();
}
