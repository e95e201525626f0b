#pragma once

#include "ColouredLine.h"
#include "FixedPitchFonts.h"
#include "TXGUICommonExport.h"

#include <QFont>
#include <QPointF>

#include <memory>
#include <vector>

class QPainter;
class QTextLayout;

/// A coloured line in a monospaced font: how large it is, and the painting of a part of it.
///
/// It comes to the same pixels as Qt's rich text. The line is cut into chunks of a few hundred
/// characters. Chunks of plain letters are measured by counting them, the others by laying them
/// out; to paint, only the chunks that can be seen are laid out, and a few of them are kept. Of
/// chunks that begin in one place, for letters without width, only the last few are painted.
///
/// A line has no place beyond kWidestPixels; what would stand there is not measured, nor shown.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT ColouredLineLayout
{
public:
    /// The width of the widest widget there can be.
    static constexpr int kWidestPixels = (1 << 24) - 1;

    /// So many characters that cannot be counted are laid out to measure them. The others of a line
    /// that has more take the average room of these, so that the line may be wider or narrower by
    /// some. A chunk of theirs that is wider than its room is cut off there when it is painted.
    static constexpr qsizetype kLaidOutMaximum = 100000;

    /// So many chunks that begin within one pixel are painted; nothing could be read in more.
    static constexpr std::size_t kStackedMaximum = 8;

    /// Measures the line in the system's monospaced font, of the size and the other features of
    /// `font`, at the resolution that `font` was made for. An empty line is as high as one of
    /// `font` itself.
    ColouredLineLayout(ColouredLine line, const QFont &font);
    ~ColouredLineLayout();

    ColouredLineLayout(const ColouredLineLayout &) = delete;
    ColouredLineLayout &operator=(const ColouredLineLayout &) = delete;

    [[nodiscard]] const ColouredLine &line() const { return content; }

    /// The width in pixels, with what the last letter reaches beyond its room; at most
    /// kWidestPixels.
    [[nodiscard]] qreal width() const { return fullWidth; }

    /// The sum of the rooms of the letters in pixels.
    [[nodiscard]] qreal advance() const;

    /// The height in whole pixels: of the highest letters, including the leading.
    [[nodiscard]] int height() const;

    /// Paints the chunks between `left` and `right`, which count from the start of the line.
    /// Letters without a colour have that of the painter's pen, which is kept.
    void draw(QPainter &painter, const QPointF &topLeft, qreal left, qreal right) const;

    /// Gives back the memory of what was laid out to be painted. The next painting takes longer.
    void forgetPainted();

private:
    /// Letters that are measured and painted together, up to the start of the next chunk.
    struct Chunk
    {
        qsizetype start = 0;
        qint64 leftSteps = 0;
        std::size_t firstRun = 0;
        /// Its width was not measured.
        bool isEstimated = false;
    };

    /// A chunk that was laid out.
    struct LaidOut
    {
        std::size_t chunk = 0;
        std::unique_ptr<QTextLayout> layout;
    };

    void measureEmpty();
    void measureChunks();
    void measureLastChunk();
    void include(qreal itemAscent, qreal itemDescent, qreal itemLeading);
    [[nodiscard]] qsizetype chunkEnd(qsizetype start, std::size_t firstRun) const;
    [[nodiscard]] qsizetype lastRunStart(qsizetype from, qsizetype to, std::size_t run) const;
    [[nodiscard]] qint64 measure(Chunk &chunk, qsizetype end);
    [[nodiscard]] qint64 countedSteps(const Chunk &chunk, qsizetype end);
    [[nodiscard]] qint64 laidOutSteps(const Chunk &chunk, qsizetype end);
    [[nodiscard]] qint64 estimatedSteps(QStringView letters) const;
    [[nodiscard]] std::unique_ptr<QTextLayout> layOut(const Chunk &chunk, qsizetype end) const;
    [[nodiscard]] const QTextLayout &laidOut(std::size_t chunk) const;
    [[nodiscard]] std::size_t firstChunkAt(qreal left) const;
    [[nodiscard]] qreal leftOf(std::size_t chunk) const;
    [[nodiscard]] bool isBuried(std::size_t chunk) const;
    void drawChunk(QPainter &painter, const QPointF &topLeft, std::size_t chunk) const;

    ColouredLine content;
    QFont regularFont;
    QFont boldFont;
    FixedPitchFonts::Metrics regular;
    FixedPitchFonts::Metrics bold;
    /// Behind the last chunk stands one without letters, where the line ends.
    std::vector<Chunk> chunks;
    /// What was laid out to measure it: all of it, the letters that take room, and that room.
    qsizetype laidOutCharacters = 0;
    qint64 spacingLetters = 0;
    qint64 spacingSteps = 0;
    qreal ascent = 0;
    qreal descent = 0;
    /// The most that ascent and leading of letters come to together.
    qreal ascentWithLeading = 0;
    qreal fullWidth = 0;
    mutable std::vector<LaidOut> recent;
};
