#include "TXReportAccessible.h"

#include "ReportTestFont.h"
#include "TXGraphicsScene.h"
#include "TXTable.h"
#include "TestBase.h"

#include <QApplication>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsView>
#include <QScreen>

#include <memory>

namespace {

QAccessibleInterface *accessibleOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QStringList textsOf(const QAccessibleInterface &page)
{
    QStringList texts;
    for (int index = 0; index < page.childCount(); ++index) {
        texts.append(page.child(index)->text(QAccessible::Name));
    }
    return texts;
}

} // namespace

/// What a screen reader learns of a scene in a view.
class TestTXReportAccessible : public TestBase
{
    Q_OBJECT

private slots:
    void sceneIsAPageOfTheView();
    void textsAreReadFromTheTopAndFromTheLeft();
    void tableIsReadRowByRow();
    void cellOfSeveralLinesIsReadInItsRow();
    void hiddenAndBlankTextsAreNotRead();
    void richTextIsReadAsPlain();
    void textsStandWhereTheyAreSeen();
    void textsOutsideOfTheViewAreOffTheScreen();
    void placeOnTheScreenGivesTheText();
    void addedTextIsRead();
    void anotherSceneIsRead();
    void sceneThatIsDestroyedIsNoPageAnyMore();
    void viewWithoutSceneHasNoPage();
    void foreignSceneIsNoPage();
    void secondViewShowsTheSamePage();
    void childrenBehindThePageAreThoseOfTheView();
    void nothingIsMadeBeforeItIsAskedFor();
    void destroyedViewTakesItsInterfacesAlong();
    void textsFarOutOrNowhereDoNoHarm();
    void emptySceneIsAnEmptyPage();
    void changeTakesHeldInterfacesAway();
    void destroyedViewHearsNoPendingChange();
    void sceneOfTheViewsOwnGoesWithIt();

protected:
    void prepare() override;
    void finish() override;

private:
    void draw(const QString &text, const QPointF &place) const
    {
        scene->drawText(text, place, reportTestFont(), Qt::black);
    }
    [[nodiscard]] QAccessibleInterface *page() const { return accessibleOf(view.get())->child(0); }

    std::unique_ptr<QGraphicsView> view;
    std::unique_ptr<TXGraphicsScene> scene;
};

void TestTXReportAccessible::prepare()
{
    // Asked for its interface before there is any scene, as assistive programs do.
    view = std::make_unique<QGraphicsView>();
    QVERIFY(accessibleOf(view.get()));
    scene = std::make_unique<TXGraphicsScene>();
    view->setScene(scene.get());
    view->resize(400, 300);
    view->show();
    QVERIFY(QTest::qWaitForWindowActive(view.get()));
}

void TestTXReportAccessible::finish()
{
    view.reset();
    scene.reset();
}

void TestTXReportAccessible::sceneIsAPageOfTheView()
{
    draw("Cover", {10, 10});
    QVERIFY(page());
    QVERIFY(page()->isValid());
    QCOMPARE(page()->role(), QAccessible::Document);
    QCOMPARE(page()->text(QAccessible::Name), "Page 1 of 1");
    QCOMPARE(page()->parent(), accessibleOf(view.get()));
    QCOMPARE(accessibleOf(view.get())->indexOfChild(page()), 0);
    QVERIFY(page()->state().readOnly);

    QAccessibleInterface *text = page()->child(0);
    QCOMPARE(text->role(), QAccessible::StaticText);
    QCOMPARE(text->parent(), page());
    QCOMPARE(page()->indexOfChild(text), 0);
    QCOMPARE(text->childCount(), 0);
    QCOMPARE(text->window(), view->windowHandle());
    QCOMPARE(page()->child(1), nullptr);
    QCOMPARE(page()->child(-1), nullptr);
}

void TestTXReportAccessible::textsAreReadFromTheTopAndFromTheLeft()
{
    draw("right", {100, 52});
    draw("below", {10, 90});
    draw("left", {10, 50});
    draw("title", {60, 10});
    QCOMPARE(textsOf(*page()), QStringList({"title", "left", "right", "below"}));
}

void TestTXReportAccessible::tableIsReadRowByRow()
{
    TXTable table(2, false);
    TXTable::initHeaderOfTableWithTitles(table, {"Patch", "Density"}, false, 0);
    for (const char *text : {"Cyan", "1.42", "Magenta", "1.51"}) {
        table.addCell({{"CellElement", QString(text)}, {"CellSize", QSizeF(60, 20)}});
    }
    scene->drawTable(table, {0, 0}, reportTestFont());
    QCOMPARE(textsOf(*page()),
             QStringList({"Patch", "Density", "Cyan", "1.42", "Magenta", "1.51"}));
}

void TestTXReportAccessible::cellOfSeveralLinesIsReadInItsRow()
{
    TXTable table(2, false);
    for (const char *text : {"Cyan", "1.42\n1.44\n1.47", "Magenta\nmatte", "1.51"}) {
        table.addCell({{"CellElement", QString(text)}, {"CellSize", QSizeF(60, 50)}});
    }
    scene->drawTable(table, {0, 0}, reportTestFont());
    QCOMPARE(textsOf(*page()), QStringList({"Cyan", "1.42\n1.44\n1.47", "Magenta\nmatte", "1.51"}));
}

void TestTXReportAccessible::hiddenAndBlankTextsAreNotRead()
{
    draw("seen", {10, 10});
    draw("  ", {10, 40});
    draw("hidden", {10, 70});
    scene->items(Qt::AscendingOrder).constLast()->hide();
    QCOMPARE(textsOf(*page()), QStringList("seen"));
}

void TestTXReportAccessible::richTextIsReadAsPlain()
{
    scene->addText(QString())->setHtml("<b>bold</b> text");
    QCOMPARE(textsOf(*page()), QStringList("bold text"));
}

void TestTXReportAccessible::textsStandWhereTheyAreSeen()
{
    draw("here", {30, 40});
    scene->setSceneRect(0, 0, 200, 100);
    view->scale(2, 2);
    const QRectF inScene = scene->items().constFirst()->sceneBoundingRect();
    const QRect inView = view->mapFromScene(inScene).boundingRect();
    const QRect expected(view->viewport()->mapToGlobal(inView.topLeft()), inView.size());
    const QRect told = page()->child(0)->rect();
    QVERIFY((told.topLeft() - expected.topLeft()).manhattanLength() <= 2);
    QVERIFY(qAbs(told.width() - expected.width()) <= 2);
    QVERIFY(page()->rect().contains(told));
    view->hide();
    QCOMPARE(page()->child(0)->rect(), QRect());
}

void TestTXReportAccessible::textsOutsideOfTheViewAreOffTheScreen()
{
    scene->setSceneRect(0, 0, 300, 5000);
    draw("first", {10, 10});
    draw("last", {10, 4900});
    view->centerOn(0, 0);
    QVERIFY(!page()->child(0)->state().offscreen);
    QVERIFY(page()->child(1)->state().offscreen);
    view->centerOn(0, 5000);
    QVERIFY(page()->child(0)->state().offscreen);
    QVERIFY(!page()->child(1)->state().offscreen);
    QVERIFY(!page()->state().offscreen);
}

void TestTXReportAccessible::placeOnTheScreenGivesTheText()
{
    scene->setSceneRect(0, 0, 300, 200);
    draw("one", {10, 10});
    draw("two", {10, 100});
    const QPoint place = page()->child(1)->rect().center();
    QAccessibleInterface *found = accessibleOf(view.get())->childAt(place.x(), place.y());
    QCOMPARE(found, page());
    QCOMPARE(found->childAt(place.x(), place.y()), page()->child(1));
    QCOMPARE(found->childAt(-5000, -5000), nullptr);
}

void TestTXReportAccessible::addedTextIsRead()
{
    draw("one", {10, 10});
    QCOMPARE(textsOf(*page()), QStringList("one"));
    draw("two", {10, 60});
    QTRY_COMPARE(textsOf(*page()), QStringList({"one", "two"}));
    scene->clear();
    QTRY_COMPARE(page()->childCount(), 0);
}

void TestTXReportAccessible::anotherSceneIsRead()
{
    draw("one", {10, 10});
    QCOMPARE(textsOf(*page()), QStringList("one"));
    TXGraphicsScene other;
    other.drawText("other", {0, 0}, reportTestFont(), Qt::black);
    view->setScene(&other);
    QTRY_COMPARE(textsOf(*page()), QStringList("other"));
    view->setScene(scene.get());
}

void TestTXReportAccessible::sceneThatIsDestroyedIsNoPageAnyMore()
{
    draw("one", {10, 10});
    QCOMPARE(textsOf(*page()), QStringList("one"));
    const int before = accessibleOf(view.get())->childCount();
    scene.reset();
    QCOMPARE(accessibleOf(view.get())->childCount(), before - 1);
}

void TestTXReportAccessible::viewWithoutSceneHasNoPage()
{
    QGraphicsView empty;
    const auto *accessible = dynamic_cast<TXReportAccessible *>(accessibleOf(&empty));
    QVERIFY(accessible);
    QCOMPARE(accessible->pageCount(), 0);
    QCOMPARE(accessible->pageTexts(0).size(), 0);
    QCOMPARE(accessible->child(-1), nullptr);
}

void TestTXReportAccessible::foreignSceneIsNoPage()
{
    QGraphicsScene foreign;
    foreign.addSimpleText("foreign");
    QGraphicsView other(&foreign);
    QCOMPARE(dynamic_cast<TXReportAccessible *>(accessibleOf(&other))->pageCount(), 0);
}

void TestTXReportAccessible::secondViewShowsTheSamePage()
{
    draw("one", {10, 10});
    QGraphicsView other(scene.get());
    QCOMPARE(textsOf(*accessibleOf(&other)->child(0)), QStringList("one"));
    QVERIFY(accessibleOf(&other)->child(0) != page());
    QCOMPARE(accessibleOf(&other)->indexOfChild(page()), -1);
}

void TestTXReportAccessible::childrenBehindThePageAreThoseOfTheView()
{
    scene->setSceneRect(0, 0, 300, 5000);
    QAccessibleInterface *accessible = accessibleOf(view.get());
    QVERIFY(accessible->childCount() > 1);
    for (int index = 1; index < accessible->childCount(); ++index) {
        QAccessibleInterface *part = accessible->child(index);
        QVERIFY(part && part->object());
        QCOMPARE(accessible->indexOfChild(part), index);
    }
    QCOMPARE(accessible->child(accessible->childCount()), nullptr);
}

/// Interfaces are numbered in the order in which they are made.
void TestTXReportAccessible::nothingIsMadeBeforeItIsAskedFor()
{
    constexpr int kTexts = 100'000;
    for (int number = 0; number < kTexts; ++number) {
        draw(QString::number(number), {10, 20.0 * number});
    }
    QWidget first;
    QWidget second;
    const QAccessible::Id before = QAccessible::uniqueId(accessibleOf(&first));
    QCOMPARE(page()->childCount(), kTexts);
    QCOMPARE(page()->child(kTexts - 1)->text(QAccessible::Name), QString::number(kTexts - 1));
    const QAccessible::Id after = QAccessible::uniqueId(accessibleOf(&second));
    QVERIFY2(after - before < 10, qPrintable(QString::number(after - before)));
}

void TestTXReportAccessible::destroyedViewTakesItsInterfacesAlong()
{
    draw("one", {10, 10});
    const QAccessible::Id pageId = QAccessible::uniqueId(page());
    const QAccessible::Id textId = QAccessible::uniqueId(page()->child(0));
    QVERIFY(QAccessible::accessibleInterface(textId));
    view.reset();
    QVERIFY(!QAccessible::accessibleInterface(pageId));
    QVERIFY(!QAccessible::accessibleInterface(textId));
}

void TestTXReportAccessible::textsFarOutOrNowhereDoNoHarm()
{
    scene->setSceneRect(0, 0, 300, 200);
    draw("here", {10, 10});
    scene->addSimpleText("far")->setPos(1e18, 1e18);
    scene->addSimpleText("nowhere")->setPos(qQNaN(), 10);
    scene->addSimpleText("at no end")->setPos(10, qInf());
    QCOMPARE(textsOf(*page()), QStringList({"here", "far"}));
    QVERIFY(page()->child(1)->rect().isEmpty());
    QVERIFY(page()->child(1)->state().offscreen);
    scene->clear();
}

void TestTXReportAccessible::emptySceneIsAnEmptyPage()
{
    QVERIFY(page()->isValid());
    QCOMPARE(page()->childCount(), 0);
    QCOMPARE(page()->child(0), nullptr);
    const QPoint middle = page()->rect().center();
    QCOMPARE(page()->childAt(middle.x(), middle.y()), nullptr);
}

/// Assistive programs hold the numbers of interfaces, and ask by them at any time.
void TestTXReportAccessible::changeTakesHeldInterfacesAway()
{
    draw("one", {10, 10});
    const QAccessible::Id pageId = QAccessible::uniqueId(page());
    const QAccessible::Id textId = QAccessible::uniqueId(page()->child(0));
    scene->clear();
    QTRY_COMPARE(QAccessible::accessibleInterface(textId), nullptr);
    QCOMPARE(QAccessible::accessibleInterface(pageId), nullptr);
    QCOMPARE(page()->childCount(), 0);
}

void TestTXReportAccessible::destroyedViewHearsNoPendingChange()
{
    draw("one", {10, 10});
    QCOMPARE(page()->childCount(), 1);
    draw("two", {10, 60});
    view.reset();
    QCoreApplication::processEvents();
    QGraphicsView other(scene.get());
    QCOMPARE(textsOf(*accessibleOf(&other)->child(0)), QStringList({"one", "two"}));
}

void TestTXReportAccessible::sceneOfTheViewsOwnGoesWithIt()
{
    auto *own = new TXGraphicsScene(view.get());
    own->drawText("own", {10, 10}, reportTestFont(), Qt::black);
    view->setScene(own);
    const QAccessible::Id textId = QAccessible::uniqueId(page()->child(0));
    own->drawText("more", {10, 60}, reportTestFont(), Qt::black);
    view.reset();
    QCoreApplication::processEvents();
    QCOMPARE(QAccessible::accessibleInterface(textId), nullptr);
}

int main(int argc, char **argv)
{
    return runTest<TestTXReportAccessible>(argc, argv);
}

#include "tst_TXReportAccessible.moc"
