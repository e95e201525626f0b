#include "RatioTable.h"
#include "TestBase.h"

#include <cmath>

using Measure = RatioTable::Measure;

class TestRatioTable : public TestBase
{
    Q_OBJECT

private slots:
    void ourTimeIsDividedByThePeers();
    void everyPeerIsPairedInTheOrderItCame();
    void pairsAreOfOneFamilyCaseAndMeasure();
    void caseKeepsItsFurtherSlashes();
    void resultsWithoutCounterpartAreLeftOut_data();
    void resultsWithoutCounterpartAreLeftOut();
    void repetitionsCountWithTheirMedian_data();
    void repetitionsCountWithTheirMedian();
    void peerThatTakesNothing();
    void emptyTableHasNoText();
    void textShowsValuesInFittingUnits();
    void markdownIsATable();
};

void TestRatioTable::ourTimeIsDividedByThePeers()
{
    RatioTable table;
    table.add(QStringLiteral("Append/Peer/1000"), Measure::Seconds, 4.0);
    table.add(QStringLiteral("Append/ours/1000"), Measure::Seconds, 1.0);

    const QList<RatioTable::Row> rows = table.rows();

    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().family, QStringLiteral("Append"));
    QCOMPARE(rows.first().caseName, QStringLiteral("1000"));
    QCOMPARE(rows.first().peer, QStringLiteral("Peer"));
    QCOMPARE(rows.first().ours, 1.0);
    QCOMPARE(rows.first().theirs, 4.0);
    QCOMPARE(rows.first().ratio(), 0.25);
}

void TestRatioTable::everyPeerIsPairedInTheOrderItCame()
{
    RatioTable table;
    table.add(QStringLiteral("Append/ours"), Measure::Seconds, 6.0);
    table.add(QStringLiteral("Append/Second"), Measure::Seconds, 3.0);
    table.add(QStringLiteral("Append/First"), Measure::Seconds, 2.0);

    const QList<RatioTable::Row> rows = table.rows();

    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.at(0).peer, QStringLiteral("Second"));
    QCOMPARE(rows.at(0).ratio(), 2.0);
    QCOMPARE(rows.at(1).peer, QStringLiteral("First"));
    QCOMPARE(rows.at(1).ratio(), 3.0);
}

void TestRatioTable::pairsAreOfOneFamilyCaseAndMeasure()
{
    RatioTable table;
    table.add(QStringLiteral("Append/ours/10"), Measure::Seconds, 1.0);
    table.add(QStringLiteral("Append/ours/20"), Measure::Seconds, 2.0);
    table.add(QStringLiteral("Remove/ours/10"), Measure::Seconds, 3.0);
    table.add(QStringLiteral("Append/ours/10"), Measure::BytesPerRow, 40.0);
    table.add(QStringLiteral("Remove/Peer/10"), Measure::Seconds, 3.0);
    table.add(QStringLiteral("Append/Peer/10"), Measure::BytesPerRow, 80.0);
    table.add(QStringLiteral("Append/Peer/20"), Measure::Seconds, 8.0);
    table.add(QStringLiteral("Append/Peer/10"), Measure::Seconds, 2.0);

    QStringList found;
    const QList<RatioTable::Row> rows = table.rows();
    for (const RatioTable::Row &row : rows) {
        found.append(
            QStringLiteral("%1 %2 %3 %4")
                .arg(row.family, row.caseName,
                     row.measure == Measure::Seconds ? QStringLiteral("s") : QStringLiteral("B"))
                .arg(row.ratio()));
    }

    QCOMPARE(found,
             QStringList({QStringLiteral("Append 10 s 0.5"), QStringLiteral("Append 20 s 0.25"),
                          QStringLiteral("Remove 10 s 1"), QStringLiteral("Append 10 B 0.5")}));
}

void TestRatioTable::caseKeepsItsFurtherSlashes()
{
    RatioTable table;
    table.add(QStringLiteral("Filter/ours/1000/3/real_time"), Measure::Seconds, 1.0);
    table.add(QStringLiteral("Filter/Peer/1000/3/real_time"), Measure::Seconds, 1.0);
    table.add(QStringLiteral("Filter/Peer/1000/4/real_time"), Measure::Seconds, 1.0);

    const QList<RatioTable::Row> rows = table.rows();

    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first().caseName, QStringLiteral("1000/3/real_time"));
}

void TestRatioTable::resultsWithoutCounterpartAreLeftOut_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addRow("ours alone") << QStringList{QStringLiteral("A/ours/1")};
    QTest::addRow("peers alone") << QStringList{QStringLiteral("A/P/1"), QStringLiteral("A/Q/1")};
    QTest::addRow("no contestant") << QStringList{QStringLiteral("A"), QStringLiteral("A/ours")};
    QTest::addRow("no family") << QStringList{QStringLiteral("/ours/1"), QStringLiteral("/P/1")};
    QTest::addRow("other case") << QStringList{QStringLiteral("A/ours/1"), QStringLiteral("A/P/2")};
    QTest::addRow("empty") << QStringList{QString(), QString()};
}

void TestRatioTable::resultsWithoutCounterpartAreLeftOut()
{
    QFETCH(QStringList, names);
    RatioTable table;
    for (const QString &name : names) {
        table.add(name, Measure::Seconds, 1.0);
    }

    QCOMPARE(table.rows().size(), 0);
}

void TestRatioTable::repetitionsCountWithTheirMedian_data()
{
    QTest::addColumn<QList<double>>("values");
    QTest::addColumn<double>("median");
    QTest::addRow("one") << QList<double>{5.0} << 5.0;
    QTest::addRow("odd, unsorted") << QList<double>{9.0, 1.0, 2.0} << 2.0;
    QTest::addRow("even, unsorted") << QList<double>{9.0, 1.0, 2.0, 4.0} << 3.0;
}

void TestRatioTable::repetitionsCountWithTheirMedian()
{
    QFETCH(QList<double>, values);
    QFETCH(double, median);
    RatioTable table;
    for (const double value : values) {
        table.add(QStringLiteral("A/ours"), Measure::Seconds, value);
    }
    table.add(QStringLiteral("A/Peer"), Measure::Seconds, 1.0);

    QCOMPARE(table.rows().size(), 1);
    QCOMPARE(table.rows().first().ours, median);
}

void TestRatioTable::peerThatTakesNothing()
{
    RatioTable::Row row;
    QCOMPARE(row.ratio(), 1.0);

    row.ours = 1.0;
    QVERIFY(std::isinf(row.ratio()));
}

void TestRatioTable::emptyTableHasNoText()
{
    RatioTable table;
    table.add(QStringLiteral("A/ours"), Measure::Seconds, 1.0);

    QCOMPARE(table.toText(), QString());
    QCOMPARE(table.toMarkdown(QStringLiteral("bench")), QString());
}

void TestRatioTable::textShowsValuesInFittingUnits()
{
    RatioTable table;
    table.add(QStringLiteral("Append/ours/7"), Measure::Seconds, 0.0000015);
    table.add(QStringLiteral("Append/Peer/7"), Measure::Seconds, 0.003);
    table.add(QStringLiteral("Memory/ours"), Measure::BytesPerRow, 96.5);
    table.add(QStringLiteral("Memory/Peer"), Measure::BytesPerRow, 77.0);

    QCOMPARE(table.toText(),
             QStringLiteral("\n"
                            "Ours against peers (below 1.00 ours is better)\n"
                            "family  case  peer        ours      theirs   ratio\n"
                            "Append  7     Peer     1.50 us     3.00 ms  0.0005\n"
                            "Memory        Peer  96.5 B/row  77.0 B/row    1.25\n"));
}

void TestRatioTable::markdownIsATable()
{
    RatioTable table;
    table.add(QStringLiteral("Append/ours/7"), Measure::Seconds, 1.0);
    table.add(QStringLiteral("Append/Peer/7"), Measure::Seconds, 2e-8);

    QCOMPARE(table.toMarkdown(QStringLiteral("bench_X")),
             QStringLiteral("## bench_X\n"
                            "\n"
                            "| family | case | peer | ours | theirs | ratio |\n"
                            "| --- | --- | --- | ---: | ---: | ---: |\n"
                            "| Append | 7 | Peer | 1.00 s | 20.0 ns | 50000000.00 |\n"
                            "\n"));
}

int main(int argc, char **argv)
{
    return runTest<TestRatioTable>(argc, argv);
}

#include "tst_RatioTable.moc"
