#include "JsonObjectReader.h"

#include "TestBase.h"

class TestJsonObjectReader : public TestBase
{
    Q_OBJECT

private slots:
    void membersAreTaken();
    void firstMistakeStays();
    void emptyReasonIsNoFailure();
    void memberWithinAnObjectHasItsPath();
    void numberOfEachKindIsANumber();
    void wholeNumberIsZeroAfterAMistake();
    void longNameIsCut();
};

void TestJsonObjectReader::membersAreTaken()
{
    JsonObjectReader reader(QVariantHash{
        {"t", ""}, {"f", false}, {"n", 0.5}, {"w", -3LL}, {"o", QVariantHash{{"t", "in"}}}});

    reader.allowOnly({"t", "f", "n", "w", "o"});
    QCOMPARE(reader.text("t"), QString());
    QCOMPARE(reader.flag("f"), false);
    QCOMPARE(reader.number("n", 0, 0.5), 0.5);
    QCOMPARE(reader.wholeNumber("w", -3, 3), -3);
    QCOMPARE(reader.object("o").text("t"), "in");
    QVERIFY(!reader.hasFailed());
}

void TestJsonObjectReader::firstMistakeStays()
{
    JsonObjectReader reader(QVariantHash{{"b", 1LL}, {"a", 1LL}});

    reader.allowOnly({});
    (void)reader.text("a");

    QCOMPARE(reader.error().toString(), "\"a\" is not known.");
}

void TestJsonObjectReader::emptyReasonIsNoFailure()
{
    JsonObjectReader reader(QVariantHash{});

    reader.fail({});

    QVERIFY(!reader.hasFailed());
}

void TestJsonObjectReader::memberWithinAnObjectHasItsPath()
{
    JsonObjectReader reader(QVariantHash{{"a", QVariantHash{{"b", QVariantHash{}}}}});

    JsonObjectReader inner = reader.object("a").object("b");
    (void)inner.flag("c");

    QCOMPARE(inner.error().toString(), "\"a.b.c\" is missing.");
    QVERIFY(!reader.hasFailed());
}

void TestJsonObjectReader::numberOfEachKindIsANumber()
{
    const double largest = 1e300;
    for (const QVariant &value :
         {QVariant(7LL), QVariant(18446744073709551615ULL), QVariant(7.5)}) {
        JsonObjectReader reader(QVariantHash{{"n", value}});
        QCOMPARE(reader.number("n", 0, largest), value.toDouble());
        QVERIFY(!reader.hasFailed());
    }
}

void TestJsonObjectReader::wholeNumberIsZeroAfterAMistake()
{
    JsonObjectReader reader(QVariantHash{{"large", 1e300}, {"part", 1.5}, {"good", 5LL}});

    QCOMPARE(reader.wholeNumber("large", 0, 10), 0);
    QVERIFY(reader.hasFailed());
    QCOMPARE(reader.wholeNumber("good", 0, 10), 0);
    JsonObjectReader other(QVariantHash{{"part", 1.5}});
    QCOMPARE(other.wholeNumber("part", 0, 10), 0);
}

void TestJsonObjectReader::longNameIsCut()
{
    JsonObjectReader reader(QVariantHash{{QString(1'000'000, 'x'), 1LL}});

    reader.allowOnly({});

    QCOMPARE(reader.error().toString(), QString("\"%1…\" is not known.").arg(QString(59, 'x')));
}

int main(int argc, char **argv)
{
    return runTest<TestJsonObjectReader>(argc, argv);
}

#include "tst_JsonObjectReader.moc"
