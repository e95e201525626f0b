#pragma once

#include "TXEmbeddableDialog.h"
#include "TXGUICommonExport.h"

#include <QPointer>
#include <QString>
#include <QVariantHash>

#include <initializer_list>
#include <memory>

class InstallerFile;
class QNetworkAccessManager;
class QNetworkReply;
class QThreadPool;
class QTimer;

namespace Ui {
class TXCheckForUpdateWidget;
}

/// The dialog in which a user looks for a newer release of the application, downloads its installer
/// and starts it; also what checks by itself every few days.
///
/// An application builds one with its name and number and keeps it, hidden, for its whole life:
///
///     auto *updates = new TXCheckForUpdateWidget("Patch Reader", 7, true, mainWindow);
///     connect(action, SIGNAL(triggered()), updates, SLOT(checkUpdate()));
///
/// Each showing of the dialog starts a check. The check every few days stays out of sight until
/// there is something newer; the one at startup shows the dialog. The service is that of
/// TXUpdateService; its certificate is not looked at. A release is newer when its revision is
/// greater than that of this build.
///
/// What the service sends names no places: an installer goes into the user's folder for downloads
/// or into the one that he picks, under the last component of the name that came. A file whose
/// transfer was cut off never counts as an installer.
///
/// Settings that are read, of the application's QSettings:
/// - "CheckForUpdatesAutoPeriod": int, days between automatic checks, 7 when missing.
/// - "CheckForUpdatesAtStartup": bool, whether a dialog that may check at startup does so; false
///   when missing.
/// - "UpdateStatus": text, passed on to the service when it is there.
///
/// Settings that are written: the group "UnfinishedDownloads", by which a file whose transfer did
/// not come to its end is known, also after the application was killed.
///
/// Thread: the GUI thread. A check runs on a thread of the dialog's own, and destroying the dialog
/// waits for it without a limit.
class TXGUICOMMON_EXPORT TXCheckForUpdateWidget : public TXEmbeddableDialog
{
    Q_OBJECT

public:
    /// What the dialog shows and does.
    enum State : int {
        /// A query of the service is running.
        Checking,
        /// The service offers nothing newer.
        UpToDate,
        /// A newer release is on offer.
        UpdateAvailable,
        /// Transient: use the file that is there, or start the transfer.
        DownloadStarting,
        /// The installer is being transferred.
        Downloading,
        /// The installer is on disk.
        ReadyToInstall,
        /// The service could not be reached, or a transfer failed.
        ServiceError
    };
    Q_ENUM(State)

    /// A dialog for the global details, see setGlobalDetails(). It never becomes instance(). With
    /// `checkAtStartup` and the setting "CheckForUpdatesAtStartup" it calls checkUpdate() after 20
    /// seconds.
    explicit TXCheckForUpdateWidget(QWidget *parent = nullptr, bool checkAtStartup = false);

    /// A dialog for this product, which is told to setDetails(). The first one that lives becomes
    /// instance().
    TXCheckForUpdateWidget(QString productName, int productType, bool checkAtStartup,
                           QWidget *parent = nullptr);

    /// Aborts a transfer and waits for a running check, without a limit.
    ~TXCheckForUpdateWidget() override;

    /// The first dialog built with details, as long as it lives; null otherwise.
    static TXCheckForUpdateWidget *instance();

    /// The product that dialogs built without details take over: its name, empty at first, and its
    /// number at the service, -1 at first for an unknown one.
    static void setGlobalDetails(QString productName, int productType);

    /// Sets the product of this dialog; also the global details when their name is still empty.
    void setDetails(QString productName, int productType);

    /// The current state; `Checking` at first, although no check runs then.
    [[nodiscard]] State state() const;

    /// Days between automatic checks; less than 1 means that there are none.
    [[nodiscard]] int autoCheckPeriod() const;
    /// Sets the days, begins to count them anew, and stops counting for less than 1. The check
    /// comes on the daily tick after that which completes the period and one more: the ninth for 7.
    /// The settings are left alone.
    void setAutoCheckPeriod(int days);

    /// Enters the state and does what belongs to it, also when it is the current one. Emits
    /// stateChanged() before, when the state is another one. A value outside the enumeration ends
    /// in `Checking` without a check.
    void updateState(State state);

    /// Starts a check for the product of this number; a second one waits for the first.
    void getRevisionInfo(int productType);

    /// The release record as this dialog uses it: empty for an answer without content; with the
    /// keys "Url" and, where there is a folder for downloads, "Path" when the record names a file
    /// to download. These two are never taken from the service.
    [[nodiscard]] QVariantHash revisionInfo(QVariantHash info);

    /// Makes this the running transfer; null for none. One that runs already is aborted, and the
    /// path of the download forgotten with it, so that bytes of the new one end in the error. The
    /// reply is not owned. What it brings goes to the end of the file at the path of the download,
    /// which is made when there is none.
    void setCurrentReply(QNetworkReply *reply);

    /// Starts a check unless a transfer is running, when the dialog is to be shown; then shows or
    /// hides it and raises it.
    void setVisible(bool visible) override;

signals:
    /// A check has brought an answer, which may be an empty record; or, with an empty record, a
    /// transfer has failed. Not emitted for a check that failed.
    void updateRefreshed(QVariantHash info);

    /// The dialog is about to enter another state: state() still tells the old one. A connection by
    /// strings names it stateChanged(State), and so has the slot to call its parameter; a
    /// connection by pointers to the functions does not care.
    void stateChanged(State state);

public slots:
    /// Like tryCheckUpdate(), then shows the dialog.
    void checkUpdate();

    /// Starts a check unless a transfer is running.
    void tryCheckUpdate();

    /// Lets the user pick the folder, then downloads.
    void on_downloadButton_clicked();

    /// Asks whether to install, then starts the installer and closes the application's windows.
    /// Without a word when the system cannot open the file.
    void on_installButton_clicked();

    /// Shows how much has been transferred, in bytes narrowed to int.
    void updateDataTransferProgress(qint64 readBytes, qint64 totalBytes);

    /// Writes to disk what the sender, the reply of the running transfer, has received. What cannot
    /// be written since the file does not open stays in the reply and is tried again for two
    /// seconds, or until the reply has finished, see finished(). A full disk and a file that
    /// somebody has changed end the transfer at once. Does nothing for another sender.
    void downloading();

    /// Takes the answer to a check: as the service sent it, or empty for a failed check. Only
    /// whether `lastUpdate` is empty tells the failure.
    void updateInfoReceived(QVariantHash update, QVariantHash lastUpdate);

    /// Takes the end of a transfer: writes the rest and goes on to the installation, or to the
    /// error when the reply failed or the file is not whole. The rest has one try: a file that does
    /// not open now is an error at once. Another reply than that of the running
    /// transfer is only deleted later; null does nothing.
    void finished(QNetworkReply *reply);

    /// Takes a failure of the transfer.
    void error();

    /// Rejects the dialog.
    void on_cancelButton_clicked();

    /// Accepts the dialog.
    void on_okButton_clicked();

    /// Warns, then downloads to the folder for downloads and goes on to install.
    void on_downloadAndInstallButton_clicked();

    /// The daily tick.
    void onTimer();

protected:
    /// Follows a change of the language. The notes of a release are shown anew, from their start.
    void changeEvent(QEvent *event) override;
    /// Keeps the height that the message takes at the new width.
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void retryWriting();

private:
    void setUpTitleAndTimer();
    void setUp(bool checkAtStartup);
    void setUpForm();
    void setUpNetwork();
    void readSettings(bool checkAtStartup);
    void enter(State state);
    void enterChecking();
    void enterUpToDate();
    void enterUpdateAvailable();
    void enterDownloadStarting();
    void enterDownloading();
    void enterReadyToInstall();
    void enterServiceError();
    void showResult(std::initializer_list<QWidget *> shownInRow);
    void showOffer();
    void showOfferTexts();
    void showStateTexts();
    void giveMessageRoom();
    void retranslate();
    void examineOfferedFile();
    void startTransfer();
    [[nodiscard]] bool dropUnfinished();
    void follow(QNetworkReply &reply);
    void writeReceived();
    void writeLater();
    [[nodiscard]] bool writeRest();
    void abandonTransfer();

    State currentState = Checking;
    std::unique_ptr<Ui::TXCheckForUpdateWidget> ui;
    QVariantHash update;
    QVariantHash lastUpdate;
    /// A child; the slots that its replies call hold it too.
    std::shared_ptr<QNetworkAccessManager> networkManager;
    QString productName;
    int productType = -1;
    QString downloadPath;
    /// Not owned; whoever owns it may delete it.
    QPointer<QNetworkReply> currentReply;
    QThreadPool *threadPool = nullptr;
    bool installAfterDownload = false;
    int automaticCheckPeriod = 7;
    int elapsedDays = 0;
    QTimer *timer = nullptr;
    /// The file of the current reply, null without one.
    std::unique_ptr<InstallerFile> installerFile;
    QTimer *retryTimer = nullptr;
    int remainingRetries = 0;
};
