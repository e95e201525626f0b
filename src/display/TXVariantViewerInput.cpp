#include "TXVariantViewer.h"

#include "VariantCopyAction.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>

namespace {

constexpr double kFoldColumnPixels = 21.0;

} // namespace

void TXVariantViewer::mousePressEvent(QMouseEvent *event)
{
    if (!isExpandable() || event->button() != Qt::LeftButton) {
        return;
    }
    if (!expanded) {
        expand();
    } else if (event->position().x() < kFoldColumnPixels) {
        collapse();
    }
}

void TXVariantViewer::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu;
    const QAction *copy = menu.addAction(VariantCopyAction::text(value));
    if (menu.exec(event->globalPos()) == copy) {
        VariantCopyAction::copy(value);
    }
}
