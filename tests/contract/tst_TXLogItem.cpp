#include "TXLogItem.h"
#include "TestBase.h"

namespace {

QSharedPointer<TXLogItem> makeItem(const char *text = "item")
{
    return TXLogItem::create(TXLogItem::Information, TXStringI18n::fromString(text));
}

} // namespace

class TestTXLogItem : public TestBase
{
    Q_OBJECT

private slots:
    void createdItemHoldsWhatItWasGiven();
    void addedChildKnowsItsParent();
    void childThatHasAParentIsNotAddedAgain();
    void nothingAndTheItemItselfAreNoChildren();
    void takenChildIsTheOldestAndLeavesTheTree();
    void everythingBelowATakenItemLeavesTheTree();
    void removeAllChildrenEmptiesTheItem();
    void numbersStayWhenOlderSiblingsGo();
    void itemPutIntoChildrenByHandIsNumberedWhenAsked();
    void childThatOutlivesItsParentHasNone();
    void sharedPointerTypeIsKnownByName();
};

void TestTXLogItem::createdItemHoldsWhatItWasGiven()
{
    const QDateTime date(QDate(2026, 3, 1), QTime(12, 30));

    const auto item = TXLogItem::create(7, TXStringI18n::fromString(QStringLiteral("text")), date);

    QCOMPARE(item->level, 7);
    QCOMPARE(item->message.toString(nullptr), QStringLiteral("text"));
    QCOMPARE(item->date, date);
    QVERIFY(item->children.isEmpty());
    QVERIFY(!item->parent);
    QVERIFY(!TXLogItem::create(1, {}, QDateTime())->date.isValid());
}

void TestTXLogItem::addedChildKnowsItsParent()
{
    const auto parent = makeItem();
    const auto child = makeItem();

    parent->addChild(child);

    QCOMPARE(child->parent, parent.data());
    QCOMPARE(parent->children, QList<QSharedPointer<TXLogItem>>({child}));
}

void TestTXLogItem::childThatHasAParentIsNotAddedAgain()
{
    const auto parent = makeItem();
    const auto other = makeItem();
    const auto child = makeItem();
    parent->addChild(child);

    parent->addChild(child);
    other->addChild(child);

    QCOMPARE(parent->children.size(), 1);
    QCOMPARE(other->children.size(), 0);
    QCOMPARE(child->parent, parent.data());
}

void TestTXLogItem::nothingAndTheItemItselfAreNoChildren()
{
    const auto item = makeItem();

    item->addChild({});
    item->addChild(item);

    QVERIFY(item->children.isEmpty());
}

void TestTXLogItem::takenChildIsTheOldestAndLeavesTheTree()
{
    const auto parent = makeItem();
    const auto first = makeItem();
    const auto second = makeItem();
    parent->addChild(first);
    parent->addChild(second);

    QCOMPARE(parent->takeFirstChild(), first);

    QVERIFY(!first->isInTree());
    QVERIFY(second->isInTree());
    QCOMPARE(first->parent, parent.data());
    QCOMPARE(parent->takeFirstChild(), second);
    QVERIFY(!parent->takeFirstChild());
}

void TestTXLogItem::everythingBelowATakenItemLeavesTheTree()
{
    const auto root = makeItem();
    const auto middle = makeItem();
    const auto leaf = makeItem();
    root->addChild(middle);
    middle->addChild(leaf);
    QVERIFY(leaf->isInTree());
    QCOMPARE(root->depth(), 0);
    QCOMPARE(leaf->depth(), 2);

    root->takeFirstChild();

    QVERIFY(!leaf->isInTree());
    QVERIFY(root->isInTree());
}

void TestTXLogItem::removeAllChildrenEmptiesTheItem()
{
    const auto parent = makeItem();
    const auto child = makeItem();
    parent->addChild(child);
    parent->addChild(makeItem());

    parent->removeAllChildren();

    QVERIFY(parent->children.isEmpty());
    QVERIFY(!child->isInTree());
}

void TestTXLogItem::numbersStayWhenOlderSiblingsGo()
{
    const auto parent = makeItem();
    for (int i = 0; i < 5; ++i) {
        parent->addChild(makeItem());
    }
    parent->takeFirstChild();
    parent->takeFirstChild();
    parent->addChild(makeItem());

    QList<qint64> numbers;
    for (const auto &child : qAsConst(parent->children)) {
        numbers.append(child->number());
    }
    QCOMPARE(numbers, QList<qint64>({2, 3, 4, 5}));
}

void TestTXLogItem::itemPutIntoChildrenByHandIsNumberedWhenAsked()
{
    const auto parent = makeItem();
    parent->addChild(makeItem());
    const auto byHand = makeItem();
    QCOMPARE(byHand->number(), 0);

    byHand->parent = parent.data();
    parent->children.append(byHand);

    QCOMPARE(byHand->number(), 1);
    QCOMPARE(byHand->number(), 1);
}

void TestTXLogItem::childThatOutlivesItsParentHasNone()
{
    const auto child = makeItem();
    {
        const auto parent = makeItem();
        parent->addChild(child);
    }
    QVERIFY(!child->parent);
}

void TestTXLogItem::sharedPointerTypeIsKnownByName()
{
    qRegisterMetaType<QSharedPointer<TXLogItem>>();

    QVERIFY(QMetaType::fromName("QSharedPointer<TXLogItem>").isValid());
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogItem>(argc, argv);
}

#include "tst_TXLogItem.moc"
