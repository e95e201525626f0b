#include "PreferencesDialog.h"
#include "Samples.h"

#include "AutoMountManagerMainWindow.h"
#include "AutoMountNetworkDrive.h"
#include "DialogDriver.h"
#include "EMailSenderWidget.h"
#include "LocalFtpServer.h"
#include "LocalMailServer.h"
#include "LocalUpdateService.h"
#include "TXAutoMountManager.h"
#include "TXCheckForUpdateConfigWidget.h"
#include "TXCheckForUpdateWidget.h"
#include "TXDataCrypt.h"
#include "TXMailSender.h"
#include "TXUpdateService.h"
#include "TestBase.h"

#include <QAbstractItemView>
#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QUrl>
#include <QUrlQuery>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int kServerMilliseconds = 30000;

EMailSenderWidget *mailOf(const PreferencesDialog &dialog)
{
    return dialog.findChild<EMailSenderWidget *>();
}

/// What the panel would have stored for a server.
QHash<QString, QVariant> serverSettings(const QString &url)
{
    const QByteArray secret = TXDataCrypt::encrypt(url.toUtf8(), nullptr);
    return {{QStringLiteral("FTPServerURL"), QString::fromLatin1(secret)},
            {QStringLiteral("FTPIsActivated"), true}};
}

/// The outcome that the dialog tells of a check.
QString statusFor(const QString &url)
{
    QSettings().setValue(QStringLiteral("Server"), serverSettings(url));
    const PreferencesDialog dialog;
    auto *server = dialog.findChild<FTPConfigurationWidget *>();
    const QSignalSpy checked(server,
                             SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    server->checkFTP();
    if (!QTest::qWaitFor([&checked] { return !checked.isEmpty(); }, kServerMilliseconds)) {
        return {};
    }
    const auto labels = dialog.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    return labels.isEmpty() ? QString() : labels.first()->text();
}

} // namespace

/// What the guide says of panels, mail, updates and network drives.
class TestGuideServices : public TestBase
{
    Q_OBJECT

protected:
    void finish() override;

private slots:
    void theDictionaryComesBack();
    void wrongMailFieldsKeepTheDialogOpen();
    void aConnectionCheckTellsItsOutcome();
    void theStoredPanelSendsAMail();
    void theUpdateServiceIsTheOneThatWasNamed();
    void theActionOpensTheUpdateDialog();
    void theUpdatePanelKeepsItsSettings();
    void aDriveIsStoredWithoutItsPasswordInClear();
    void theWindowOfTheDrivesIsGoneWhenClosed();
};

void TestGuideServices::finish()
{
    TXUpdateService::setAuthority(QString());
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    manager->stop();
    while (manager->count() > 0) {
        manager->remove(0);
    }
}

void TestGuideServices::theDictionaryComesBack()
{
    {
        PreferencesDialog dialog;
        EMailSenderWidget *mail = mailOf(dialog);
        mail->setSMTPServerName(QStringLiteral("smtp.patchworks.example"));
        mail->setPortNumber(587);
        mail->setEncryption(QStringLiteral("TLS"));
        mail->setPassword(QStringLiteral("s3cret"));
        mail->setSenderName(QStringLiteral("mia@patchworks.example"));
        mail->setMainDestinationAddress(QStringLiteral("lab@patchworks.example"));
        dialog.accept();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }
    const auto stored = QSettings().value(QStringLiteral("Mail")).toHash();
    QCOMPARE(stored.size(), 8);
    const QString password = stored.value(QStringLiteral("MailServerPassword")).toString();
    QVERIFY(!password.isEmpty());
    QVERIFY2(!password.contains("s3cret"), qPrintable(password));

    const PreferencesDialog next;
    QCOMPARE(mailOf(next)->smtpServerName(), QStringLiteral("smtp.patchworks.example"));
    QCOMPARE(mailOf(next)->portNumber(), 587);
    QCOMPARE(mailOf(next)->encryption(), QStringLiteral("TLS"));
    QCOMPARE(mailOf(next)->password(), QStringLiteral("s3cret"));
}

void TestGuideServices::wrongMailFieldsKeepTheDialogOpen()
{
    PreferencesDialog dialog;
    dialog.show();
    mailOf(dialog)->setSMTPServerName(QStringLiteral("smtp.patchworks.example"));
    mailOf(dialog)->setSenderName(QStringLiteral("mia"));
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Ok); });
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    DialogDriver::click(buttons->button(QDialogButtonBox::Ok));
    QVERIFY(dialog.isVisible());
    QVERIFY(!QSettings().contains(QStringLiteral("Mail")));
}

void TestGuideServices::aConnectionCheckTellsItsOutcome()
{
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    const QString place = QStringLiteral("@127.0.0.1:%1/").arg(server.port());
    QCOMPARE(statusFor(QStringLiteral("ftp://mia:s3cret") + place),
             QStringLiteral("The server lets PatchReader in."));
    QCOMPARE(statusFor(QStringLiteral("ftp://mia:wrong") + place),
             QStringLiteral("The server refuses this login."));
    server.stop();
    QCOMPARE(statusFor(QStringLiteral("ftp://mia:s3cret") + place),
             QStringLiteral("There is no such server."));
}

void TestGuideServices::theStoredPanelSendsAMail()
{
    LocalMailServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    EMailSenderWidget panel;
    panel.setSMTPServerName(QStringLiteral("127.0.0.1"));
    panel.setPortNumber(server.port());
    panel.setSenderName(QStringLiteral("mia@patchworks.example"));
    panel.setMainDestinationAddress(QStringLiteral("lab@patchworks.example"));

    const QPointer<TXMailSender> sender = sendReport(panel.save(), QStringLiteral("24 patches"));
    QSignalSpy sent(sender, SIGNAL(mailSendingSucceed()));
    QVERIFY(sent.wait(kServerMilliseconds));
    QCOMPARE(server.mails().size(), 1);
    QVERIFY(server.mails().first().content.contains("Subject: Chart comparison"));
    QVERIFY(server.mails().first().content.contains("24 patches"));
    QTRY_VERIFY(sender.isNull());
}

void TestGuideServices::theUpdateServiceIsTheOneThatWasNamed()
{
    useUpdateService(QStringLiteral("updates.patchworks.example:8443"));
    QCOMPARE(TXUpdateService::url(QStringLiteral("/checkUpdate")),
             QUrl(QStringLiteral("https://updates.patchworks.example:8443/checkUpdate")));
}

void TestGuideServices::theActionOpensTheUpdateDialog()
{
    LocalUpdateService service;
    LocalWebReply reply;
    reply.body = R"({"ProductName": "Patch Reader", "Version": "3.1", "Revision": 20000})";
    service.setCheckReply(reply);
    QVERIFY2(service.start(), qPrintable(service.error()));
    useUpdateService(service.authority());

    QWidget window;
    QAction check;
    const TXCheckForUpdateWidget *updates = setUpUpdates(&window, &check);
    QCOMPARE(TXCheckForUpdateWidget::instance(), updates);
    QVERIFY(!updates->isVisible());
    check.trigger();
    QVERIFY(updates->isVisible());
    QTRY_COMPARE(updates->state(), TXCheckForUpdateWidget::UpdateAvailable);
    const QUrlQuery query(service.requests().first().query);
    QCOMPARE(query.queryItemValue(QStringLiteral("ProductType")), QStringLiteral("7"));
}

void TestGuideServices::theUpdatePanelKeepsItsSettings()
{
    QWidget window;
    auto *rows = new QVBoxLayout(&window);
    TXCheckForUpdateConfigWidget *panel = addUpdatePanel(rows, &window);
    QCOMPARE(rows->count(), 1);
    QVERIFY(!QSettings().contains(QStringLiteral("CheckForUpdatesAtStartup")));
    panel->save();
    QVERIFY(QSettings().value(QStringLiteral("CheckForUpdatesAtStartup")).toBool());
    QCOMPARE(QSettings().value(QStringLiteral("CheckForUpdatesAutoPeriod")).toInt(), 7);
}

void TestGuideServices::aDriveIsStoredWithoutItsPasswordInClear()
{
    addScansDrive(false);
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    QCOMPARE(manager->count(), 1);
    QCOMPARE(manager->getDrive(0).getMountPoint(), QStringLiteral("S:/"));
    QCOMPARE(manager->getDrive(0).getUrl().password(), QStringLiteral("s3cret"));
    QFile file(QSettings().fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray settings = file.readAll();
    QVERIFY2(settings.contains("nas.local"), settings.constData());
    QVERIFY2(!settings.contains("s3cret"), settings.constData());

    QVERIFY(!manager->isRunning());
    startDrives();
    QVERIFY(manager->isRunning());
}

void TestGuideServices::theWindowOfTheDrivesIsGoneWhenClosed()
{
    addScansDrive(false);
    QWidget parent;
    showDrives(&parent);
    const QPointer<AutoMountManagerMainWindow> window =
        parent.findChild<AutoMountManagerMainWindow *>();
    QVERIFY(window);
    QVERIFY(window->isWindow());
    QCOMPARE(window->findChild<QAbstractItemView *>()->model()->rowCount(), 1);
    window->close();
    QTRY_VERIFY(window.isNull());
}

int main(int argc, char **argv)
{
    return runTest<TestGuideServices>(argc, argv);
}

#include "tst_GuideServices.moc"
