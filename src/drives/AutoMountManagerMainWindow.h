#pragma once

#include "TXGUICommonExport.h"

#include <QList>
#include <QMainWindow>

#include <memory>

class AutoMountNetworkDriveEditor;

namespace Ui {
class AutoMountManagerMainWindow;
}

/// The window of the network drives that the system keeps connected: adds, edits and removes them,
/// and switches the whole mechanism on and off.
///
/// Shows and changes the one list of TXAutoMountManager through an AutoMountNetworkDriveModel, and
/// has it saved after each change. While the manager is stopped all but the switch is disabled. How
/// a drive stands is told by the icon and the tool tip of its row, never by a message.
///
/// The application makes, shows and owns the window, and may delete it at any time, also while one
/// of its dialogs is open: the dialog then ends without effect. Each window has a model of its own,
/// so a second one does not see rows that this one adds or removes.
///
/// Each action writes a line to the application's log.
///
/// Files: "../Resources/Images/remote_folder.png", seen from the program, is the window's icon; it
/// is read when the window is made, and a missing one leaves the window without an icon.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT AutoMountManagerMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Shows the drives that there are, and whether the manager runs; starts nothing.
    explicit AutoMountManagerMainWindow(QWidget *parent = nullptr);
    /// The manager goes on as it is.
    ~AutoMountManagerMainWindow() override;

    /// Logs and tells the user that all drive letters are taken. Returns when the user has closed
    /// the message, or when the window is gone.
    void messageNoMoreNetworkDriveLetterAvailable();

    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

protected:
    /// Lets the space bar switch the current drive on and off, when its row is selected; in any
    /// other row it selects.
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    /// Shows that the mechanism is on: checks the box, enables the list and its buttons, removing
    /// and editing also when no row is selected. Does not start the manager.
    void activate();
    /// Shows that the mechanism is off: unchecks the box, disables the list and its buttons. Does
    /// not stop the manager.
    void deactivate();
    /// Asks for a new drive in an AutoMountNetworkDriveEditor, adds it at the end, switched on, and
    /// saves the list. Shows messageNoMoreNetworkDriveLetterAvailable() instead when there is no
    /// letter for it. Returns when it is done.
    void addAutomountNetworkDrive();
    /// Asks whether the selected drive is to go, then disconnects and removes it and saves the
    /// list. Asks also when none is selected; nothing is removed then. Nor is anything when the
    /// drive was removed or changed while the question stood, or when it is not the selected one
    /// any more at the time of the answer; the log tells. Returns when it is done.
    void removeAutomountNetworkDrive();
    /// Edits the selected drive in an AutoMountNetworkDriveEditor and saves the list, also when
    /// nothing was changed. A drive of which anything has changed is disconnected first; it stays
    /// switched on or off as it was. Nothing happens when none is selected; nor, but for a line in
    /// the log, when the drive was removed or changed by somebody else while the editor was open.
    /// Returns when it is done.
    void editAutomountNetworkDrive();
    /// Enables removing and editing exactly when a row is selected, whether the manager runs or
    /// not.
    void updateButtonState();
    /// Starts or stops TXAutoMountManager; its signals then bring the window up to date. Called for
    /// a click of the user.
    void on_checkBoxEnabled_clicked(bool checked);
    /// Saves the list, unless the change ends in column 0: that is a state, which is not stored.
    void onEdition(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                   const QList<int> &roles);

private:
    void setUpModel();
    void setUpColumns();
    void setControlsEnabled(bool on);
    bool confirmsRemoval();
    int run(AutoMountNetworkDriveEditor &editor, const QString &title);

    std::unique_ptr<Ui::AutoMountManagerMainWindow> ui;
};
