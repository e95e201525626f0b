#include "DialogDriver.h"
#include "PageChecks.h"
#include "PageHelpers.h"
#include "TestBase.h"
#include "UpdateAuthorityChange.h"
#include "UpdatePage.h"
#include "UpdateServicePanel.h"

#include "TXCheckForUpdateWidget.h"
#include "TXUpdateService.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTreeWidget>
#include <QUrl>

#include <memory>

using State = TXCheckForUpdateWidget::State;

Q_DECLARE_METATYPE(UpdateOffer)

namespace {

constexpr int kPatienceMilliseconds = 30000;

QString downloads()
{
    return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
}

QStringList downloadedFiles()
{
    return QDir(downloads()).entryList({QStringLiteral("TXGallery-*")}, QDir::Files);
}

/// Takes what the desktop would open.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "open"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

} // namespace

class TestUpdatePage : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void checkEndsInItsState_data();
    void checkEndsInItsState();
    void serviceIsTheLibrarysWhileItRuns();
    void changesOfTheServiceMayGoInAnyOrder();
    void requestsAndSignalsAreListed();
    void releaseIsShownWithItsFile();
    void offerCountsAtOnce();
    void downloadEndsWithInstalling();
    void slowDownloadShowsItsProgress();
    void brokenDownloadIsAFailure();
    void clearingEmptiesTheSession();
    void pictureShowsTheOffer();
    void pictureComesWithoutAServiceToo();
    void pageMayGoDuringADownload();
    void textsFollowTheLanguage();
    void mnemonicsAreDistinct();
    void everyControlHasAName();
    void pageIsNotTooWide();

private:
    void check(UpdateOffer offer);
    [[nodiscard]] QPushButton *inDialog(const char *name) const
    {
        return dialog->findChild<QPushButton *>(QLatin1String(name));
    }
    [[nodiscard]] QTreeWidget &release() const { return *page->findChild<QTreeWidget *>(); }
    [[nodiscard]] QString valueOf(const QString &key) const
    {
        const auto found = release().findItems(key, Qt::MatchExactly);
        return found.isEmpty() ? QString() : found.first()->text(2);
    }
    [[nodiscard]] QString lines(int list) const
    {
        return page->findChildren<QPlainTextEdit *>().at(list)->toPlainText();
    }

    std::unique_ptr<UpdatePage> page;
    UpdateServicePanel *service = nullptr;
    TXCheckForUpdateWidget *dialog = nullptr;
};

void TestUpdatePage::prepare()
{
    QVERIFY(QDir().mkpath(downloads()));
    page = std::make_unique<UpdatePage>();
    service = page->findChild<UpdateServicePanel *>();
    dialog = page->findChild<TXCheckForUpdateWidget *>();
    page->resize(845, 600);
    page->show();
}

void TestUpdatePage::finish()
{
    page.reset();
    const QStringList files = downloadedFiles();
    for (const QString &file : files) {
        QVERIFY(QFile::remove(downloads() + u'/' + file));
    }
}

/// Clicks "Check for Updates" and waits for the end of the check.
void TestUpdatePage::check(UpdateOffer offer)
{
    service->setRunning(true);
    QVERIFY2(service->isRunning(), qPrintable(service->error()));
    service->setOffer(offer);
    DialogDriver::click(PageTest::button(*page, "Check for Updates"));
    QVERIFY(dialog->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(dialog->state() != State::Checking, kPatienceMilliseconds);
}

void TestUpdatePage::checkEndsInItsState_data()
{
    QTest::addColumn<UpdateOffer>("offer");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isDownloadable");
    QTest::newRow("newer") << UpdateOffer::Newer << int(State::UpdateAvailable) << true;
    QTest::newRow("beta") << UpdateOffer::Beta << int(State::UpdateAvailable) << true;
    QTest::newRow("slow") << UpdateOffer::Slow << int(State::UpdateAvailable) << true;
    QTest::newRow("broken") << UpdateOffer::Broken << int(State::UpdateAvailable) << true;
    QTest::newRow("no file") << UpdateOffer::WithoutFile << int(State::UpdateAvailable) << false;
    QTest::newRow("long") << UpdateOffer::LongDescription << int(State::UpdateAvailable) << true;
    QTest::newRow("same") << UpdateOffer::Same << int(State::UpToDate) << false;
    QTest::newRow("older") << UpdateOffer::Older << int(State::UpToDate) << false;
    QTest::newRow("empty") << UpdateOffer::Empty << int(State::UpToDate) << false;
    QTest::newRow("no JSON") << UpdateOffer::NotJson << int(State::UpToDate) << false;
    QTest::newRow("404") << UpdateOffer::NotFound << int(State::ServiceError) << false;
    QTest::newRow("nobody") << UpdateOffer::NobodyThere << int(State::ServiceError) << false;
}

void TestUpdatePage::checkEndsInItsState()
{
    QFETCH(UpdateOffer, offer);
    QFETCH(int, state);
    QFETCH(bool, isDownloadable);

    check(offer);

    QCOMPARE(int(dialog->state()), state);
    QCOMPARE(inDialog("downloadButton")->isVisible(), isDownloadable);
    QCOMPARE(inDialog("downloadAndInstallButton")->isVisible(), isDownloadable);
    if (state == State::UpdateAvailable) {
        const QString title = dialog->findChild<QLabel *>("shortDescLabel")->text();
        QCOMPARE(title.contains("Beta"), offer == UpdateOffer::Beta);
        QVERIFY(!title.contains("Finale"));
    }
    QVERIFY(valueOf("Description").size() <= 201);
}

void TestUpdatePage::serviceIsTheLibrarysWhileItRuns()
{
    const QString before = TXUpdateService::authority();

    service->setRunning(true);
    QCOMPARE(TXUpdateService::authority(), QStringLiteral("127.0.0.1:%1").arg(service->port()));
    service->restart();
    QCOMPARE(TXUpdateService::authority(), QStringLiteral("127.0.0.1:%1").arg(service->port()));
    service->setRunning(false);
    QCOMPARE(TXUpdateService::authority(), before);

    service->setRunning(true);
    page.reset();
    QCOMPARE(TXUpdateService::authority(), before);
}

void TestUpdatePage::changesOfTheServiceMayGoInAnyOrder()
{
    const QString before = TXUpdateService::authority();
    auto older = std::make_unique<UpdateAuthorityChange>("127.0.0.1:1", nullptr);
    auto younger = std::make_unique<UpdateAuthorityChange>("127.0.0.1:2", nullptr);
    QCOMPARE(TXUpdateService::authority(), "127.0.0.1:2");

    older.reset();
    QCOMPARE(TXUpdateService::authority(), "127.0.0.1:2");

    younger.reset();
    QCOMPARE(TXUpdateService::authority(), before);
}

void TestUpdatePage::requestsAndSignalsAreListed()
{
    check(UpdateOffer::Newer);

    QTRY_COMPARE(lines(1),
                 "stateChanged(UpdateAvailable)\nupdateRefreshed({Revision: 10500, ...})");
    QCOMPARE(lines(0), "GET /checkUpdate?OS=win64&ProductType=7&Revision=10452");

    check(UpdateOffer::Empty);
    QTRY_VERIFY2(lines(1).endsWith("stateChanged(Checking)\nstateChanged(UpToDate)\n"
                                   "updateRefreshed({})"),
                 qPrintable(lines(1)));
}

void TestUpdatePage::releaseIsShownWithItsFile()
{
    check(UpdateOffer::Newer);

    QTRY_COMPARE(valueOf("Filename"), "TXGallery-2.0.txt");
    QCOMPARE(valueOf("Path"), downloads() + "/TXGallery-2.0.txt");
    QVERIFY(valueOf("Url").startsWith(
        QStringLiteral("https://127.0.0.1:%1/download?").arg(service->port())));
}

void TestUpdatePage::offerCountsAtOnce()
{
    check(UpdateOffer::Older);
    const quint16 port = service->port();

    check(UpdateOffer::NobodyThere);
    QCOMPARE(int(dialog->state()), int(State::ServiceError));
    check(UpdateOffer::Newer);

    QCOMPARE(int(dialog->state()), int(State::UpdateAvailable));
    QCOMPARE(service->port(), port);
}

void TestUpdatePage::downloadEndsWithInstalling()
{
    Desktop desktop;
    check(UpdateOffer::Newer);
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
    driver.expectMessageBox([](QMessageBox &box) {
        QVERIFY(box.text().contains("The application will exit."));
        DialogDriver::click(box, QDialogButtonBox::Yes);
    });

    DialogDriver::click(inDialog("downloadAndInstallButton"));

    QTRY_COMPARE_WITH_TIMEOUT(desktop.opened.size(), 1, kPatienceMilliseconds);
    QCOMPARE(downloadedFiles(), QStringList("TXGallery-2.0.txt"));
    const QString path = downloads() + "/TXGallery-2.0.txt";
    QCOMPARE(desktop.opened.first(), QUrl::fromLocalFile(path));
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    QVERIFY(file.readAll().contains("harmless"));
    // All windows close after it.
    QTRY_VERIFY(!page->isVisible());
    QVERIFY(lines(1).contains("stateChanged(Downloading)\nstateChanged(ReadyToInstall)"));
}

void TestUpdatePage::slowDownloadShowsItsProgress()
{
    check(UpdateOffer::Slow);
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::No); });
    auto *bar = dialog->findChild<QProgressBar *>("downloadProgressBar");
    QSignalSpy moved(bar, SIGNAL(valueChanged(int)));

    DialogDriver::click(inDialog("downloadAndInstallButton"));
    QTRY_COMPARE_WITH_TIMEOUT(int(dialog->state()), int(State::ReadyToInstall),
                              kPatienceMilliseconds);

    QVERIFY2(moved.count() > 5, qPrintable(QString::number(moved.count())));
    QCOMPARE(QFileInfo(downloads() + "/TXGallery-2.0-slow.txt").size(),
             valueOf("Filesize").toLongLong());
    QTRY_VERIFY(inDialog("installButton")->isVisible());
}

void TestUpdatePage::brokenDownloadIsAFailure()
{
    check(UpdateOffer::Broken);
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });

    DialogDriver::click(inDialog("downloadAndInstallButton"));

    QTRY_COMPARE_WITH_TIMEOUT(int(dialog->state()), int(State::ServiceError),
                              kPatienceMilliseconds);
    QTRY_VERIFY(lines(1).endsWith("updateRefreshed({})"));
}

void TestUpdatePage::clearingEmptiesTheSession()
{
    check(UpdateOffer::Newer);
    QTRY_VERIFY(!lines(0).isEmpty());

    DialogDriver::click(PageTest::button(*page, "Clear"));

    QVERIFY(lines(0).isEmpty());
    QVERIFY(lines(1).isEmpty());
}

void TestUpdatePage::pictureShowsTheOffer()
{
    QVERIFY(page->isReady());
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));

    page->fillForPicture();

    QVERIFY(!page->isReady());
    QVERIFY(ready.wait(kPatienceMilliseconds));
    QVERIFY(page->isReady());
    QCOMPARE(valueOf("Revision"), "10500");
    QVERIFY(lines(0).startsWith("GET /checkUpdate"));
    const QList<GalleryFurtherWindow> windows = page->furtherWindows();
    QCOMPARE(windows.size(), 1);
    QCOMPARE(windows.first().name, "dialog");
    QVERIFY(inDialog("downloadButton")->isVisible());
}

void TestUpdatePage::pictureComesWithoutAServiceToo()
{
    // A check without the local service goes to a port where nobody listens, not to the world.
    const UpdateAuthorityChange closed("127.0.0.1:1", nullptr);
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));

    page->fillForPicture();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(ready.count() == 1 || ready.wait(kPatienceMilliseconds));
    QVERIFY(!service->isRunning());
    QVERIFY(!service->error().isEmpty());
    QCOMPARE(int(dialog->state()), int(State::ServiceError));
}

void TestUpdatePage::pageMayGoDuringADownload()
{
    check(UpdateOffer::Slow);
    DialogDriver driver;
    driver.expectMessageBox(
        [](QMessageBox &box) { DialogDriver::click(box, QDialogButtonBox::Yes); });
    DialogDriver::click(inDialog("downloadAndInstallButton"));
    QCOMPARE(int(dialog->state()), int(State::Downloading));

    page.reset();
}

void TestUpdatePage::textsFollowTheLanguage()
{
    PageTest::StarTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QVERIFY(PageTest::button(*page, "*Check for Updates"));
    QVERIFY(PageTest::button(*page, "*Show in Folder"));

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(PageTest::button(*page, "Check for Updates"));
}

void TestUpdatePage::mnemonicsAreDistinct()
{
    QStringList keys;
    for (QWidget *panel : page->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        keys += PageTest::mnemonics(*panel);
    }
    keys += PageTest::mnemonicsOfTheHeader();
    QVERIFY(keys.size() > 8);

    QCOMPARE(keys.removeDuplicates(), 0);
}

void TestUpdatePage::everyControlHasAName()
{
    service->setRunning(true);
    QCOMPARE(namelessControls(*page), QStringList());
}

void TestUpdatePage::pageIsNotTooWide()
{
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

int main(int argc, char **argv)
{
    return runTest<TestUpdatePage>(argc, argv);
}

#include "tst_UpdatePage.moc"
