#pragma once

#include "TXAlignment.h"
#include "TXGUICommonExport.h"

#include <QGraphicsScene>
#include <QHash>
#include <QPixmap>

class QFont;
class TXTable;

/// The canvas of a report: a scene with shortcuts for drawing, one unit of which is one typographic
/// point (1/72 inch).
///
/// What is drawn joins the scene as an item above what is there already, and belongs to the scene.
/// Show the scene in a QGraphicsView, or take it to paper with TXReportDocument. Screen readers can
/// read the texts in such a view; see TXReportAccessible.
///
/// Texts take as many units as their font takes pixels on the screen. Set fonts by
/// QFont::setPixelSize(), so that a size of 10 is 10 points on paper wherever the report is made;
/// QFont::setPointSize() depends on the screen's resolution.
///
/// Sizes that are negative, infinite or not numbers are harmless: such a thing shows nothing or
/// shows at a corner. A thing whose place, size or width of line is infinite or not a number adds
/// no item, as the whole scene's extent would become so too. Each call costs the same whatever
/// stands in the scene already, and so does destroying the scene for each item; measuring and
/// scaling are remembered.
///
/// Thread: the GUI thread, but for getBoundingRectOfText() and newSizeFromSize().
class TXGUICOMMON_EXPORT TXGraphicsScene : public QGraphicsScene
{
    Q_OBJECT

public:
    /// An empty scene. A parent owns it.
    explicit TXGraphicsScene(QObject *parent = nullptr);
    ~TXGraphicsScene() override;

    /// Draws the text with its top-left corner at the place. Line breaks in it count, nothing is
    /// wrapped.
    void drawText(const QString &text, const QPointF &topLeft, const QFont &font,
                  const QBrush &brush);

    /// Draws the text aligned within the rectangle, whose size counts in whole units only. The
    /// margins, one for each direction, keep the text off the side that it is aligned to; centred
    /// text has none. The text is neither wrapped nor clipped: one that is too large runs over. An
    /// empty text draws nothing.
    void drawTextInRect(const QString &text, const QRectF &rect, TXHorizontalAlignment horizontal,
                        TXVerticalAlignment vertical, const QFont &font, const QBrush &brush,
                        const QSizeF &margins);

    /// Draws the picture as large as the rectangle allows with its proportions kept, aligned within
    /// it, in whole units. It is stored at 200 dots per inch. A null pixmap draws nothing.
    void drawImageInRect(QPixmap pixmap, QRectF rect, TXHorizontalAlignment horizontal,
                         TXVerticalAlignment vertical);

    /// Draws a line, on request with a shadow.
    void drawLine(const QPointF &from, const QPointF &to, const QPen &pen, bool shadow);
    /// Draws a rectangle, on request with a shadow.
    void drawRect(const QRectF &rect, const QPen &pen, const QBrush &brush, bool shadow);
    /// Draws a rectangle with round corners of the given radii, on request with a shadow.
    void drawRoundedRect(const QRectF &rect, double xRadius, double yRadius, const QPen &pen,
                         const QBrush &brush, bool shadow);
    /// Draws the ellipse that fills the rectangle, on request with a shadow.
    void drawEllipse(const QRectF &rect, const QPen &pen, const QBrush &brush, bool shadow);

    /// Draws the table with its cells' top-left corner at the place; the frame stands 5 units out
    /// from the cells on every side.
    void drawTable(TXTable table, const QPointF &topLeft, const QFont &font);

    /// The room that the text takes in the font: a rectangle at (0, 0). An '&' counts as the mark
    /// of a mnemonic and takes no room, though drawText() shows it. Each text is measured once for
    /// a font. Thread: any.
    [[nodiscard]] static QRectF getBoundingRectOfText(const QString &text, const QFont &font);

    /// The size `from` grown or shrunk, with its proportions kept, to just fit into `to`, truncated
    /// to whole numbers. `scale`, unless null, receives the factor. An empty `from` gives an
    /// infinite factor or none, and so a size that is of no use.
    [[nodiscard]] static QSize newSizeFromSize(QSize from, QSize to, float *scale);

    /// The pixmap resampled, with its proportions kept, for a size in points and a resolution. The
    /// scene keeps what it has resampled as long as it lives.
    [[nodiscard]] QPixmap scaleToFitResolution(const QPixmap &pixmap, const QSize &size,
                                               int dotsPerInch);

    /// Lets the item throw a soft grey shadow to all sides. Null does nothing. The item owns the
    /// effect, which replaces an earlier one.
    void addShadowEffectInGraphicsItem(QGraphicsItem *item);

    /// Shows the item in shades of the colour. Null does nothing. The item owns the effect, which
    /// replaces an earlier one. On paper such an item is a picture, also where it is a text.
    void addColorEffectInGraphicsItem(QGraphicsItem *item, const QColor &color);

private:
    friend class ReportPageScene;

    QHash<qint64, QHash<QString, QPixmap>> scaledPixmaps;
};
