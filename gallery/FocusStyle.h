#pragma once

#include <QProxyStyle>

/// Shows a keyboard user where the focus is, over another style's controls.
///
/// Many styles show it by a tint that is hardly seen. Here it is one line in focusColour(): along
/// the edge of buttons, boxes and fields, around the handle of a slider and the text of a check box
/// or a tab, and in the rows of a view. As with other styles it is seen once the keyboard has moved
/// the focus in the window; after clicks alone everything looks as the style has it. Sizes stay the
/// style's. Take FocusOutline for the views as a whole.
class FocusStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// The key is one of QStyleFactory; any other gives Qt's own choice.
    explicit FocusStyle(const QString &key);

    /// Lines in the frames of texts and rows, and along the edge of fields.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    /// Lines along the edge of push buttons and of check boxes without a text, and in tabs.
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    /// Lines along the edge of tool buttons and boxes, and around the handle of sliders.
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    /// Frames the links of texts with such a line too.
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;

protected:
    /// Whether the style beneath is Qt's Fusion, whose corners are round and whose boxes have their
    /// title above the frame.
    [[nodiscard]] bool isOverFusion() const;

private:
    // Draw the control without the style's own mark; false when the option is none of this class.
    template<class Option>
    bool drawUnfocused(ControlElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const;
    template<class Option>
    bool drawUnfocused(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                       const QWidget *widget) const;
    // Draw the control and the mark; false when nothing is drawn, as it gets no mark here.
    bool drawMarked(ControlElement element, const QStyleOption *option, QPainter *painter,
                    const QWidget *widget) const;
    bool drawMarked(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                    const QWidget *widget) const;
    void drawTabFrame(QPainter *painter, const QStyleOption *option, const QWidget *widget) const;
    void drawEdge(QPainter *painter, const QStyleOption *option, const QRect &rect) const;
};
