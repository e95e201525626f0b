#include "PageInWindow.h"
#include "UpdateAuthorityChange.h"
#include "UpdatePageTest.h"

#include "TXUpdateService.h"

#include <QComboBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QSignalSpy>
#include <QUrl>
#include <QUrlQuery>

Q_DECLARE_METATYPE(UpdateOffer)

namespace {

/// What the service tells of this offer.
QJsonObject told(UpdateOffer offer)
{
    return QJsonDocument::fromJson(checkReplyFor(offer).body).object();
}

/// The text as far as the page shows it.
QString shownStart(const QString &text)
{
    return text.size() > 200 ? QString(text.left(200) + u'\u2026') : text;
}

} // namespace

/// The page with its service, and what it shows of a check.
class TestUpdatePage : public UpdatePageTest
{
    Q_OBJECT

private slots:
    void checkEndsInItsState_data();
    void checkEndsInItsState();
    void serviceIsTheLibrarysWhileItRuns();
    void checksAreForTheRunningServiceOnly();
    void changesOfTheServiceMayGoInAnyOrder();
    void dialogComesToTheFront();
    void sameReleaseIsThatOfThisBuild();
    void longNotesAreCut();
    void requestsAndSignalsAreListed();
    void releaseIsShownWithItsFile();
    void offerCountsAtOnce();
    void clearingEmptiesTheSession();
    void pictureShowsTheOffer();
    void pictureComesWithoutAServiceToo();
    void textsFollowTheLanguage();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void pageIsNotTooWide();
};

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
    // A check that fails ends without a record.
    const QJsonObject record = state == State::ServiceError ? QJsonObject() : told(offer);
    QTRY_COMPARE(valueOf("Description"), shownStart(record["Description"].toString()));
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

void TestUpdatePage::checksAreForTheRunningServiceOnly()
{
    const auto *button = buttonOf(*page, "Check for Updates");
    QVERIFY(!button->isEnabled());
    QVERIFY(dialog->autoCheckPeriod() < 1);

    switchOn();
    QVERIFY(button->isEnabled());
    service->setOffer(UpdateOffer::NobodyThere);
    QVERIFY(button->isEnabled());
    service->restart();
    QVERIFY(button->isEnabled());

    service->setRunning(false);
    QVERIFY(!button->isEnabled());
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

void TestUpdatePage::dialogComesToTheFront()
{
    check(UpdateOffer::Newer);
    QTRY_VERIFY(dialog->isActiveWindow());
    page->activateWindow();
    QTRY_VERIFY(page->isActiveWindow());

    check(UpdateOffer::Newer);

    QTRY_VERIFY(dialog->isActiveWindow());
}

void TestUpdatePage::sameReleaseIsThatOfThisBuild()
{
    check(UpdateOffer::Same);

    QTRY_VERIFY(requests().startsWith("GET /"));
    const QUrlQuery asked(QUrl(requests().section(u' ', 1)).query());
    QVERIFY(asked.hasQueryItem("Revision"));
    QCOMPARE(told(UpdateOffer::Same)["Revision"].toInt(), asked.queryItemValue("Revision").toInt());
}

void TestUpdatePage::longNotesAreCut()
{
    constexpr qsizetype kMegabyte = 1'000'000;
    QVERIFY(told(UpdateOffer::LongDescription)["Description"].toString().size() > 9 * kMegabyte);

    check(UpdateOffer::LongDescription);

    const QString notes = dialog->findChild<QLabel *>("descriptionLabel")->text();
    QVERIFY(notes.contains("New in this release"));
    QVERIFY(notes.size() < kMegabyte / 10);
    QTRY_COMPARE(valueOf("Description").size(), 201);
}

void TestUpdatePage::requestsAndSignalsAreListed()
{
    check(UpdateOffer::Newer);

    QTRY_COMPARE(emissions(),
                 "stateChanged(UpdateAvailable)\nupdateRefreshed({Revision: 10500, ...})");
    QCOMPARE(requests(), "GET /checkUpdate?OS=win64&ProductType=7&Revision=10452");

    check(UpdateOffer::Empty);
    QTRY_VERIFY2(emissions().endsWith("stateChanged(Checking)\nstateChanged(UpToDate)\n"
                                      "updateRefreshed({})"),
                 qPrintable(emissions()));
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

void TestUpdatePage::clearingEmptiesTheSession()
{
    check(UpdateOffer::Newer);
    QTRY_VERIFY(!requests().isEmpty());

    DialogDriver::click(buttonOf(*page, "Clear"));

    QVERIFY(requests().isEmpty());
    QVERIFY(emissions().isEmpty());
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
    QVERIFY(requests().startsWith("GET /checkUpdate"));
    const QList<GalleryFurtherWindow> windows = page->furtherWindows();
    QCOMPARE(windows.size(), 1);
    QCOMPARE(windows.first().name, "dialog");
    QVERIFY(inDialog("downloadButton")->isVisible());
}

void TestUpdatePage::pictureComesWithoutAServiceToo()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");

    page->fillForPicture();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(page->isReady());
    QVERIFY(!service->isRunning());
    QVERIFY(!service->error().isEmpty());
    // Nobody in the world is asked instead.
    QCOMPARE(emissions(), QString());
    QVERIFY(!dialog->isVisible());
    QVERIFY(page->furtherWindows().isEmpty());
}

void TestUpdatePage::textsFollowTheLanguage()
{
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    // The folder in the explanation is no word of a language.
    QStringList texts = smallTexts(*page, smallTexts(*dialog, {}));
    QCOMPARE(texts.size(), 1);
    QVERIFY(texts.first().contains(downloads()));
    QString explanation = texts.first().remove(downloads());
    QCOMPARE(explanation, explanation.toUpper());
    const auto *offers = page->findChild<QComboBox *>();
    QCOMPARE(offers->itemText(0), "NEWER RELEASE");
    QCOMPARE(offers->itemText(offers->count() - 1), "NOBODY LISTENS");

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(buttonOf(*page, "Check for Updates"));
}

void TestUpdatePage::mnemonicsAreNotShared()
{
    QCOMPARE(mnemonicsClashingAt(QStringLiteral("update")), QStringList());
}

void TestUpdatePage::everyControlHasANameAndIsReachedByTab()
{
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    QCOMPARE(namelessControls(*page), QStringList());
    QCOMPARE(controlsOutOfReach(*page), QStringList());

    switchOn();
    QCOMPARE(namelessControls(*page), QStringList());
    QCOMPARE(controlsOutOfReach(*page), QStringList());
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
