#include "TXVariantViewer.h"

#include "AccessibleInterfaces.h"
#include "PlainMessageBox.h"
#include "TXJSONSerializer.h"
#include "VariantCopyAction.h"
#include "VariantLabel.h"
#include "VariantViewerAccessible.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollArea>

namespace {

QScrollArea *scrollAreaAround(const QWidget &widget)
{
    for (QWidget *above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(above)) {
            const QWidget *content = area->widget();
            const bool isWithin =
                content == &widget || (content != nullptr && content->isAncestorOf(&widget));
            return isWithin ? area : nullptr;
        }
    }
    return nullptr;
}

bool isPlain(const QKeyEvent &event)
{
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool isToggle(int key)
{
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

void TXVariantViewer::prepareForUser()
{
    AccessibleInterfaces::install<TXVariantViewer, VariantViewerAccessible>();
    setFocusPolicy(parentViewer() == nullptr ? Qt::StrongFocus : Qt::ClickFocus);
    static_cast<VariantLabel *>(label)->setFocusOwner(this);
}

// ---- Mouse

void TXVariantViewer::mousePressEvent(QMouseEvent *event)
{
    if (!isExpandable() || event->button() != Qt::LeftButton) {
        return;
    }
    if (!expanded) {
        expand();
    } else if (event->position().x() < kOpenMarginPixels) {
        collapse();
    }
}

// ---- Copying

void TXVariantViewer::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    // Not on the stack, as the viewer deletes it when it goes first.
    const QPointer<QMenu> menu = new QMenu(this);
    const QAction *copy = menu->addAction(VariantCopyAction::text(value));
    const bool isCopyChosen = menu->exec(isByKey ? menuPosition() : event->globalPos()) == copy;
    if (menu.isNull()) {
        return;
    }
    menu->deleteLater();
    if (isCopyChosen) {
        copyValue();
    }
}

QPoint TXVariantViewer::menuPosition() const
{
    return mapToGlobal(lineArea().bottomLeft());
}

void TXVariantViewer::copyValue()
{
    if (!VariantCopyAction::copy(value)) {
        PlainMessageBox::warning(this, tr("Copy value"),
                                 tr("The value was not copied. It is nested deeper than the %1 "
                                    "levels that its text in JSON may have.")
                                     .arg(TXJSONSerializer::kDeepestNesting));
    }
}

// ---- Keyboard

void TXVariantViewer::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (window()->focusWidget() != this) {
        // What a viewer within has no use for, Down on the last one, is not for those around it.
        event->ignore();
    } else if (event->matches(QKeySequence::Copy)) {
        copyValue();
    } else if (!isPlain(*event) || !(moveByKey(event->key()) || foldByKey(event->key()))) {
        event->ignore();
    }
}

bool TXVariantViewer::moveByKey(int key)
{
    TXVariantViewer *target = viewerByKey(key);
    if (target == nullptr) {
        return false;
    }
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    target->setFocus(Qt::OtherFocusReason);
    target->scrollIntoView();
    return true;
}

TXVariantViewer *TXVariantViewer::viewerByKey(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return viewerAbove();
    case Qt::Key_Down:
        return viewerBelow();
    case Qt::Key_Home:
        return rootViewer();
    case Qt::Key_End:
        return rootViewer()->lastShownViewer();
    case Qt::Key_Right:
        return expanded ? entryViewer(0) : nullptr;
    case Qt::Key_Left:
        return expanded ? nullptr : parentViewer();
    default:
        return nullptr;
    }
}

bool TXVariantViewer::foldByKey(int key)
{
    const int opening = expanded ? Qt::Key_Left : Qt::Key_Right;
    if (!isExpandable() || !(isToggle(key) || key == opening)) {
        return false;
    }
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    setExpanded(!expanded);
    return true;
}

void TXVariantViewer::focusInEvent(QFocusEvent *)
{
    updateFocusFrame();
}

void TXVariantViewer::focusOutEvent(QFocusEvent *)
{
    updateFocusFrame();
}

void TXVariantViewer::updateFocusFrame()
{
    update();
    label->update();
}

bool TXVariantViewer::focusNextPrevChild(bool next)
{
    TXVariantViewer *root = rootViewer();
    if (root != this) {
        return root->focusNextPrevChild(next);
    }
    QWidget *focused = window()->focusWidget();
    if (focused == nullptr || !isAncestorOf(focused)) {
        return QWidget::focusNextPrevChild(next);
    }
    // Qt looks for the next stop from the widget that has the focus on. So that one takes its place
    // behind the root, which is no stop itself this once.
    setTabOrder(this, focused);
    const Qt::FocusPolicy policy = focusPolicy();
    setFocusPolicy(Qt::ClickFocus);
    const bool isLeft = QWidget::focusNextPrevChild(next);
    setFocusPolicy(policy);
    return isLeft;
}

void TXVariantViewer::takeFocusFromEntries()
{
    const QWidget *focused = window()->focusWidget();
    if (focused != nullptr && isAncestorOf(focused)) {
        setFocus(Qt::OtherFocusReason);
    }
}

// ---- Scrolling

QRect TXVariantViewer::lineArea() const
{
    if (expanded) {
        return {0, 0, kOpenMarginPixels, QFontMetrics(font()).height()};
    }
    return {0, label->y(), kOpenMarginPixels, label->height()};
}

void TXVariantViewer::scrollIntoView() const
{
    QScrollArea *area = scrollAreaAround(*this);
    if (area == nullptr) {
        return;
    }
    QRect line = lineArea().translated(mapTo(area->widget(), QPoint(0, 0)));
    if (const TXVariantViewer *parent = parentViewer()) {
        // The key is seen along with its value.
        line.setLeft(parent->mapTo(area->widget(), QPoint(kOpenMarginPixels, 0)).x());
    }
    area->ensureVisible(line.center().x(), line.center().y(), line.width() / 2 + 1,
                        line.height() / 2 + 1);
}

// ---- Accessible interfaces

void TXVariantViewer::announceFolding()
{
    if (QAccessible::isActive() && isVisible()) {
        VariantViewerAccessible::announceFolding(*this);
    }
}

void TXVariantViewer::announceValue()
{
    if (QAccessible::isActive() && isVisible()) {
        VariantViewerAccessible::announceValue(*this);
    }
}
