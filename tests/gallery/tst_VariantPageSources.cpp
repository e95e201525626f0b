#include "LocalUpdateService.h"
#include "ServiceRequest.h"
#include "UpdatePage.h"
#include "VariantPageTest.h"

#include "TXVariantViewer.h"

#include <QFileDialog>
#include <QLineEdit>

namespace {

/// The way to the service behind a panel that runs.
class ServiceBehind : public LocalServerPanel
{
public:
    static LocalUpdateService &of(const LocalServerPanel &panel)
    {
        return static_cast<LocalUpdateService &>(*(panel.*(&ServiceBehind::runningServer))());
    }
};

} // namespace

/// Where the page has its values from: real settings, real files, a real service on this computer.
class TestVariantPageSources : public VariantPageTest
{
    Q_OBJECT

private slots:
    void settingsOfTheProgramAreShown();
    void settingsAreReadAnewByTheButtonAndWhenThePageIsShown();
    void unchangedSettingsStayOpen();
    void pageThatShowsAFileKeepsItWhenShownAgain();
    void emptySettingsAreExplained();
    void fileOfTheUsersChoiceIsShown();
    void folderIsRememberedAndCancelChangesNothing();
    void badFileIsToldAndLeavesWhatIsShown_data();
    void badFileIsToldAndLeavesWhatIsShown();
    void longNamesDoNotWidenThePage();
    void answerOfTheServiceIsShown();
    void eachPageAsksItsOwnService();
    void serviceThatIsOffIsToldAndLeavesWhatIsShown();
    void troubleOfTheServiceIsTold_data();
    void troubleOfTheServiceIsTold();
    void pageStaysUsableWhileItWaits();
    void comingBackDoesNotEndTheWaiting();
    void serviceThatStopsWhileThePageWaitsIsTold();
    void pageMayGoWhileItWaits();
};

void TestVariantPageSources::settingsOfTheProgramAreShown()
{
    QCOMPARE(settings(), QVariantMap({{"Gallery", QVariantMap{{"Page", "variant"}}}}));
    QVERIFY(isRead(*page, "Settings of this gallery"));
    QCOMPARE(message(), QSettings().fileName());
    QVERIFY(allTexts(viewer()).contains("variant"));
}

void TestVariantPageSources::settingsAreReadAnewByTheButtonAndWhenThePageIsShown()
{
    QSettings().setValue("Gallery/Style", "Fusion");
    QCOMPARE(settings()["Gallery"].toMap().size(), 1);
    click("Gallery Settings");
    QCOMPARE(settings()["Gallery"].toMap().size(), 2);

    page->hide();
    QSettings().setValue("Gallery/Language", "en");
    page->show();
    QCOMPARE(settings()["Gallery"].toMap().size(), 3);
}

void TestVariantPageSources::unchangedSettingsStayOpen()
{
    click("Open Two Levels");
    QVERIFY(viewer().isExpanded());

    page->hide();
    page->show();

    QVERIFY(viewer().isExpanded());
}

void TestVariantPageSources::pageThatShowsAFileKeepsItWhenShownAgain()
{
    show("[1, 2, 3]");

    page->hide();
    page->show();

    QCOMPARE(panel->value().toList().size(), 3);
}

void TestVariantPageSources::emptySettingsAreExplained()
{
    QSettings().clear();

    click("Gallery Settings");

    QCOMPARE(panel->value(), QVariant(QVariantMap()));
    QVERIFY(message().startsWith("Nothing is stored yet"));
    QVERIFY(!isError());
}

void TestVariantPageSources::fileOfTheUsersChoiceIsShown()
{
    const QString path = written("colours.json", "{\"red\": [1, 0.5], \"name\": \"<b>\"}");

    choose(path);

    const QVariantHash value = panel->value().toHash();
    QCOMPARE(value["red"].toList().at(1), QVariant(0.5));
    QCOMPARE(value["name"], QVariant("<b>"));
    QVERIFY(isRead(*page, "File \"colours.json\""));
    QCOMPARE(message(), path);
    QVERIFY(!isError());
    QVERIFY(allTexts(viewer()).contains("&lt;b&gt;"));
}

void TestVariantPageSources::folderIsRememberedAndCancelChangesNothing()
{
    show("[1]");
    const QString shownBefore = message();

    DialogDriver driver;
    driver.expect([this](QDialog &dialog) {
        QCOMPARE(qobject_cast<QFileDialog *>(&dialog)->directory(), QDir(folder->path()));
        DialogDriver::click(dialog, QDialogButtonBox::Cancel);
    });
    click("JSON File...");

    QCOMPARE(panel->value(), QVariant(QVariantList{1LL}));
    QCOMPARE(message(), shownBefore);
}

void TestVariantPageSources::badFileIsToldAndLeavesWhatIsShown_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    const QString start = "The file \"bad.json\" is not shown. ";
    QTest::newRow("empty") << QByteArray() << start + "It is empty.";
    QTest::newRow("no JSON") << QByteArray("{\n\"a\" 1\n}")
                             << start + "It is no JSON (line 2: missing name separator).";
    QTest::newRow("too many values") << '[' + QByteArray("0,").repeated(1'000'000) + "0]"
                                     << start + "It holds too many values: more than 1,000,000.";
    QTest::newRow("too large") << QByteArray(64 * 1024 * 1024 + 1, ' ')
                               << start + "It is too large: more than 64.00 MiB.";
}

void TestVariantPageSources::badFileIsToldAndLeavesWhatIsShown()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    show("[1, 2]");
    QVERIFY(!isError());

    choose(written("bad.json", content));

    QCOMPARE(message(), text);
    QVERIFY(isError());
    QCOMPARE(panel->value().toList().size(), 2);
    QVERIFY(isRead(*page, "File \"shown.json\""));
    show("[3]");
    QVERIFY(!isError());
}

void TestVariantPageSources::longNamesDoNotWidenThePage()
{
    const int width = page->minimumSizeHint().width();
    const QString name = QString(200, u'x') + "-end.json";

    choose(written(name, "[1]"));
    QVERIFY(message().endsWith(name));
    QCOMPARE(page->minimumSizeHint().width(), width);
    choose(written(name, "[1"));

    QVERIFY(message().contains("-end.json"));
    QVERIFY(message().size() < 150);
    QCOMPARE(page->minimumSizeHint().width(), width);
}

void TestVariantPageSources::answerOfTheServiceIsShown()
{
    switchOn();

    click("Ask the Service");
    QCOMPARE(message(), "Waiting for the answer...");

    QTRY_VERIFY_WITH_TIMEOUT(settings().contains("status"), kPatienceMilliseconds);
    QCOMPARE(settings()["status"], QVariant(200));
    QCOMPARE(settings()["body"].toHash().value("Revision"), QVariant(10500LL));
    QVERIFY(isRead(*page, "Answer of the update service"));
    QCOMPARE(
        message(),
        QStringLiteral("https://127.0.0.1:%1/checkUpdate?OS=win64&ProductType=7&Revision=10452")
            .arg(service->port()));

    service->setOffer(UpdateOffer::Older);
    click("Ask the Service");
    QTRY_COMPARE_WITH_TIMEOUT(settings()["body"].toHash().value("Revision"), QVariant(10400LL),
                              kPatienceMilliseconds);
}

void TestVariantPageSources::eachPageAsksItsOwnService()
{
    switchOn();
    UpdatePage other;
    auto *otherService = other.findChild<UpdateServicePanel *>();
    otherService->setRunning(true);
    QVERIFY(otherService->isRunning());
    otherService->setOffer(UpdateOffer::Older);
    QVERIFY(service->authority() != otherService->authority());

    click("Ask the Service");

    QTRY_COMPARE_WITH_TIMEOUT(settings()["body"].toHash().value("Revision"), QVariant(10500LL),
                              kPatienceMilliseconds);
}

void TestVariantPageSources::serviceThatIsOffIsToldAndLeavesWhatIsShown()
{
    click("Ask the Service");
    QCOMPARE(message(), "The update service is off. Its switch turns it on.");
    QVERIFY(isError());
    QVERIFY(settings().contains("Gallery"));

    switchOn();
    service->setRunning(false);
    QCOMPARE(service->authority(), QString());
    click("Ask the Service");
    QVERIFY(isError());
    QVERIFY(settings().contains("Gallery"));
}

void TestVariantPageSources::troubleOfTheServiceIsTold_data()
{
    QTest::addColumn<int>("offer");
    QTest::addColumn<QString>("start");
    QTest::newRow("404") << int(UpdateOffer::NotFound)
                         << "The service has answered with HTTP status 404.";
    QTest::newRow("no JSON") << int(UpdateOffer::NotJson)
                             << "The answer of the service is not shown. It is no JSON (line 1:";
    QTest::newRow("nobody") << int(UpdateOffer::NobodyThere) << "Nobody listens at 127.0.0.1:";
}

void TestVariantPageSources::troubleOfTheServiceIsTold()
{
    QFETCH(int, offer);
    QFETCH(QString, start);
    switchOn();
    service->setOffer(UpdateOffer(offer));

    click("Ask the Service");

    QTRY_VERIFY_WITH_TIMEOUT(isError(), kPatienceMilliseconds);
    QVERIFY2(message().startsWith(start), qPrintable(message()));
    QVERIFY(settings().contains("Gallery"));
}

void TestVariantPageSources::pageStaysUsableWhileItWaits()
{
    switchOn();
    click("Ask the Service");
    QVERIFY(page->findChild<ServiceRequest *>()->isWaiting());

    show("[1]");
    QVERIFY(!page->findChild<ServiceRequest *>()->isWaiting());

    // What the user has chosen since is not replaced by a late answer.
    click("Ask the Service");
    click("Gallery Settings");
    QVERIFY(!page->findChild<ServiceRequest *>()->isWaiting());
    QCOMPARE(message(), QSettings().fileName());
    QVERIFY(settings().contains("Gallery"));
}

void TestVariantPageSources::comingBackDoesNotEndTheWaiting()
{
    switchOn();
    click("Ask the Service");
    page->hide();
    QSettings().setValue("Gallery/Style", "Fusion");

    page->show();

    QVERIFY(page->findChild<ServiceRequest *>()->isWaiting());
    QCOMPARE(message(), "Waiting for the answer...");
    QTRY_VERIFY_WITH_TIMEOUT(settings().contains("status"), kPatienceMilliseconds);
}

void TestVariantPageSources::serviceThatStopsWhileThePageWaitsIsTold()
{
    switchOn();
    LocalWebReply silence;
    silence.isSilent = true;
    LocalUpdateService &silent = ServiceBehind::of(*service);
    silent.setCheckReply(silence);
    click("Ask the Service");
    QTRY_COMPARE_WITH_TIMEOUT(silent.requests().size(), 1, kPatienceMilliseconds);
    const QString authority = service->authority();
    QCOMPARE(message(), "Waiting for the answer...");

    service->setRunning(false);

    QTRY_VERIFY_WITH_TIMEOUT(isError(), kPatienceMilliseconds);
    // The request is sent once more, to nobody, when the connection ends before its answer.
    const QStringList reasons = {"The service has closed the connection before it had answered.",
                                 "Nobody listens at " + authority + '.'};
    QVERIFY2(reasons.contains(message()), qPrintable(message()));
    QVERIFY(!page->findChild<ServiceRequest *>()->isWaiting());
    QVERIFY(settings().contains("Gallery"));
}

void TestVariantPageSources::pageMayGoWhileItWaits()
{
    switchOn();
    click("Ask the Service");
    page->hide();
    QCOMPARE(message(), "Waiting for the answer...");

    page.reset();

    QCoreApplication::processEvents();
}

int main(int argc, char **argv)
{
    return runTest<TestVariantPageSources>(argc, argv);
}

#include "tst_VariantPageSources.moc"
