#pragma once

#include "TXGUICommonExport.h"

#include <QColor>
#include <QHash>
#include <QSizeF>
#include <QString>
#include <QVariant>

class QFont;
class QPointF;
class TXGraphicsScene;

/// One cell of a TXTable: a rectangle that holds a text, a picture or nothing.
///
/// A value, built from a dictionary of settings and copied freely. Sizes are in points. Hosts fill
/// tables through TXTable::addCell(), which builds the cells; the members are there to be read and
/// adjusted afterwards.
///
/// Thread: one thread at a time for each cell; drawing is for the scene's thread.
class TXGUICOMMON_EXPORT TXTableCell
{
public:
    /// Reads the cell from the dictionary. Other keys are ignored, and a value of another type is
    /// converted if it can be:
    ///
    /// | Key | Value | Default |
    /// |---|---|---|
    /// | "CellElement" | what the cell shows: a QPixmap, or anything with a text | nothing |
    /// | "CellSize" | QSizeF in points | 50 by 50 |
    /// | "CellTextColor" | QColor | black |
    /// | "CellTextHorizontalAlign" | a TXHorizontalAlignment's number | centred |
    /// | "CellTextVerticalAlign" | a TXVerticalAlignment's number | centred |
    /// | "CellTextBold" | bool | false |
    /// | "InsideCellColor" | QColor | white |
    /// | "BorderCellColor" | QColor | black |
    /// | "BorderCellLineWidth" | number in points | 0.5 |
    /// | "CellRealColumn" | int | 0 |
    /// | "NbMergedCell" | int | 1 |
    ///
    /// A colour that is none stays an invalid colour, which paints black.
    explicit TXTableCell(const QHash<QString, QVariant> &dictionary);

    /// Draws the cell's rectangle on the scene, and above it what the cell holds: a picture centred
    /// within, 1 point off the border, or the text in its colour, weight and alignment. Text is
    /// neither wrapped nor clipped: what is too wide runs over the border. A cell without text or
    /// picture is its rectangle alone. `topLeft` is in the scene's units.
    void drawTableCell(TXGraphicsScene *scene, const QPointF &topLeft, const QFont &font) const;

    /// What the cell shows: a QPixmap, a text, or anything else with a text, such as a number.
    QVariant element;
    /// Colour of the text.
    QColor textColor;
    /// Horizontal place of the text: a TXHorizontalAlignment's number. A picture ignores it.
    quint32 horizontalAlign;
    /// Vertical place of the text: a TXVerticalAlignment's number. A picture ignores it.
    quint32 verticalAlign;
    /// True for text of weight 700, false for 400.
    bool bold;
    /// Fill of the rectangle.
    QColor insideColor;
    /// Width and height in points, kept as given.
    QSizeF size;
    /// Colour of the rectangle's outline.
    QColor borderColor;
    /// Width of the rectangle's outline in points.
    double borderLineWidth;
    /// Index of the table's column that the cell belongs to.
    int realColumn;
    /// How many cells share that column in this row.
    int nbMergedCell;
};

Q_DECLARE_TYPEINFO(TXTableCell, Q_RELOCATABLE_TYPE);
