#include "TXLogRowMapping.h"

#include "TestBase.h"

#include <QRandomGenerator>

#include <memory>

class TestTXLogRowMapping : public TestBase
{
    Q_OBJECT

private slots:
    void newSourceRowsAreHidden();
    void rowsAreShownWhereTheyAreTold();
    void droppedRowMovesAllOthersUp();
    void rowsOutsideAreNowhere();
    void mappingBelowIsFoundByItsNumber();
    void hiddenRowLetsGoWhatIsBelow();
    void handedOutMappingIsNoLongerInUse();
    void equalsPlainListsOverManyChanges_data();
    void equalsPlainListsOverManyChanges();
};

void TestTXLogRowMapping::newSourceRowsAreHidden()
{
    TXLogRowMapping mapping;
    mapping.appendSourceRows(3);

    QCOMPARE(mapping.sourceCount(), 3);
    QCOMPARE(mapping.shownCount(), 0);
    QCOMPARE(mapping.shownRowOf(1), -1);
}

void TestTXLogRowMapping::rowsAreShownWhereTheyAreTold()
{
    TXLogRowMapping mapping;
    mapping.appendSourceRows(4);

    mapping.show(2, 0);
    mapping.show(0, 1);
    mapping.show(3, 0);
    mapping.show(1, 1);

    QCOMPARE(mapping.shownSourceRows(), QList<qsizetype>({3, 1, 2, 0}));
    for (qsizetype row = 0; row < 4; ++row) {
        QCOMPARE(mapping.shownRowOf(mapping.sourceRowAt(row)), row);
    }
}

void TestTXLogRowMapping::droppedRowMovesAllOthersUp()
{
    TXLogRowMapping mapping;
    mapping.appendSourceRows(3);
    mapping.showOnly({2, 1, 0});
    TXLogRowMapping *below = mapping.makeBelow(2);

    mapping.hide(2, 2);
    mapping.dropFirstSourceRow();

    QCOMPARE(mapping.sourceCount(), 2);
    QCOMPARE(mapping.shownSourceRows(), QList<qsizetype>({1, 0}));
    QCOMPARE(mapping.below(1), below);
    QCOMPARE(below->sourceRowInAbove(), 1);
    QCOMPARE(below->above(), &mapping);
}

void TestTXLogRowMapping::rowsOutsideAreNowhere()
{
    TXLogRowMapping mapping;
    mapping.appendSourceRows(1);
    mapping.show(0, 0);

    QCOMPARE(mapping.sourceRowAt(1), -1);
    QCOMPARE(mapping.shownRowOf(1), -1);
    QCOMPARE(mapping.shownRowOf(-1), -1);
    QVERIFY(!mapping.below(5));
    QVERIFY(!mapping.below(-1));
}

void TestTXLogRowMapping::mappingBelowIsFoundByItsNumber()
{
    TXLogRowMapping mapping;
    mapping.appendSourceRows(2);
    mapping.showOnly({0, 1});
    TXLogRowMapping *below = mapping.makeBelow(0);
    below->appendSourceRows(1);
    below->showOnly({0});
    TXLogRowMapping *deep = below->makeBelow(0);
    const quintptr id = deep->id();

    QCOMPARE(mapping.find(0), &mapping);
    QCOMPARE(mapping.find(below->id()), below);
    QCOMPARE(mapping.find(id), deep);
    QVERIFY(below->id() != id);

    mapping.hide(0, 0);
    QVERIFY(!mapping.find(id));
    QVERIFY(mapping.makeBelow(1)->id() != id);
}

void TestTXLogRowMapping::hiddenRowLetsGoWhatIsBelow()
{
    TXLogRowMapping mapping;
    mapping.appendSourceRows(2);
    mapping.showOnly({0, 1});
    mapping.makeBelow(1);
    QCOMPARE(mapping.allBelow().size(), 1);

    mapping.hide(1, 1);

    QVERIFY(!mapping.below(1));
    QVERIFY(mapping.allBelow().isEmpty());
}

void TestTXLogRowMapping::handedOutMappingIsNoLongerInUse()
{
    TXLogRowMapping mapping;
    mapping.appendSourceRows(2);
    mapping.showOnly({0, 1});
    TXLogRowMapping *stays = mapping.makeBelow(0);
    TXLogRowMapping *goes = mapping.makeBelow(1);
    goes->appendSourceRows(1);
    goes->showOnly({0});
    const TXLogRowMapping *deep = goes->makeBelow(0);

    const QList<TXLogRowMapping *> handedOut = mapping.showOnly({0});

    QCOMPARE(handedOut, QList<TXLogRowMapping *>({goes}));
    const std::unique_ptr<TXLogRowMapping> owner(handedOut.first());
    QVERIFY(stays->isInUse());
    QVERIFY(!goes->isInUse());
    QVERIFY(!deep->isInUse());
    QVERIFY(mapping.isInUse());
}

void TestTXLogRowMapping::equalsPlainListsOverManyChanges_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 8; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestTXLogRowMapping::equalsPlainListsOverManyChanges()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    TXLogRowMapping mapping;
    qsizetype sourceCount = 0;
    QList<qsizetype> shown;

    for (int step = 0; step < 400; ++step) {
        switch (random.bounded(6)) {
        case 0:
        case 1:
        case 2: {
            mapping.appendSourceRows(1);
            const qsizetype place = random.bounded(int(shown.size()) + 1);
            mapping.show(sourceCount, place);
            shown.insert(place, sourceCount++);
            break;
        }
        case 3:
            mapping.appendSourceRows(1);
            ++sourceCount;
            break;
        case 4:
            if (sourceCount > 0) {
                if (const qsizetype row = shown.indexOf(0); row >= 0) {
                    mapping.hide(row, row);
                    shown.removeAt(row);
                }
                mapping.dropFirstSourceRow();
                --sourceCount;
                for (qsizetype &row : shown) {
                    --row;
                }
            }
            break;
        default:
            if (!shown.isEmpty()) {
                const qsizetype first = random.bounded(int(shown.size()));
                const qsizetype last = qMin<qsizetype>(first + random.bounded(3), shown.size() - 1);
                mapping.hide(first, last);
                shown.remove(first, last - first + 1);
            }
        }
        QCOMPARE(mapping.sourceCount(), sourceCount);
        QCOMPARE(mapping.shownSourceRows(), shown);
        for (qsizetype row = 0; row < sourceCount; ++row) {
            QCOMPARE(mapping.shownRowOf(row), shown.indexOf(row));
        }
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXLogRowMapping>(argc, argv);
}

#include "tst_TXLogRowMapping.moc"
