#include "ValueExtent.h"

#include "TestBase.h"

#include "TXVariantViewer.h"

#include <QVariant>

#include <algorithm>

namespace {

/// The text of a label, as a document knows it.
qsizetype lettersOf(const QVariant &value)
{
    return countShownCharacters(TXVariantViewer::variantToHtml(value, true));
}

} // namespace

class TestValueExtent : public TestBase
{
    Q_OBJECT

private slots:
    void valuesAreCountedAtAnyDepth_data();
    void valuesAreCountedAtAnyDepth();
    void depthTakesNoStack();
    void tagsAreNotSeenAndEntitiesAreOneCharacter_data();
    void tagsAreNotSeenAndEntitiesAreOneCharacter();
    void lineOfAValueCountsAsItReads();
};

void TestValueExtent::valuesAreCountedAtAnyDepth_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<qsizetype>("count");
    const QVariantList list = {1, "two", QVariant()};
    const QVariantMap map = {{"a", list}, {"b", QStringList{"x", "y"}}};
    QTest::newRow("invalid") << QVariant() << qsizetype(1);
    QTest::newRow("number") << QVariant(1) << qsizetype(1);
    QTest::newRow("empty list") << QVariant(QVariantList()) << qsizetype(1);
    QTest::newRow("list") << QVariant(list) << qsizetype(4);
    QTest::newRow("map") << QVariant(map) << qsizetype(1 + 4 + 3);
    QTest::newRow("hash") << QVariant(QVariantHash{{"m", map}, {"n", 1}}) << qsizetype(1 + 8 + 1);
}

void TestValueExtent::valuesAreCountedAtAnyDepth()
{
    QFETCH(QVariant, value);
    QFETCH(qsizetype, count);

    QCOMPARE(countValues(value), count);
}

void TestValueExtent::depthTakesNoStack()
{
    constexpr int kLevels = 10000;
    QVariant value = 1;
    for (int level = 0; level < kLevels; ++level) {
        value = QVariantList{value, level};
    }

    QCOMPARE(countValues(value), qsizetype(1 + 2 * kLevels));
}

void TestValueExtent::tagsAreNotSeenAndEntitiesAreOneCharacter_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<qsizetype>("count");
    QTest::newRow("empty") << "" << qsizetype(0);
    QTest::newRow("plain") << "abc" << qsizetype(3);
    QTest::newRow("tags") << "<b>a</b>b" << qsizetype(2);
    QTest::newRow("entities") << "&lt;p&gt;" << qsizetype(3);
    QTest::newRow("open tag") << "a<b" << qsizetype(1);
    QTest::newRow("open entity") << "a&b" << qsizetype(2);
}

void TestValueExtent::tagsAreNotSeenAndEntitiesAreOneCharacter()
{
    QFETCH(QString, html);
    QFETCH(qsizetype, count);

    QCOMPARE(countShownCharacters(html), count);
}

void TestValueExtent::lineOfAValueCountsAsItReads()
{
    QCOMPARE(lettersOf(QVariantList{1, "<b>"}), QString("[1, \"<b>\"]").size());
    QCOMPARE(lettersOf(QVariantMap{{"key", true}}), QString("{key: true}").size());
}

int main(int argc, char **argv)
{
    return runTest<TestValueExtent>(argc, argv);
}

#include "tst_ValueExtent.moc"
