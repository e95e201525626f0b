#pragma once

#include "FocusStyle.h"

/// Draws the frames of another style's controls again, in one colour that stands out.
///
/// Styles take the outline of a control from the colour of the window and make it darker. On a
/// black window nothing of that is left: buttons, fields and boxes have no edge. Here each gets a
/// line in the palette's Mid, or a wider one in its Highlight where the keyboard is, after clicks
/// too. Sizes stay the other style's.
class ContrastStyle final : public FocusStyle
{
    Q_OBJECT

public:
    /// The key is one of QStyleFactory; any other gives Qt's own choice.
    explicit ContrastStyle(const QString &key);

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;

private:
    void drawSliderFrames(const QStyleOptionComplex *option, QPainter *painter,
                          const QWidget *widget) const;
};
