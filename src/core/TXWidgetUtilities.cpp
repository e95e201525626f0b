#include "TXWidgetUtilities.h"

#include <QAbstractSpinBox>
#include <QFontMetrics>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTreeView>

#include <utility>

namespace {

// Filled by emplace(), which makes a value in its place where insert() would copy it.
using State = QHash<QString, QVariant>;

constexpr int kMainWindowStateVersion = 0;

const QString kGeometry = QStringLiteral("geometry");
const QString kState = QStringLiteral("state");
const QString kHeaderState = QStringLiteral("headerState");
const QString kHorizontalState = QStringLiteral("horizontalState");
const QString kVerticalState = QStringLiteral("verticalState");
const QString kChildren = QStringLiteral("children");

struct Headers
{
    QHeaderView *horizontal = nullptr;
    QHeaderView *vertical = nullptr;
};

Headers headersOf(QWidget *widget)
{
    if (const auto *table = qobject_cast<QTableView *>(widget)) {
        return {table->horizontalHeader(), table->verticalHeader()};
    }
    if (const auto *tree = qobject_cast<QTreeView *>(widget)) {
        return {tree->header(), nullptr};
    }
    return {};
}

/// Such a header has nothing worth keeping.
bool isAllFixed(const QHeaderView &header)
{
    for (int section = 0; section < header.count(); ++section) {
        if (header.sectionResizeMode(section) != QHeaderView::Fixed) {
            return false;
        }
    }
    return true;
}

void saveOwnState(QWidget *widget, State *entry)
{
    if (const auto *window = qobject_cast<QMainWindow *>(widget)) {
        entry->emplace(kState, window->saveState(kMainWindowStateVersion));
    } else if (const auto *splitter = qobject_cast<QSplitter *>(widget)) {
        entry->emplace(kState, splitter->saveState());
    }
}

/// The vertical header counts only where there is no horizontal one, also when that one is not
/// kept: states that hosts have stored are of this form.
void saveHeader(QWidget *widget, State *entry)
{
    const Headers headers = headersOf(widget);
    const QHeaderView *header = headers.horizontal ? headers.horizontal : headers.vertical;
    if (header && !isAllFixed(*header)) {
        const QString &key = headers.horizontal ? kHorizontalState : kVerticalState;
        entry->emplace(kHeaderState, State{{key, header->saveState()}});
    }
}

void saveChildren(QWidget *widget, State *entry)
{
    State children;
    for (QObject *child : widget->children()) {
        if (child->isWidgetType()) {
            TXWidgetUtilities::saveWidgetStateInHash(static_cast<QWidget *>(child), children);
        }
    }
    if (!children.isEmpty()) {
        entry->emplace(kChildren, std::move(children));
    }
}

void restoreOwnState(QWidget *widget, const State &entry)
{
    const auto found = entry.constFind(kState);
    if (found == entry.cend()) {
        return;
    }
    if (auto *window = qobject_cast<QMainWindow *>(widget)) {
        window->restoreState(found->toByteArray(), kMainWindowStateVersion);
    } else if (auto *splitter = qobject_cast<QSplitter *>(widget)) {
        splitter->restoreState(found->toByteArray());
    }
}

void restoreUnlessFixed(QHeaderView *header, const QVariant &state)
{
    if (!isAllFixed(*header)) {
        header->restoreState(state.toByteArray());
    }
}

void restoreHeader(QWidget *widget, const State &entry)
{
    const auto found = entry.constFind(kHeaderState);
    if (found == entry.cend()) {
        return;
    }
    const State state = found->toHash();
    const Headers headers = headersOf(widget);
    if (headers.horizontal && state.contains(kHorizontalState)) {
        restoreUnlessFixed(headers.horizontal, state.value(kHorizontalState));
    } else if (headers.vertical && state.contains(kVerticalState)) {
        restoreUnlessFixed(headers.vertical, state.value(kVerticalState));
    }
}

/// The place of the child among those of the widget, or -1 when it has gone meanwhile. Looks first
/// where it is expected, which nearly always answers.
qsizetype placeOf(const QObject *child, const QWidget *widget, qsizetype expected)
{
    const QObjectList &children = widget->children();
    const bool isThere = expected < children.size() && children.at(expected) == child;
    return isThere ? expected : children.indexOf(child);
}

void restoreChildren(QWidget *widget, const State &entry)
{
    const auto found = entry.constFind(kChildren);
    if (found == entry.cend()) {
        return;
    }
    const State state = found->toHash();
    // Restoring resizes widgets, and whoever listens may delete others.
    const QPointer<QWidget> guard(widget);
    const QObjectList children = widget->children();
    qsizetype next = 0;
    for (QObject *child : children) {
        const qsizetype place = guard ? placeOf(child, widget, next) : -1;
        if (place < 0) {
            continue;
        }
        next = place + 1;
        if (child->isWidgetType()) {
            TXWidgetUtilities::restoreWidgetStateInHash(static_cast<QWidget *>(child), state);
        }
    }
}

} // namespace

void TXWidgetUtilities::saveWidgetStateInHash(QWidget *widget, QHash<QString, QVariant> &state)
{
    if (!widget) {
        return;
    }
    State entry;
    entry.emplace(kGeometry, widget->saveGeometry());
    saveOwnState(widget, &entry);
    saveHeader(widget, &entry);
    saveChildren(widget, &entry);
    state.emplace(widget->objectName(), std::move(entry));
}

void TXWidgetUtilities::restoreWidgetStateInHash(QWidget *widget,
                                                 const QHash<QString, QVariant> &state)
{
    if (!widget) {
        return;
    }
    const State entry = state.value(widget->objectName()).toHash();
    if (entry.isEmpty()) {
        return;
    }
    widget->restoreGeometry(entry.value(kGeometry).toByteArray());
    restoreOwnState(widget, entry);
    restoreHeader(widget, entry);
    restoreChildren(widget, entry);
}

QSize TXWidgetUtilities::maxSizeNeededForLabelList(const QList<QLabel *> &labels)
{
    QSize needed(0, 0);
    for (QLabel *label : labels) {
        if (label) {
            label->ensurePolished();
            const QFontMetrics metrics(label->font());
            needed = needed.expandedTo(metrics.size(Qt::TextShowMnemonic, label->text()));
        }
    }
    return needed;
}

QSize TXWidgetUtilities::maxSizeNeededForButtonList(const QList<QPushButton *> &buttons)
{
    QSize needed(0, 0);
    for (const QPushButton *button : buttons) {
        if (button) {
            const QString text = QStringLiteral("  %1  ").arg(button->text());
            const QFontMetrics metrics(button->font());
            needed = needed.expandedTo(metrics.size(Qt::TextShowMnemonic, text));
        }
    }
    return needed;
}

void TXWidgetUtilities::setFixedWidthToButtonList(const QList<QPushButton *> &buttons, int width)
{
    for (QPushButton *button : buttons) {
        if (button) {
            button->setFixedWidth(width);
        }
    }
}

void TXWidgetUtilities::setFixedSizeToButtonList(const QList<QPushButton *> &buttons, QSize size)
{
    for (QPushButton *button : buttons) {
        if (button) {
            button->setFixedSize(size);
        }
    }
}

void TXWidgetUtilities::treatWhenSpinBoxDisabled(QAbstractSpinBox *spinBox)
{
    if (!spinBox) {
        return;
    }
    const bool isDisabled = spinBox->testAttribute(Qt::WA_Disabled);
    spinBox->setFrame(!isDisabled);
    spinBox->setReadOnly(isDisabled);
    spinBox->setButtonSymbols(isDisabled ? QAbstractSpinBox::NoButtons
                                         : QAbstractSpinBox::UpDownArrows);
}
