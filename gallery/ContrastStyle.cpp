#include "ContrastStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr qreal kLineWidth = 1;

bool hasFrame(const QStyleOption *option)
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
    return !frame || frame->lineWidth > 0;
}

/// Flat buttons have an edge only while they are pressed, checked or under the mouse.
bool isRaised(const QStyleOption *option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    return !button || !button->features.testFlag(QStyleOptionButton::Flat)
        || option->state & (QStyle::State_Sunken | QStyle::State_On | QStyle::State_MouseOver);
}

bool isFramed(QStyle::PrimitiveElement element, const QStyleOption *option)
{
    switch (element) {
    case QStyle::PE_PanelButtonCommand:
    case QStyle::PE_PanelButtonTool:
        return isRaised(option);
    case QStyle::PE_Frame:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_FrameMenu:
        return hasFrame(option);
    case QStyle::PE_FrameGroupBox:
    case QStyle::PE_FrameTabWidget:
    case QStyle::PE_PanelTipLabel:
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorItemViewItemCheck:
        return true;
    default:
        return false;
    }
}

bool isFramed(QStyle::ControlElement element)
{
    return element == QStyle::CE_ProgressBarGroove || element == QStyle::CE_TabBarTabShape
        || element == QStyle::CE_HeaderSection;
}

QPen linePen(const QStyleOption *option)
{
    const bool hasKeyboard = option->state.testFlag(QStyle::State_HasFocus)
        && option->state.testFlag(QStyle::State_Enabled);
    return {option->palette.color(hasKeyboard ? QPalette::Highlight : QPalette::Mid), kLineWidth};
}

QRectF middleOfLine(const QRect &rect)
{
    return QRectF(rect).adjusted(kLineWidth / 2, kLineWidth / 2, -kLineWidth / 2, -kLineWidth / 2);
}

void drawFrame(QPainter *painter, const QStyleOption *option, const QRect &rect)
{
    painter->save();
    painter->setPen(linePen(option));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(middleOfLine(rect));
    painter->restore();
}

void drawRing(QPainter *painter, const QStyleOption *option)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(linePen(option));
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(middleOfLine(option->rect));
    painter->restore();
}

} // namespace

ContrastStyle::ContrastStyle(const QString &key)
    : QProxyStyle(key)
{ }

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                  QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorRadioButton) {
        drawRing(painter, option);
    } else if (isFramed(element, option)) {
        drawFrame(painter, option, option->rect);
    }
}

void ContrastStyle::drawControl(ControlElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (isFramed(element)) {
        drawFrame(painter, option, option->rect);
    }
}

void ContrastStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                       QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_SpinBox) {
        drawFrame(painter, option, option->rect);
    } else if (control == CC_Slider) {
        drawFrame(painter, option, subControlRect(control, option, SC_SliderHandle, widget));
    } else if (control == CC_ScrollBar) {
        drawFrame(painter, option, subControlRect(control, option, SC_ScrollBarSlider, widget));
    }
}
