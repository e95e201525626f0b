#include "DialogDriver.h"
#include "FtpPage.h"
#include "FtpServerPanel.h"
#include "PageHelpers.h"
#include "TestBase.h"

#include "FTPConfigurationDialog.h"
#include "FTPConfigurationWidget.h"
#include "TXTransferSettings.h"

#include <QDir>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QThreadPool>
#include <QTreeWidget>

#include <memory>

using Protocol = FtpServerPanel::Protocol;
using Trouble = FtpServerPanel::Trouble;

Q_DECLARE_METATYPE(Protocol)
Q_DECLARE_METATYPE(Trouble)

namespace { } // namespace

class TestFtpPage : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void startOfTheServerFillsThePanel_data();
    void startOfTheServerFillsThePanel();
    void checkShowsItsOutcome_data();
    void checkShowsItsOutcome();
    void commandsAreShownWithoutThePassword();
    void signalsOfThePanelAreShown();
    void clearingEmptiesTheSession();
    void timeOutsAreShortOnlyForASilentServer();
    void serverStopsWithTheSwitch();
    void pageMayGoDuringACheck();
    void boxesSetTheOptions_data();
    void boxesSetTheOptions();
    void importerChoiceNamesTheFiles();
    void hiddenStatusShowsNoBullet();
    void settingsAreShownWithTheCipher();
    void dialogsShowTheirSettingsAfterOk_data();
    void dialogsShowTheirSettingsAfterOk();
    void cancelledDialogShowsNothing();
    void pictureShowsASuccessfulCheck();
    void pictureComesWithoutAServerToo();
    void mnemonicsAreDistinct();
    void pageIsNotTooWide();

private:
    void check();
    [[nodiscard]] QLabel &bullet() const { return *widget->findChild<QLabel *>("progressLabel"); }
    [[nodiscard]] QTreeWidget &settings() const { return *page->findChild<QTreeWidget *>(); }
    [[nodiscard]] QString lines(int list) const
    {
        return page->findChildren<QPlainTextEdit *>().at(list)->toPlainText();
    }

    std::unique_ptr<FtpPage> page;
    FtpServerPanel *server = nullptr;
    FTPConfigurationWidget *widget = nullptr;
    int status = -1;
};

void TestFtpPage::prepare()
{
    page = std::make_unique<FtpPage>();
    server = page->findChild<FtpServerPanel *>();
    widget = page->findChild<FTPConfigurationWidget *>();
    page->resize(845, 700);
    page->show();
}

void TestFtpPage::finish()
{
    page.reset();
    QThreadPool::globalInstance()->waitForDone();
}

/// Clicks "Check Connection" and waits for the outcome.
void TestFtpPage::check()
{
    QSignalSpy ended(widget, SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    DialogDriver::click(PageTest::button(*widget, "Check Connection"));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 20000);
    status = ended.first().first().value<FTPConfigurationWidget::FtpStatus>();
}

void TestFtpPage::startOfTheServerFillsThePanel_data()
{
    QTest::addColumn<Protocol>("protocol");
    QTest::addColumn<QString>("scheme");
    QTest::newRow("FTP") << Protocol::Ftp << "ftp";
    QTest::newRow("SFTP") << Protocol::Sftp << "sftp";
}

void TestFtpPage::startOfTheServerFillsThePanel()
{
    QFETCH(Protocol, protocol);
    server->setProtocol(protocol);

    server->setRunning(true);

    QVERIFY2(server->isRunning(), qPrintable(server->error()));
    const QUrl url = widget->ftpUrl();
    QTEST(url.scheme(), "scheme");
    QCOMPARE(url.host(), "127.0.0.1");
    QCOMPARE(url.port(), int(server->port()));
    QCOMPARE(url.userName(), "mia");
    QCOMPARE(url.password(), "s3cret");
    QVERIFY(widget->isEnabled());
}

void TestFtpPage::checkShowsItsOutcome_data()
{
    QTest::addColumn<Protocol>("protocol");
    QTest::addColumn<Trouble>("trouble");
    QTest::addColumn<int>("expected");
    for (const Protocol protocol : {Protocol::Ftp, Protocol::Sftp}) {
        const char *name = protocol == Protocol::Ftp ? "FTP" : "SFTP";
        QTest::addRow("%s", name) << protocol << Trouble::None << 0;
        QTest::addRow("%s, password", name) << protocol << Trouble::WrongPassword << 1;
        QTest::addRow("%s, silent", name) << protocol << Trouble::Silent << 2;
        QTest::addRow("%s, nobody", name) << protocol << Trouble::NobodyThere << 2;
    }
}

void TestFtpPage::checkShowsItsOutcome()
{
    QFETCH(Protocol, protocol);
    QFETCH(Trouble, trouble);
    QFETCH(int, expected);
    server->setRunning(true);
    server->setProtocol(protocol);
    server->setTrouble(trouble);

    check();

    QCOMPARE(status, expected);
    QVERIFY(bullet().isVisible());
    QCOMPARE(bullet().accessibleName(),
             expected == 0 ? "Connection succeeded" : "Connection failed");
}

void TestFtpPage::commandsAreShownWithoutThePassword()
{
    server->setRunning(true);

    check();

    QVERIFY2(lines(0).startsWith("USER mia\nPASS\n"), qPrintable(lines(0)));
    QVERIFY(!lines(0).contains("s3cret"));
}

void TestFtpPage::signalsOfThePanelAreShown()
{
    server->setRunning(true);
    QCOMPARE(lines(1), "changeFtpStatus(true)");

    check();
    server->setTrouble(Trouble::WrongPassword);
    check();
    widget->activateFTP(false);

    QCOMPARE(
        lines(1).split('\n'),
        QStringList({"changeFtpStatus(true)", "ftpConnectionStatus(FtpOk)", "changeFtpStatus(true)",
                     "ftpConnectionStatus(FtpLoginError)", "changeFtpStatus(false)"}));
}

void TestFtpPage::clearingEmptiesTheSession()
{
    server->setRunning(true);
    check();

    DialogDriver::click(PageTest::button(*page, "Clear"));

    QVERIFY(lines(0).isEmpty());
    QVERIFY(lines(1).isEmpty());
}

void TestFtpPage::timeOutsAreShortOnlyForASilentServer()
{
    const int standard = TXTransferSettings::kDefaultConnectTimeoutMilliseconds;
    server->setRunning(true);
    QCOMPARE(TXTransferSettings::connectTimeout(), standard);

    server->setTrouble(Trouble::Silent);
    QVERIFY(TXTransferSettings::connectTimeout() < 5000);

    page.reset();
    QCOMPARE(TXTransferSettings::connectTimeout(), standard);
}

void TestFtpPage::serverStopsWithTheSwitch()
{
    server->setRunning(true);
    check();
    QCOMPARE(status, 0);

    server->setRunning(false);
    check();

    QCOMPARE(status, 2);
}

void TestFtpPage::pageMayGoDuringACheck()
{
    server->setTrouble(Trouble::Silent);
    server->setRunning(true);
    DialogDriver::click(PageTest::button(*widget, "Check Connection"));

    page.reset();

    QThreadPool::globalInstance()->waitForDone();
}

void TestFtpPage::boxesSetTheOptions_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("part");
    QTest::newRow("active") << "Show box \"Active\""
                            << "ftpActivationCheckBox";
    QTest::newRow("erase") << "Show box \"Erase\""
                           << "eraseFileCheckBox";
}

void TestFtpPage::boxesSetTheOptions()
{
    QFETCH(QString, box);
    QFETCH(QString, part);
    auto *inPanel = widget->findChild<QWidget *>(part);
    QVERIFY(inPanel->isVisible());

    DialogDriver::click(PageTest::button(*page, box));
    QVERIFY(!inPanel->isVisible());

    DialogDriver::click(PageTest::button(*page, box));
    QVERIFY(inPanel->isVisible());
}

void TestFtpPage::importerChoiceNamesTheFiles()
{
    const auto *label = widget->findChild<QLabel *>("eraseDistantLabel");
    QCOMPARE(label->text(), "Erase Distant Files");

    DialogDriver::click(PageTest::button(*page, "Importer"));

    QCOMPARE(label->text(), "Erase Local Files");
}

void TestFtpPage::hiddenStatusShowsNoBullet()
{
    server->setRunning(true);
    DialogDriver::click(PageTest::button(*page, "Show status"));

    check();

    QCOMPARE(status, 0);
    QVERIFY(!bullet().isVisible());
}

void TestFtpPage::settingsAreShownWithTheCipher()
{
    server->setRunning(true);

    DialogDriver::click(PageTest::button(*page, "Show Settings"));

    QCOMPARE(settings().topLevelItemCount(), 5);
    const auto found = settings().findItems("FTPServerURL", Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    QVERIFY(!found.first()->text(2).isEmpty());
    QVERIFY(!found.first()->text(2).contains("127.0.0.1"));
}

void TestFtpPage::dialogsShowTheirSettingsAfterOk_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("title");
    QTest::newRow("import") << "Import Dialog..."
                            << "FTP Import Dialog";
    QTest::newRow("export") << "Export Dialog..."
                            << "FTP Export Dialog";
}

void TestFtpPage::dialogsShowTheirSettingsAfterOk()
{
    QFETCH(QString, button);
    server->setRunning(true);
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        QVERIFY(qobject_cast<FTPConfigurationDialog *>(&dialog));
        QTEST(dialog.windowTitle(), "title");
        QCOMPARE(dialog.findChild<QLineEdit *>("hostLineEdit")->text(), "127.0.0.1");
        dialog.findChild<FTPConfigurationWidget *>()->activateFTP(false);
        DialogDriver::click(dialog, QDialogButtonBox::Ok);
    });

    DialogDriver::click(PageTest::button(*page, button));

    const auto found = settings().findItems("FTPIsActivated", Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.first()->text(2), "false");
}

void TestFtpPage::cancelledDialogShowsNothing()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { DialogDriver::click(dialog, QDialogButtonBox::Cancel); });

    DialogDriver::click(PageTest::button(*page, "Import Dialog..."));

    QCOMPARE(settings().topLevelItemCount(), 0);
    QVERIFY(page->findChildren<QDialog *>().isEmpty());
}

void TestFtpPage::pictureShowsASuccessfulCheck()
{
    QVERIFY(page->isReady());
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));

    page->fillForPicture();

    QVERIFY(!page->isReady());
    QVERIFY(ready.wait());
    QVERIFY(page->isReady());
    QCOMPARE(bullet().accessibleName(), "Connection succeeded");
    QVERIFY(lines(0).startsWith("USER mia"));
    QCOMPARE(settings().topLevelItemCount(), 5);
}

void TestFtpPage::pictureComesWithoutAServerToo()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");

    page->fillForPicture();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(page->isReady());
    QVERIFY(!server->isRunning());
    QVERIFY(!server->error().isEmpty());
}

void TestFtpPage::mnemonicsAreDistinct()
{
    QStringList keys = PageTest::mnemonics(*page) + PageTest::mnemonicsOfTheHeader();
    QVERIFY(keys.size() > 8);

    QCOMPARE(keys.removeDuplicates(), 0);
}

void TestFtpPage::pageIsNotTooWide()
{
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

int main(int argc, char **argv)
{
    return runTest<TestFtpPage>(argc, argv);
}

#include "tst_FtpPage.moc"
