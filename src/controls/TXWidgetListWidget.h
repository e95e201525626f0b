#pragma once

#include "TXGUICommonExport.h"

#include <QFrame>
#include <QHash>
#include <QList>
#include <QMultiHash>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

class QLayoutItem;
class QSpacerItem;
class RowFlow;

namespace Ui {
class TXWidgetListWidget;
}

/// A list of widgets of one size, laid out in rows like words on a page, with scroll bars: tiles,
/// thumbnails, cards. Take a QListView in icon mode for thousands of rows of a model that need no
/// widgets of their own, and a QGridLayout for places that do not move.
///
/// All widgets get the fixed size of the largest size hint among them, in width and in height, also
/// those that were smaller or had a size of their own; a widget that is taken out keeps it. They
/// are laid out anew with each change of the list and of this widget's size. The rows are as wide
/// as the whole scroll area, so that a vertical scroll bar may bring a horizontal one along.
///
/// Who owns what: an item belongs to this widget from append() on until it is deleted by removeAt()
/// or its kin, or is left out of a list given to reorganize(): then it is the caller's. A widget
/// given as such becomes a child of the scrolled area and stays so when its item is removed; it
/// stays visible too. A widget or layout that is destroyed, or taken elsewhere by
/// QWidget::setParent(), leaves the list by itself.
///
/// Ignored is null, an item that is in the list already, a layout that has a parent, and anything
/// that this list is inside of. What is ignored stays the caller's.
///
/// The tab order is that in which the widgets came, as in every layout. The scrolled area, the
/// child "scrollArea", takes the focus to be scrolled by keyboard; screen readers call it "Items",
/// until the host gives it a better accessible name.
///
/// Cost: one pass over all items for a change, which asks each widget for its hint. When changes
/// have laid out a million items in a row, as some 1,400 appended widgets do, the next ones wait
/// for the event loop; one pass then makes up for all.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXWidgetListWidget : public QWidget
{
    Q_OBJECT
    /// See frameShape() and setFrameShape().
    Q_PROPERTY(QFrame::Shape frameShape READ frameShape WRITE setFrameShape)

public:
    /// An empty list.
    explicit TXWidgetListWidget(QWidget *parent = nullptr);
    /// Deletes all items, and with the scrolled area the widgets in it.
    ~TXWidgetListWidget() override;

    /// The number of items.
    [[nodiscard]] int count() const;
    /// The index of the first item with the widget; -1 when there is none, and for null.
    int indexOf(QWidget *widget);
    /// The index of the item; -1 when it is not in the list, and for null.
    int indexOf(QLayoutItem *item);
    /// True when an item has the widget.
    bool contains(QWidget *widget);
    /// True when the item is in the list.
    bool contains(QLayoutItem *item);
    /// The widget at the index; null for an item without one and for an index out of range.
    QWidget *widgetAt(int index);
    /// The spacer item at the index; null for any other item and for an index out of range.
    QSpacerItem *spacerItemAt(int index);
    /// All items in display order. They stay this widget's.
    [[nodiscard]] QList<QLayoutItem *> layoutItems() const;

    /// Makes the widget a child of the scrolled area and adds it at the end, in an item of its own.
    /// In a visible list the widget appears when control goes back to the event loop, unless it was
    /// hidden explicitly. A widget that is in the list already gets a second item.
    void append(QWidget *widget);
    /// Adds the item at the end and takes it over. A layout becomes a child of the grid; a widget
    /// in the item keeps its parent, which should be the widget of the grid.
    void append(QLayoutItem *item);
    /// As append(), at the index; an index out of range is the end.
    void insert(int index, QWidget *widget);
    /// As append(), at the index; an index out of range is the end.
    void insert(int index, QLayoutItem *item);

    /// Takes the item out and deletes it; its widget stays alive, where it is. False, and nothing
    /// happens, for an index out of range.
    bool removeAt(int index);
    /// Removes the first item with the widget as removeAt() does; false when there is none.
    bool removeWidget(QWidget *widget);
    /// Removes the item as removeAt() does; false when it is not in the list.
    bool removeItem(QLayoutItem *item);
    /// Removes all items as removeAt() does.
    void clear();

    /// Lays all items out anew: call it when size hints have changed. No signal of this widget is
    /// emitted meanwhile. A call out of a pass, from a widget that is given its size by it, is made
    /// up for from the event loop.
    void reorganize();
    /// Makes this the list and lays it out. Every item must exist; null and repeated ones are left
    /// out, new ones are taken over as by append(). Items of the present list that are not in the
    /// new one are the caller's from now on, who deletes them or brings them again.
    void reorganize(QList<QLayoutItem *> newItems);

    /// The frame around the scrolled area.
    [[nodiscard]] QFrame::Shape frameShape() const;
    /// Sets the frame around the scrolled area, QFrame::StyledPanel at first.
    void setFrameShape(QFrame::Shape shape);

    /// Sees widgets that are taken away from the scrolled area.
    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    /// Lays all items out for the new width.
    void resizeEvent(QResizeEvent *event) override;
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private slots:
    /// Drops the items of a widget or layout that is gone or somewhere else.
    void dropItemsOf(QObject *object);
    /// Does what was put off: a pass, and showing new widgets.
    void settle();

private:
    void nameArea();
    [[nodiscard]] bool isTakeable(QLayoutItem *item) const;
    void watch(QLayoutItem *item);
    void unwatch(QLayoutItem *item);
    void drop(QLayoutItem *item);
    void takeOut(QLayoutItem *item, int index);
    void rearrange();
    void settleLater();
    [[nodiscard]] QSize measure();
    void fixSizes(QSize size);
    [[nodiscard]] bool isWaitingToBeShown(const QWidget *widget) const;
    void showNewWidgets();

    std::unique_ptr<Ui::TXWidgetListWidget> ui;
    QList<QLayoutItem *> items;
    std::unique_ptr<RowFlow> flow;
    /// Each item's widget or layout, or null; so an item can be told after its widget is gone.
    QHash<QLayoutItem *, QObject *> objectOf;
    QMultiHash<QObject *, QLayoutItem *> itemsOf;
    /// So many items may still be laid out before control goes back to the event loop.
    qsizetype allowance = 0;
    /// The name that this widget has given to the scrolled area; another one is the host's.
    QString areaName;
    bool isInPass = false;
    bool isPassDue = false;
    bool isSettlingPosted = false;
};
