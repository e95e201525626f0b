#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageInWindow.h"
#include "PixelProbe.h"
#include "VariantPageTest.h"

#include "TXVariantViewer.h"

#include <QCheckBox>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>

namespace {

QList<TXVariantViewer *> entriesOf(const TXVariantViewer &viewer)
{
    return viewer.findChildren<TXVariantViewer *>(QString(), Qt::FindDirectChildrenOnly);
}

/// Where the user's key goes to.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

} // namespace

/// How the page shows a value, and what every page has to keep.
class TestVariantPage : public VariantPageTest
{
    Q_OBJECT

private slots:
    void twoLevelsOpenAndClose();
    void openingTwiceFoldsNothingUp_data();
    void openingTwiceFoldsNothingUp();
    void openingLeavesOpenWhatIsOpen();
    void largeValueOpensInPart();
    void emptyValueHasNothingToOpen();
    void keysOfTheViewerWorkInTheWindow();
    void hoverEffectsFollowTheirSwitch();
    void previewFollowsItsSwitch();
    void amountsAndDurationAreTold();
    void durationIsThatOfTheWholeWork();
    void darkPaletteGivesLightPaper();
    void pictureShowsTheAnswerOpen();
    void pictureComesWithoutAServiceToo();
    void textsFollowTheLanguage();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void pageIsNotTooWide();
};

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

void TestVariantPage::openingTwiceFoldsNothingUp_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("openRows");
    QTest::newRow("small") << 3 << 3;
    // Of 101 widgets each, counted from the first one on.
    QTest::newRow("large") << 100 << 10;
}

void TestVariantPage::openingTwiceFoldsNothingUp()
{
    QFETCH(int, rows);
    QFETCH(int, openRows);
    const QByteArray row = '[' + QByteArray("0,").repeated(99) + "0],";
    show('[' + row.repeated(rows - 1) + row.chopped(1) + ']');

    for (int click = 0; click < 2; ++click) {
        DialogDriver::click(buttonOf(*page, "Open Two Levels"));
        QTRY_VERIFY(!panel->isAtWork());

        const auto entries = entriesOf(viewer());
        QCOMPARE(entries.size(), rows);
        const auto isOpen = [](const TXVariantViewer *entry) {
            return entry->isExpanded();
        };
        QCOMPARE(std::count_if(entries.begin(), entries.end(), isOpen), openRows);
    }
}

void TestVariantPage::openingLeavesOpenWhatIsOpen()
{
    show("{\"a\": [1, [2]], \"b\": [3]}");
    viewer().setExpanded(true);
    const QPointer<TXVariantViewer> first = entriesOf(viewer()).at(0);
    first->setExpanded(true);
    const QPointer<TXVariantViewer> third = entriesOf(*first).at(1);
    third->setExpanded(true);

    click("Open Two Levels");
    QTRY_VERIFY(!panel->isAtWork());

    QVERIFY(first);
    QVERIFY(first->isExpanded());
    QVERIFY(third);
    QVERIFY(third->isExpanded());
    QCOMPARE(entriesOf(viewer()).size(), 2);
    QVERIFY(entriesOf(viewer()).at(1)->isExpanded());
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

void TestVariantPage::keysOfTheViewerWorkInTheWindow()
{
    GallerySettings settings;
    settings.page = "variant";
    GalleryLanguages languages(QString{});
    GalleryWindow window(languages, settings);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    TXVariantViewer &root = *window.findChild<PaperArea *>()->viewer();
    root.setFocus();

    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        press(key);
        QVERIFY(root.isExpanded());
        press(key);
        QVERIFY(!root.isExpanded());
    }
    press(Qt::Key_Right);
    QVERIFY(root.isExpanded());
    // The settings are those of the test: {Gallery: {Page: "variant"}}.
    press(Qt::Key_Right);
    TXVariantViewer *group = entriesOf(root).last();
    QVERIFY(group->hasFocus());
    press(Qt::Key_Right);
    QVERIFY(group->isExpanded());
    press(Qt::Key_Down);
    TXVariantViewer *name = entriesOf(*group).last();
    QVERIFY(name->hasFocus());
    press(Qt::Key_Up);
    QVERIFY(group->hasFocus());
    press(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text().simplified().remove(u' '),
             "{\"Page\":\"variant\"}");

    press(Qt::Key_Home);
    QVERIFY(root.hasFocus());
    press(Qt::Key_End);
    QVERIFY(name->hasFocus());
    press(Qt::Key_Left);
    QVERIFY(group->hasFocus());
    press(Qt::Key_Left);
    QVERIFY(!group->isExpanded());
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

void TestVariantPage::durationIsThatOfTheWholeWork()
{
    QVariantList many;
    for (int i = 0; i < 300'000; ++i) {
        many.append(QStringLiteral("entry <%1>").arg(i));
    }
    QSignalSpy done(panel, SIGNAL(shown()));
    QElapsedTimer clock;
    clock.start();

    panel->setValue(many, {});
    QVERIFY(done.wait(kPatienceMilliseconds));

    const double milliseconds = double(clock.nsecsElapsed()) / 1e6;
    const QRegularExpression pattern("Shown in ([0-9.,]+) ms");
    const QString text = pattern.match(allTexts(*panel)).captured(1);
    const double told = QLocale().toDouble(text);
    QVERIFY2(told > 0.85 * milliseconds && told <= milliseconds,
             qPrintable(QString("told %1 of %2 ms").arg(text).arg(milliseconds)));
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
    QCOMPARE(mnemonicsClashingAt(QStringLiteral("variant")), QStringList());
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
