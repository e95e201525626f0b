#pragma once

#include "TXGUICommonExport.h"

#include <QColor>
#include <QObject>
#include <QSharedPointer>
#include <QSize>

class QPainter;
class QPropertyAnimation;

/// One bar of a WaitWidget: a shape of one colour that lights up and fades.
///
/// Hosts take WaitWidget; the element is of use by itself only for an indicator of another layout.
/// It shows nothing on its own and asks nobody to paint: who paints it decides when.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT WaitElement : public QObject
{
    Q_OBJECT

    /// How opaque the element is, from 0 (not seen) to 255. Any number is kept; for painting the
    /// fraction is dropped and what lies outside counts as the nearest end, not-a-number as 0.
    Q_PROPERTY(double alphaElement MEMBER alphaElement)

public:
    /// The shapes that are painted; any other number paints nothing.
    enum Shape : int {
        /// An ellipse around the painter's origin.
        Ellipse = 1,
        /// A rectangle with its first corner in the painter's origin.
        Rectangle = 2
    };

    /// An element without a parent that does not fade yet: of this colour, but for its alpha, of
    /// this size in device-independent pixels, as opaque as alphaElement tells, and of one of the
    /// numbers of Shape.
    WaitElement(QColor color, QSize size, double alpha, int shape);
    ~WaitElement() override;

    /// Lights up and fades, from 240 to 10 within 800 ms. Without effect while it fades already.
    void startAnimation();

    /// Ends the fading; the element stays as opaque as it is. Without effect before the first
    /// startAnimation().
    void stopAnimation();

    /// Lets the fading rest where it is, until resumeAnimation(). Without effect when it does not
    /// fade.
    void pauseAnimation();

    /// Fades on from where pauseAnimation() left it. Without effect when it does not rest.
    void resumeAnimation();

    /// Paints the element at the painter's origin and leaves the painter as it was. An ellipse has
    /// the outline of the painter's pen, a rectangle one of the element's colour. Null is ignored.
    void paint(QPainter *painter);

    /// The size that was given.
    [[nodiscard]] QSize elementSize() const;

private:
    QSharedPointer<QPropertyAnimation> animation;
    QColor color;
    double alphaElement = 0.0;
    QSize size;
    int shape = 0;
};
