#include "WorkVeil.h"

#include "WaitWidget.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr QColor kPlateColour(250, 250, 250, 235);
constexpr QColor kPlateEdge(128, 128, 128, 140);
constexpr int kPlateMarginPixels = 5;
constexpr double kPlateRadiusPixels = 7;
constexpr double kHalfPixel = 0.5;

} // namespace

WorkVeil::WorkVeil(QWidget *area)
    : QWidget(area)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    area->installEventFilter(this);
}

void WorkVeil::begin(int spinnerPixels)
{
    setGeometry(parentWidget()->rect());
    spinner = WaitWidget::popUp(this, std::max(spinnerPixels, 1));
    show();
    raise();
    update();
}

void WorkVeil::end()
{
    hide();
    delete spinner;
    spinner = nullptr;
}

bool WorkVeil::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Resize && object == parent() && spinner) {
        setGeometry(parentWidget()->rect());
    }
    return QWidget::eventFilter(object, event);
}

void WorkVeil::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeSpinner();
}

void WorkVeil::paintEvent(QPaintEvent * /*event*/)
{
    if (!spinner) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int margin = kPlateMarginPixels;
    const QRectF plate = spinner->geometry().adjusted(-margin, -margin, margin, margin);
    painter.setPen(kPlateEdge);
    painter.setBrush(kPlateColour);
    painter.drawRoundedRect(plate.adjusted(kHalfPixel, kHalfPixel, -kHalfPixel, -kHalfPixel),
                            kPlateRadiusPixels, kPlateRadiusPixels);
}

/// popUp() has it in the middle only as long as the size stays.
void WorkVeil::placeSpinner()
{
    if (spinner) {
        spinner->move((width() - spinner->width()) / 2, (height() - spinner->height()) / 2);
    }
}
