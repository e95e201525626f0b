#pragma once

#include "GalleryPanel.h"

class QLabel;
class QListView;
class QPushButton;
class QStandardItemModel;
class TXSeparatorListDelegate;

/// The patches of the chart as a list, a separator between the rows of the chart, and a line below
/// each row for which the user wants one: TXSeparatorListDelegate.
class PatchListPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit PatchListPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void toggleLine();

private:
    void fillModel();
    void setUpView();
    void setUpLayout();
    void showResult();

    /// What the last press of the button has done.
    enum class Change {
        None,
        Added,
        Removed,
    };

    QStandardItemModel *model;
    QListView *view;
    TXSeparatorListDelegate *delegate;
    QPushButton *lineButton;
    QLabel *result;
    Change lastChange = Change::None;
    int lastRow = 0;
};
