#pragma once

#include "AutoMountNetworkDrive.h"
#include "TXGUICommonExport.h"

#include <QDialog>
#include <QString>

#include <memory>

class QPushButton;
class QUrl;

namespace Ui {
class AutoMountNetworkDriveEditor;
}

/// Edits one network drive: host, domain, user, password, folder, and the drive letter, of which
/// the free ones are offered and the drive's own.
///
/// Run it with exec(), and take networkDrive() when the result is QDialog::Accepted. The drive that
/// was handed in and TXAutoMountManager stay untouched. Test hasAvailableLetter() before running
/// it: without a free letter there is nothing to choose, and the dialog does not say so.
///
///     AutoMountNetworkDriveEditor editor(drive, this);
///     if (editor.hasAvailableLetter() && editor.exec() == QDialog::Accepted) {
///         keep(editor.networkDrive());
///     }
///
/// Host, user name, password and folder are shown and taken as plain text: a "%", "#", "?", "@" or
/// "/" in them stands for itself. A change of the language sets all texts of the form again, the
/// window's title too.
///
/// Opens 477 pixels wide, or as wide as large fonts need. The height is fixed: the gaps
/// between the fields close when it is too little for a font.
///
/// Files: "../Resources/Images/remote_folder.png", seen from the program, is the window's icon; it
/// is read each time the dialog is shown, and a missing one leaves the dialog without an icon.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT AutoMountNetworkDriveEditor : public QDialog
{
    Q_OBJECT

public:
    /// Shows a drive; an empty one for a new drive.
    ///
    /// The letters in use are read once, here; the drive keeps its own. A drive without a letter
    /// gets the first free one. One whose mount point is no letter that is offered has none
    /// chosen, and loses its mount point unless the user picks a letter.
    ///
    /// OK starts disabled when there is no host, and enabled in all other cases: a drive without a
    /// user can be confirmed until host, user name or folder is edited.
    explicit AutoMountNetworkDriveEditor(AutoMountNetworkDrive drive, QWidget *parent = nullptr);
    ~AutoMountNetworkDriveEditor() override;

    /// Whether there is a letter to choose.
    [[nodiscard]] bool hasAvailableLetter() const;

    /// The drive as it is in the fields now, not activated, whether or not the dialog was accepted.
    ///
    /// Only what the dialog shows is in it: a port, a query or fragment, and extra parameters of a
    /// host's own, that the drive came with are not. The folder gets a slash before it, also one
    /// that has one already; drives that differ in that only are equal. "NetworkDrivePersistent" is
    /// false.
    ///
    /// The host has to be a name or an address that a URL can hold. Another text (with blanks,
    /// quotes, a port...) gives an address without a host, for which QUrl::isValid() may be true:
    /// look at getUrl().host(). A name in other letters than ASCII may come back in its ASCII form
    /// ("xn--...").
    [[nodiscard]] AutoMountNetworkDrive networkDrive() const;

public slots:
    /// Lets the user choose in a ShareBrowser over the whole network, and takes host, folder and
    /// protocol of what was chosen. Nothing changes when the user cancels, or confirms without a
    /// choice. Returns when the browser is closed; the dialog may be deleted before that.
    void chooseFolder();

    /// Enables OK exactly when host, user name and folder are filled in, be it with blanks. Domain
    /// and password are optional.
    void checkRequiredElement();

protected:
    /// Keeps a turn of the wheel from changing protocol or letter.
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// Translates the form again after a change of the language.
    void changeEvent(QEvent *event) override;
    /// Sets the window's icon, and makes room when the texts are too large for the dialog.
    void showEvent(QShowEvent *event) override;

private:
    void load(const AutoMountNetworkDrive &drive);
    void fillFields(const AutoMountNetworkDrive &drive);
    void selectProtocol(const QString &scheme);
    void showUsedControls();
    void fillLetters(const QString &mountPoint);
    void connectControls();
    void makeRoomForLargeTexts();
    void takeShare(const QUrl &share);
    [[nodiscard]] QPushButton *okButton() const;

    std::unique_ptr<Ui::AutoMountNetworkDriveEditor> ui;
};
