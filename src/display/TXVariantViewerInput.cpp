#include "TXVariantViewer.h"

#include "AccessibleDescription.h"
#include "AccessibleInterfaces.h"
#include "PlainMessageBox.h"
#include "TXJSONSerializer.h"
#include "VariantCopyAction.h"
#include "VariantLabel.h"
#include "VariantMoreButton.h"
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

void scrollIntoView(const QWidget &widget, const QRect &part)
{
    QScrollArea *area = scrollAreaAround(widget);
    if (area == nullptr) {
        return;
    }
    const QRect seen = part.translated(widget.mapTo(area->widget(), QPoint(0, 0)));
    area->ensureVisible(seen.center().x(), seen.center().y(), seen.width() / 2 + 1,
                        seen.height() / 2 + 1);
}

/// Where a widget stood in the order of the Tab key.
class FocusChainPlace
{
public:
    explicit FocusChainPlace(QWidget &widget)
        : moved(&widget)
        , before(widget.previousInFocusChain())
    {
        // Qt puts nothing behind a widget that never has the focus.
        while (before->focusPolicy() == Qt::NoFocus && before != moved) {
            before = before->previousInFocusChain();
        }
    }

    /// Puts the widget there again, unless one of the two has gone meanwhile.
    void restore() const
    {
        if (!moved.isNull() && !before.isNull() && moved->window() == before->window()) {
            QWidget::setTabOrder(before, moved);
        }
    }

private:
    QPointer<QWidget> moved;
    QPointer<QWidget> before;
};

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
    // The value that the menu is about: the viewer may show another one by the time of the choice.
    const QVariant offered = value;
    const QAction *action = menu->addAction(VariantCopyAction::text(offered));
    const bool isCopyChosen = menu->exec(isByKey ? menuPosition() : event->globalPos()) == action;
    if (menu.isNull()) {
        return;
    }
    menu->deleteLater();
    if (isCopyChosen) {
        copy(offered);
    }
}

QPoint TXVariantViewer::menuPosition() const
{
    return mapToGlobal(lineArea().bottomLeft());
}

void TXVariantViewer::copy(const QVariant &copied)
{
    if (!VariantCopyAction::copy(copied)) {
        PlainMessageBox::warning(this, tr("Copy value"),
                                 tr("The value was not copied. It is nested deeper than the %1 "
                                    "levels that its text in JSON may have.")
                                     .arg(TXJSONSerializer::kDeepestNesting));
    }
}

// ---- Keyboard

bool TXVariantViewer::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && window()->focusWidget() == this
        && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void TXVariantViewer::keyPressEvent(QKeyEvent *event)
{
    const QWidget *focused = window()->focusWidget();
    if (focused == this) {
        event->setAccepted(useKey(*event));
    } else if (focused != nullptr && focused == moreButton) {
        event->setAccepted(isPlain(*event) && moveTo(targetOfKeyOnButton(event->key())));
    } else {
        // What a viewer within has no use for, Down on the last one, is not for those around it.
        event->ignore();
    }
}

bool TXVariantViewer::useKey(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Copy)) {
        copy(value);
        return true;
    }
    return isPlain(event) && (moveTo(targetOfKey(event.key())) || foldByKey(event.key()));
}

QWidget *TXVariantViewer::targetOfKey(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return shownAbove();
    case Qt::Key_Down:
        return shownBelow();
    case Qt::Key_Home:
        return rootViewer();
    case Qt::Key_End:
        return rootViewer()->lastShown();
    case Qt::Key_Right:
        return expanded ? entryViewer(0) : nullptr;
    case Qt::Key_Left:
        return expanded ? nullptr : parentViewer();
    default:
        return nullptr;
    }
}

QWidget *TXVariantViewer::targetOfKeyOnButton(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return entryViewer(entryCount() - 1)->lastShown();
    case Qt::Key_Down:
        return shownBehind();
    case Qt::Key_Left:
        return this;
    case Qt::Key_Home:
    case Qt::Key_End:
        return targetOfKey(key);
    default:
        return nullptr;
    }
}

bool TXVariantViewer::moveTo(QWidget *target)
{
    if (target == nullptr) {
        return false;
    }
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    target->setFocus(Qt::OtherFocusReason);
    const auto *viewer = qobject_cast<const TXVariantViewer *>(target);
    scrollIntoView(*target, viewer != nullptr ? viewer->lineAreaWithKey() : target->rect());
    return true;
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
    // Qt looks for the next stop from the widget that has the focus on. So that one stands behind
    // the root meanwhile, which is no stop itself this once.
    const QPointer<TXVariantViewer> self = this;
    const FocusChainPlace place(*focused);
    setTabOrder(this, focused);
    const Qt::FocusPolicy policy = focusPolicy();
    setFocusPolicy(Qt::ClickFocus);
    const bool isLeft = QWidget::focusNextPrevChild(next);
    if (!self.isNull()) {
        setFocusPolicy(policy);
    }
    place.restore();
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

QRect TXVariantViewer::lineAreaWithKey() const
{
    QRect area = lineArea();
    if (const TXVariantViewer *parent = parentViewer()) {
        area.setLeft(mapFrom(parent, QPoint(kOpenMarginPixels, 0)).x());
    }
    return area;
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
    if (isVisible()) {
        AccessibleDescription::tellOfChange(*this);
    }
}
