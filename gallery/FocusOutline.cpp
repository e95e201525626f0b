#include "FocusOutline.h"

#include "FocusColour.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QPainter>

namespace {

/// Lies over the widget and lets all clicks through.
class Frame : public QWidget
{
public:
    explicit Frame(QWidget *parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        constexpr int kFramePixels = 2;
        QPainter painter(this);
        painter.setPen(QPen(focusColour(palette()), kFramePixels));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
};

/// Not in the list of a combo box, which has the keyboard whenever it is seen.
bool isWantedAround(const QWidget *widget)
{
    return qobject_cast<const QAbstractScrollArea *>(widget) != nullptr
        && widget->window()->windowType() != Qt::Popup
        && widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

} // namespace

FocusOutline::FocusOutline(QObject *parent)
    : QObject(parent)
{
    connect(qApp, SIGNAL(focusChanged(QWidget *, QWidget *)), this,
            SLOT(follow(QWidget *, QWidget *)));
}

bool FocusOutline::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Resize && object == framed && frame) {
        frame->setGeometry(framed->rect());
    }
    return QObject::eventFilter(object, event);
}

void FocusOutline::follow(QWidget * /*before*/, QWidget *now)
{
    delete frame;
    if (framed) {
        framed->removeEventFilter(this);
    }
    framed = isWantedAround(now) ? now : nullptr;
    if (framed) {
        frame = new Frame(framed);
        frame->setGeometry(framed->rect());
        frame->show();
        framed->installEventFilter(this);
    }
}
