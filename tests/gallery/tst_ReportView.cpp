#include "ChartReport.h"
#include "PixelProbe.h"
#include "ReportView.h"
#include "TestBase.h"

#include "TXReportDocument.h"

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

#include <memory>

class TestReportView : public TestBase
{
    Q_OBJECT

private slots:
    void emptyViewHasNoPage();
    void keysTurnThePages();
    void controlWithThePageKeysIsLeftToTheWindow();
    void pageThatThereIsNotGivesTheNearest();
    void lastSmallPageCanBeRead();
    void keysZoomWithinTheLimits();
    void stepsNeverGoTheOtherWay_data();
    void stepsNeverGoTheOtherWay();
    void fixedModeKeepsTheFittedSize();
    void modeIsToldOnce();
    void wheelWithControlZoomsAtThePointer();
    void wheelAloneScrolls();
    void fitWidthFollowsTheView();
    void fitPageShowsTheWholeSheet();
    void paperIsWhiteWithAnEdgeInDarkColours();
    void largePagesArePaintedAsSmallOnes();
    void pagesAreSharpOnFineScreens();
    void anotherReportKeepsThePlace();
    void sheetsAreReadByScreenReaders();
    void anotherReportIsReadAnew();

protected:
    void prepare() override;
    void finish() override { view.reset(); }

private:
    void show(const ChartReportOptions &options);
    void turnWheel(Qt::KeyboardModifiers modifiers, const QPoint &at, int angle);
    QImage picture() { return view->viewport()->grab().toImage(); }

    std::unique_ptr<ReportView> view;
};

void TestReportView::prepare()
{
    view = std::make_unique<ReportView>();
    view->resize(600, 500);
    view->show();
    QVERIFY(QTest::qWaitForWindowActive(view.get()));
    view->setFocus();
    show({});
}

void TestReportView::show(const ChartReportOptions &options)
{
    const auto report = std::make_shared<ChartReport>(options);
    view->setDocument(std::shared_ptr<TXReportDocument>(report, &report->document()));
}

void TestReportView::turnWheel(Qt::KeyboardModifiers modifiers, const QPoint &at, int angle)
{
    QWheelEvent event(at, view->viewport()->mapToGlobal(at), {}, {0, angle}, Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->viewport(), &event);
}

void TestReportView::emptyViewHasNoPage()
{
    view->setDocument(nullptr);

    QCOMPARE(view->pageCount(), 0);
    QCOMPARE(view->currentPage(), -1);
    QCOMPARE(view->pageRect(0), QRect());
    QTest::keyClick(view.get(), Qt::Key_PageDown);
    QTest::keyClick(view.get(), Qt::Key_Plus);
    QCOMPARE(view->currentPage(), -1);
    QCOMPARE(view->verticalScrollBar()->maximum(), 0);
    QVERIFY(!picture().isNull());
}

void TestReportView::keysTurnThePages()
{
    QSignalSpy changed(view.get(), SIGNAL(pageChanged()));

    QTest::keyClick(view.get(), Qt::Key_PageDown);
    QCOMPARE(view->currentPage(), 1);
    QCOMPARE(changed.size(), 1);
    const int topOfSecond = view->verticalScrollBar()->value();
    QTest::keyClick(view.get(), Qt::Key_PageDown);
    QCOMPARE(view->currentPage(), 2);
    QTest::keyClick(view.get(), Qt::Key_PageUp);
    QCOMPARE(view->currentPage(), 1);
    QCOMPARE(view->verticalScrollBar()->value(), topOfSecond);
    QTest::keyClick(view.get(), Qt::Key_End);
    QCOMPARE(view->currentPage(), view->pageCount() - 1);
    QTest::keyClick(view.get(), Qt::Key_Home);
    QCOMPARE(view->currentPage(), 0);
    const int top = view->verticalScrollBar()->value();
    QTest::keyClick(view.get(), Qt::Key_Down);
    QVERIFY(view->verticalScrollBar()->value() > top);
}

void TestReportView::controlWithThePageKeysIsLeftToTheWindow()
{
    QTest::keyClick(view.get(), Qt::Key_PageDown, Qt::ControlModifier);

    QCOMPARE(view->currentPage(), 0);
}

void TestReportView::pageThatThereIsNotGivesTheNearest()
{
    view->goToPage(1000);
    QCOMPARE(view->currentPage(), view->pageCount() - 1);
    view->goToPage(-5);
    QCOMPARE(view->currentPage(), 0);
}

void TestReportView::lastSmallPageCanBeRead()
{
    view->resize(600, 790);
    view->setZoomPercent(ReportView::kSmallestZoomPercent);
    QVERIFY(view->pageRect(0).height() < view->viewport()->height() * 3 / 4);

    for (int page = 0; page < view->pageCount(); ++page) {
        view->goToPage(page);
        QCOMPARE(view->currentPage(), page);
    }
}

void TestReportView::keysZoomWithinTheLimits()
{
    view->setZoomPercent(100);
    QSignalSpy changed(view.get(), SIGNAL(zoomChanged()));

    QTest::keyClick(view.get(), Qt::Key_Plus);
    QCOMPARE(view->zoomPercent(), 125.0);
    QTest::keyClick(view.get(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(view->zoomPercent(), 100.0);
    QCOMPARE(changed.size(), 2);
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(view.get(), Qt::Key_Plus);
    }
    QCOMPARE(view->zoomPercent(), 400.0);
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(view.get(), Qt::Key_Minus);
    }
    QCOMPARE(view->zoomPercent(), 50.0);
    QTest::keyClick(view.get(), Qt::Key_0);
    QCOMPARE(view->zoomPercent(), 100.0);
}

void TestReportView::stepsNeverGoTheOtherWay_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("isSmall");
    QTest::newRow("sheet below the smallest size") << QSize(320, 300) << true;
    QTest::newRow("sheet beyond the largest size") << QSize(4000, 500) << false;
}

void TestReportView::stepsNeverGoTheOtherWay()
{
    QFETCH(QSize, size);
    QFETCH(bool, isSmall);
    view->resize(size);
    const double fitted = view->zoomPercent();
    QVERIFY(isSmall ? fitted < 50 : fitted > 400);
    QSignalSpy changed(view.get(), SIGNAL(zoomChanged()));

    const int farther = isSmall ? -120 : 120;
    QTest::keyClick(view.get(), isSmall ? Qt::Key_Minus : Qt::Key_Plus);
    turnWheel(Qt::ControlModifier, {20, 20}, farther);
    turnWheel(Qt::ControlModifier, {20, 20}, 0);
    QCOMPARE(view->zoomPercent(), fitted);
    QVERIFY(view->zoomMode() == ReportView::ZoomMode::FitWidth);
    QCOMPARE(changed.size(), 0);

    turnWheel(Qt::ControlModifier, {20, 20}, -farther);
    QVERIFY(isSmall ? view->zoomPercent() > fitted : view->zoomPercent() < fitted);
    QVERIFY(view->zoomMode() == ReportView::ZoomMode::Fixed);
    QCOMPARE(changed.size(), 1);
}

void TestReportView::fixedModeKeepsTheFittedSize()
{
    view->resize(320, 300);
    const double fitted = view->zoomPercent();
    QVERIFY(fitted < ReportView::kSmallestZoomPercent);

    view->setZoomMode(ReportView::ZoomMode::Fixed);
    view->resize(600, 500);

    QCOMPARE(view->zoomPercent(), fitted);
}

void TestReportView::modeIsToldOnce()
{
    QSignalSpy changed(view.get(), SIGNAL(zoomChanged()));

    const double fitted = view->zoomPercent();
    view->setZoomMode(ReportView::ZoomMode::FitPage);
    QVERIFY(view->zoomPercent() != fitted);
    QCOMPARE(changed.size(), 1);
    view->setZoomMode(ReportView::ZoomMode::FitPage);
    QCOMPARE(changed.size(), 1);
    view->setZoomMode(ReportView::ZoomMode::Fixed);
    QCOMPARE(changed.size(), 2);
}

void TestReportView::wheelWithControlZoomsAtThePointer()
{
    view->setZoomPercent(200);
    view->goToPage(1);
    view->verticalScrollBar()->setValue(view->verticalScrollBar()->value() + 300);
    const QPoint pointer(150, 320);
    const QRect before = view->pageRect(1);
    const double share = double(pointer.y() - before.top()) / before.height();

    turnWheel(Qt::ControlModifier, pointer, 120);

    QCOMPARE(view->zoomPercent(), 250.0);
    const QRect after = view->pageRect(1);
    QVERIFY(qAbs(after.top() + share * after.height() - pointer.y()) <= 1.5);
}

void TestReportView::wheelAloneScrolls()
{
    const double percent = view->zoomPercent();

    turnWheel(Qt::NoModifier, {100, 100}, -120);

    QCOMPARE(view->zoomPercent(), percent);
    QVERIFY(view->verticalScrollBar()->value() > 0);
}

void TestReportView::fitWidthFollowsTheView()
{
    view->setZoomMode(ReportView::ZoomMode::FitWidth);
    for (const int width : {600, 750}) {
        view->resize(width, 500);
        const int room = view->viewport()->width() - view->pageRect(0).width();
        QVERIFY2(room >= 20 && room <= 36, qPrintable(QString::number(room)));
        QCOMPARE(view->horizontalScrollBar()->maximum(), 0);
    }
}

void TestReportView::fitPageShowsTheWholeSheet()
{
    view->setZoomMode(ReportView::ZoomMode::FitPage);
    view->goToPage(2);

    QVERIFY(view->viewport()->rect().contains(view->pageRect(2)));
    QVERIFY(view->pageRect(2).height() > view->viewport()->height() * 9 / 10);
}

void TestReportView::paperIsWhiteWithAnEdgeInDarkColours()
{
    QPalette dark = view->palette();
    dark.setColor(QPalette::Mid, QColor(40, 40, 40));
    dark.setColor(QPalette::Dark, QColor(20, 20, 20));
    view->setPalette(dark);

    const QImage image = picture();
    const QPoint corner = view->pageRect(0).topLeft();
    QCOMPARE(image.pixelColor(corner + QPoint(4, 4)), QColor(Qt::white));
    QCOMPARE(image.pixelColor(corner - QPoint(1, 1)), QColor(20, 20, 20));
    QCOMPARE(image.pixelColor(corner - QPoint(4, 4)), QColor(40, 40, 40));
}

/// At 400 percent sheets are painted where they are seen, not kept as pictures: scrolled to the
/// same place, both ways show the same patch.
void TestReportView::largePagesArePaintedAsSmallOnes()
{
    for (const double percent : {100.0, 400.0}) {
        view->setZoomPercent(percent);
        view->goToPage(0);
        // The first patch of the cover.
        const double pixels = percent / 100 * view->logicalDpiX() / 72;
        const QPointF patch(60, 175);
        const QPoint place = view->pageRect(0).topLeft() + (patch * pixels).toPoint();
        view->horizontalScrollBar()->setValue(place.x() - 100);
        view->verticalScrollBar()->setValue(place.y() - 100);
        const QPoint seen = view->pageRect(0).topLeft() + (patch * pixels).toPoint();
        QCOMPARE(picture().pixelColor(seen).name(), QColor(115, 81, 67).name());
    }
}

/// A page kept at the common resolution would show each of its pixels as a square of four.
void TestReportView::pagesAreSharpOnFineScreens()
{
    picture();
    const QImage fine = PixelProbe(*view->viewport(), 2).image();
    int steps[2] = {};
    for (int y = 0; y < fine.height(); ++y) {
        for (int x = 0; x + 1 < fine.width(); ++x) {
            steps[x % 2] += fine.pixel(x, y) != fine.pixel(x + 1, y) ? 1 : 0;
        }
    }
    // Wherever the squares begin, colours would change at every other pixel only.
    const int fewer = qMin(steps[0], steps[1]);
    const int more = qMax(steps[0], steps[1]);
    QVERIFY2(more > 500 && fewer > more / 2,
             qPrintable(QStringLiteral("%1 of %2").arg(fewer).arg(more)));
}

void TestReportView::anotherReportKeepsThePlace()
{
    view->goToPage(3);
    ChartReportOptions options;
    options.tolerance = 2;

    show(options);

    QCOMPARE(view->currentPage(), 3);
}

void TestReportView::sheetsAreReadByScreenReaders()
{
    view->setZoomMode(ReportView::ZoomMode::FitPage);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(view.get());
    QVERIFY(accessible->childCount() >= view->pageCount());
    QAccessibleInterface *sheet = accessible->child(0);
    QCOMPARE(sheet->role(), QAccessible::Document);
    QCOMPARE(sheet->childCount(), view->report()->pageTexts(0).size());
    const QRect seen = view->pageRect(0);
    const QPoint corner = view->viewport()->mapToGlobal(seen.topLeft());
    QVERIFY((sheet->rect().topLeft() - corner).manhattanLength() <= 2);
    for (int index = 0; index < sheet->childCount(); ++index) {
        QVERIFY(!sheet->child(index)->text(QAccessible::Name).trimmed().isEmpty());
        QVERIFY(sheet->rect().adjusted(-2, -2, 2, 2).contains(sheet->child(index)->rect()));
    }
    QVERIFY(!sheet->state().offscreen);
    view->goToPage(view->pageCount() - 1);
    QVERIFY(sheet->state().offscreen);
}

void TestReportView::anotherReportIsReadAnew()
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(view.get());
    const QAccessible::Id sheet = QAccessible::uniqueId(accessible->child(0));
    const int parts = accessible->childCount() - view->pageCount();
    view->setDocument(nullptr);
    QVERIFY(!QAccessible::accessibleInterface(sheet));
    QCOMPARE(accessible->childCount(), parts);
}

int main(int argc, char **argv)
{
    return runTest<TestReportView>(argc, argv);
}

#include "tst_ReportView.moc"
