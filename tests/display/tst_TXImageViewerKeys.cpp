#include "TXImageViewer.h"

#include "ImageViewerEvents.h"
#include "TestBase.h"

#include <QSignalSpy>

#include <memory>

namespace {

constexpr QSize kViewerSize(400, 300);

} // namespace

class TestTXImageViewerKeys : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        viewer = std::make_unique<PaintedViewer>();
        viewer->resize(kViewerSize);
        viewer->setPixmaps({picture(1000, 800), picture(1000, 800)});
        viewer->scale(1.0, TXImageViewer::Absolute);
    }
    void finish() override { viewer.reset(); }

private slots:
    void arrowsPan_data();
    void arrowsPan();
    void arrowsStopAtTheEdges_data();
    void arrowsStopAtTheEdges();
    void arrowsStartFromWhatIsSeen();
    void arrowsLeaveASmallPictureInTheMiddle();
    void arrowsMoveAMirroredPictureTheSameWay();
    void arrowsNeedPictures();
    void keysZoom_data();
    void keysZoom();
    void keysZoomWithinTheLimits_data();
    void keysZoomWithinTheLimits();
    void zoomingByKeysDoesNotEndTheFit();
    void fitByKeyHolds_data();
    void fitByKeyHolds();
    void negativeLimitTurnsZoomingByKeysOff_data();
    void negativeLimitTurnsZoomingByKeysOff();
    void otherKeysAreLeftToTheParent_data();
    void otherKeysAreLeftToTheParent();
    void clickAndTabGiveTheFocus();

private:
    std::unique_ptr<PaintedViewer> viewer;
};

void TestTXImageViewerKeys::arrowsPan_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QPointF>("position");
    const auto add = [](const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers,
                        double scale, QPointF position) {
        QTest::newRow(name) << key << modifiers << scale << position;
    };
    add("right", Qt::Key_Right, {}, 1.0, {-20.0, 0.0});
    add("left", Qt::Key_Left, {}, 1.0, {20.0, 0.0});
    add("down", Qt::Key_Down, {}, 1.0, {0.0, -30.0});
    add("up", Qt::Key_Up, {}, 1.0, {0.0, 30.0});
    add("right, enlarged", Qt::Key_Right, {}, 4.0, {-5.0, 0.0});
    add("down, made smaller", Qt::Key_Down, {}, 0.5, {0.0, -60.0});
    add("right by a pixel", Qt::Key_Right, Qt::ControlModifier, 1.0, {-1.0, 0.0});
    add("left by a pixel", Qt::Key_Left, Qt::ControlModifier, 4.0, {0.25, 0.0});
    add("down by a pixel", Qt::Key_Down, Qt::ControlModifier, 0.5, {0.0, -2.0});
    add("up by a pixel", Qt::Key_Up, Qt::ControlModifier, 1.0, {0.0, 1.0});
    add("keypad", Qt::Key_Right, Qt::KeypadModifier, 1.0, {-20.0, 0.0});
    add("keypad by a pixel", Qt::Key_Right, Qt::KeypadModifier | Qt::ControlModifier, 1.0,
        {-1.0, 0.0});
    add("with Shift", Qt::Key_Up, Qt::ShiftModifier, 1.0, {0.0, 30.0});
}

void TestTXImageViewerKeys::arrowsPan()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const double, scale);
    viewer->scale(scale, TXImageViewer::Absolute);
    viewer->settle();
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    QVERIFY(pressKey(*viewer, key, modifiers));
    QTEST(viewer->position(), "position");
    QVERIFY(viewer->isRepainted());
    QCOMPARE(changed.size(), 0);
}

void TestTXImageViewerKeys::arrowsStopAtTheEdges_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::Key>("back");
    QTest::addColumn<QPointF>("edge");
    QTest::addColumn<QPointF>("afterOneBack");
    const auto add = [](const char *name, Qt::Key key, Qt::Key back, QPointF edge, QPointF after) {
        QTest::newRow(name) << key << back << edge << after;
    };
    add("right", Qt::Key_Right, Qt::Key_Left, {-400.0, 0.0}, {-380.0, 0.0});
    add("left", Qt::Key_Left, Qt::Key_Right, {400.0, 0.0}, {380.0, 0.0});
    add("down", Qt::Key_Down, Qt::Key_Up, {0.0, -250.0}, {0.0, -220.0});
    add("up", Qt::Key_Up, Qt::Key_Down, {0.0, 250.0}, {0.0, 220.0});
}

void TestTXImageViewerKeys::arrowsStopAtTheEdges()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::Key, back);
    QFETCH(const QPointF, edge);
    for (int i = 0; i < 100; ++i) {
        pressKey(*viewer, key);
    }
    QCOMPARE(viewer->position(), edge);
    viewer->settle();
    QCOMPARE(viewer->position(), edge);
    pressKey(*viewer, back);
    QTEST(viewer->position(), "afterOneBack");
}

void TestTXImageViewerKeys::arrowsStartFromWhatIsSeen()
{
    viewer->setPosition({1e6, -1e6});
    pressKey(*viewer, Qt::Key_Right);
    QCOMPARE(viewer->position(), QPointF(380.0, -250.0));
}

void TestTXImageViewerKeys::arrowsLeaveASmallPictureInTheMiddle()
{
    viewer->scale(0.125, TXImageViewer::Absolute);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Down}) {
        QVERIFY(pressKey(*viewer, key));
    }
    QCOMPARE(viewer->position(), QPointF(0.0, 0.0));
}

void TestTXImageViewerKeys::arrowsMoveAMirroredPictureTheSameWay()
{
    viewer->setScaleLimits(-4.0, 4.0);
    viewer->scale(-2.0, TXImageViewer::Absolute);
    pressKey(*viewer, Qt::Key_Right);
    QCOMPARE(viewer->position(), QPointF(10.0, 0.0));
}

void TestTXImageViewerKeys::arrowsNeedPictures()
{
    viewer->setPixmaps({});
    viewer->setPosition({5.0, 6.0});
    QVERIFY(!pressKey(*viewer, Qt::Key_Right));
    QCOMPARE(viewer->position(), QPointF(5.0, 6.0));
}

void TestTXImageViewerKeys::keysZoom_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<double>("scale");
    const auto add = [](const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers,
                        double scale) {
        QTest::newRow(name) << key << modifiers << scale;
    };
    add("plus", Qt::Key_Plus, {}, 8.0);
    add("plus of other layouts", Qt::Key_Plus, Qt::ShiftModifier, 8.0);
    add("plus of the keypad", Qt::Key_Plus, Qt::KeypadModifier, 8.0);
    add("equal", Qt::Key_Equal, {}, 8.0);
    add("minus", Qt::Key_Minus, {}, 2.0);
    add("nought", Qt::Key_0, {}, 0.2);
    add("Home", Qt::Key_Home, {}, 0.2);
    add("one", Qt::Key_1, {}, 1.0);
}

void TestTXImageViewerKeys::keysZoom()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const double, scale);
    viewer->scale(4.0, TXImageViewer::Absolute);
    viewer->settle();
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    QVERIFY(pressKey(*viewer, key, modifiers));
    QCOMPARE(viewer->scale(), scale);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toFloat(), float(scale));
    QVERIFY(viewer->isRepainted());
}

void TestTXImageViewerKeys::keysZoomWithinTheLimits_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<double>("scale");
    QTest::newRow("in") << Qt::Key_Plus << 1.5;
    QTest::newRow("in, unshifted") << Qt::Key_Equal << 1.5;
    QTest::newRow("out") << Qt::Key_Minus << 0.75;
}

void TestTXImageViewerKeys::keysZoomWithinTheLimits()
{
    QFETCH(const Qt::Key, key);
    viewer->setScaleLimits(0.75, 1.5);
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(pressKey(*viewer, key));
        QTEST(viewer->scale(), "scale");
    }
    QCOMPARE(changed.size(), 3);
}

void TestTXImageViewerKeys::zoomingByKeysDoesNotEndTheFit()
{
    viewer->show();
    viewer->scale(TXImageViewer::ScaleFit);
    pressKey(*viewer, Qt::Key_Plus);
    QCOMPARE(viewer->scale(), 0.4);
    viewer->resize(1000, 800);
    QCOMPARE(viewer->scale(), 0.5);
}

void TestTXImageViewerKeys::fitByKeyHolds_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<double>("scale");
    QTest::newRow("nought") << Qt::Key_0 << 0.5;
    QTest::newRow("Home") << Qt::Key_Home << 0.5;
    QTest::newRow("one does not") << Qt::Key_1 << 1.0;
}

void TestTXImageViewerKeys::fitByKeyHolds()
{
    QFETCH(const Qt::Key, key);
    viewer->show();
    viewer->scale(TXImageViewer::ScaleShare);
    pressKey(*viewer, key);
    viewer->resize(1000, 800);
    QTEST(viewer->scale(), "scale");
}

void TestTXImageViewerKeys::negativeLimitTurnsZoomingByKeysOff_data()
{
    QTest::addColumn<Qt::Key>("key");
    for (const Qt::Key key :
         {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Minus, Qt::Key_0, Qt::Key_Home, Qt::Key_1}) {
        QTest::addRow("%x", unsigned(key)) << key;
    }
}

void TestTXImageViewerKeys::negativeLimitTurnsZoomingByKeysOff()
{
    QFETCH(const Qt::Key, key);
    viewer->setScaleLimits(-1.0, 16.0);
    viewer->scale(3.0, TXImageViewer::Absolute);
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    QVERIFY(!pressKey(*viewer, key));
    QCOMPARE(viewer->scale(), 3.0);
    QCOMPARE(changed.size(), 0);
    QVERIFY(pressKey(*viewer, Qt::Key_Right));
}

void TestTXImageViewerKeys::otherKeysAreLeftToTheParent_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const auto add = [](const char *name, Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::newRow(name) << key << modifiers;
    };
    add("letter", Qt::Key_A, {});
    add("End", Qt::Key_End, {});
    add("Return", Qt::Key_Return, {});
    add("Escape", Qt::Key_Escape, {});
    add("two", Qt::Key_2, {});
    add("arrow with Alt", Qt::Key_Left, Qt::AltModifier);
    add("arrow with Meta", Qt::Key_Left, Qt::MetaModifier);
    add("arrow with Control and Alt", Qt::Key_Left, Qt::ControlModifier | Qt::AltModifier);
    add("plus with Control", Qt::Key_Plus, Qt::ControlModifier);
    add("Home with Control", Qt::Key_Home, Qt::ControlModifier);
    add("one with Alt", Qt::Key_1, Qt::AltModifier);
}

void TestTXImageViewerKeys::otherKeysAreLeftToTheParent()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    viewer->setPosition({7.0, 8.0});
    QSignalSpy changed(viewer.get(), SIGNAL(scaleChanged(float)));
    QVERIFY(!pressKey(*viewer, key, modifiers));
    QCOMPARE(viewer->position(), QPointF(7.0, 8.0));
    QCOMPARE(changed.size(), 0);
}

void TestTXImageViewerKeys::clickAndTabGiveTheFocus()
{
    viewer->show();
    QVERIFY(QTest::qWaitForWindowActive(viewer.get()));
    QTest::mouseClick(viewer.get(), Qt::LeftButton);
    QVERIFY(viewer->hasFocus());
    QVERIFY((viewer->focusPolicy() & Qt::TabFocus) == Qt::TabFocus);
}

int main(int argc, char **argv)
{
    return runTest<TestTXImageViewerKeys>(argc, argv);
}

#include "tst_TXImageViewerKeys.moc"
