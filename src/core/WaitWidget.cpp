#include "WaitWidget.h"

#include "AccessibleInterfaces.h"
#include "WaitElement.h"
#include "WaitWidgetAccessible.h"

#include <QPainter>
#include <QPropertyAnimation>
#include <QShowEvent>

namespace {

constexpr int kBars = 12;
constexpr int kTurnMilliseconds = 1000;
constexpr int kEndless = -1;
constexpr double kFirstAlpha = 10.0;
/// The length of a bar by the width of the widget, and the thickness of a bar by its length.
constexpr double kQuarter = 0.25;
constexpr double kFullTurnDegrees = 360.0;

} // namespace

WaitWidget::WaitWidget(QWidget *parent)
    : QWidget(parent)
{
    AccessibleInterfaces::install<WaitWidget, WaitWidgetAccessible>();
}

WaitWidget::~WaitWidget() = default;

WaitWidget *WaitWidget::popUp(QWidget *parent, int size)
{
    if (!parent) {
        return nullptr; // nobody would own it
    }
    const QList<WaitWidget *> former = parent->findChildren<WaitWidget *>();
    for (WaitWidget *spinner : former) {
        spinner->deleteLater();
    }
    auto *spinner = new WaitWidget(parent);
    spinner->resize(size, size);
    spinner->move((parent->width() - spinner->width()) / 2,
                  (parent->height() - spinner->height()) / 2);
    spinner->initWaitWidget();
    spinner->startAnimation();
    spinner->show();
    return spinner;
}

void WaitWidget::initWaitWidget()
{
    currentElement = 0;
    const auto length = float(width() * kQuarter);
    const QSize size(int(length), int(kQuarter * length));
    for (int i = 0; i < kBars; ++i) {
        elements.append(QSharedPointer<WaitElement>::create(QColor(Qt::black), size, kFirstAlpha,
                                                            int(WaitElement::Rectangle)));
    }
}

void WaitWidget::startAnimation()
{
    const bool wasBusy = isBusy();
    if (!animation) {
        makeAnimation();
    }
    animation->start(QAbstractAnimation::KeepWhenStopped);
    pauseUnlessSeen();
    tellOfBusy(wasBusy);
}

void WaitWidget::stopAnimation()
{
    if (!animation) {
        return;
    }
    const bool wasBusy = isBusy();
    animation->stop();
    for (const QSharedPointer<WaitElement> &element : qAsConst(elements)) {
        element->stopAnimation();
    }
    tellOfBusy(wasBusy);
}

void WaitWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() * 0.5, height() * 0.5);
    const qsizetype count = elements.size();
    for (qsizetype i = 0; i < count; ++i) {
        WaitElement &element = *elements.at(i);
        painter.save();
        if (i == currentElement) {
            element.startAnimation();
        }
        painter.rotate(double(i) / double(count) * kFullTurnDegrees);
        painter.translate(width() * kQuarter, -element.elementSize().height() * 0.5);
        element.paint(&painter);
        painter.restore();
    }
    // Who renders a hidden spinner into a picture does not set it going.
    pauseUnlessSeen();
}

void WaitWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // A child that is shown in a minimised window is told so, but cannot be seen. As the window is
    // restored the event may come before the window knows of it.
    isSeen = event->spontaneous() || !window()->isMinimized();
    if (isSeen) {
        resume();
    }
}

void WaitWidget::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    isSeen = false;
    pauseUnlessSeen();
}

void WaitWidget::makeAnimation()
{
    // The pointer goes before the children do, and takes the animation out of them.
    animation.reset(new QPropertyAnimation(this, "currentElement", this));
    animation->setDuration(kTurnMilliseconds);
    animation->setLoopCount(kEndless);
    animation->setStartValue(0);
    animation->setEndValue(int(elements.size()));
    connect(animation.data(), SIGNAL(valueChanged(QVariant)), this, SLOT(repaint()));
}

void WaitWidget::pauseUnlessSeen()
{
    if (isSeen) {
        return;
    }
    if (animation && animation->state() == QAbstractAnimation::Running) {
        animation->pause();
    }
    for (const QSharedPointer<WaitElement> &element : qAsConst(elements)) {
        element->pauseAnimation();
    }
}

void WaitWidget::resume()
{
    if (animation && animation->state() == QAbstractAnimation::Paused) {
        animation->resume();
    }
    for (const QSharedPointer<WaitElement> &element : qAsConst(elements)) {
        element->resumeAnimation();
    }
}

bool WaitWidget::isBusy() const
{
    return animation && animation->state() != QAbstractAnimation::Stopped;
}

void WaitWidget::tellOfBusy(bool wasBusy)
{
    if (isBusy() != wasBusy && QAccessible::isActive()) {
        QAccessible::State changed;
        changed.busy = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    }
}
