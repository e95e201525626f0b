#pragma once

#include "TXGUICommonExport.h"

#include <QGroupBox>

/// A group box that folds: a triangle before its bold title hides and shows what is in it.
///
/// Starts unfolded and checkable. A click on the title or on the triangle toggles it, and so does
/// the space bar; to assistive technology it is a check box.
///
/// How a toggle treats a direct child depends on whether anything has called show(), hide() or
/// setVisible() on it (Qt::WA_WState_ExplicitShowHide), which Qt does itself for every child that
/// is not hidden when the box appears for the first time:
/// - nothing has: the child is shown;
/// - it is visible: the child is hidden, and counts as never asked from then on;
/// - it is not visible: it stays so.
///
/// So children flip at each toggle, and one that the host has hidden stays hidden. Fold and unfold
/// by program only while the box can be seen: a toggle before that hides nothing, and leaves the
/// children one toggle behind.
///
/// Children do not take the bold font of the title.
///
/// From right to left the triangle stands at the right of the title and, folded, points to the
/// left: the pictures are those for left to right, mirrored.
///
/// Files: "../Resources/Images/triangle_closed.png" and "triangle_open.png" beside the folder of
/// the program; without them nothing stands before the title.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXUnfolderWidget : public QGroupBox
{
    Q_OBJECT

public:
    /// A flat box without a title, unfolded. It has a style sheet for its triangle: one that a host
    /// sets takes its place.
    explicit TXUnfolderWidget(QWidget *parent = nullptr);

public slots:
    /// Shows and hides the direct children as told above. Connected to toggled(). The argument is
    /// the new state and does not count: what each child is decides.
    void unfolderStatusChanged(bool checked);

protected:
    /// As for left to right while the style sheet is the box's own: what is painted from right to
    /// left, and where the mouse is looked for, is mirrored.
    void initStyleOption(QStyleOptionGroupBox *option) const override;
    /// Mirrors what stands before the title, from right to left.
    void paintEvent(QPaintEvent *event) override;
    /// A press on the title or the triangle starts a click.
    void mousePressEvent(QMouseEvent *event) override;
    /// Follows a click that is under way.
    void mouseMoveEvent(QMouseEvent *event) override;
    /// A release on the title or the triangle toggles.
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] bool isMirrored() const;

    bool isFlatWhenFolded = false;
};
