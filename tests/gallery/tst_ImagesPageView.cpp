#include "ChartPicture.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "ImagesPageTest.h"
#include "PixelProbe.h"
#include "TestTranslations.h"

#include "TXColorSquareWidget.h"

#include <QDoubleSpinBox>
#include <QScrollArea>
#include <QScrollBar>

#include <functional>

/// What becomes of the scale, the position and the pixel that is read while the user looks around.
class TestImagesPageView : public ImagesPageTest
{
    Q_OBJECT

private slots:
    void readoutFollowsWhatMovesThePictures_data();
    void readoutFollowsWhatMovesThePictures();
    void readoutFollowsAPictureThatWasDraggedTooFar();
    void spaceReadsThePixelInTheMiddle();
    void spaceBesideThePictureReadsNothing();
    void middleIsReadOnUntilTheMouseComes();
    void picturesThatMoveTellNothingWithoutAMouse();
    void lastRowAndColumnAreRead();
    void scaleOfTheUserStays_data();
    void scaleOfTheUserStays();
    void pictureThatIsZoomedBackIsFittedAgain();
    void shareHoldsUntilTheUserZooms();
    void scaleBoxTellsEveryScale_data();
    void scaleBoxTellsEveryScale();
    void scaleBoxGoesBackToWhatTheViewerTakes();
    void swatchesAreFramedByThePalette();
    void pageFitsTheFirstWindow();

private:
    using Action = std::function<void(TestImagesPageView &)>;

    [[nodiscard]] QDoubleSpinBox &scaleBox() const { return *page->findChild<QDoubleSpinBox *>(); }
    [[nodiscard]] bool isPixelRead(const QPoint &pixel) const
    {
        return isRead(*page, QString("x %1, y %2").arg(pixel.x()).arg(pixel.y()));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(viewer, key, modifiers);
    }
};

void TestImagesPageView::readoutFollowsWhatMovesThePictures_data()
{
    QTest::addColumn<Action>("act");

    const auto row = [](const char *name, const Action &act) {
        QTest::newRow(name) << act;
    };
    row("wheel", [](auto &test) { test.turnWheel(QPointF(9, 9)); });
    row("plus", [](auto &test) { test.press(Qt::Key_Plus); });
    row("minus", [](auto &test) { test.press(Qt::Key_Minus); });
    row("home", [](auto &test) { test.press(Qt::Key_Home); });
    row("one", [](auto &test) { test.press(Qt::Key_1); });
    row("arrow", [](auto &test) { test.press(Qt::Key_Right); });
    row("arrow by a pixel", [](auto &test) { test.press(Qt::Key_Down, Qt::ControlModifier); });
    row("scale box", [](auto &test) { test.scaleBox().setValue(333); });
    row("fewer pictures", [](auto &test) { test.click("3 Difference"); });
    row("size", [](auto &test) { test.page->resize(900, 620); });
}

void TestImagesPageView::readoutFollowsWhatMovesThePictures()
{
    QFETCH(const Action, act);
    viewer->scale(0.7, TXImageViewer::Absolute);
    viewer->repaint();
    const QPointF place(100, 130);
    moveMouse(place);
    const QPoint before = pixelAt(0, place);
    QVERIFY2(isPixelRead(before), qPrintable(allTexts(*page)));

    act(*this);

    QTRY_VERIFY(!isPixelRead(before));
    QTRY_VERIFY2(isPixelRead(pixelAt(0, place)), qPrintable(allTexts(*page)));
}

void TestImagesPageView::readoutFollowsAPictureThatWasDraggedTooFar()
{
    viewer->scale(1, TXImageViewer::Absolute);
    viewer->repaint();
    const QPoint start(50, 50);
    const QPoint end(250, 200);
    QTest::mousePress(viewer, Qt::LeftButton, {}, start);
    for (int i = 0; i < 20; ++i) {
        viewer->setPosition(viewer->position() + QPointF(100, 100));
    }
    QTest::mouseMove(viewer, end);
    QTest::mouseRelease(viewer, Qt::LeftButton, {}, end);

    // The corner of the picture stands in that of the zone.
    QTRY_VERIFY2(isPixelRead(end), qPrintable(allTexts(*page)));
}

void TestImagesPageView::spaceReadsThePixelInTheMiddle()
{
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    viewer->setFocus();
    viewer->scale(2, TXImageViewer::Absolute);
    viewer->repaint();
    const double zoneWidth = double(viewer->width()) / double(viewer->pixmaps().size());
    const QPointF middle(zoneWidth / 2, viewer->height() / 2.0);
    viewer->setPosition(QPointF(-20.5, 10.5));
    viewer->repaint();
    const QPoint pixel = pixelAt(0, middle);
    QVERIFY(!isPixelRead(pixel));

    press(Qt::Key_Space);

    QVERIFY2(isPixelRead(pixel), qPrintable(allTexts(*page)));
}

void TestImagesPageView::spaceBesideThePictureReadsNothing()
{
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    viewer->setFocus();
    moveMouse(QPointF(100, 130));
    const QPoint before = pixelAt(0, QPointF(100, 130));
    QVERIFY(isPixelRead(before));
    viewer->setPosition(QPointF(100'000, 100'000));

    press(Qt::Key_Space);

    QVERIFY(!isPixelRead(before));
}

void TestImagesPageView::middleIsReadOnUntilTheMouseComes()
{
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
    viewer->setFocus();
    viewer->scale(2, TXImageViewer::Absolute);
    viewer->repaint();
    press(Qt::Key_Space);
    const QPointF middle(viewer->width() / 6.0, viewer->height() / 2.0);
    const QPoint before = pixelAt(0, middle);
    QVERIFY2(isPixelRead(before), qPrintable(allTexts(*page)));

    press(Qt::Key_Right);
    viewer->repaint();
    QVERIFY(pixelAt(0, middle) != before);
    QTRY_VERIFY2(isPixelRead(pixelAt(0, middle)), qPrintable(allTexts(*page)));

    const QPointF place(100, 130);
    moveMouse(place);
    press(Qt::Key_Left);
    viewer->repaint();
    QTRY_VERIFY2(isPixelRead(pixelAt(0, place)), qPrintable(allTexts(*page)));
}

void TestImagesPageView::picturesThatMoveTellNothingWithoutAMouse()
{
    moveMouse(QPointF(100, 130));
    leave();
    const QSignalSpy hovers(viewer,
                            SIGNAL(hover(QPointF, Qt::MouseButton, Qt::MouseButtons,
                                         Qt::KeyboardModifiers, bool, int, QPoint)));

    press(Qt::Key_Plus);
    viewer->repaint();
    QCoreApplication::processEvents();

    QCOMPARE(hovers.size(), 0);
    QVERIFY(isRead(*page, "Move the mouse over a picture."));
}

void TestImagesPageView::lastRowAndColumnAreRead()
{
    const QPoint last(ChartPicture::kSize.width() - 1, ChartPicture::kSize.height() - 1);
    viewer->scale(8, TXImageViewer::Absolute);
    viewer->setPosition(QPointF(-900, -600));
    viewer->repaint();

    moveMouse(placeOf(1, last));

    QVERIFY2(isPixelRead(last), qPrintable(allTexts(*page)));
    QVERIFY(isRead(*page, picture(0).pixelColor(last).name()));
}

void TestImagesPageView::scaleOfTheUserStays_data()
{
    QTest::addColumn<Action>("zoom");
    QTest::addColumn<Action>("act");

    const QList<std::pair<const char *, Action>> zooms = {
        {"wheel",
         [](auto &test) {
             test.turnWheel(QPointF(9, 9));
         }},
        {"key",
         [](auto &test) {
             test.press(Qt::Key_Plus);
         }},
        {"wheel after share",
         [](auto &test) {
             test.click("Share");
             test.turnWheel(QPointF(9, 9));
         }},
        {"natural size by key",
         [](auto &test) {
             test.press(Qt::Key_1);
         }},
    };
    const QList<std::pair<const char *, Action>> acts = {
        {"other size",
         [](auto &test) {
             test.page->resize(test.page->size() + QSize(1, 1));
         }},
        {"other pictures",
         [](auto &test) {
             test.click("2 Print");
         }},
    };
    for (const auto &[zoomName, zoom] : zooms) {
        for (const auto &[actName, act] : acts) {
            QTest::addRow("%s, %s", zoomName, actName) << zoom << act;
        }
    }
}

void TestImagesPageView::scaleOfTheUserStays()
{
    QFETCH(const Action, zoom);
    QFETCH(const Action, act);
    zoom(*this);
    const double scale = viewer->scale();
    QVERIFY(scale != viewer->scaleHint(TXImageViewer::ScaleFit));
    viewer->setPosition(QPointF(35, -20));
    viewer->repaint();
    const QPointF position = viewer->position();
    QVERIFY(!position.isNull());

    act(*this);
    viewer->repaint();

    QCOMPARE(viewer->scale(), scale);
    QCOMPARE(viewer->position(), position);
}

void TestImagesPageView::pictureThatIsZoomedBackIsFittedAgain()
{
    press(Qt::Key_Plus);
    press(Qt::Key_Minus);

    page->resize(page->size() + QSize(90, 90));
    QCoreApplication::processEvents();

    QCOMPARE(viewer->scale(), viewer->scaleHint(TXImageViewer::ScaleFit));
}

void TestImagesPageView::shareHoldsUntilTheUserZooms()
{
    click("Share");
    click("2 Print");
    QCOMPARE(viewer->scale(), viewer->scaleHint(TXImageViewer::ScaleShare));
    QCOMPARE(viewer->scale(), 0.5);

    press(Qt::Key_Plus);
    click("2 Print");
    QCOMPARE(viewer->scale(), 1.0);
}

void TestImagesPageView::scaleBoxTellsEveryScale_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<double>("percent");

    QTest::newRow("far above") << 7000.0 << 700'000.0;
    QTest::newRow("above") << 17.0 << 1700.0;
    QTest::newRow("below one percent") << 0.00456 << 0.456;
    QTest::newRow("far below") << 0.00007 << 0.007;
}

void TestImagesPageView::scaleBoxTellsEveryScale()
{
    QFETCH(const double, scale);
    QFETCH(const double, percent);
    viewer->setScaleLimits(1e-6, 1e6);

    viewer->scale(scale, TXImageViewer::Absolute);
    QCOMPARE(scaleBox().value(), percent);
    QCOMPARE(viewer->scale(), scale);

    viewer->scale(0.5, TXImageViewer::Absolute);
    QCOMPARE(scaleBox().text(), "50.0 %");
}

void TestImagesPageView::scaleBoxGoesBackToWhatTheViewerTakes()
{
    scaleBox().setValue(5000);
    QCOMPARE(viewer->scale(), 16.0);
    QCOMPARE(scaleBox().value(), 1600.0);

    scaleBox().setValue(6000);
    QCOMPARE(scaleBox().value(), 1600.0);
}

void TestImagesPageView::swatchesAreFramedByThePalette()
{
    auto *swatch = page->findChild<TXColorSquareWidget *>();
    const QPoint frame(0, swatch->height() / 2);
    QPalette palette = page->palette();
    QVERIFY(!PixelProbe(*swatch).isNear(frame, Qt::magenta));

    palette.setColor(QPalette::Mid, Qt::magenta);
    page->setPalette(palette);
    QCoreApplication::sendPostedEvents();

    const QColor seen = PixelProbe(*swatch).at(frame);
    QVERIFY2(seen.red() > 2 * seen.green() && seen.blue() > 2 * seen.green(),
             qPrintable(seen.name()));
}

void TestImagesPageView::pageFitsTheFirstWindow()
{
    GalleryLanguages languages(testTranslationsFolder());
    GallerySettings settings;
    settings.page = "images";
    settings.language = "en";
    GalleryWindow window(languages, settings);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(window.currentPage()->isReady());
    QCoreApplication::sendPostedEvents();

    int areas = 0;
    for (QWidget *parent = window.currentPage(); parent; parent = parent->parentWidget()) {
        if (const auto *area = qobject_cast<QScrollArea *>(parent)) {
            ++areas;
            QCOMPARE(area->verticalScrollBar()->maximum(), 0);
            QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
        }
    }
    QCOMPARE(areas, 1);
}

int main(int argc, char **argv)
{
    return runTest<TestImagesPageView>(argc, argv);
}

#include "tst_ImagesPageView.moc"
