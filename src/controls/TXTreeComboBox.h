#pragma once

#include "TXGUICommonExport.h"

#include <QComboBox>
#include <QModelIndex>
#include <QPointer>

class QTreeView;

/// A combo box whose list is a tree. Branches are opened and closed without the list going away; a
/// click on an item chooses it, however deep it lies.
///
/// A combo box shows by its number only a row directly below its rootModelIndex(). So
/// setCurrentModelIndex(), and a press that opens or closes a branch, make the parent of the item
/// the root, and currentIndex() is the row below that. showPopup() makes the whole tree the list
/// again. An item chosen by click or key is shown with the root as it is then, as a rule that of
/// the whole tree.
///
/// What the signals of QComboBox give is the row. currentText() and currentData() are always those
/// of the chosen item, wherever it lies. treeView()->currentIndex() is that item after
/// setCurrentModelIndex() and after a choice in the list, but parts from it when keys or the wheel
/// change the closed box, and while the mouse or keys move in the list; after Escape too, until the
/// list is shown again.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXTreeComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// The tree selects whole rows, shows the focus in all columns and is not edited.
    explicit TXTreeComboBox(QWidget *parent = nullptr);

    /// The tree in the list, for headers, columns and what is expanded. Owned by the box. Null once
    /// a host has put another view in its place with setView(), which deletes it; the box is then a
    /// plain QComboBox with that view.
    [[nodiscard]] QTreeView *treeView() const;

    /// Chooses an item on any level, also one that is disabled, as setCurrentIndex() does. Its
    /// parent becomes the root, until the list is shown the next time. An invalid index chooses
    /// nothing, and so does one of a model that is not the box's.
    void setCurrentModelIndex(QModelIndex index);

    /// Shows the list with the whole tree. What is expanded stays so.
    void showPopup() override;
    /// Closes the list. But the first call after a press beside all items, on the arrow of a branch
    /// for one, leaves it open and shows the tree's current item as setCurrentModelIndex() does,
    /// whoever calls and however long after the press. Escape closes it all the same, as every
    /// popup window. The second press of a double click is none: a double click on an arrow opens
    /// or closes the branch once, and then chooses it and closes the list.
    void hidePopup() override;

    /// Watches where in the tree the mouse is pressed. Never holds an event back.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QPointer<QTreeView> tree;
    bool skipNextHide = false;
};
