#include "ContrastStyle.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr qreal kLineWidth = 1;
/// The colour alone would be missed: grey and yellow are equally bright.
constexpr qreal kFocusLineWidth = 2;
constexpr int kGroupBoxMargin = 3;

bool hasFrame(const QStyleOption *option)
{
    if (const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option)) {
        return box->frame;
    }
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
    return {option->palette.color(hasKeyboard ? QPalette::Highlight : QPalette::Mid),
            hasKeyboard ? kFocusLineWidth : kLineWidth};
}

QRectF middleOfLine(const QRect &rect, qreal width)
{
    return QRectF(rect).adjusted(width / 2, width / 2, -width / 2, -width / 2);
}

void drawFrame(QPainter *painter, const QStyleOption *option, const QRect &rect)
{
    painter->save();
    const QPen pen = linePen(option);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(middleOfLine(rect, pen.widthF()));
    painter->restore();
}

/// The title of a box stands above the frame in Fusion; the other styles' frames are seen.
int roomForTitle(const QStyle &style, const QStyleOption *option, const QWidget *widget)
{
    const auto *box = qobject_cast<const QGroupBox *>(widget);
    if (!box || (!box->isCheckable() && box->title().isEmpty())) {
        return kGroupBoxMargin;
    }
    return std::max(style.pixelMetric(QStyle::PM_IndicatorHeight, option, widget),
                    box->fontMetrics().height())
        + kGroupBoxMargin;
}

void drawRing(QPainter *painter, const QStyleOption *option)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QPen pen = linePen(option);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(middleOfLine(option->rect, pen.widthF()));
    painter->restore();
}

/// The arrow of a tree's row stands on the ground of the selection there.
QStyleOption onSelection(const QStyleOption *option)
{
    QStyleOption changed(*option);
    changed.palette.setColor(QPalette::WindowText,
                             option->palette.color(QPalette::HighlightedText));
    return changed;
}

} // namespace

ContrastStyle::ContrastStyle(const QString &key)
    : FocusStyle(key)
{ }

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                  QPainter *painter, const QWidget *widget) const
{
    if (element == PE_IndicatorBranch && option->state.testFlag(State_Selected)) {
        const QStyleOption changed = onSelection(option);
        FocusStyle::drawPrimitive(element, &changed, painter, widget);
        return;
    }
    FocusStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorRadioButton) {
        drawRing(painter, option);
    } else if (element == PE_FrameGroupBox && isOverFusion()) {
        const int top = roomForTitle(*this, option, widget);
        drawFrame(painter, option, option->rect.adjusted(0, top, 0, 0));
    } else if (isFramed(element, option)) {
        drawFrame(painter, option, option->rect);
    }
}

void ContrastStyle::drawControl(ControlElement element, const QStyleOption *option,
                                QPainter *painter, const QWidget *widget) const
{
    FocusStyle::drawControl(element, option, painter, widget);
    if (isFramed(element)) {
        drawFrame(painter, option, option->rect);
    }
}

void ContrastStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                       QPainter *painter, const QWidget *widget) const
{
    FocusStyle::drawComplexControl(control, option, painter, widget);
    switch (control) {
    case CC_SpinBox:
        drawFrame(painter, option, option->rect);
        break;
    case CC_ScrollBar:
        drawFrame(painter, option, subControlRect(control, option, SC_ScrollBarSlider, widget));
        break;
    case CC_Slider:
        drawSliderFrames(option, painter, widget);
        break;
    case CC_ComboBox:
        if (hasFrame(option)) {
            drawFrame(painter, option, option->rect);
        }
        break;
    default:
        break;
    }
}

void ContrastStyle::drawSliderFrames(const QStyleOptionComplex *option, QPainter *painter,
                                     const QWidget *widget) const
{
    const QRect handle = subControlRect(CC_Slider, option, SC_SliderHandle, widget);
    drawFrame(painter, option, handle);
    painter->save();
    painter->setClipRegion(QRegion(option->rect) - handle);
    drawFrame(painter, option, subControlRect(CC_Slider, option, SC_SliderGroove, widget));
    painter->restore();
}
