#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>
#include <QSharedPointer>

#include <memory>

class QSortFilterProxyModel;
class TXLogManager;
class TXLogModel;

namespace Ui {
class TXLogWindow;
}

/// The dialog in which a user reads the application's log: a live tree of dated messages, newest
/// first, under a filter by level.
///
/// The chosen level is remembered in the application's settings under "LogLevel". A window that
/// opens with a remembered level shows it in its box, yet lists everything until the user picks an
/// entry. Closing hides the window; what it lists is there when it is shown again.
///
/// The box of the levels takes no focus: Alt+Up and Alt+Down, wherever the focus is in the window,
/// pick the entry before and the one behind.
///
/// Files: "../Resources/Images/text_file_icon.png", seen from the program, is the window's icon; it
/// is read each time the window is shown, and a missing one leaves the window without an icon.
///
/// Thread: the GUI thread, also while other threads write to the log.
class TXGUICOMMON_EXPORT TXLogWindow : public QDialog
{
    Q_OBJECT

public:
    /// Follows the log from now on; what it held before is not listed. Shares the ownership of the
    /// manager, which must not be null.
    TXLogWindow(QSharedPointer<TXLogManager> manager, QWidget *parent);
    ~TXLogWindow() override;

    /// The number of top-level events that the window holds, whatever the filter shows of them.
    int nbEventLogged();

    /// Keeps the wheel from changing the filter.
    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    /// Sets the icon of the window.
    void showEvent(QShowEvent *event) override;
    /// Follows a change of the language; messages that keep their source do so as well.
    void changeEvent(QEvent *event) override;

private slots:
    void filterChanged(int idx);
    void filterUp();
    void filterDown();

private:
    void setUpTree();
    void setUpFilter();
    void stepFilter(int step);
    void nameFilters();

    std::unique_ptr<Ui::TXLogWindow> ui;
    TXLogModel *logModel;
    QSortFilterProxyModel *proxyModel = nullptr;
};
