#include "PixelProbe.h"
#include "TestBase.h"
#include "WorkVeil.h"

#include "WaitWidget.h"

#include <QPushButton>
#include <QSignalSpy>

#include <memory>

class TestWorkVeil : public TestBase
{
    Q_OBJECT

private slots:
    void nothingIsShownAtFirst();
    void spinnerStandsInTheMiddle();
    void secondCallReplacesTheSpinner();
    void spinnerStaysInTheMiddleOfAChangingArea();
    void endTakesItAway();
    void endWithoutABeginDoesNothing();
    void sizeBelowOneIsOne();
    void plateIsLightInEveryPalette_data();
    void plateIsLightInEveryPalette();
    void mouseGoesThrough();

protected:
    void prepare() override;
    void finish() override;

private:
    QList<WaitWidget *> spinners() const { return area->findChildren<WaitWidget *>(); }
    QRect placeInArea(const WaitWidget *spinner) const
    {
        return {spinner->mapTo(area.get(), QPoint()), spinner->size()};
    }

    std::unique_ptr<QWidget> area;
    WorkVeil *veil = nullptr;
};

void TestWorkVeil::prepare()
{
    area = std::make_unique<QWidget>();
    area->resize(200, 120);
    veil = new WorkVeil(area.get());
    area->show();
    QVERIFY(QTest::qWaitForWindowExposed(area.get()));
}

void TestWorkVeil::finish()
{
    area.reset();
}

void TestWorkVeil::nothingIsShownAtFirst()
{
    QVERIFY(!veil->isVisible());
    QVERIFY(spinners().isEmpty());
}

void TestWorkVeil::spinnerStandsInTheMiddle()
{
    veil->begin(48);

    QCOMPARE(spinners().size(), 1);
    QVERIFY(spinners().first()->isVisible());
    QCOMPARE(placeInArea(spinners().first()), QRect(76, 36, 48, 48));
}

void TestWorkVeil::secondCallReplacesTheSpinner()
{
    veil->begin(48);
    veil->begin(24);

    QTRY_COMPARE(spinners().size(), 1);
    QCOMPARE(placeInArea(spinners().first()), QRect(88, 48, 24, 24));
}

void TestWorkVeil::spinnerStaysInTheMiddleOfAChangingArea()
{
    veil->begin(48);

    area->resize(400, 300);

    QCOMPARE(veil->size(), QSize(400, 300));
    QCOMPARE(placeInArea(spinners().first()), QRect(176, 126, 48, 48));
}

void TestWorkVeil::endTakesItAway()
{
    veil->begin(48);

    veil->end();

    QVERIFY(!veil->isVisible());
    QVERIFY(spinners().isEmpty());
    area->resize(300, 200);
    veil->begin(20);
    QCOMPARE(placeInArea(spinners().first()), QRect(140, 90, 20, 20));
}

void TestWorkVeil::endWithoutABeginDoesNothing()
{
    veil->end();
    veil->end();

    QVERIFY(!veil->isVisible());
}

void TestWorkVeil::sizeBelowOneIsOne()
{
    veil->begin(-5);

    QCOMPARE(spinners().first()->size(), QSize(1, 1));
}

void TestWorkVeil::plateIsLightInEveryPalette_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<qreal>("ratio");
    for (const qreal ratio : {1.0, 2.0}) {
        QTest::addRow("light at %.0f", ratio) << QColor(240, 240, 240) << ratio;
        QTest::addRow("dark at %.0f", ratio) << QColor(30, 32, 36) << ratio;
    }
}

void TestWorkVeil::plateIsLightInEveryPalette()
{
    QFETCH(QColor, window);
    QFETCH(qreal, ratio);
    QPalette palette = area->palette();
    palette.setColor(QPalette::Window, window);
    area->setPalette(palette);
    veil->begin(48);

    const PixelProbe probe(*area, ratio);

    // The middle of the spinner is free of bars.
    QVERIFY(probe.at({100, 60}).lightness() > 215);
    // The rightmost bar is the one that lights up first.
    QVERIFY(probe.at({118, 60}).lightness() < 80);
    QVERIFY(probe.isNear({10, 60}, window));
}

void TestWorkVeil::mouseGoesThrough()
{
    auto *button = new QPushButton(area.get());
    button->setGeometry(area->rect());
    button->show();
    QSignalSpy clicked(button, SIGNAL(clicked()));
    veil->begin(48);

    QCOMPARE(area->childAt(100, 60), button);
    QTest::mouseClick(area->windowHandle(), Qt::LeftButton, {}, {100, 60});

    QCOMPARE(clicked.count(), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestWorkVeil>(argc, argv);
}

#include "tst_WorkVeil.moc"
