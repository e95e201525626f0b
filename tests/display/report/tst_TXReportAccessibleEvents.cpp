#include "TXReportAccessible.h"

#include "AccessibleEvents.h"
#include "ReportTestFont.h"
#include "TXGraphicsScene.h"
#include "TestBase.h"

#include <QGraphicsView>

#include <memory>

/// What assistive programs are told when a report changes.
class TestTXReportAccessibleEvents : public TestBase
{
    Q_OBJECT

private slots:
    void changesAreToldTogether();
    void pagesThatWereAskedForAreToldToBeGone();
    void nothingIsToldOfAViewThatNobodyAskedFor();
    void nothingIsToldWithoutAListener();
    void otherViewsAreLeftAlone();

protected:
    void prepare() override;
    void finish() override;

private:
    void draw() const { scene->drawText("text", {10, 10}, reportTestFont(), Qt::black); }
    [[nodiscard]] QAccessibleInterface *accessible() const
    {
        return QAccessible::queryAccessibleInterface(view.get());
    }

    const QString reordered = QString::number(QAccessible::ObjectReorder);
    const QString destroyed = QString::number(QAccessible::ObjectDestroyed);
    std::unique_ptr<TXGraphicsScene> scene;
    std::unique_ptr<QGraphicsView> view;
};

void TestTXReportAccessibleEvents::prepare()
{
    scene = std::make_unique<TXGraphicsScene>();
    view = std::make_unique<QGraphicsView>(scene.get());
    view->show();
    QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    AccessibleEvents::start(true);
}

void TestTXReportAccessibleEvents::finish()
{
    view.reset();
    scene.reset();
    AccessibleEvents::start(false);
}

void TestTXReportAccessibleEvents::changesAreToldTogether()
{
    QCOMPARE(accessible()->child(0)->childCount(), 0);
    AccessibleEvents::take();
    constexpr int kTexts = 100;
    for (int times = 0; times < kTexts; ++times) {
        draw();
    }
    QCoreApplication::processEvents();
    const qsizetype times = AccessibleEvents::take().count(reordered);
    QVERIFY2(times >= 1 && times < 5, qPrintable(QString::number(times)));
    QCOMPARE(accessible()->child(0)->childCount(), kTexts);
}

void TestTXReportAccessibleEvents::pagesThatWereAskedForAreToldToBeGone()
{
    draw();
    QVERIFY(accessible()->child(0)->child(0));
    AccessibleEvents::take();
    TXReportAccessible::announceChange(view.get());
    QCOMPARE(AccessibleEvents::take(), QStringList({destroyed, reordered}));
    TXReportAccessible::announceChange(view.get());
    QCOMPARE(AccessibleEvents::take(), QStringList(reordered));
}

void TestTXReportAccessibleEvents::nothingIsToldOfAViewThatNobodyAskedFor()
{
    AccessibleEvents::take();
    draw();
    QCoreApplication::processEvents();
    QVERIFY(!AccessibleEvents::take().contains(reordered));
}

void TestTXReportAccessibleEvents::nothingIsToldWithoutAListener()
{
    AccessibleEvents::start(false);
    const QAccessible::Id page = QAccessible::uniqueId(accessible()->child(0));
    TXReportAccessible::announceChange(view.get());
    QCOMPARE(AccessibleEvents::take(), QStringList());
    QVERIFY(!QAccessible::accessibleInterface(page));
}

void TestTXReportAccessibleEvents::otherViewsAreLeftAlone()
{
    QAbstractScrollArea other;
    TXReportAccessible::announceChange(&other);
    TXReportAccessible::announceChange(nullptr);
    QVERIFY(!AccessibleEvents::take().contains(reordered));
}

int main(int argc, char **argv)
{
    return runTest<TestTXReportAccessibleEvents>(argc, argv);
}

#include "tst_TXReportAccessibleEvents.moc"
