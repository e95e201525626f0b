#pragma once

#include "GalleryPanel.h"

#include <QModelIndex>

class FolderModel;
class QComboBox;
class QLabel;
class QPushButton;
class QSortFilterProxyModel;
class TreeViewDragAndDrop;

/// Folders for profiles and charts in two tree views, in the user's order and in that of the
/// alphabet. What is opened, closed or chosen in one is so in the other. Folders are sorted by
/// dragging, or with buttons; a rule says where they may be dropped.
class FolderDropPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit FolderDropPanel(QWidget *parent = nullptr);

    [[nodiscard]] const TreeViewDragAndDrop *orderedView() const { return ordered; }
    [[nodiscard]] const TreeViewDragAndDrop *sortedView() const { return sorted; }

protected:
    void retranslate() override;

private slots:
    void addFolder();
    void removeFolder();
    void moveFolder();
    void setRule(int kind);
    void chooseInSorted(const QModelIndex &current);
    void chooseInOrdered(const QModelIndex &current);

private:
    void fillFolders();
    void setUpView(TreeViewDragAndDrop *view, QLabel *label);
    void connectParts();
    void keepInStep(TreeViewDragAndDrop *view, TreeViewDragAndDrop *other);
    void setUpLayout();

    FolderModel *folders;
    QSortFilterProxyModel *proxy;
    QLabel *orderedLabel;
    TreeViewDragAndDrop *ordered;
    QLabel *sortedLabel;
    TreeViewDragAndDrop *sorted;
    QLabel *ruleLabel;
    QComboBox *ruleBox;
    QPushButton *addButton;
    QPushButton *removeButton;
    QPushButton *upButton;
    QPushButton *downButton;
    QPushButton *inButton;
    QPushButton *outButton;
    QLabel *outcome;
};
