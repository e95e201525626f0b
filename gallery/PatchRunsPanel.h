#pragma once

#include "GalleryPanel.h"

class QLabel;
class QPushButton;
class QStandardItemModel;
class QTableView;

/// Runs of a comparison, a row each: the newer reference of every patch of the chart against the
/// older, with the result as a picture by TXCenteredPixmapDelegate and the time at which it was
/// computed by TXDateTimeDelegate.
class PatchRunsPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit PatchRunsPanel(QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;
    void retranslate() override;

private slots:
    void compareAgain();

private:
    void compare(int row);
    void setUpView();
    void setUpLayout();
    void chooseSelection();

    QStandardItemModel *model;
    QTableView *view;
    QPushButton *compareButton;
    QLabel *hint;
};
