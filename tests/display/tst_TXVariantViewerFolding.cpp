#include "TXVariantViewer.h"
#include "TestBase.h"
#include "VariantViewerFoldingHelpers.h"

#include <QGridLayout>
#include <QPointer>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <functional>
#include <utility>

using FoldingTest::child;
using FoldingTest::entries;
using FoldingTest::key;
using FoldingTest::line;
using FoldingTest::text;

namespace {

void click(QWidget *widget, int x, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(widget, button, {}, {x, 5});
}

/// Does something whenever the viewer tells that its size may have changed.
class OnResized : public QObject
{
    Q_OBJECT

public:
    OnResized(TXVariantViewer *viewer, std::function<void()> work)
        : task(std::move(work))
    {
        connect(viewer, SIGNAL(resized()), this, SLOT(run()));
    }

private slots:
    void run() { task(); }

private:
    std::function<void()> task;
};

} // namespace

/// What a viewer has in it when it is open, and how it gets there and back.
class TestTXVariantViewerFolding : public TestBase
{
    Q_OBJECT

private slots:
    void listShowsAViewerForEachElement_data();
    void listShowsAViewerForEachElement();
    void mapShowsAKeyAndAViewerForEachEntry_data();
    void mapShowsAKeyAndAViewerForEachEntry();
    void entriesTakeThePreviewOver();
    void foldingShowsTheLineAgain();
    void foldingTwiceChangesNothingButTellsSo();
    void unfoldingTwiceMakesTheEntriesAnew();
    void valueIsShownFolded();
    void deeperLevelsAreForgotten();
    void deeperLevelsTellThatTheSizeMayHaveChanged();
    void focusGoesToTheViewerThatFolds();
    void clickUnfoldsAnywhereAndFoldsOnTheMargin();
    void valueMayChangeWithinAClick_data();
    void valueMayChangeWithinAClick();
    void valueEndsFoldedWhateverASlotDoes();
    void slotMayDeleteTheViewerWhileItGetsAValue();
};

void TestTXVariantViewerFolding::listShowsAViewerForEachElement_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("list") << QVariant(QVariantList{1, QVariantList{2}, QVariant()});
    QTest::newRow("strings") << QVariant(
        QStringList{QStringLiteral("b"), QStringLiteral("a"), QStringLiteral("b")});
}

void TestTXVariantViewerFolding::listShowsAViewerForEachElement()
{
    QFETCH(QVariant, value);
    TXVariantViewer viewer(nullptr);
    viewer.setValue(value);
    auto *label = viewer.findChild<QLabel *>();
    const QSignalSpy resized(&viewer, SIGNAL(resized()));

    viewer.expand();

    QVERIFY(viewer.isExpanded());
    QCOMPARE(resized.count(), 1);
    QVERIFY(label->isHidden());
    QCOMPARE(viewer.layout()->indexOf(label), -1);
    QCOMPARE(viewer.layout()->contentsMargins(), QMargins(21, 0, 0, 0));
    const QVariantList list = value.toList();
    QCOMPARE(entries(viewer).size(), list.size());
    for (int i = 0; i < list.size(); ++i) {
        QVERIFY(child(viewer, i) != nullptr);
        QCOMPARE(child(viewer, i)->parentWidget(), &viewer);
        QCOMPARE(text(child(viewer, i)), line(list.at(i)));
        QVERIFY(!child(viewer, i)->isHidden());
    }
}

void TestTXVariantViewerFolding::mapShowsAKeyAndAViewerForEachEntry_data()
{
    QTest::addColumn<QVariant>("value");

    const QVariantMap map{
        {QStringLiteral("z"), 1}, {QStringLiteral("children"), 2}, {QStringLiteral("a"), 3}};
    QTest::newRow("map") << QVariant(map);
    QTest::newRow("hash") << QVariant(QVariantHash{
        {QStringLiteral("z"), 1}, {QStringLiteral("children"), 2}, {QStringLiteral("a"), 3}});
}

void TestTXVariantViewerFolding::mapShowsAKeyAndAViewerForEachEntry()
{
    QFETCH(QVariant, value);
    TXVariantViewer viewer(nullptr);
    viewer.setValue(value);

    viewer.expand();

    const auto *grid = qobject_cast<QGridLayout *>(viewer.layout());
    const QStringList keys{QStringLiteral("a"), QStringLiteral("children"), QStringLiteral("z")};
    QCOMPARE(grid->count(), 6);
    QCOMPARE(grid->contentsMargins(), QMargins(21, 0, 0, 0));
    for (int row = 0; row < 3; ++row) {
        const auto *label = qobject_cast<QLabel *>(grid->itemAtPosition(row, 0)->widget());
        const auto *entry = grid->itemAtPosition(row, 1)->widget();
        QCOMPARE(label->text(), key(keys.at(row)));
        QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignTop);
        QCOMPARE(label->cursor().shape(), Qt::ArrowCursor);
        QVERIFY(label->autoFillBackground());
        QCOMPARE(text(entry), line(value.toMap().value(keys.at(row))));
        QCOMPARE(entry->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred));
        QCOMPARE(entries(viewer).at(qsizetype(2) * row), label);
        QCOMPARE(entries(viewer).at(qsizetype(2) * row + 1), entry);
    }
}

void TestTXVariantViewerFolding::entriesTakeThePreviewOver()
{
    TXVariantViewer viewer(nullptr);
    const QVariant element = QVariantList{1};
    viewer.setValue(QVariantList{element});

    viewer.setPreview(false);
    viewer.expand();
    auto *entry = child(viewer, 0);
    QVERIFY(!entry->hasPreview());
    QCOMPARE(text(entry), line(element, false));

    viewer.setPreview(true);
    QVERIFY(!entry->hasPreview());
    viewer.expand();
    QVERIFY(child(viewer, 0)->hasPreview());
    QCOMPARE(text(child(viewer, 0)), line(element));
}

void TestTXVariantViewerFolding::foldingShowsTheLineAgain()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantMap{{QStringLiteral("a"), 1}});
    auto *label = viewer.findChild<QLabel *>();
    viewer.expand();
    const QList<QWidget *> widgets = entries(viewer);
    const QPointer<QWidget> first = widgets.at(0);
    const QPointer<QWidget> second = widgets.at(1);
    const QSignalSpy resized(&viewer, SIGNAL(resized()));

    viewer.collapse();

    QVERIFY(!viewer.isExpanded());
    QCOMPARE(resized.count(), 1);
    QCOMPARE(entries(viewer), QList<QWidget *>{label});
    QVERIFY(!label->isHidden());
    QCOMPARE(viewer.layout()->contentsMargins(), QMargins(14, 0, 0, 0));
    QVERIFY(first && second);
    QTRY_VERIFY(!first && !second);
}

void TestTXVariantViewerFolding::foldingTwiceChangesNothingButTellsSo()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList{1});
    const QSignalSpy resized(&viewer, SIGNAL(resized()));

    viewer.collapse();
    viewer.setExpanded(false);

    QCOMPARE(resized.count(), 2);
    QCOMPARE(viewer.layout()->count(), 1);
    QCOMPARE(viewer.layout()->contentsMargins(), QMargins(14, 0, 0, 0));
}

void TestTXVariantViewerFolding::unfoldingTwiceMakesTheEntriesAnew()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList{1, 2});
    viewer.expand();
    const QPointer<QWidget> old = child(viewer, 0);
    const QSignalSpy resized(&viewer, SIGNAL(resized()));

    viewer.setExpanded(true);

    QCOMPARE(resized.count(), 1);
    QCOMPARE(entries(viewer).size(), 2);
    QVERIFY(entries(viewer).at(0) != old);
    QTRY_VERIFY(!old);
    QCOMPARE(viewer.findChildren<TXVariantViewer *>().size(), 2);
}

void TestTXVariantViewerFolding::valueIsShownFolded()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList{1});
    viewer.expand();
    const QSignalSpy resized(&viewer, SIGNAL(resized()));

    viewer.setValue(7);

    QCOMPARE(resized.count(), 2);
    QVERIFY(!viewer.isExpanded());
    QCOMPARE(viewer.layout()->count(), 1);
    QCOMPARE(viewer.layout()->contentsMargins(), QMargins());
    QCOMPARE(text(entries(viewer).at(0)), line(7));
}

void TestTXVariantViewerFolding::deeperLevelsAreForgotten()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList{QVariantList{1}});
    viewer.expand();
    child(viewer, 0)->expand();

    viewer.collapse();
    viewer.expand();

    QVERIFY(!child(viewer, 0)->isExpanded());
}

void TestTXVariantViewerFolding::deeperLevelsTellThatTheSizeMayHaveChanged()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList{QVariantMap{{QStringLiteral("a"), QVariantList{1}}}});
    viewer.expand();
    auto *middle = child(viewer, 0);
    middle->expand();
    auto *inner = child(*middle, 1);
    const QSignalSpy ofInner(inner, SIGNAL(resized()));
    const QSignalSpy ofMiddle(middle, SIGNAL(resized()));
    const QSignalSpy ofRoot(&viewer, SIGNAL(resized()));

    inner->expand();
    inner->setValue(1);

    QCOMPARE(ofInner.count(), 3);
    QCOMPARE(ofMiddle.count(), 3);
    QCOMPARE(ofRoot.count(), 3);
}

void TestTXVariantViewerFolding::focusGoesToTheViewerThatFolds()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *viewer = new TXVariantViewer(&window);
    layout->addWidget(viewer);
    viewer->setFocusPolicy(Qt::StrongFocus);
    viewer->setValue(QVariantList{QVariantList{1}});
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    viewer->expand();
    auto *middle = child(*viewer, 0);
    middle->expand();
    child(*middle, 0)->setFocus();
    QVERIFY(child(*middle, 0)->hasFocus());

    viewer->collapse();

    QVERIFY(viewer->hasFocus());
}

void TestTXVariantViewerFolding::clickUnfoldsAnywhereAndFoldsOnTheMargin()
{
    TXVariantViewer viewer(nullptr);
    viewer.resize(200, 100);
    viewer.setValue(QVariantList{QVariantList{1}});
    viewer.show();

    click(&viewer, 150, Qt::RightButton);
    QVERIFY(!viewer.isExpanded());
    click(&viewer, 150);
    QVERIFY(viewer.isExpanded());
    click(&viewer, 21);
    QVERIFY(viewer.isExpanded());
    click(&viewer, 20, Qt::MiddleButton);
    QVERIFY(viewer.isExpanded());
    click(child(viewer, 0), 2);
    QVERIFY(viewer.isExpanded());
    QVERIFY(child(viewer, 0)->isExpanded());
    click(&viewer, 20);
    QVERIFY(!viewer.isExpanded());
    click(viewer.findChild<QLabel *>(), 100);
    QVERIFY(viewer.isExpanded());
}

void TestTXVariantViewerFolding::valueMayChangeWithinAClick_data()
{
    QTest::addColumn<bool>("isOpenBefore");

    QTest::newRow("that unfolds") << false;
    QTest::newRow("that folds") << true;
}

void TestTXVariantViewerFolding::valueMayChangeWithinAClick()
{
    QFETCH(bool, isOpenBefore);
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList{QVariantMap{{QStringLiteral("a"), 1}}});
    viewer.show();
    viewer.expand();
    const QPointer<TXVariantViewer> clicked = child(viewer, 0);
    clicked->setExpanded(isOpenBefore);
    int calls = 0;
    const OnResized change(&viewer, [&] {
        if (++calls == 1) {
            viewer.setValue(7);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    });

    QTest::mousePress(clicked, Qt::LeftButton, {}, {5, 5});

    QVERIFY(calls > 1);
    QVERIFY(!viewer.isExpandable());
    QCOMPARE(text(&viewer), line(7));
    QTRY_VERIFY(!clicked);
}

void TestTXVariantViewerFolding::valueEndsFoldedWhateverASlotDoes()
{
    TXVariantViewer viewer(nullptr);
    viewer.setValue(QVariantList{1, 2});
    viewer.expand();
    bool isTold = false;
    const OnResized reopen(&viewer, [&] {
        if (!std::exchange(isTold, true)) {
            viewer.expand();
        }
    });

    viewer.setValue(7);

    QVERIFY(isTold);
    QVERIFY(!viewer.isExpanded());
    QCOMPARE(viewer.layout()->count(), 1);
    QCOMPARE(text(entries(viewer).at(0)), line(7));
}

void TestTXVariantViewerFolding::slotMayDeleteTheViewerWhileItGetsAValue()
{
    const QPointer<TXVariantViewer> viewer = new TXVariantViewer(nullptr);
    viewer->setValue(QVariantList{1, 2});
    viewer->expand();
    const OnResized deletion(viewer, [&] { delete viewer.data(); });

    viewer->setValue(QVariantList{3});

    QVERIFY(viewer.isNull());
}

int main(int argc, char **argv)
{
    return runTest<TestTXVariantViewerFolding>(argc, argv);
}

#include "tst_TXVariantViewerFolding.moc"
