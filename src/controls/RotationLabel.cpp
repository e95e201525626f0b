#include "RotationLabel.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr double kQuarterDegrees = 90.0;

} // namespace

RotationLabel::RotationLabel(QWidget *parent)
    : QLabel(parent)
{ }

RotationLabel::RotationOption RotationLabel::rotation() const
{
    return rotationOption;
}

void RotationLabel::setRotation(RotationOption option)
{
    rotationOption = option;
}

QSize RotationLabel::sizeHint() const
{
    ensurePolished();
    const QFontMetrics metrics = fontMetrics();
    const QSize upright(metrics.horizontalAdvance(text()), metrics.height());
    return rotationOption == NoRotation ? upright : upright.transposed();
}

QSize RotationLabel::minimumSizeHint() const
{
    return sizeHint();
}

void RotationLabel::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event); // NOLINT(bugprone-parent-virtual-call)
    if (event->type() == QEvent::ApplicationFontChange || event->type() == QEvent::FontChange) {
        updateGeometry();
        update();
    }
}

// The handler of QLabel would draw the text upright below this one.
void RotationLabel::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event); // NOLINT(bugprone-parent-virtual-call)
    QPainter painter(this);
    QRect area = contentsRect();
    if (rotationOption == RotateClockwise) {
        painter.rotate(kQuarterDegrees);
        painter.translate(0, -area.width());
    } else if (rotationOption == RotateCounterClockwise) {
        painter.rotate(-kQuarterDegrees);
        painter.translate(-area.height(), 0);
    }
    if (rotationOption != NoRotation) {
        area.setSize(area.size().transposed());
    }
    painter.drawText(area, int(alignment()), text());
}

void RotationLabel::showRotation(RotationOption option)
{
    setRotation(option);
    updateGeometry();
    update();
}
