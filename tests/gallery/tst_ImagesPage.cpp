#include "ChartPicture.h"
#include "DifferenceLegend.h"
#include "DifferencePicture.h"
#include "ImagesPageTest.h"
#include "MouseMarker.h"
#include "PageInWindow.h"
#include "PixelProbe.h"
#include "PrintSimulation.h"

#include "TXAspectRatioPixmapLabel.h"
#include "TXColorSquareWidget.h"

#include <QCheckBox>
#include <QCursor>
#include <QDoubleSpinBox>
#include <QWheelEvent>

#include <atomic>
#include <cmath>

namespace {

bool isDark(const QColor &colour)
{
    return colour.lightness() < 20;
}

} // namespace

class TestImagesPage : public ImagesPageTest
{
    Q_OBJECT

private slots:
    void chartPrintAndDifferenceStandSideBySide();
    void pageOpensBeforeItsPicturesAreMade();
    void picturesAreFittedAtFirst();
    void pixelUnderTheMouseIsReadOut();
    void swatchesShowTheColours();
    void readoutFollowsTheMouse();
    void readoutEmptiesWhenTheMouseLeaves();
    void hoverThatMeansNothingEmptiesTheReadout_data();
    void hoverThatMeansNothingEmptiesTheReadout();
    void scaleButtonsSetTheScale();
    void scaleBoxFollowsTheScale();
    void scaleBoxSetsTheScale();
    void wheelOverTheScaleBoxChangesNothing();
    void chosenPicturesAreShown();
    void lastShownPictureStays();
    void hiddenPictureKeepsItsPlaceInTheReadout();
    void overlayIsPainted();
    void overlayIsSwitchedOff();
    void markerStandsAtTheSamePlaceInAllPictures();
    void overviewShowsTheChartInItsProportions();
    void legendHasTheColoursOfTheDifference();
    void pictureOfThePageShowsAReadout();
    void textsFollowTheLanguage();
    void mnemonicsAreDistinct();
    void everyControlIsNamedAndReached();
    void pageIsNotTooWide();
    void pageMayGoWhilePicturesAreMade();

private:
    [[nodiscard]] QDoubleSpinBox &scaleBox() const { return *page->findChild<QDoubleSpinBox *>(); }
};

void TestImagesPage::chartPrintAndDifferenceStandSideBySide()
{
    const std::atomic_bool isCancelled = false;
    const QImage chart = ChartPicture::make();
    const QImage print = PrintSimulation::make(chart);

    QCOMPARE(viewer->pixmaps().size(), 3);
    QCOMPARE(picture(0), chart);
    QCOMPARE(picture(1), print);
    QCOMPARE(picture(2), DifferencePicture::make(chart, print, isCancelled));
    QVERIFY(!buttonOf(*page, "Show Chart")->isEnabled());
}

void TestImagesPage::pageOpensBeforeItsPicturesAreMade()
{
    ImagesPage other;
    const auto *otherViewer = other.findChild<TXImageViewer *>();

    QVERIFY(!other.isReady());
    QVERIFY(otherViewer->pixmaps().isEmpty());
    QVERIFY(allTexts(other).contains("Just a moment..."));
    QVERIFY(!buttonOf(other, "Open Pictures...")->isEnabled());

    QSignalSpy ready(&other, SIGNAL(becameReady()));
    QVERIFY(ready.wait(kPatienceMilliseconds));
    QVERIFY(other.isReady());
    QVERIFY(!allTexts(other).contains("Just a moment..."));
    QVERIFY(buttonOf(other, "Open Pictures...")->isEnabled());
    QCOMPARE(otherViewer->pixmaps().size(), 3);
}

void TestImagesPage::picturesAreFittedAtFirst()
{
    QCOMPARE(viewer->scale(), viewer->scaleHint(TXImageViewer::ScaleFit));
    page->resize(1200, 700);
    QCoreApplication::processEvents();
    QCOMPARE(viewer->scale(), viewer->scaleHint(TXImageViewer::ScaleFit));
}

void TestImagesPage::pixelUnderTheMouseIsReadOut()
{
    const QPoint place = ChartPicture::patchRect(14).center();

    hover(1, place);

    QVERIFY(isRead(*page, "Print: Red"));
    QVERIFY(isRead(*page, QString("x %1, y %2").arg(place.x()).arg(place.y())));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(isRead(*page, picture(i).pixelColor(place).name()));
    }
    const double delta =
        DifferencePicture::difference(picture(0).pixel(place), picture(1).pixel(place));
    QVERIFY2(delta > 1, qPrintable(QString::number(delta)));
    QVERIFY(isRead(*page, QString::number(delta, 'f', 2)));

    // Beside the patches.
    hover(2, QPoint(3, 4));
    QVERIFY(!isRead(*page, "Print: Red"));
    QVERIFY(isRead(*page, "x 3, y 4"));
    QVERIFY(isRead(*page, ChartPicture::frameColour().name()));
}

void TestImagesPage::swatchesShowTheColours()
{
    const QPoint place = ChartPicture::patchRect(2).center();
    hover(0, place);

    const auto swatches = page->findChildren<TXColorSquareWidget *>();

    QCOMPARE(swatches.size(), 3);
    for (int i = 0; i < 3; ++i) {
        const PixelProbe probe(*swatches[i]);
        QVERIFY(probe.isNear(swatches[i]->rect().center(), picture(i).pixelColor(place)));
    }
}

void TestImagesPage::readoutFollowsTheMouse()
{
    const QPoint red = ChartPicture::patchRect(14).center();
    const QPoint green = ChartPicture::patchRect(13).center();

    moveMouse(placeOf(0, red));
    QVERIFY2(isRead(*page, "Chart: Red"), qPrintable(allTexts(*page)));
    moveMouse(placeOf(1, green));
    QVERIFY2(isRead(*page, "Print: Green"), qPrintable(allTexts(*page)));

    // Zoomed, each pixel is met exactly.
    viewer->scale(8, TXImageViewer::Absolute);
    viewer->setPosition(QPointF(900 - 500, 600 - 400));
    viewer->repaint();
    moveMouse(placeOf(2, QPoint(502, 403)));
    QVERIFY2(isRead(*page, "x 502, y 403"), qPrintable(allTexts(*page)));
}

void TestImagesPage::readoutEmptiesWhenTheMouseLeaves()
{
    hover(0, ChartPicture::patchRect(5).center());
    QVERIFY(isRead(*page, "Chart: Bluish green"));

    leave();

    QVERIFY(!isRead(*page, "Chart: Bluish green"));
    QVERIFY(isRead(*page, "Move the mouse over a picture."));
}

void TestImagesPage::hoverThatMeansNothingEmptiesTheReadout_data()
{
    QTest::addColumn<int>("zone");
    QTest::addColumn<QPoint>("pixel");

    QTest::newRow("right of the picture") << 0 << QPoint(ChartPicture::kSize.width(), 8);
    QTest::newRow("below the picture") << 1 << QPoint(8, ChartPicture::kSize.height());
    QTest::newRow("left of the picture") << 0 << QPoint(-1, 8);
    QTest::newRow("above the picture") << 2 << QPoint(8, -1);
    QTest::newRow("no zone") << -1 << QPoint(8, 8);
    QTest::newRow("a zone that there is not") << 3 << QPoint(8, 8);
}

void TestImagesPage::hoverThatMeansNothingEmptiesTheReadout()
{
    QFETCH(const int, zone);
    QFETCH(const QPoint, pixel);
    hover(0, QPoint(7, 7));
    QVERIFY(isRead(*page, "x 7, y 7"));

    hover(zone, pixel);

    QVERIFY(isRead(*page, "Move the mouse over a picture."));
}

void TestImagesPage::scaleButtonsSetTheScale()
{
    click("100 %");
    QCOMPARE(viewer->scale(), 1.0);
    click("Share");
    QVERIFY(std::abs(viewer->scale() - 1.0 / 3) < 1e-9);
    click("Fit");
    QCOMPARE(viewer->scale(), viewer->scaleHint(TXImageViewer::ScaleFit));
}

void TestImagesPage::scaleBoxFollowsTheScale()
{
    viewer->scale(2.5, TXImageViewer::Absolute);
    QCOMPARE(scaleBox().value(), 250.0);

    // What the box cannot show is rounded there, and stays in the viewer.
    viewer->scale(TXImageViewer::ScaleShare);
    QCOMPARE(scaleBox().value(), 33.3);
    QVERIFY(std::abs(viewer->scale() - 1.0 / 3) < 1e-9);
}

void TestImagesPage::scaleBoxSetsTheScale()
{
    scaleBox().setFocus();
    scaleBox().selectAll();
    QTest::keyClicks(&scaleBox(), "50");
    QTest::keyClick(&scaleBox(), Qt::Key_Return);

    QCOMPARE(viewer->scale(), 0.5);
}

void TestImagesPage::wheelOverTheScaleBoxChangesNothing()
{
    const double before = viewer->scale();
    const QPointF place(5, 5);
    QWheelEvent event(place, scaleBox().mapToGlobal(place), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);

    QCoreApplication::sendEvent(&scaleBox(), &event);

    QVERIFY(!event.isAccepted());
    QCOMPARE(viewer->scale(), before);
}

void TestImagesPage::chosenPicturesAreShown()
{
    const QImage chart = picture(0);
    const QImage difference = picture(2);

    click("2 Print");
    QCOMPARE(viewer->pixmaps().size(), 2);
    QCOMPARE(picture(0), chart);
    QCOMPARE(picture(1), difference);
    // Fitted anew to the wider zones.
    QCOMPARE(viewer->scale(), viewer->scaleHint(TXImageViewer::ScaleFit));

    click("1 Chart");
    QCOMPARE(viewer->pixmaps().size(), 1);
    QCOMPARE(picture(0), difference);

    click("2 Print");
    click("1 Chart");
    QCOMPARE(viewer->pixmaps().size(), 3);
    QCOMPARE(picture(0), chart);
}

void TestImagesPage::lastShownPictureStays()
{
    click("1 Chart");
    click("3 Difference");

    auto *print = buttonOf<QCheckBox>(*page, "2 Print");
    QVERIFY(print->isChecked());
    QVERIFY(!print->isEnabled());
    click("1 Chart");
    QVERIFY(print->isEnabled());
}

void TestImagesPage::hiddenPictureKeepsItsPlaceInTheReadout()
{
    click("1 Chart");
    const QPoint place = ChartPicture::patchRect(14).center();

    hover(0, place);

    QVERIFY(isRead(*page, "Print: Red"));
    QVERIFY(isRead(*page, ChartPicture::make().pixelColor(place).name()));
}

void TestImagesPage::overlayIsPainted()
{
    click("100 %");
    click("2 Print");
    click("3 Difference");
    const QPoint corner = ChartPicture::patchRect(14).topLeft();
    viewer->setPosition(
        QPointF(ChartPicture::kSize.width() / 2.0, ChartPicture::kSize.height() / 2.0)
        - QPointF(corner));
    const PixelProbe probe(*viewer);
    const QColor patch = picture(0).pixelColor(corner + QPoint(5, 5));
    const QPoint inViewer = viewer->rect().center();

    // The outline, inside it the patch and its number in white; far from that nothing but the
    // patch.
    QVERIFY(probe.countColours(QRect(inViewer, QSize(80, 60))) > 10);
    QVERIFY(probe.isNear(inViewer + QPoint(6, 6), patch));
    QCOMPARE(probe.countColours(QRect(inViewer + QPoint(100, 70), QSize(60, 30))), 1);
    // The caption.
    QVERIFY(probe.countColours(QRect(8, 8, 60, 16)) > 4);
}

void TestImagesPage::overlayIsSwitchedOff()
{
    const QImage with = PixelProbe(*viewer).image();

    click("Overlay");
    const QImage without = PixelProbe(*viewer).image();
    QVERIFY(with != without);
    QCOMPARE(PixelProbe(*viewer).countColours(QRect(8, 8, 60, 16)), 1);

    click("Overlay");
    QCOMPARE(PixelProbe(*viewer).image(), with);
}

void TestImagesPage::markerStandsAtTheSamePlaceInAllPictures()
{
    click("Overlay");
    const QPoint patch = ChartPicture::patchRect(8).center();
    QCursor::setPos(viewer->mapToGlobal(placeOf(1, patch).toPoint()));

    const PixelProbe with(*viewer);
    click("Marker");
    const PixelProbe without(*viewer);

    for (int zone = 0; zone < 3; ++zone) {
        const QPoint place = placeOf(zone, patch).toPoint();
        const QPoint arm(MouseMarker::kSize / 4, 0);
        // The arms to all sides, but not the pixel itself.
        QVERIFY(isDark(with.at(place + arm)) && isDark(with.at(place - arm)));
        QVERIFY(with.isNear(place, without.at(place), 0));
        QVERIFY(!isDark(without.at(place + arm)));
    }
    click("Marker");
    QCOMPARE(PixelProbe(*viewer).image(), with.image());
    QCursor::setPos(0, 0);
}

void TestImagesPage::overviewShowsTheChartInItsProportions()
{
    const auto *overview = page->findChild<TXAspectRatioPixmapLabel *>();
    const QSize shown = overview->contentsRect().size();

    QVERIFY(overview->hasScaledContents());
    QVERIFY(overview->isVisible());
    QVERIFY2(std::abs(double(shown.width()) / shown.height() - 1.5) < 0.05,
             qPrintable(QString("%1 x %2").arg(shown.width()).arg(shown.height())));
}

void TestImagesPage::legendHasTheColoursOfTheDifference()
{
    auto *legend = page->findChild<DifferenceLegend *>();
    QVERIFY(legend->isVisible());
    const PixelProbe probe(*legend);
    for (const double delta : {1.0, 3.0, 6.0, 12.0}) {
        const int x = int(legend->width() * delta / DifferencePicture::kLargestDelta);
        QVERIFY(probe.isNear(QPoint(x, 7), QColor(DifferencePicture::colourOf(delta)), 6));
    }
}

void TestImagesPage::pictureOfThePageShowsAReadout()
{
    page->fillForPicture();
    QVERIFY(isRead(*page, "Chart: Red"));

    // Also when the pictures are not there yet.
    ImagesPage other;
    other.fillForPicture();
    QVERIFY(!other.isReady());
    QSignalSpy ready(&other, SIGNAL(becameReady()));
    QVERIFY(ready.wait(kPatienceMilliseconds));
    QVERIFY(allTexts(other).contains("Chart: Red"));
}

void TestImagesPage::textsFollowTheLanguage()
{
    hover(1, ChartPicture::patchRect(14).center());
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::sendPostedEvents();

    QStringList colours;
    for (int i = 0; i < 3; ++i) {
        colours.append(picture(i).pixelColor(ChartPicture::patchRect(14).center()).name());
    }
    QCOMPARE(smallTexts(*page, colours).join("|"), QString());
    QVERIFY(isRead(*page, "PRINT: RED"));
    QCOMPARE(page->description(), page->description().toUpper());

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::sendPostedEvents();
    QVERIFY(buttonOf(*page, "Open Pictures..."));
    QVERIFY(isRead(*page, "Print: Red"));
}

void TestImagesPage::mnemonicsAreDistinct()
{
    QCOMPARE(clashingMnemonics(*page), QStringList());
    QCOMPARE(mnemonicsClashingAt(QStringLiteral("images")), QStringList());
}

void TestImagesPage::everyControlIsNamedAndReached()
{
    QCOMPARE(namelessControls(*page), QStringList());
    page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    buttonOf(*page, "Fit")->setFocus();
    QCOMPARE(controlsOutOfReach(*page), QStringList());
}

void TestImagesPage::pageIsNotTooWide()
{
    QVERIFY2(page->minimumSizeHint().width() <= 850,
             qPrintable(QString::number(page->minimumSizeHint().width())));
}

void TestImagesPage::pageMayGoWhilePicturesAreMade()
{
    auto other = std::make_unique<ImagesPage>();
    QVERIFY(!other->isReady());

    other.reset();
}

int main(int argc, char **argv)
{
    return runTest<TestImagesPage>(argc, argv);
}

#include "tst_ImagesPage.moc"
