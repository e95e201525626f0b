#include "TextSizeTable.h"

#include "TestBase.h"

#include <QHash>
#include <QRandomGenerator>
#include <QVarLengthArray>

#include <algorithm>

namespace {

void add(TextSizeTable &table, const QString &text, const QSizeF &size)
{
    table.add(text, TextSizeTable::hash(text), size);
}

QSizeF sizeOf(const TextSizeTable &table, const QString &text)
{
    const QSizeF *size = table.find(text, TextSizeTable::hash(text));
    return size != nullptr ? *size : QSizeF();
}

QString randomText(QRandomGenerator &random)
{
    QString text(random.bounded(4), Qt::Uninitialized);
    for (QChar &character : text) {
        character =
            QChar(random.bounded(20) == 0 ? 0xD800 + random.bounded(0x800) : random.bounded(12));
    }
    return text;
}

} // namespace

class TestTextSizeTable : public TestBase
{
    Q_OBJECT

private slots:
    void nothingIsFoundInAnEmptyTable();
    void addedTextIsFound();
    void nullAndEmptyTextAreOne();
    void charactersAreCopied();
    void textsOfOneHashAreToldApart();
    void findsWhatAHashTableFinds();
    void clearedTableIsAsNew();
};

void TestTextSizeTable::nothingIsFoundInAnEmptyTable()
{
    const TextSizeTable table;
    QCOMPARE(table.count(), 0);
    QVERIFY(table.find(u"a", TextSizeTable::hash(u"a")) == nullptr);
}

void TestTextSizeTable::addedTextIsFound()
{
    TextSizeTable table;
    add(table, "Patch", {10, 20});
    add(table, "Patc", {30, 40});
    QCOMPARE(table.count(), 2);
    QCOMPARE(sizeOf(table, "Patch"), QSizeF(10, 20));
    QCOMPARE(sizeOf(table, "Patc"), QSizeF(30, 40));
    QCOMPARE(sizeOf(table, "hPat"), QSizeF());
    QCOMPARE(sizeOf(table, "PatchPatc"), QSizeF());
}

void TestTextSizeTable::nullAndEmptyTextAreOne()
{
    TextSizeTable table;
    add(table, QString(), {0, 12});
    QCOMPARE(sizeOf(table, QString("")), QSizeF(0, 12));
}

void TestTextSizeTable::charactersAreCopied()
{
    TextSizeTable table;
    QVarLengthArray<QChar> memory(4, QLatin1Char('m'));
    add(table, QString::fromRawData(memory.constData(), memory.size()), {1, 2});
    std::fill(memory.begin(), memory.end(), QLatin1Char('i'));
    QCOMPARE(sizeOf(table, "mmmm"), QSizeF(1, 2));
    QCOMPARE(sizeOf(table, "iiii"), QSizeF());
}

void TestTextSizeTable::textsOfOneHashAreToldApart()
{
    constexpr int kTexts = 300;
    // The last slot, so that those that find it taken have to begin anew at the first.
    constexpr size_t kHash = ~size_t(0);
    TextSizeTable table;
    for (int i = 0; i < kTexts; ++i) {
        const QString text = QString::number(i);
        QVERIFY(table.find(text, kHash) == nullptr);
        table.add(text, kHash, QSizeF(i, 1));
    }
    for (int i = 0; i < kTexts; ++i) {
        const QSizeF *size = table.find(QString::number(i), kHash);
        QVERIFY(size != nullptr);
        QCOMPARE(*size, QSizeF(i, 1));
    }
}

void TestTextSizeTable::findsWhatAHashTableFinds()
{
    constexpr int kLookups = 20'000;
    QRandomGenerator random(7);
    QHash<QString, QSizeF> expected;
    TextSizeTable table;
    for (int i = 0; i < kLookups; ++i) {
        const QString text = randomText(random);
        QCOMPARE(sizeOf(table, text), expected.value(text));
        if (!expected.contains(text)) {
            expected.insert(text, QSizeF(i, i));
            add(table, text, QSizeF(i, i));
        }
        QCOMPARE(table.count(), expected.size());
    }
    for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
        QCOMPARE(sizeOf(table, it.key()), it.value());
    }
}

void TestTextSizeTable::clearedTableIsAsNew()
{
    TextSizeTable table;
    add(table, "a", {1, 2});
    table.clear();
    QCOMPARE(table.count(), 0);
    QCOMPARE(sizeOf(table, "a"), QSizeF());
    add(table, "b", {3, 4});
    QCOMPARE(sizeOf(table, "b"), QSizeF(3, 4));
}

int main(int argc, char **argv)
{
    return runTest<TestTextSizeTable>(argc, argv);
}

#include "tst_TextSizeTable.moc"
