#include "TXSplitter.h"

#include "ApplicationPicture.h"
#include "ControlTestHelpers.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QAccessible>
#include <QLabel>

#include <memory>
#include <optional>

namespace {

constexpr int kLength = 100;
constexpr int kHandleWidth = 9;
constexpr int kMiddle = 4;
constexpr int kGrip = 40;
const QString kVerticalGrip = QStringLiteral("VerticalSplitter.png");
const QString kHorizontalGrip = QStringLiteral("HorizontalSplitter.png");

} // namespace

/// A splitter with the two pictures beside the program, 40 long for a horizontal one and 20 for a
/// vertical one.
class TestTXSplitter : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void orientationIsAsGiven();
    void handlesAreOfTheLibrary();
    void lineHasAGapOfTheGripsSize_data();
    void lineHasAGapOfTheGripsSize();
    void lineIsOnePixelWide_data();
    void lineIsOnePixelWide();
    void lineEndsAtTheEdges_data();
    void lineEndsAtTheEdges();
    void frameMovesTheEndsOfTheLine_data();
    void frameMovesTheEndsOfTheLine();
    void capsReachHalfAPixelIntoTheGap();
    void missingPictureLeavesNoGap();
    void damagedPictureLeavesNoGap();
    void hugeGripLeavesTheEnds();
    void noHandleWidthDrawsNothing();
    void styleIsDrawnBelow();
    void turnedSplitterKeepsTheOldGap();
    void handleMadeAfterTurningHasTheOtherGap();
    void insertedWidgetsGetHandles();
    void dragMovesTheBorder();
    void assistiveToolsSeeAGrip();

private:
    void make(Qt::Orientation orientation);
    void orientationRows();
    QSplitterHandle *handle() const { return splitter->handle(1); }
    /// The place on the handle: along its line from the start, across from the left or the top.
    QPoint place(int along, int across = kMiddle) const
    {
        return handle()->orientation() == Qt::Horizontal ? QPoint(across, along)
                                                         : QPoint(along, across);
    }
    bool isBlack(int along, int across = kMiddle, qreal ratio = 1.0) const
    {
        return PixelProbe(*handle(), ratio).isNear(place(along, across), Qt::black);
    }

    std::optional<ApplicationPicture> vertical;
    std::optional<ApplicationPicture> horizontal;
    std::unique_ptr<TXSplitter> splitter;
};

void TestTXSplitter::prepare()
{
    vertical.emplace(kVerticalGrip, QSize(5, kGrip), Qt::red);
    horizontal.emplace(kHorizontalGrip, QSize(kGrip / 2, 7), Qt::red);
    QVERIFY(vertical->isInstalled() && horizontal->isInstalled());
}

void TestTXSplitter::finish()
{
    splitter.reset();
    vertical.reset();
    horizontal.reset();
}

void TestTXSplitter::make(Qt::Orientation orientation)
{
    splitter = std::make_unique<TXSplitter>(orientation, nullptr);
    splitter->setHandleWidth(kHandleWidth);
    splitter->addWidget(new QLabel("Source"));
    splitter->addWidget(new QLabel("Proof"));
    splitter->resize(orientation == Qt::Horizontal ? QSize(300, kLength) : QSize(kLength, 300));
    splitter->show();
    QVERIFY(QTest::qWaitForWindowExposed(splitter.get()));
}

void TestTXSplitter::orientationRows()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<bool>("isDark");
    for (const qreal ratio : {1.0, 2.0}) {
        for (const bool isDark : {false, true}) {
            const char *palette = isDark ? "dark" : "light";
            QTest::addRow("horizontal, ratio %g, %s", ratio, palette)
                << Qt::Horizontal << ratio << isDark;
            QTest::addRow("vertical, ratio %g, %s", ratio, palette)
                << Qt::Vertical << ratio << isDark;
        }
    }
}

void TestTXSplitter::orientationIsAsGiven()
{
    QCOMPARE(TXSplitter().orientation(), Qt::Horizontal);
    QCOMPARE(TXSplitter(Qt::Vertical).orientation(), Qt::Vertical);
    QWidget parent;
    QCOMPARE((new TXSplitter(&parent))->parentWidget(), &parent);
    QCOMPARE((new TXSplitter(Qt::Vertical, &parent))->parentWidget(), &parent);
}

void TestTXSplitter::handlesAreOfTheLibrary()
{
    make(Qt::Vertical);
    QVERIFY(qobject_cast<TXSplitterHandle *>(splitter->handle(0)));
    QVERIFY(qobject_cast<TXSplitterHandle *>(handle()));
    QCOMPARE(handle()->orientation(), Qt::Vertical);
    QCOMPARE(handle()->splitter(), splitter.get());
}

void TestTXSplitter::lineHasAGapOfTheGripsSize_data()
{
    orientationRows();
}

void TestTXSplitter::lineHasAGapOfTheGripsSize()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(qreal, ratio);
    QFETCH(bool, isDark);
    make(orientation);
    splitter->setPalette(isDark ? darkPalette() : QPalette());
    const int half = (orientation == Qt::Horizontal ? kGrip : kGrip / 2) / 2;
    const int centre = kLength / 2;

    // The square cap covers half a pixel more at both ends of the gap.
    for (const int along : {1, 10, centre - half - 2, centre - half - 1}) {
        QVERIFY(isBlack(along, kMiddle, ratio));
        QVERIFY(isBlack(kLength - 1 - along, kMiddle, ratio));
    }
    for (const int along : {centre - half + 1, centre - half + 2, centre - 1}) {
        QVERIFY(!isBlack(along, kMiddle, ratio));
        QVERIFY(!isBlack(kLength - 1 - along, kMiddle, ratio));
    }
}

void TestTXSplitter::lineIsOnePixelWide_data()
{
    orientationRows();
}

void TestTXSplitter::lineIsOnePixelWide()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(qreal, ratio);
    make(orientation);
    for (int across = 0; across < kHandleWidth; ++across) {
        QCOMPARE(isBlack(10, across, ratio), across == kMiddle);
        QCOMPARE(isBlack(kLength - 10, across, ratio), across == kMiddle);
    }
}

void TestTXSplitter::lineEndsAtTheEdges_data()
{
    orientationRows();
}

void TestTXSplitter::lineEndsAtTheEdges()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(qreal, ratio);
    make(orientation);
    QVERIFY(isBlack(0, kMiddle, ratio));
    QVERIFY(isBlack(kLength - 2, kMiddle, ratio));
}

void TestTXSplitter::frameMovesTheEndsOfTheLine_data()
{
    orientationRows();
}

void TestTXSplitter::frameMovesTheEndsOfTheLine()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(qreal, ratio);
    make(orientation);
    constexpr int kFrame = 12;
    splitter->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    splitter->setLineWidth(kFrame);
    QCoreApplication::sendPostedEvents();
    const int length = kLength - 2 * kFrame;
    QCOMPARE(orientation == Qt::Horizontal ? handle()->height() : handle()->width(), length);
    QCOMPARE(orientation == Qt::Horizontal ? handle()->y() : handle()->x(), kFrame);

    QVERIFY(!isBlack(0, kMiddle, ratio));
    QVERIFY(!isBlack(kFrame - 2, kMiddle, ratio));
    QVERIFY(isBlack(kFrame, kMiddle, ratio));
    // The other end lies outside, so that the line runs up to the border.
    QVERIFY(isBlack(length - 1, kMiddle, ratio));
    // The centre stays the handle's own.
    const int half = (orientation == Qt::Horizontal ? kGrip : kGrip / 2) / 2;
    QVERIFY(isBlack(length / 2 - half - 1, kMiddle, ratio));
    QVERIFY(!isBlack(length / 2 - half + 1, kMiddle, ratio));
    QVERIFY(isBlack(length / 2 + half + 1, kMiddle, ratio));
}

void TestTXSplitter::capsReachHalfAPixelIntoTheGap()
{
    make(Qt::Horizontal);
    const QImage picture = PixelProbe(*handle(), 2.0).image();
    const int column = 2 * kMiddle;
    const int start = 2 * (kLength - kGrip) / 2;
    const int end = 2 * (kLength + kGrip) / 2;
    QCOMPARE(picture.pixelColor(column, start), QColor(Qt::black));
    QVERIFY(picture.pixelColor(column, start + 1) != QColor(Qt::black));
    QVERIFY(picture.pixelColor(column, end - 2) != QColor(Qt::black));
    QCOMPARE(picture.pixelColor(column, end - 1), QColor(Qt::black));
}

void TestTXSplitter::missingPictureLeavesNoGap()
{
    vertical.reset();
    make(Qt::Horizontal);
    for (int along = 0; along < kLength - 1; ++along) {
        QVERIFY(isBlack(along));
    }
}

void TestTXSplitter::damagedPictureLeavesNoGap()
{
    QFile file(ApplicationPicture::pathOf(kVerticalGrip));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("no picture at all") > 0);
    file.close();
    make(Qt::Horizontal);
    QVERIFY(isBlack(kLength / 2));
}

/// A gap longer than the handle: both lines turn back from the ends and are seen nowhere else.
void TestTXSplitter::hugeGripLeavesTheEnds()
{
    vertical.emplace(kVerticalGrip, QSize(3, 5000), Qt::red);
    make(Qt::Horizontal);
    for (int along = 1; along < kLength - 2; ++along) {
        QVERIFY(!isBlack(along));
    }
}

void TestTXSplitter::noHandleWidthDrawsNothing()
{
    make(Qt::Horizontal);
    splitter->setHandleWidth(0);
    QCoreApplication::sendPostedEvents();
    QVERIFY(handle()->width() > 0);
    const PixelProbe probe(*handle());
    QCOMPARE(probe.countColours(handle()->rect()), 1);

    splitter->setHandleWidth(1);
    QCoreApplication::sendPostedEvents();
    QVERIFY(PixelProbe(*handle()).countColours(handle()->rect()) > 1);
}

/// Where a style sheet has its picture, the line leaves room for it.
void TestTXSplitter::styleIsDrawnBelow()
{
    make(Qt::Horizontal);
    splitter->setStyleSheet("QSplitter::handle { background: #ffff00; image: url('"
                            + ApplicationPicture::pathOf(kVerticalGrip) + "'); }");
    const PixelProbe probe(*handle());
    QVERIFY(probe.isNear({1, 10}, Qt::yellow));
    QVERIFY(probe.isNear({kMiddle, 10}, Qt::black));
    QVERIFY(probe.isNear({kMiddle, kLength / 2 - kGrip / 2 + 3}, Qt::red));
    QVERIFY(probe.isNear({kMiddle, kLength / 2 + kGrip / 2 - 4}, Qt::red));
}

void TestTXSplitter::turnedSplitterKeepsTheOldGap()
{
    make(Qt::Horizontal);
    splitter->setOrientation(Qt::Vertical);
    splitter->resize(kLength, 300);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(handle()->size(), QSize(kLength, kHandleWidth));
    QVERIFY(isBlack(kLength / 2 - kGrip / 2 - 2));
    QVERIFY(!isBlack(kLength / 2 - kGrip / 2 + 2));
}

void TestTXSplitter::handleMadeAfterTurningHasTheOtherGap()
{
    make(Qt::Horizontal);
    splitter->setOrientation(Qt::Vertical);
    splitter->resize(kLength, 300);
    splitter->addWidget(new QLabel("Difference"));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    const PixelProbe probe(*splitter->handle(2));
    QVERIFY(probe.isNear({kLength / 2 - kGrip / 4 - 2, kMiddle}, Qt::black));
    QVERIFY(!probe.isNear({kLength / 2 - kGrip / 4 + 2, kMiddle}, Qt::black));
}

void TestTXSplitter::insertedWidgetsGetHandles()
{
    make(Qt::Horizontal);
    splitter->insertWidget(1, new QLabel("Between"));
    splitter->insertWidget(0, new QLabel("First"));
    QCOMPARE(splitter->count(), 4);
    for (int i = 0; i < splitter->count(); ++i) {
        QVERIFY(qobject_cast<TXSplitterHandle *>(splitter->handle(i)));
    }
    delete splitter->widget(2);
    QCOMPARE(splitter->findChildren<TXSplitterHandle *>().size(), 3);
}

void TestTXSplitter::dragMovesTheBorder()
{
    make(Qt::Horizontal);
    const int before = splitter->sizes().first();
    const QPoint start = handle()->rect().center();
    QTest::mousePress(handle(), Qt::LeftButton, {}, start);
    QTest::mouseMove(handle(), start + QPoint(30, 0));
    QTest::mouseRelease(handle(), Qt::LeftButton, {}, start);
    QVERIFY(splitter->sizes().first() > before);
}

void TestTXSplitter::assistiveToolsSeeAGrip()
{
    make(Qt::Horizontal);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(handle());
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Grip);
}

int main(int argc, char **argv)
{
    return runTest<TestTXSplitter>(argc, argv);
}

#include "tst_TXSplitter.moc"
