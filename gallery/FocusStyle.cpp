#include "FocusStyle.h"

#include "FocusColour.h"

#include <QComboBox>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QTextFormat>

namespace {

constexpr qreal kTextLineWidth = 1;
/// The colour alone would be missed where there is an edge already.
constexpr qreal kEdgeLineWidth = 2;
constexpr qreal kCornerRadius = 2;

bool isMarked(const QStyleOption *option)
{
    constexpr QStyle::State kNeeded =
        QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange | QStyle::State_Enabled;
    return (option->state & kNeeded) == kNeeded;
}

/// The same control without the style's own mark.
template<class Option>
Option unfocused(const Option &option)
{
    Option changed(option);
    changed.state.setFlag(QStyle::State_HasFocus, false);
    return changed;
}

/// A check box that is nothing but its box.
bool isBare(const QStyleOption *option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    return button && button->text.isEmpty() && button->icon.isNull();
}

/// Lines in frames, of texts and of rows. In a selected row the line stands on the selection, one
/// pixel inside, as it would only make the row smaller at its edge.
void drawFocusFrame(QPainter *painter, const QStyleOption &option)
{
    const bool isOnSelection =
        option.state.testFlag(QStyle::State_Selected) && option.state.testFlag(QStyle::State_Item);
    const qreal inset = kTextLineWidth / 2 + (isOnSelection ? 1 : 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setPen(QPen(isOnSelection ? option.palette.color(QPalette::HighlightedText)
                                       : focusColour(option.palette),
                         kTextLineWidth));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset));
    painter->restore();
}

/// The frame in a button that a style sheet draws is as narrow as its text.
QStyleOption wider(const QStyleOption &option)
{
    constexpr int kSide = 4;
    constexpr int kAbove = 2;
    QStyleOption changed(option);
    changed.rect = option.rect.adjusted(-kSide, -kAbove, kSide, kAbove);
    return changed;
}

} // namespace

FocusStyle::FocusStyle(const QString &key)
    : QProxyStyle(key)
{ }

void FocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    if (element == PE_FrameFocusRect && option->state.testFlag(State_KeyboardFocusChange)) {
        drawFocusFrame(painter,
                       qobject_cast<const QPushButton *>(widget) ? wider(*option) : *option);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    // A box has a mark of its own, and some styles always draw the frame of its field as if used
    // by keyboard.
    if (element == PE_FrameLineEdit && isMarked(option)
        && !qobject_cast<const QComboBox *>(widget)) {
        drawEdge(painter, option, option->rect);
    }
}

void FocusStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    if (!isMarked(option) || !drawMarked(element, option, painter, widget)) {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void FocusStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const
{
    if (!isMarked(option) || !drawMarked(control, option, painter, widget)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

int FocusStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returnData) const
{
    const int result = QProxyStyle::styleHint(hint, option, widget, returnData);
    if (hint == SH_TextControl_FocusIndicatorTextCharFormat && option) {
        if (auto *found = qstyleoption_cast<QStyleHintReturnVariant *>(returnData)) {
            QTextCharFormat format;
            format.setProperty(QTextFormat::OutlinePen,
                               QPen(focusColour(option->palette), kTextLineWidth));
            found->variant = format;
        }
    }
    return result;
}

bool FocusStyle::isOverFusion() const
{
    return baseStyle()->name() == QStringLiteral("fusion");
}

template<class Option>
bool FocusStyle::drawUnfocused(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    const auto *own = qstyleoption_cast<const Option *>(option);
    if (own) {
        const Option plain = unfocused(*own);
        QProxyStyle::drawControl(element, &plain, painter, widget);
    }
    return own != nullptr;
}

template<class Option>
bool FocusStyle::drawUnfocused(ComplexControl control, const QStyleOptionComplex *option,
                               QPainter *painter, const QWidget *widget) const
{
    const auto *own = qstyleoption_cast<const Option *>(option);
    if (own) {
        const Option plain = unfocused(*own);
        QProxyStyle::drawComplexControl(control, &plain, painter, widget);
    }
    return own != nullptr;
}

bool FocusStyle::drawMarked(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    bool isDrawn = false;
    switch (element) {
    case CE_PushButton:
        isDrawn = drawUnfocused<QStyleOptionButton>(element, option, painter, widget);
        if (isDrawn) {
            drawEdge(painter, option, option->rect);
        }
        break;
    case CE_CheckBox:
        if (isBare(option)) {
            isDrawn = drawUnfocused<QStyleOptionButton>(element, option, painter, widget);
            drawEdge(painter, option, subElementRect(SE_CheckBoxIndicator, option, widget));
        }
        break;
    case CE_TabBarTabLabel:
        isDrawn = drawUnfocused<QStyleOptionTab>(element, option, painter, widget);
        if (isDrawn) {
            drawTabFrame(painter, option, widget);
        }
        break;
    case CE_ComboBoxLabel:
        // Its box has the mark. Some styles write on a Highlight here.
        isDrawn = drawUnfocused<QStyleOptionComboBox>(element, option, painter, widget);
        break;
    default:
        break;
    }
    return isDrawn;
}

bool FocusStyle::drawMarked(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const
{
    QRect edge = option->rect;
    bool isDrawn = false;
    switch (control) {
    case CC_ComboBox:
        isDrawn = drawUnfocused<QStyleOptionComboBox>(control, option, painter, widget);
        break;
    case CC_SpinBox:
        isDrawn = drawUnfocused<QStyleOptionSpinBox>(control, option, painter, widget);
        break;
    case CC_ToolButton:
        isDrawn = drawUnfocused<QStyleOptionToolButton>(control, option, painter, widget);
        break;
    case CC_Slider:
        isDrawn = drawUnfocused<QStyleOptionSlider>(control, option, painter, widget);
        edge = subControlRect(control, option, SC_SliderHandle, widget);
        break;
    default:
        break;
    }
    if (isDrawn) {
        drawEdge(painter, option, edge);
    }
    return isDrawn;
}

/// Styles do not ask for the frame of a tab, but draw their own.
void FocusStyle::drawTabFrame(QPainter *painter, const QStyleOption *option,
                              const QWidget *widget) const
{
    const int inset = 1 + pixelMetric(PM_DefaultFrameWidth, option, widget);
    QStyleOption frame(*option);
    frame.rect = option->rect.adjusted(inset, inset, -inset, -inset);
    drawFocusFrame(painter, frame);
}

void FocusStyle::drawEdge(QPainter *painter, const QStyleOption *option, const QRect &rect) const
{
    constexpr qreal kInset = kEdgeLineWidth / 2;
    const qreal radius = isOverFusion() ? kCornerRadius : 0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, isOverFusion());
    painter->setPen(QPen(focusColour(option->palette), kEdgeLineWidth, Qt::SolidLine, Qt::FlatCap,
                         Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(rect).adjusted(kInset, kInset, -kInset, -kInset), radius,
                             radius);
    painter->restore();
}
