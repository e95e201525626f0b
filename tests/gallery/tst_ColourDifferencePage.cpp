#include "ChartPatches.h"
#include "ColourDifferencePageTest.h"
#include "DifferenceSpread.h"
#include "PatchDifferenceCell.h"
#include "PixelProbe.h"

#include "TXColorSquareWidget.h"

#include <QLabel>
#include <QSlider>
#include <QWheelEvent>

#include <algorithm>

/// The differences of the chart, and the page as a whole.
class TestColourDifferencePage : public ColourDifferencePageTest
{
    Q_OBJECT

private slots:
    void barShowsTheDifferencesOfTheChart_data();
    void barShowsTheDifferencesOfTheChart();
    void limitIsKeptForEachChoiceOfPairs();
    void limitReachesTheLargestDifference_data();
    void limitReachesTheLargestDifference();
    void limitOutOfReachIsBackWithTheFormula();
    void summarySaysWhatTheBarShows();
    void swatchesShowBothSetsOfEachPatch();
    void swatchesShowTheDifferenceByTheFormula();
    void patchesFromTheLimitOnAreFramed();
    void framesFollowThePalette_data();
    void framesFollowThePalette();
    void barStandsOnALightGroundInADarkPaletteToo();
    void wheelChangesNothing();
    void pageFitsTheWindow();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void textsFollowTheLanguage();

private:
    [[nodiscard]] QList<PatchDifferenceCell *> cells() const
    {
        return page().findChildren<PatchDifferenceCell *>();
    }
    /// The difference that stands below a patch.
    [[nodiscard]] QLabel &difference(int patch) const
    {
        return *cells().at(patch)->findChildren<QLabel *>().last();
    }
    [[nodiscard]] bool isFramed(int patch) const
    {
        auto *swatch = cells().at(patch)->findChildren<TXColorSquareWidget *>().last();
        // The left edge, where a thin frame ends.
        const QColor colour = PixelProbe(*swatch).at({1, swatch->height() / 2});
        return colour == page().palette().color(QPalette::WindowText);
    }
};

void TestColourDifferencePage::barShowsTheDifferencesOfTheChart_data()
{
    QTest::addColumn<int>("formulaRow");
    QTest::addColumn<int>("pairsRow");
    QTest::addColumn<double>("chosenLimit");
    for (const int formulaRow : {0, 1}) {
        for (const double chosen : {0.5, 1.0, 1.9}) {
            QTest::addRow("same, formula %d, limit %.1f", formulaRow, chosen)
                << formulaRow << 0 << chosen;
        }
        for (const double chosen : {5.0, 40.0, 75.0}) {
            QTest::addRow("different, formula %d, limit %.1f", formulaRow, chosen)
                << formulaRow << 1 << chosen;
        }
    }
}

void TestColourDifferencePage::barShowsTheDifferencesOfTheChart()
{
    QFETCH(int, formulaRow);
    QFETCH(int, pairsRow);
    QFETCH(double, chosenLimit);
    const auto chosen = DifferenceFormula(formulaRow);

    formula().setCurrentIndex(formulaRow);
    pairs().setCurrentIndex(pairsRow);
    limit().setValue(chosenLimit);

    const QList<PatchPair> list = pairsRow == 0
        ? ChartComparison::samePatches()
        : ChartComparison::differentPatches(chosen, PairOrder::LargestFirst);
    double sum = 0;
    double largest = 0;
    int below = 0;
    for (const PatchPair &pair : list) {
        sum += pair.by(chosen);
        largest = std::max(largest, pair.by(chosen));
        below += pair.by(chosen) < chosenLimit ? 1 : 0;
    }
    const auto text = [](double value) {
        return QString::number(value, 'f', 1);
    };
    QCOMPARE(valueOfBar(),
             QString("Average %1, limit %2 with %3 % of the pixels below, maximum %4")
                 .arg(text(sum / double(list.size())), text(chosenLimit),
                      text(below * 100.0 / double(list.size())), text(largest)));
}

void TestColourDifferencePage::limitIsKeptForEachChoiceOfPairs()
{
    QCOMPARE(limit().value(), 1.0);
    limit().setValue(1.5);

    pairs().setCurrentIndex(1);
    QCOMPARE(limit().value(), 40.0);
    limit().setValue(25);

    pairs().setCurrentIndex(0);
    QCOMPARE(limit().value(), 1.5);
    QVERIFY(valueOfBar().contains("limit 1.5"));
    pairs().setCurrentIndex(1);
    QCOMPARE(limit().value(), 25.0);
    QVERIFY(valueOfBar().contains("limit 25.0"));
}

void TestColourDifferencePage::limitReachesTheLargestDifference_data()
{
    QTest::addColumn<int>("formulaRow");
    QTest::addColumn<int>("pairsRow");
    QTest::addRow("same, CIE76") << 0 << 0;
    QTest::addRow("same, CIEDE2000") << 1 << 0;
    QTest::addRow("different, CIE76") << 0 << 1;
    QTest::addRow("different, CIEDE2000") << 1 << 1;
}

void TestColourDifferencePage::limitReachesTheLargestDifference()
{
    QFETCH(int, formulaRow);
    QFETCH(int, pairsRow);
    const auto chosen = DifferenceFormula(formulaRow);
    const QList<PatchPair> list = pairsRow == 0
        ? ChartComparison::samePatches()
        : ChartComparison::differentPatches(chosen, PairOrder::ByNumber);
    const double largest = differenceSpread(list, chosen, 0).largest;

    formula().setCurrentIndex(formulaRow);
    pairs().setCurrentIndex(pairsRow);
    limit().setValue(1000);

    QVERIFY2(limit().value() > largest && limit().value() < largest + 0.11,
             qPrintable(QString("%1, largest %2").arg(limit().value()).arg(largest)));
    QVERIFY2(valueOfBar().contains(" with 100.0 % of the pixels below"), qPrintable(valueOfBar()));
}

void TestColourDifferencePage::limitOutOfReachIsBackWithTheFormula()
{
    formula().setCurrentIndex(int(DifferenceFormula::Cie76));
    pairs().setCurrentIndex(1);
    limit().setValue(130);

    formula().setCurrentIndex(int(DifferenceFormula::Ciede2000));
    QVERIFY(limit().value() < 100);
    QVERIFY(valueOfBar().contains(QString("limit %1 with").arg(limit().value(), 0, 'f', 1)));

    formula().setCurrentIndex(int(DifferenceFormula::Cie76));
    QCOMPARE(limit().value(), 130.0);
    QVERIFY(valueOfBar().contains("limit 130.0 with"));
}

void TestColourDifferencePage::summarySaysWhatTheBarShows()
{
    const DifferenceSpread spread =
        differenceSpread(ChartComparison::samePatches(), DifferenceFormula::Ciede2000, 1.0);
    const auto text = [](double value) {
        return QString::number(value, 'f', 1);
    };

    QVERIFY2(
        isRead(page(),
               QString("%1 of 24 pairs are below the limit of 1.0. The mean is %2, and %3 % of "
                       "the pairs are below it; the largest difference is %4.")
                   .arg(QString::number(spread.belowLimit), text(spread.mean),
                        text(spread.meanPercent), text(spread.largest))),
        qPrintable(allTexts(page())));
    pairs().setCurrentIndex(1);
    QVERIFY(allTexts(page()).contains(" of 276 pairs are below the limit of 40.0."));
}

void TestColourDifferencePage::swatchesShowBothSetsOfEachPatch()
{
    QCOMPARE(cells().size(), 24);
    for (int i = 0; i < 24; ++i) {
        const ChartPatch &patch = chartPatches().at(size_t(i));
        const auto swatches = cells().at(i)->findChildren<TXColorSquareWidget *>();
        QCOMPARE(swatches.size(), 2);
        QCOMPARE(swatches.first()->accessibleName(),
                 QString(patch.name) + ", before November 2014");
        QCOMPARE(swatches.last()->accessibleName(), QString(patch.name) + ", since November 2014");
        QVERIFY(swatches.first()->x() < swatches.last()->x());
        const auto middle = [](TXColorSquareWidget *swatch, int x) {
            return PixelProbe(*swatch).at({x, swatch->height() / 2}).name();
        };
        // The two stand close together, however wide the cell is.
        QCOMPARE(middle(swatches.first(), swatches.first()->width() - 10),
                 patch.older.toScreen().name());
        QCOMPARE(middle(swatches.last(), 10), patch.newer.toScreen().name());
        QVERIFY(isRead(page(), QString(patch.name)));
    }
}

void TestColourDifferencePage::swatchesShowTheDifferenceByTheFormula()
{
    const QList<PatchPair> same = ChartComparison::samePatches();
    for (const auto chosen : {DifferenceFormula::Cie76, DifferenceFormula::Ciede2000}) {
        formula().setCurrentIndex(int(chosen));
        for (int i = 0; i < 24; ++i) {
            QCOMPARE(difference(i).text(),
                     QString("\u0394E %1").arg(QString::number(same.at(i).by(chosen), 'f', 2)));
        }
    }
}

void TestColourDifferencePage::patchesFromTheLimitOnAreFramed()
{
    const QList<PatchPair> same = ChartComparison::samePatches();
    for (const double chosen : {0.5, 1.0, 1.5, 5.0}) {
        limit().setValue(chosen);
        for (int i = 0; i < 24; ++i) {
            const bool isAbove = same.at(i).ciede2000 >= chosen;
            QCOMPARE(isFramed(i), isAbove);
            QCOMPARE(difference(i).font().bold(), isAbove);
        }
    }
}

void TestColourDifferencePage::framesFollowThePalette_data()
{
    QTest::addColumn<GalleryColours>("before");
    QTest::addColumn<GalleryColours>("after");
    QTest::addRow("to dark") << GalleryColours::Light << GalleryColours::Dark;
    QTest::addRow("to light") << GalleryColours::Dark << GalleryColours::Light;
}

void TestColourDifferencePage::framesFollowThePalette()
{
    QFETCH(GalleryColours, before);
    QFETCH(GalleryColours, after);
    limit().setValue(0.1);
    applyGalleryColours(before);
    QCoreApplication::processEvents();
    QVERIFY(isFramed(0));
    const QColor text = page().palette().color(QPalette::WindowText);

    applyGalleryColours(after);
    QCoreApplication::processEvents();

    QVERIFY(page().palette().color(QPalette::WindowText) != text);
    QVERIFY(isFramed(0));
}

void TestColourDifferencePage::barStandsOnALightGroundInADarkPaletteToo()
{
    auto *bar = page().findChild<TXDeltaGradientWidget *>();
    const auto look = [&] {
        return PixelProbe(*bar->parentWidget()).image();
    };
    applyGalleryColours(GalleryColours::Light);
    const QImage light = look();

    applyGalleryColours(GalleryColours::Dark);
    QTRY_VERIFY(page().palette().color(QPalette::WindowText).lightness() > 150);

    QCOMPARE(look(), light);
    QVERIFY(light.pixelColor(2, 2).lightness() > 220);
}

void TestColourDifferencePage::wheelChangesNothing()
{
    const QString before = valueOfBar();
    const QList<QWidget *> controls = {&formula(), &pairs(), &box("First wavelength"),
                                       &box("Last wavelength"), limit().findChild<QSlider *>()};
    for (QWidget *control : controls) {
        const QPointF place(5, 5);
        QWheelEvent event(place, control->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(control, &event);
    }
    QCOMPARE(valueOfBar(), before);
    QCOMPARE(formula().currentText(), "CIEDE2000");
    QCOMPARE(plot().accessibleName(), "Luminous efficiency from 380 to 780 nm");
}

void TestColourDifferencePage::pageFitsTheWindow()
{
    const QWidget *viewport = page().parentWidget();

    QVERIFY(page().width() <= viewport->width());
    QVERIFY2(page().minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page().minimumSizeHint().width())));
}

void TestColourDifferencePage::mnemonicsAreNotShared()
{
    QVERIFY(labelOf(*window, "Formula:"));
    QCOMPARE(clashingMnemonics(*window), QStringList());
}

void TestColourDifferencePage::everyControlHasANameAndIsReachedByTab()
{
    QCOMPARE(namelessControls(*window), QStringList());
    QCOMPARE(controlsOutOfReach(*window), QStringList());
}

void TestColourDifferencePage::textsFollowTheLanguage()
{
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();

    QCOMPARE(smallTexts(page(), {}), QStringList());
    QCOMPARE(controlOf<QComboBox>(page(), "PAIRS")->itemText(0), "SAME PATCHES");
    QCOMPARE(plot().accessibleName(), "LUMINOUS EFFICIENCY FROM 380 TO 780 NM");
    QVERIFY(controlOf<TXColorSquareWidget>(page(), "DARK SKIN, BEFORE NOVEMBER 2014"));
    QVERIFY(controlOf<TXDeltaGradientWidget>(page(), "DIFFERENCES OF THE PAIRS"));

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
    QVERIFY(labelOf(page(), "Formula:"));
}

int main(int argc, char **argv)
{
    return runTest<TestColourDifferencePage>(argc, argv);
}

#include "tst_ColourDifferencePage.moc"
