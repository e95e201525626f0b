#include "DialogDriver.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "PaperArea.h"
#include "PixelProbe.h"
#include "ServiceRequest.h"
#include "TestBase.h"
#include "UpdatePage.h"
#include "UpdateServicePanel.h"
#include "ValuePanel.h"
#include "ValueSourcePanel.h"
#include "VariantPage.h"

#include "TXVariantViewer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

namespace {

QList<TXVariantViewer *> entriesOf(const TXVariantViewer &viewer)
{
    return viewer.findChildren<TXVariantViewer *>(QString(), Qt::FindDirectChildrenOnly);
}

/// Writes down the keys that come to a widget, before it has them.
class KeyList : public QObject
{
public:
    explicit KeyList(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            keys.append(static_cast<QKeyEvent *>(event)->key());
        }
        return QObject::eventFilter(object, event);
    }

    QList<int> keys;
};

} // namespace

/// The page with real settings, real files, and a real service on this computer.
class TestVariantPage : public TestBase
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
    void serviceMayStopWhileThePageWaits();
    void pageMayGoWhileItWaits();
    void twoLevelsOpenAndClose();
    void largeValueOpensInPart();
    void emptyValueHasNothingToOpen();
    void keysComeToTheViewer();
    void hoverEffectsFollowTheirSwitch();
    void previewFollowsItsSwitch();
    void amountsAndDurationAreTold();
    void darkPaletteGivesLightPaper();
    void pictureShowsTheAnswerOpen();
    void pictureComesWithoutAServiceToo();
    void textsFollowTheLanguage();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void pageIsNotTooWide();

private:
    static constexpr int kPatienceMilliseconds = 30000;

    void prepare() override;
    void finish() override;
    void makePage();
    void click(const char *text) { DialogDriver::click(buttonOf(*page, text)); }
    [[nodiscard]] QString written(const QString &name, const QByteArray &content) const;
    void choose(const QString &path);
    void show(const QByteArray &json);
    void switchOn();
    [[nodiscard]] QVariantMap settings() const { return panel->value().toMap(); }
    [[nodiscard]] TXVariantViewer &viewer() const { return *paper->viewer(); }
    [[nodiscard]] QString message() const
    {
        return page->findChild<ValueSourcePanel *>()->message();
    }
    [[nodiscard]] bool isError() const;

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<VariantPage> page;
    UpdateServicePanel *service = nullptr;
    ValuePanel *panel = nullptr;
    PaperArea *paper = nullptr;
};

void TestVariantPage::prepare()
{
    QSettings().setValue("Gallery/Page", "variant");
    folder = std::make_unique<QTemporaryDir>();
    makePage();
}

void TestVariantPage::finish()
{
    page.reset();
    folder.reset();
}

void TestVariantPage::makePage()
{
    page = std::make_unique<VariantPage>();
    service = page->findChild<UpdateServicePanel *>();
    panel = page->findChild<ValuePanel *>();
    paper = page->findChild<PaperArea *>();
    page->resize(845, 600);
    page->show();
    QTRY_VERIFY(!panel->isAtWork());
}

QString TestVariantPage::written(const QString &name, const QByteArray &content) const
{
    QFile file(folder->filePath(name));
    const bool isWritten = file.open(QFile::WriteOnly) && file.write(content) == content.size();
    return isWritten ? file.fileName() : QString();
}

void TestVariantPage::choose(const QString &path)
{
    DialogDriver driver;
    driver.expect([path](QDialog &dialog) {
        dialog.findChild<QLineEdit *>("fileNameEdit")->setText(path);
        DialogDriver::click(dialog, QDialogButtonBox::Open);
    });
    click("JSON File...");
}

void TestVariantPage::show(const QByteArray &json)
{
    choose(written("shown.json", json));
    QVERIFY(!isError());
    QTRY_VERIFY(!panel->isAtWork());
}

void TestVariantPage::switchOn()
{
    service->setRunning(true);
    QVERIFY2(service->isRunning(), qPrintable(service->error()));
}

/// By the picture that stands beside the text.
bool TestVariantPage::isError() const
{
    const auto labels = page->findChild<ValueSourcePanel *>()->findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->isVisible() && !label->pixmap(Qt::ReturnByValue).isNull();
    });
}

void TestVariantPage::settingsOfTheProgramAreShown()
{
    QCOMPARE(settings(), QVariantMap({{"Gallery", QVariantMap{{"Page", "variant"}}}}));
    QVERIFY(isRead(*page, "Settings of this gallery"));
    QCOMPARE(message(), QSettings().fileName());
    QVERIFY(allTexts(viewer()).contains("variant"));
}

void TestVariantPage::settingsAreReadAnewByTheButtonAndWhenThePageIsShown()
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

void TestVariantPage::unchangedSettingsStayOpen()
{
    click("Open Two Levels");
    QVERIFY(viewer().isExpanded());

    page->hide();
    page->show();

    QVERIFY(viewer().isExpanded());
}

void TestVariantPage::pageThatShowsAFileKeepsItWhenShownAgain()
{
    show("[1, 2, 3]");

    page->hide();
    page->show();

    QCOMPARE(panel->value().toList().size(), 3);
}

void TestVariantPage::emptySettingsAreExplained()
{
    QSettings().clear();

    click("Gallery Settings");

    QCOMPARE(panel->value(), QVariant(QVariantMap()));
    QVERIFY(message().startsWith("Nothing is stored yet"));
    QVERIFY(!isError());
}

void TestVariantPage::fileOfTheUsersChoiceIsShown()
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

void TestVariantPage::folderIsRememberedAndCancelChangesNothing()
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

void TestVariantPage::badFileIsToldAndLeavesWhatIsShown_data()
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

void TestVariantPage::badFileIsToldAndLeavesWhatIsShown()
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

void TestVariantPage::longNamesDoNotWidenThePage()
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

void TestVariantPage::answerOfTheServiceIsShown()
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

void TestVariantPage::eachPageAsksItsOwnService()
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

void TestVariantPage::serviceThatIsOffIsToldAndLeavesWhatIsShown()
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

void TestVariantPage::troubleOfTheServiceIsTold_data()
{
    QTest::addColumn<int>("offer");
    QTest::addColumn<QString>("start");
    QTest::newRow("404") << int(UpdateOffer::NotFound)
                         << "The service has answered with HTTP status 404.";
    QTest::newRow("no JSON") << int(UpdateOffer::NotJson)
                             << "The answer of the service is not shown. It is no JSON (line 1:";
    QTest::newRow("nobody") << int(UpdateOffer::NobodyThere) << "Nobody listens at 127.0.0.1:";
}

void TestVariantPage::troubleOfTheServiceIsTold()
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

void TestVariantPage::pageStaysUsableWhileItWaits()
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

void TestVariantPage::serviceMayStopWhileThePageWaits()
{
    switchOn();
    click("Ask the Service");

    service->setRunning(false);

    QTRY_VERIFY_WITH_TIMEOUT(isError() || settings().contains("status"), kPatienceMilliseconds);
}

void TestVariantPage::pageMayGoWhileItWaits()
{
    switchOn();
    click("Ask the Service");
    page->hide();
    QCOMPARE(message(), "Waiting for the answer...");

    page.reset();

    QCoreApplication::processEvents();
}

void TestVariantPage::twoLevelsOpenAndClose()
{
    show("{\"a\": [1, [2]], \"b\": {\"c\": {}}, \"d\": 4}");
    QVERIFY(!viewer().isExpanded());

    click("Open Two Levels");

    QVERIFY(viewer().isExpanded());
    const auto entries = entriesOf(viewer());
    QCOMPARE(entries.size(), 3);
    QVERIFY(entries.at(0)->isExpanded());
    QVERIFY(!entriesOf(*entries.at(0)).at(1)->isExpanded());
    QVERIFY(entries.at(1)->isExpanded());
    QVERIFY(!entries.at(2)->isExpanded());

    click("Close");
    QVERIFY(!viewer().isExpanded());
}

void TestVariantPage::largeValueOpensInPart()
{
    const QByteArray row = '[' + QByteArray("0,").repeated(99) + "0],";
    show('[' + row.repeated(99) + row.chopped(1) + ']');

    click("Open Two Levels");

    const auto entries = entriesOf(viewer());
    QCOMPARE(entries.size(), 100);
    QVERIFY(entries.at(5)->isExpanded());
    QVERIFY(!entries.at(20)->isExpanded());
}

void TestVariantPage::emptyValueHasNothingToOpen()
{
    show("[]");
    QVERIFY(!buttonOf(*page, "Open Two Levels")->isEnabled());
    QVERIFY(!buttonOf(*page, "Close")->isEnabled());

    show("[1]");
    QVERIFY(buttonOf(*page, "Open Two Levels")->isEnabled());
    QVERIFY(buttonOf(*page, "Close")->isEnabled());
}

void TestVariantPage::keysComeToTheViewer()
{
    GallerySettings settings;
    settings.page = "variant";
    GalleryLanguages languages(QString{});
    GalleryWindow window(languages, settings);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    TXVariantViewer &shown = *window.findChild<PaperArea *>()->viewer();
    const KeyList list(shown);

    const QList<int> keys = {Qt::Key_Up,   Qt::Key_Down, Qt::Key_Right, Qt::Key_Left,
                             Qt::Key_Home, Qt::Key_End,  Qt::Key_Space, Qt::Key_Return};
    for (const int key : keys) {
        shown.setFocus();
        QTest::keyClick(&shown, Qt::Key(key));
    }
    shown.setFocus();
    QTest::keyClick(&shown, Qt::Key_C, Qt::ControlModifier);
    shown.setFocus();
    QTest::keyClick(&shown, Qt::Key_Menu);

    QCOMPARE(list.keys, keys + QList<int>({Qt::Key_Control, Qt::Key_C, Qt::Key_Menu}));
}

void TestVariantPage::hoverEffectsFollowTheirSwitch()
{
    QVERIFY(viewer().hoverEffects());

    click("Hover effects");
    QVERIFY(!viewer().hoverEffects());

    click("Hover effects");
    QVERIFY(viewer().hoverEffects());
}

void TestVariantPage::previewFollowsItsSwitch()
{
    show("[\"seen\"]");
    QVERIFY(allTexts(viewer()).contains("seen"));

    click("Preview");
    QVERIFY(!allTexts(viewer()).contains("seen"));
    QTRY_VERIFY(allTexts(*panel).contains("Characters of the line: 0."));
    QCOMPARE(panel->value().toList().size(), 1);

    // It counts for the values to come as well.
    show("[\"new\"]");
    QVERIFY(!allTexts(viewer()).contains("new"));
    click("Preview");
    QVERIFY(allTexts(viewer()).contains("new"));
}

void TestVariantPage::amountsAndDurationAreTold()
{
    // As a line: [1, "two", {a: 3}] has 18 characters.
    show("[1, \"two\", {\"a\": 3}]");

    QVERIFY2(allTexts(*panel).contains("Values: 5. Characters of the line: 18"),
             qPrintable(allTexts(*panel)));
    QVERIFY(
        allTexts(*panel).contains(QRegularExpression("line: 18\\. Shown in [0-9]+\\.[0-9] ms\\.")));

    QSignalSpy done(panel, SIGNAL(shown()));
    click("Open Two Levels");
    QVERIFY(panel->isAtWork());
    QVERIFY(done.wait());
    QVERIFY(!panel->isAtWork());
    QVERIFY(allTexts(*panel).contains(QRegularExpression("Opened in [0-9]+\\.[0-9] ms\\.")));

    click("Close");
    QVERIFY(done.wait());
    QVERIFY(allTexts(*panel).contains(QRegularExpression("Closed in [0-9]+\\.[0-9] ms\\.")));
}

void TestVariantPage::darkPaletteGivesLightPaper()
{
    const QPalette before = QApplication::palette();
    const QColor paperBefore = PixelProbe(*paper->viewport()).at({20, 100});

    applyGalleryColours(GalleryColours::Dark);
    QCoreApplication::sendPostedEvents();
    const QColor paperInTheDark = PixelProbe(*paper->viewport()).at({20, 100});
    const QColor pageInTheDark = PixelProbe(*page).at({5, 60});
    applyGalleryColours(GalleryColours::Light);
    QCoreApplication::sendPostedEvents();
    const QColor paperInTheLight = PixelProbe(*paper->viewport()).at({20, 100});
    const QColor lightWindow = QApplication::palette().color(QPalette::Window);
    QApplication::setPalette(before);

    QVERIFY2(paperInTheDark.lightness() > 200, qPrintable(paperInTheDark.name()));
    QVERIFY2(pageInTheDark.lightness() < 64, qPrintable(pageInTheDark.name()));
    QCOMPARE(paperInTheLight, lightWindow);
    QVERIFY(paperBefore.lightness() > 200);
}

void TestVariantPage::pictureShowsTheAnswerOpen()
{
    QVERIFY(page->isReady());
    QSignalSpy ready(page.get(), SIGNAL(becameReady()));

    page->fillForPicture();

    QVERIFY(!page->isReady());
    QVERIFY(ready.wait(kPatienceMilliseconds));
    QVERIFY(page->isReady());
    QVERIFY(settings().contains("status"));
    QVERIFY(viewer().isExpanded());
    QVERIFY(entriesOf(viewer()).first()->isExpanded());
    QVERIFY(allTexts(*panel).contains("Opened in"));

    click("Close");
    QTRY_VERIFY(!panel->isAtWork());
    QCOMPARE(ready.size(), 1);
}

void TestVariantPage::pictureComesWithoutAServiceToo()
{
    const QByteArray before = qgetenv("TMPDIR");
    // Nothing can be made there, not even by the superuser.
    qputenv("TMPDIR", "/proc");

    page->fillForPicture();
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);

    QVERIFY(page->isReady());
    QVERIFY(!service->error().isEmpty());
    QVERIFY(settings().contains("Gallery"));
}

void TestVariantPage::textsFollowTheLanguage()
{
    choose(written("X.JSON", {}));
    QVERIFY(isError());
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    // The lines of the values are no words of a language, and the milliseconds of no case.
    QStringList lines;
    const auto labels = viewer().findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        lines.append(label->text());
    }
    QCOMPARE(smallTexts(*page, lines), QStringList());
    QCOMPARE(message(), "THE FILE \"X.JSON\" IS NOT SHOWN. IT IS EMPTY.");
    QCOMPARE(viewer().accessibleName(), "VALUE");

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(buttonOf(*page, "Gallery Settings"));
}

void TestVariantPage::mnemonicsAreNotShared()
{
    GallerySettings settings;
    settings.page = "variant";
    GalleryLanguages languages(QString{});
    const GalleryWindow window(languages, settings);

    QVERIFY(buttonOf(window, "Gallery Settings"));
    QCOMPARE(clashingMnemonics(window), QStringList());
}

void TestVariantPage::everyControlHasANameAndIsReachedByTab()
{
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    QCOMPARE(namelessControls(*page), QStringList());
    QCOMPARE(controlsOutOfReach(*page), QStringList());

    // From the top of the page to its end.
    buttonOf(*page, "Gallery Settings")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(buttonOf(*page, "JSON File...")->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(buttonOf(*page, "Ask the Service")->hasFocus());
    buttonOf(*page, "Open Two Levels")->setFocus();
    for (const char *next : {"Close", "Hover effects", "Preview"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY2(buttonOf(*page, next)->hasFocus(), next);
    }
}

void TestVariantPage::pageIsNotTooWide()
{
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

int main(int argc, char **argv)
{
    return runTest<TestVariantPage>(argc, argv);
}

#include "tst_VariantPage.moc"
