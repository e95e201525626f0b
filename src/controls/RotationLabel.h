#pragma once

#include "TXGUICommonExport.h"

#include <QLabel>

/// A line of text that can be turned by a quarter, as beside the vertical axis of a plot.
///
/// Shows its text as it is: an "&" is an "&", markup is not interpreted, and a pixmap or a movie is
/// not shown. Take a QLabel for these. Alignment, frame, font and palette are those of a QLabel;
/// the alignment is seen by somebody who has turned the head along with the text. A frame moves a
/// turned text by twice its width, to the left when turned clockwise, upwards when turned the other
/// way: it is made for labels without one.
///
/// Assistive technology reads the text, whichever way it is turned.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT RotationLabel : public QLabel
{
    Q_OBJECT
    /// See rotation(). Writing it is setRotation() with updateGeometry() and update() behind it.
    Q_PROPERTY(RotationOption rotation READ rotation WRITE showRotation)

public:
    /// Which way the text is turned.
    enum RotationOption {
        NoRotation = 0, ///< Read from left to right.
        RotateClockwise = 1, ///< Read from top to bottom.
        RotateCounterClockwise = 2, ///< Read from bottom to top.
    };
    Q_ENUM(RotationOption)

    /// An empty label that is not rotated.
    explicit RotationLabel(QWidget *parent = nullptr);

    /// How the text is turned; NoRotation at the start.
    [[nodiscard]] RotationOption rotation() const;

    /// Keeps the rotation for the next painting and the next question for a size, and nothing more:
    /// call updateGeometry() and update() behind it when the label is on the screen.
    void setRotation(RotationOption option);

    /// As wide as the text runs and as high as its font, the other way round when rotated. Frame
    /// and margins do not count.
    [[nodiscard]] QSize sizeHint() const override;

    /// The same as sizeHint().
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    /// Asks for another size and a repaint when the font has changed.
    void changeEvent(QEvent *event) override;

    /// Draws the frame, and the text in the contents' rectangle.
    void paintEvent(QPaintEvent *event) override;

private:
    void showRotation(RotationOption option);

    RotationOption rotationOption = NoRotation;
};
