#include "TXVariantViewer.h"
#include "TestBase.h"
#include "VariantViewerFoldingHelpers.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <QWindow>

using FoldingTest::child;
using FoldingTest::entries;

/// Where the entries of an open viewer stand, and what is seen of them.
class TestTXVariantViewerFoldingLayout : public TestBase
{
    Q_OBJECT

private slots:
    void layoutDoesNotGrowWithEachFold();
    void listAfterAMapStandsInOneColumn();
    void entriesOfAShownViewerAreShownAndLaidOut();
    void foldedEntriesLeaveThePicture();
    void notationRunsFromLeftToRightInAnyDirection();
    void entriesAmongNativeWidgetsAreShown();
};

void TestTXVariantViewerFoldingLayout::layoutDoesNotGrowWithEachFold()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList{1, 2, 3});
    auto *grid = qobject_cast<QGridLayout *>(viewer.layout());

    for (int fold = 0; fold < 20; ++fold) {
        viewer.expand();
        viewer.collapse();
    }

    QCOMPARE(grid->rowCount(), 4);
    QCOMPARE(grid->columnCount(), 1);
}

void TestTXVariantViewerFoldingLayout::listAfterAMapStandsInOneColumn()
{
    TXVariantViewer viewer(nullptr);
    viewer.resize(300, 300);
    viewer.setValue(QVariantMap{{QStringLiteral("a long key"), 1}, {QStringLiteral("b"), 1}});
    viewer.show();
    viewer.expand();
    viewer.setValue(QVariantList{1, 2, 3});
    viewer.expand();

    for (int i = 0; i < 3; ++i) {
        QCOMPARE(child(viewer, i)->x(), 21);
        QCOMPARE(child(viewer, i)->width(), 279);
    }
    QVERIFY(child(viewer, 0)->geometry().bottom() < child(viewer, 1)->y());
    viewer.collapse();
    QTRY_COMPARE(viewer.findChild<QLabel *>()->geometry(), QRect(14, 0, 286, 300));
}

void TestTXVariantViewerFoldingLayout::entriesOfAShownViewerAreShownAndLaidOut()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *viewer = new TXVariantViewer(&window);
    layout->addWidget(viewer);
    viewer->setValue(QVariantMap{{QStringLiteral("a"), QVariantList{1}}, {QStringLiteral("b"), 1}});
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const int height = viewer->sizeHint().height();

    viewer->expand();
    child(*viewer, 1)->expand();

    for (const QWidget *widget : entries(*viewer) + entries(*child(*viewer, 1))) {
        QVERIFY(widget->isVisible());
        QVERIFY(!widget->testAttribute(Qt::WA_DontShowOnScreen));
    }
    QVERIFY(!viewer->testAttribute(Qt::WA_TransparentForMouseEvents));
    QTRY_COMPARE(viewer->sizeHint().height(), 2 * height);
    const QList<QWidget *> widgets = entries(*viewer);
    QCOMPARE(widgets.at(0)->x(), 21);
    QCOMPARE(widgets.at(1)->geometry().right(), viewer->width() - 1);
    QVERIFY(widgets.at(0)->geometry().bottom() < widgets.at(2)->y());
    const QPoint inEntry = widgets.at(3)->geometry().center();
    QCOMPARE(viewer->childAt(inEntry), widgets.at(3)->findChild<QLabel *>());
}

void TestTXVariantViewerFoldingLayout::foldedEntriesLeaveThePicture()
{
    TXVariantViewer viewer(nullptr);
    viewer.resize(200, 100);
    viewer.setValue(QVariantList{QStringLiteral("first"), QStringLiteral("second")});
    viewer.show();
    const QImage before = viewer.grab().toImage();

    viewer.expand();
    QVERIFY(viewer.grab().toImage() != before);
    viewer.collapse();
    viewer.layout()->activate();

    QCOMPARE(viewer.grab().toImage(), before);
    QCOMPARE(viewer.childAt(50, 50), viewer.findChild<QLabel *>());
}

void TestTXVariantViewerFoldingLayout::notationRunsFromLeftToRightInAnyDirection()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *viewer = new TXVariantViewer(&window);
    layout->addWidget(viewer);
    viewer->setValue(QVariantMap{{QStringLiteral("a"), QVariantList{1}}});
    window.resize(300, 100);
    window.show();
    QCOMPARE(viewer->findChild<QLabel *>()->geometry(), QRect(14, 0, 286, 100));

    viewer->expand();

    const QWidget *keyOfEntry = entries(*viewer).at(0);
    TXVariantViewer *entry = child(*viewer, 1);
    QCOMPARE(keyOfEntry->x(), 21);
    QCOMPARE(entry->x(), 21 + keyOfEntry->width());
    QCOMPARE(entry->findChild<QLabel *>()->x(), 14);
}

void TestTXVariantViewerFoldingLayout::entriesAmongNativeWidgetsAreShown()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *viewer = new TXVariantViewer(&window);
    layout->addWidget(viewer);
    viewer->setValue(QVariantList{1, 2});
    window.show();
    // What comes to stand beside a native widget becomes native, too.
    QVERIFY(viewer->findChild<QLabel *>()->winId() != 0);

    viewer->expand();

    for (int i = 0; i < 2; ++i) {
        QVERIFY(child(*viewer, i)->windowHandle() != nullptr);
        QVERIFY(child(*viewer, i)->windowHandle()->isVisible());
        QVERIFY(child(*viewer, i)->findChild<QLabel *>()->isVisible());
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXVariantViewerFoldingLayout>(argc, argv);
}

#include "tst_TXVariantViewerFoldingLayout.moc"
