#include "TreeViewDragAndDrop.h"

#include "TestBase.h"
#include "TreeDropHelpers.h"

#include <QIdentityProxyModel>
#include <QMetaMethod>
#include <QStandardItemModel>

#include <memory>

namespace {

using Folders = ProfileFolders<AskedFolders>;

/// The view before the event loop has expanded it: rows Printing, Screens.
struct AskedTree
{
    QMimeData data;
    QList<DropQuestion> questions;
    Folders folders;
    AskedProxy proxy;
    QSharedPointer<AskedStrategy> strategy = QSharedPointer<AskedStrategy>::create();
    DropTree view;

    explicit AskedTree(bool hasProxy)
    {
        data.setText("dragged");
        folders.model.policy = {"folders", &questions};
        proxy.policy = {"proxy", &questions};
        strategy->policy = {"strategy", &questions};
        proxy.setSourceModel(&folders.model);
        view.setModel(hasProxy ? static_cast<QAbstractItemModel *>(&proxy) : &folders.model);
        view.setDropStrategy(strategy);
    }

    [[nodiscard]] QStringList asked() const
    {
        QStringList names;
        for (const DropQuestion &question : questions) {
            names.append(question.policy);
        }
        return names;
    }

    /// The middle of the row in the view.
    [[nodiscard]] QPointF middle(int row) const
    {
        return view.visualRect(view.model()->index(row, 0)).center();
    }
};

} // namespace

class TestTreeViewDragAndDrop : public TestBase
{
    Q_OBJECT

private slots:
    void signalsAndSlotsStandInTheirOrder();
    void everyPolicyIsAskedInItsOrder();
    void aFolderModelWithoutProxyIsAskedAsModelToo();
    void firstRefusalEndsTheRound_data();
    void firstRefusalEndsTheRound();
    void policiesGetPlaceDataAndAction();
    void policiesGetThePlaceOverTheEmptyPart();
    void dragRefusedByTheViewReachesNoPolicy();
    void modelWithoutExpansionIsAskedToo();
    void twoProxiesHideTheFolderModel();
    void plainModelBehavesAsInATreeView();
    void noEventIsNoQuestion();
    void lastReferenceToTheStrategyIsTheViews();
    void strategyMayReplaceItself();
    void strategyMayTakeItselfAway();
    void strategyMayDeleteTheView_data();
    void strategyMayDeleteTheView();
    void folderModelMayDeleteTheView();
    void policyMayDeleteTheModel();
};

void TestTreeViewDragAndDrop::signalsAndSlotsStandInTheirOrder()
{
    const QMetaObject &meta = TreeViewDragAndDrop::staticMetaObject;
    QList<QByteArray> signatures;
    QList<QMetaMethod::MethodType> types;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        signatures.append(meta.method(i).methodSignature());
        types.append(meta.method(i).methodType());
    }

    QCOMPARE(
        signatures,
        (QList<QByteArray>{"hasBeenCollapsed(QModelIndex)", "hasBeenExpanded(QModelIndex)",
                           "hasToBeCollasped(QModelIndex)", "hasToBeExpanded(QModelIndex)",
                           "cursorEntreLeaveWidget(bool)", "itemDataDropped(QString,QString)",
                           "itemHasBeenCollasped(QModelIndex)", "itemHasBeenExpanded(QModelIndex)",
                           "itemHasToBeCollapsed(QModelIndex)", "itemHasToBeExpanded(QModelIndex)",
                           "expandAllItems()"}));
    QCOMPARE(types.count(QMetaMethod::Signal), 6);
    QCOMPARE(types.last(), QMetaMethod::Slot);
}

void TestTreeViewDragAndDrop::everyPolicyIsAskedInItsOrder()
{
    AskedTree tree(true);

    QVERIFY(tree.view.move(tree.data, tree.middle(0)));

    QCOMPARE(tree.asked(), (QStringList{"folders", "proxy", "strategy"}));
}

void TestTreeViewDragAndDrop::aFolderModelWithoutProxyIsAskedAsModelToo()
{
    AskedTree tree(false);

    QVERIFY(tree.view.move(tree.data, tree.middle(0)));

    QCOMPARE(tree.asked(), (QStringList{"folders", "folders", "strategy"}));
}

void TestTreeViewDragAndDrop::firstRefusalEndsTheRound_data()
{
    QTest::addColumn<QString>("refuses");
    QTest::addColumn<QStringList>("asked");

    QTest::newRow("folder model") << "folders" << QStringList{"folders"};
    QTest::newRow("view's model") << "proxy" << QStringList{"folders", "proxy"};
    QTest::newRow("strategy") << "strategy" << QStringList{"folders", "proxy", "strategy"};
}

void TestTreeViewDragAndDrop::firstRefusalEndsTheRound()
{
    QFETCH(const QString, refuses);
    AskedTree tree(true);
    for (AskedPolicy *policy :
         {&tree.folders.model.policy, &tree.proxy.policy, &tree.strategy->policy}) {
        policy->answer = policy->name != refuses;
    }

    QVERIFY(!tree.view.move(tree.data, tree.middle(0)));

    QTEST(tree.asked(), "asked");
}

void TestTreeViewDragAndDrop::policiesGetPlaceDataAndAction()
{
    AskedTree tree(true);
    const QRect second = tree.view.visualRect(tree.proxy.index(1, 0));

    QVERIFY(tree.view.move(tree.data, second.center(), Qt::CopyAction));
    QVERIFY(
        tree.view.move(tree.data, QPoint(second.center().x(), second.bottom()), Qt::MoveAction));

    QCOMPARE(tree.questions.size(), 6);
    for (const DropQuestion &question : qAsConst(tree.questions)) {
        QCOMPARE(QModelIndex(question.index), tree.proxy.index(1, 0));
        QCOMPARE(question.data, &tree.data);
    }
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(tree.questions[i].action, Qt::CopyAction);
        QCOMPARE(tree.questions[i].position, IDropAllowedStrategy::OnItem);
        QCOMPARE(tree.questions[i + 3].action, Qt::MoveAction);
        QCOMPARE(tree.questions[i + 3].position, IDropAllowedStrategy::BelowItem);
    }
}

void TestTreeViewDragAndDrop::policiesGetThePlaceOverTheEmptyPart()
{
    AskedTree tree(true);

    QVERIFY(tree.view.move(tree.data, QPointF(20, 280)));

    QCOMPARE(tree.questions.size(), 3);
    for (const DropQuestion &question : qAsConst(tree.questions)) {
        QVERIFY(!question.index.isValid());
        QCOMPARE(question.position, IDropAllowedStrategy::OnViewport);
    }
}

void TestTreeViewDragAndDrop::dragRefusedByTheViewReachesNoPolicy()
{
    AskedTree tree(true);
    tree.folders.model.isOpen = false;

    QVERIFY(!tree.view.move(tree.data, tree.middle(0)));

    QCOMPARE(tree.asked(), QStringList());
}

void TestTreeViewDragAndDrop::modelWithoutExpansionIsAskedToo()
{
    QMimeData data;
    QStandardItemModel source;
    source.appendRow(new QStandardItem("A"));
    data.setData(source.mimeTypes().first(), QByteArray());
    QList<DropQuestion> questions;
    AskedProxy proxy;
    proxy.policy = {"proxy", &questions, false};
    proxy.setSourceModel(&source);
    DropTree view;
    view.setModel(&proxy);

    QVERIFY(!view.moveOnto(data, proxy.index(0, 0)));

    QCOMPARE(questions.size(), 1);
}

void TestTreeViewDragAndDrop::twoProxiesHideTheFolderModel()
{
    AskedTree tree(true);
    QIdentityProxyModel second;
    second.setSourceModel(&tree.proxy);
    tree.view.setModel(&second);

    QVERIFY(tree.view.move(tree.data, tree.middle(0)));

    QCOMPARE(tree.asked(), QStringList{"strategy"});
}

void TestTreeViewDragAndDrop::plainModelBehavesAsInATreeView()
{
    struct PlainTree : QTreeView
    {
        using QTreeView::dragMoveEvent;
    };
    QStandardItemModel model;
    model.invisibleRootItem()->setDropEnabled(false);
    for (int i = 0; i < 4; ++i) {
        auto *item = new QStandardItem(QString::number(i));
        item->setDropEnabled(i % 2 == 0);
        model.appendRow(item);
    }
    QMimeData data;
    data.setData(model.mimeTypes().first(), QByteArray());
    DropTree view;
    PlainTree plain;
    plain.setHeaderHidden(true);
    plain.setDragDropMode(QAbstractItemView::DragDrop);
    plain.resize(view.size());
    view.setModel(&model);
    plain.setModel(&model);

    int acceptedCount = 0;
    for (int y = 0; y < view.height(); ++y) {
        QDragMoveEvent event({40, y}, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        plain.dragMoveEvent(&event);
        QCOMPARE(view.move(data, QPointF(40, y)), event.isAccepted());
        acceptedCount += event.isAccepted() ? 1 : 0;
    }
    QVERIFY(acceptedCount > 0 && acceptedCount < view.height());
}

void TestTreeViewDragAndDrop::noEventIsNoQuestion()
{
    AskedTree tree(true);

    tree.view.dragMoveEvent(nullptr);

    QCOMPARE(tree.asked(), QStringList());
}

void TestTreeViewDragAndDrop::lastReferenceToTheStrategyIsTheViews()
{
    AskedTree tree(true);
    const QWeakPointer<AskedStrategy> first = tree.strategy;
    tree.strategy.reset();
    QVERIFY(first);

    tree.view.setDropStrategy(QSharedPointer<AskedStrategy>::create());
    QVERIFY(!first);
    tree.view.setDropStrategy(nullptr);

    QVERIFY(tree.view.move(tree.data, tree.middle(0)));
    QCOMPARE(tree.asked(), (QStringList{"folders", "proxy"}));
}

void TestTreeViewDragAndDrop::strategyMayReplaceItself()
{
    AskedTree tree(true);
    const QWeakPointer<AskedStrategy> first = tree.strategy;
    auto second = QSharedPointer<AskedStrategy>::create();
    second->policy = {"second", &tree.questions, false};
    bool livesWhileAsked = false;
    tree.strategy->policy.whenAsked = [&tree, &first, &livesWhileAsked, second] {
        tree.view.setDropStrategy(second);
        livesWhileAsked = !first.isNull();
    };
    tree.strategy.reset();

    QVERIFY(tree.view.move(tree.data, tree.middle(0)));
    QVERIFY(livesWhileAsked);
    QVERIFY(!first);
    QVERIFY(!tree.view.move(tree.data, tree.middle(0)));

    QCOMPARE(tree.asked().count("strategy"), 1);
    QCOMPARE(tree.asked().last(), QString("second"));
}

void TestTreeViewDragAndDrop::strategyMayTakeItselfAway()
{
    AskedTree tree(true);
    tree.strategy->policy.answer = false;
    tree.strategy->policy.whenAsked = [&tree] {
        tree.view.setDropStrategy(nullptr);
    };
    tree.strategy.reset();

    QVERIFY(!tree.view.move(tree.data, tree.middle(0)));
    QVERIFY(tree.view.move(tree.data, tree.middle(0)));
}

void TestTreeViewDragAndDrop::strategyMayDeleteTheView_data()
{
    QTest::addColumn<bool>("answer");

    QTest::newRow("and allow") << true;
    QTest::newRow("and refuse") << false;
}

void TestTreeViewDragAndDrop::strategyMayDeleteTheView()
{
    QFETCH(const bool, answer);
    Folders folders;
    QMimeData data;
    auto view = std::make_unique<DropTree>();
    auto strategy = QSharedPointer<AskedStrategy>::create();
    const QWeakPointer<AskedStrategy> kept = strategy;
    strategy->policy = {"strategy", nullptr, answer, [&view] {
                            view.reset();
                        }};
    view->setModel(&folders.model);
    view->setDropStrategy(std::move(strategy));

    QVERIFY(!view->moveOnto(data, folders.screens));

    QVERIFY(!view);
    QVERIFY(!kept);
}

void TestTreeViewDragAndDrop::folderModelMayDeleteTheView()
{
    Folders folders;
    QMimeData data;
    auto view = std::make_unique<DropTree>();
    folders.model.policy.whenAsked = [&view] {
        view.reset();
    };
    view->setModel(&folders.model);

    QVERIFY(!view->moveOnto(data, folders.screens));

    QVERIFY(!view);
}

void TestTreeViewDragAndDrop::policyMayDeleteTheModel()
{
    QMimeData data;
    QList<DropQuestion> questions;
    auto folders = std::make_unique<AskedFolders>();
    const QModelIndex folder = folders->addFolder("A");
    auto strategy = QSharedPointer<AskedStrategy>::create();
    strategy->policy = {"strategy", &questions};
    DropTree view;
    view.setModel(folders.get());
    view.setDropStrategy(strategy);
    folders->policy.whenAsked = [&folders] {
        folders.reset();
    };

    QVERIFY(view.moveOnto(data, folder));

    QCOMPARE(questions.size(), 1);
    QVERIFY(!questions.first().index.isValid());
    QCOMPARE(view.model(), nullptr);
}

int main(int argc, char **argv)
{
    return runTest<TestTreeViewDragAndDrop>(argc, argv);
}

#include "tst_TreeViewDragAndDrop.moc"
