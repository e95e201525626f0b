#include "WaitElement.h"

#include "WholeNumber.h"

#include <QPainter>
#include <QPropertyAnimation>

#include <algorithm>

namespace {

constexpr int kFadeMilliseconds = 800;
constexpr double kLitAlpha = 240.0;
constexpr double kFadedAlpha = 10.0;
constexpr int kOpaque = 255;

/// QColor complains of an alpha outside its range, and the property takes any number.
int alphaChannel(double alpha)
{
    return std::clamp(WholeNumber::truncated(alpha), 0, kOpaque);
}

} // namespace

WaitElement::WaitElement(QColor color, QSize size, double alpha, int shape)
    : color(color)
    , alphaElement(alpha)
    , size(size)
    , shape(shape)
{
    this->color.setAlpha(alphaChannel(alpha));
}

WaitElement::~WaitElement() = default;

void WaitElement::startAnimation()
{
    if (!animation) {
        // The pointer goes before the children do, and takes the animation out of them.
        animation.reset(new QPropertyAnimation(this, "alphaElement", this));
        animation->setDuration(kFadeMilliseconds);
        animation->setLoopCount(1);
        animation->setStartValue(kLitAlpha);
        animation->setEndValue(kFadedAlpha);
    }
    animation->start(QAbstractAnimation::KeepWhenStopped);
}

void WaitElement::stopAnimation()
{
    if (animation) {
        animation->stop();
    }
}

void WaitElement::pauseAnimation()
{
    if (animation && animation->state() == QAbstractAnimation::Running) {
        animation->pause();
    }
}

void WaitElement::resumeAnimation()
{
    if (animation && animation->state() == QAbstractAnimation::Paused) {
        animation->resume();
    }
}

void WaitElement::paint(QPainter *painter)
{
    if (!painter) {
        return;
    }
    painter->save();
    color.setAlpha(alphaChannel(alphaElement));
    painter->setBrush(QBrush(color, Qt::SolidPattern));
    if (shape == Ellipse) {
        const double x = size.width() * 0.5;
        const double y = size.height() * 0.5;
        painter->drawEllipse(QRectF(QPointF(-x, -y), QPointF(x, y)));
    } else if (shape == Rectangle) {
        painter->setPen(color);
        painter->drawRect(QRect(QPoint(0, 0), size));
    }
    painter->restore();
}

QSize WaitElement::elementSize() const
{
    return size;
}
