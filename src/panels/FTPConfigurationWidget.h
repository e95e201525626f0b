#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QString>
#include <QUrl>
#include <QVariant>
#include <QWidget>

#include <memory>
#include <optional>

class QMovie;

namespace Ui {
class FTPConfigurationWidget;
}

/// The panel on which a user sets up one FTP or SFTP server, as a source to import from or as a
/// destination to export to, and tries whether it lets him in.
///
/// The host takes a settings dictionary from its store, gives it to load(), and reads dictionary()
/// back when it applies the settings; the keys stand there. Nothing is validated: an empty host is
/// stored and tried like any other. Take FTPConfigurationDialog for the same with OK and Cancel.
///
/// A check runs on a thread of QThreadPool::globalInstance() and ends by the time-outs of TXFTP.
/// The panel may be destroyed meanwhile: it does not wait, and the outcome is dropped.
///
/// Files: "../Resources/Images/ajax-loader.gif" beside the application's folder is what turns
/// during a check; without it nothing is shown there and all else works.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT FTPConfigurationWidget : public QWidget
{
    Q_OBJECT
    /// See isVisibleStatus() and setVisibleStatus().
    Q_PROPERTY(bool visibleStatus READ isVisibleStatus WRITE setVisibleStatus)
    /// See isVisibleActiveCheckBox() and setVisibleActiveCheckBox().
    Q_PROPERTY(
        bool visibleActiveCheckBox READ isVisibleActiveCheckBox WRITE setVisibleActiveCheckBox)
    /// See isVisibleEraseSrcFilesItems() and setVisibleEraseSrcFilesItems().
    Q_PROPERTY(bool visibleEraseSrcFilesItems READ isVisibleEraseSrcFilesItems WRITE
                   setVisibleEraseSrcFilesItems)
    /// See isImporter() and setIsImporter().
    Q_PROPERTY(bool importer READ isImporter WRITE setIsImporter)

public:
    /// What a check of the connection found. Registered as a meta-type by the constructor, since it
    /// comes from another thread.
    enum FtpStatus : int {
        /// The server accepted the connection and the login.
        FtpOk = 0,
        /// The server refused the user name or the password.
        FtpLoginError = 1,
        /// Anything else: unknown host, closed port, no answer in time, and the like.
        FtpHostError = 2
    };

    /// An empty panel for FTP at port 21. The box "Active" is not checked, and all controls can be
    /// used nevertheless, until load(), activateFTP() or a click on the box.
    explicit FTPConfigurationWidget(QWidget *parent = nullptr);
    ~FTPConfigurationWidget() override;

    /// Shows the settings. Reads three keys:
    /// - "FTPServerURL": a text from dictionary(). One that is none, or that another user or
    ///   machine has written, gives an empty URL.
    /// - "EraseSourceFiles" and "FTPIsActivated": bool, false when missing.
    ///
    /// A scheme that the panel does not offer becomes FTP. Without a port in the URL the spin box
    /// keeps its value, or takes the standard port when the scheme changes; a port outside the spin
    /// box's range becomes its nearest end. Host, password, user name and path are replaced, by
    /// nothing where the URL has none. Ends with changeFtpStatus().
    void load(const QHash<QString, QVariant> &settings);

    /// The settings, with all of these keys at each call:
    /// - "FTPServerURL": ftpUrl() enciphered for this user, as text; empty when there is no key to
    ///   encipher with. It holds user name and password, which stand nowhere else.
    /// - "EraseSourceFiles": bool, whether files are erased at the source after the transfer.
    /// - "FTPIsActivated": bool, the same as isEnabled().
    /// - "FTPVerbose": bool, the value "VerboseMode" of the application's QSettings, or false.
    /// - "FTPVerboseLevel": unsigned int, the value "VerboseLevel" from there, or 0.
    QHash<QString, QVariant> dictionary();

    /// The controls as a URL with scheme, host, port, user name, password and path. The path starts
    /// and ends with a slash. A host name that no URL can hold is left out, and so is a port above
    /// 65535, which the spin box does not refuse.
    QUrl ftpUrl();

    /// Whether the box "Active" is checked. Hides QWidget::isEnabled(), which tells another thing:
    /// a disabled panel may be activated.
    [[nodiscard]] bool isEnabled() const;

    /// Whether a bullet shows the outcome of a check.
    [[nodiscard]] bool isVisibleStatus() const;
    /// Whether a bullet shows the outcome of a check; true at first. Without it the spinner still
    /// turns during a check, and ftpConnectionStatus() is emitted as ever. A bullet that is shown
    /// already stays.
    void setVisibleStatus(bool visible);

    /// Whether the box "Active" is to be shown, also while the panel itself is hidden.
    [[nodiscard]] bool isVisibleActiveCheckBox() const;
    /// Shows or hides the box "Active" and its label; shown at first.
    void setVisibleActiveCheckBox(bool visible);

    /// Whether the box for erasing files is to be shown, also while the panel itself is hidden.
    [[nodiscard]] bool isVisibleEraseSrcFilesItems() const;
    /// Shows or hides the box for erasing files at the source and its label; shown at first.
    void setVisibleEraseSrcFilesItems(bool visible);

    /// Whether the files that are erased are named as those of an importer; true at first.
    [[nodiscard]] bool isImporter() const;
    /// Names the files that are erased: distant ones for an importer, which is what the form says
    /// at first, local ones for an exporter.
    void setIsImporter(bool isImporter);

    /// The width in pixels that the labels need, for aligning several panels. The label of the port
    /// does not count, nor do those of the two boxes unless they are visible on the screen.
    [[nodiscard]] int maxLabelsWidth() const;

    /// The same as checkFTP(true).
    void checkFTP();

    /// Ends the display of a check: hides spinner or bullet and enables the button, also on a panel
    /// that is not active. The check itself goes on.
    void enableButtons();

signals:
    /// The controls were enabled or disabled: at each load(), activateFTP(), enableUI() and click
    /// on the box "Active", also when nothing changes by it.
    void changeFtpStatus(bool enabled);

    /// A check has ended; emitted once for each, with the button enabled again.
    void ftpConnectionStatus(FTPConfigurationWidget::FtpStatus status);

public slots:
    /// Checks or clears the box "Active" and calls enableUI().
    void activateFTP(bool activated);

    /// Enables or disables the controls, but for the scheme, the labels and the box "Active", and
    /// emits changeFtpStatus().
    void enableUI(bool enabled);

    /// Starts a check of ftpUrl(), without its path, on another thread and returns at once. The
    /// button is disabled until the outcome is there; a call meanwhile starts one more check. The
    /// argument does not count.
    void checkFTP(bool checked);

    /// Takes the outcome of a check: shows it, unless setVisibleStatus() forbids, and emits
    /// ftpConnectionStatus(). A value that is none of the enumeration shows as a failure.
    void onFinished(FTPConfigurationWidget::FtpStatus status);

    /// Sets the standard port of the scheme at this place of the box, whatever port stood there. An
    /// index outside the box is ignored.
    void on_schemeComboBox_currentIndexChanged(int index);

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    void setUpSpinner();
    void setUpSchemes();
    void showUrl(const QUrl &url);
    void showScheme(const QString &scheme);
    void showPassword(const QString &password);
    void showVerdict(FtpStatus status);
    void tellVerdict();
    void retranslate();

    std::unique_ptr<Ui::FTPConfigurationWidget> ui;
    QMovie *spinner = nullptr;
    bool isStatusVisible = true;
    bool isForImport = true;
    std::optional<FtpStatus> verdict;
};
