#pragma once

#include "TXGUICommonExport.h"

#include <QList>
#include <QSharedPointer>
#include <QWidget>

class QPropertyAnimation;
class WaitElement;

/// A spinner: twelve bars in a ring that light up one after the other and fade, once around in a
/// second. It tells that something goes on of which nobody knows how long it takes; where that is
/// known, take TXProgressBar.
///
/// popUp() is all that most hosts need. By hand: construct, give the size, initWaitWidget(),
/// startAnimation(), show().
///
/// The bars are black and the widget has no background: it goes over light content. It does not
/// follow the widget beneath when that one is resized, and handles no mouse events: Qt passes them
/// to its parent, not to other widgets that it covers.
///
/// While it cannot be seen, as it or an ancestor is hidden or the window minimised, its animations
/// rest and cost nothing; they go on from the same picture. Each step paints at once, by
/// repaint(), so that the spinner also turns where a slow slot now and then processes events.
///
/// Assistive programs see an animation that is busy while it turns, under the widget's accessible
/// name or, without one, a general one.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT WaitWidget : public QWidget
{
    Q_OBJECT

    /// The number of the bar that lights up with the next painting, from 0. Any number is kept; one
    /// that no bar has lights up none. Writing it paints nothing.
    Q_PROPERTY(int currentElement MEMBER currentElement DESIGNABLE false)

public:
    /// A spinner without bars, which paints nothing.
    explicit WaitWidget(QWidget *parent = nullptr);
    ~WaitWidget() override;

    /// Puts a turning spinner of `size` by `size` pixels over the middle of the parent, as that is
    /// now, and shows it. The parent owns it; delete it, by deleteLater() at best, when the work is
    /// done. Spinners that are anywhere below the parent already are deleted by deleteLater(), so
    /// that there is one at most. Without a parent nothing happens, and null is returned.
    static WaitWidget *popUp(QWidget *parent, int size);

    /// Makes twelve bars for the widget's present width: a quarter of it long, a sixteenth thick,
    /// each rounded down. A later resize moves them only. A second call adds twelve more.
    void initWaitWidget();

    /// Turns the spinner, at once or as soon as it can be seen. Without effect while it turns.
    ///
    /// The first call finds out how many bars there are, so initWaitWidget() comes before it.
    void startAnimation();

    /// Lets spinner and bars stand still as they are; nothing is hidden. Without effect when it
    /// does not turn, but for the bars, which end their fading.
    void stopAnimation();

protected:
    /// Paints the bars around the middle, and lights up the current one unless it fades already.
    void paintEvent(QPaintEvent *event) override;

    /// Lets the animations go on.
    void showEvent(QShowEvent *event) override;

    /// Lets the animations rest.
    void hideEvent(QHideEvent *event) override;

private:
    friend class WaitWidgetAccessible;

    void makeAnimation();
    void pauseUnlessSeen();
    void resume();
    [[nodiscard]] bool isBusy() const;
    void tellOfBusy(bool wasBusy);

    QSharedPointer<QPropertyAnimation> animation;
    QList<QSharedPointer<WaitElement>> elements;
    int currentElement = 0;
    /// What the last event said; isVisible() is true in a minimised window too.
    bool isSeen = false;
};
