#pragma once

#include "TXGUICommonExport.h"

#include <QPalette>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>

class ColouredLine;
class QFont;
class QPainter;
class QPointF;
class QTextDocument;

/// Text with any markup of Qt's rich text, laid out without breaking lines by itself: what
/// VariantLabel shows for markup that is not its own.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT RichLine
{
public:
    /// Longer texts (with their markup), and texts with more foreign tags, are none for rich text.
    static constexpr qsizetype kCharactersMaximum = 5000;
    static constexpr qsizetype kTagsMaximum = 12;

    /// True when the line shows right as rich text only, and when that takes no long time. That is
    /// never so for tables: a cell that spans many rows and columns takes seconds.
    [[nodiscard]] static bool isWanted(const ColouredLine &line, const QString &markup);

    /// Text in which Qt finds no markup counts as plain text. Pictures that the markup names are
    /// not read from files; they show as nothing.
    RichLine(const QString &markup, const QFont &font);
    ~RichLine();

    RichLine(const RichLine &) = delete;
    RichLine &operator=(const RichLine &) = delete;

    /// The size that the text takes, in pixels.
    [[nodiscard]] QSizeF size() const { return fullSize; }

    /// The words without the markup, of several paragraphs one a line.
    [[nodiscard]] QString text() const;

    /// Paints the lines that `visible`, in the coordinates of the painter, shows a part of, in a
    /// room of this width, in which the paragraphs are aligned. Letters without a colour have the
    /// palette's QPalette::Text.
    void draw(QPainter &painter, const QPointF &topLeft, qreal room, Qt::Alignment alignment,
              const QPalette &palette, const QRectF &visible) const;

private:
    std::unique_ptr<QTextDocument> document;
    QSizeF fullSize;
};
