#include "TXSwitchSlider.h"

#include "AccessibleInterfaces.h"
#include "FocusFrame.h"
#include "SwitchSliderAccessible.h"

#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QStylePainter>

namespace {

constexpr int kFramePixels = 4;
constexpr double kGroovePart = 0.87;
constexpr double kGrooveRadiusPart = 0.47;
constexpr double kDisabledOpacity = 0.4;

/// %1 width of the handle, %2 height of the groove, %3 its radius, %4 radius of the handle.
constexpr char kStyleSheet[] =
    "QSlider::groove:horizontal {border: 1px solid #999999; background: qlineargradient(x1:0, "
    "y1:0, x2:0, y2:1, stop:0 #B1B1B1, stop:1 #c4c4c4); height: %2px; margin: 0 0 0 0; "
    "border-radius: %3px;}QSlider::handle:horizontal {background: qlineargradient(x1:0, y1:0, "
    "x2:1, y2:1, stop:0 #b4b4b4, stop:1 #8f8f8f);  border: 1px solid #5c5c5c;  width: %1px; "
    "margin: -2px 0 -2px 0; border-radius: %4px;}";

QString styleSheetFor(int height)
{
    const int size = height - kFramePixels;
    return QString::fromLatin1(kStyleSheet)
        .arg(size)
        .arg(kGroovePart * size)
        .arg(kGrooveRadiusPart * size)
        .arg(size / 2);
}

} // namespace

TXSwitchSlider::TXSwitchSlider(QWidget *parent)
    : QSlider(parent)
{
    AccessibleInterfaces::install<TXSwitchSlider, SwitchSliderAccessible>();
    connect(this, SIGNAL(valueChanged(int)), this, SLOT(sliderPosChanged(int)));
    setMaximum(1);
    setPageStep(1);
    setOrientation(Qt::Horizontal);
}

void TXSwitchSlider::setChecked(bool checked)
{
    setValue(checked ? 1 : 0);
}

bool TXSwitchSlider::isChecked() const
{
    return value() == 1;
}

void TXSwitchSlider::sliderPosChanged(int position)
{
    emit clicked(position == 1);
}

void TXSwitchSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        setChecked(!isChecked());
    }
}

void TXSwitchSlider::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionSlider slider;
    initStyleOption(&slider);
    slider.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    // The style sheet has one look for all states.
    painter.setOpacity(isEnabled() ? 1.0 : kDisabledOpacity);
    painter.drawComplexControl(QStyle::CC_Slider, slider);
    FocusFrame::paint(painter, *this, rect());
}

void TXSwitchSlider::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    setStyleSheet(styleSheetFor(height()));
}

void TXSwitchSlider::sliderChange(SliderChange change)
{
    QSlider::sliderChange(change);
    if (change == SliderValueChange) {
        SwitchSliderAccessible::tellOfState(*this);
    }
}
