#pragma once

#include "TXGUICommonExport.h"

#include <QLabel>
#include <QPalette>
#include <QRectF>

#include <memory>

class ColouredLineLayout;
class RichLine;

/// A label for one line of coloured, monospaced text of any length, as VariantHtml makes it.
///
/// It looks like a QLabel with the same text, to the pixel, and its text() is the same, but no
/// document is made of it: a text of ten million characters shows in a fraction of a second, and
/// painting costs what can be seen. It works when the text is set through a pointer to QLabel, too.
///
/// Text with other markup than that of VariantHtml, or with letters that are written from right to
/// left, is shown by way of a document when it is short; a long one, or one with many tags, shows
/// the foreign markup as it stands (see RichLine). Links are not followed, and no pictures loaded.
///
/// Font, palette, alignment, indent, margins and frame count as in QLabel (small capitals may
/// differ a little in their places); word wrap, text format, buddy, text interaction and selections
/// do not. What would stand beyond the widest widget there can be (16 million pixels) is not shown.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT VariantLabel : public QLabel
{
    Q_OBJECT

public:
    /// A label without text, filled with its background.
    explicit VariantLabel(QWidget *parent = nullptr);
    ~VariantLabel() override;

    /// Paints the focus frame of this widget around the label, since the label covers it. The owner
    /// outlives the label; null, the default, stands for no frame.
    void setFocusOwner(const QWidget *owner);

    /// The words without the markup, at most the first `maximum` characters of them.
    [[nodiscard]] QString visibleText(qsizetype maximum) const;

    /// The size of the whole line; both are the same.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintText(QPainter &painter, const QRect &visible) const;
    void paintLine(QPainter &painter, const QRectF &room, const QRect &visible) const;
    void ensureMeasured() const;
    [[nodiscard]] QSize textSize() const;
    [[nodiscard]] QRect textRoom() const;
    [[nodiscard]] QPalette textPalette() const;

    const QWidget *focusOwner = nullptr;
    /// What was measured. QLabel tells no one of a new text; it is seen by the comparison of the
    /// two.
    mutable QString measuredText;
    mutable QFont measuredFont;
    /// One of them is there once a text was measured.
    mutable std::unique_ptr<ColouredLineLayout> line;
    mutable std::unique_ptr<RichLine> richLine;
};
