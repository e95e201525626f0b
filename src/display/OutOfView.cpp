#include "OutOfView.h"

#include <QPalette>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace {

/// A widget and what of it can be seen, in its own coordinates.
struct Seen
{
    QWidget *widget;
    QRect area;
};

QRect seenArea(const QWidget &widget)
{
    QRect area = widget.rect();
    QPoint offset;
    const QWidget *inner = &widget;
    while (!inner->isWindow() && inner->parentWidget() != nullptr) {
        offset += inner->pos();
        inner = inner->parentWidget();
        area &= inner->rect().translated(-offset);
    }
    return area;
}

/// Keeps all that is within a widget and out of view from asking to be painted while it lives.
class Silence
{
public:
    explicit Silence(QWidget &outermost)
    {
        std::vector<Seen> pending{{&outermost, seenArea(outermost)}};
        while (!pending.empty()) {
            const Seen around = pending.back();
            pending.pop_back();
            for (QObject *child : around.widget->children()) {
                auto *widget = qobject_cast<QWidget *>(child);
                if (widget != nullptr && !widget->isWindow()) {
                    const QRect area = around.area & widget->geometry();
                    silenceUnseen(*widget, area);
                    pending.push_back({widget, area.translated(-widget->pos())});
                }
            }
        }
    }

    ~Silence()
    {
        for (const QPointer<QWidget> &widget : silent) {
            if (!widget.isNull()) {
                widget->setAttribute(Qt::WA_UpdatesDisabled, false);
            }
        }
    }

    Q_DISABLE_COPY_MOVE(Silence)

private:
    /// The attribute itself: setUpdatesEnabled() would ask for all to be painted at the end.
    void silenceUnseen(QWidget &widget, const QRect &area)
    {
        if (area.isEmpty() && widget.updatesEnabled()) {
            widget.setAttribute(Qt::WA_UpdatesDisabled);
            silent.emplace_back(&widget);
        }
    }

    std::vector<QPointer<QWidget>> silent;
};

void setOnScreen(QWidget &widget, bool isOnScreen)
{
    widget.setAttribute(Qt::WA_DontShowOnScreen, !isOnScreen);
    for (QWidget *inner : widget.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        inner->setAttribute(Qt::WA_DontShowOnScreen, !isOnScreen);
    }
}

} // namespace

void OutOfView::show(QWidget &widget)
{
    widget.move(0, widget.parentWidget()->height());
    setOnScreen(widget, false);
    widget.show();
    setOnScreen(widget, true);
    if (widget.internalWinId() != 0) {
        // Only now it is known to be native: its window has been left hidden.
        widget.hide();
        widget.show();
    }
}

void OutOfView::setPalette(QWidget &widget, const QPalette &palette)
{
    const Silence silence(widget);
    widget.setPalette(palette);
}
