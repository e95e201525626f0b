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
/// With a text of VariantHtml it looks like a QLabel with the same text, to the pixel, and its
/// text() is the same, but no document is made of it: a text of ten million characters shows in a
/// fraction of a second, and painting costs what can be seen. It works when the text is set through
/// a pointer to QLabel, too.
///
/// Text with other markup than that of VariantHtml, or with letters that are written from right to
/// left, is shown by way of a document when it is short; a long one, or one with tables or many
/// tags, shows the foreign markup as it stands (see RichLine). Links are not followed, and no
/// pictures loaded.
///
/// Font (at the resolution of the screen that the label is on), palette, alignment, indent, margins
/// and frame count as in QLabel. Small capitals, capital letters with a dot in a font of lower-case
/// letters only, and lines through letters that several fonts share may differ a little. Word wrap,
/// text format, buddy, text interaction, shortcuts and selections do not count; presses and keys go
/// to the parent. Texts without markup, pixmaps, pictures, movies and numbers are not supported:
/// what shows then is not said. What would stand beyond the widest widget there can be (16 million
/// pixels) is not shown.
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

    /// The words without the markup, at most the first `maximum` characters of them; no letter is
    /// cut in two.
    [[nodiscard]] QString visibleText(qsizetype maximum) const;

    /// The size of the whole line; both are the same.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// The height of the line, at any width.
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void paintText(QPainter &painter, const QRect &visible) const;
    void paintLine(QPainter &painter, const QRectF &room, const QRect &visible) const;
    void ensureMeasured() const;
    [[nodiscard]] QSize textSize() const;
    [[nodiscard]] QRect textRoom() const;
    [[nodiscard]] Qt::Alignment visualAlignment() const;
    [[nodiscard]] QPalette textPalette() const;

    const QWidget *focusOwner = nullptr;
    /// What was measured. QLabel tells no one of a new text; it is seen by the comparison of the
    /// two.
    mutable QString measuredText;
    mutable QFont measuredFont;
    /// A font tells nobody which resolution it has, and counts as equal at another one.
    mutable int measuredDpi = 0;
    /// One of them is there once a text was measured.
    mutable std::unique_ptr<ColouredLineLayout> line;
    mutable std::unique_ptr<RichLine> richLine;
};
