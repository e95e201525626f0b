#include "TXJSONSerializer.h"

#include "TestBase.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPoint>
#include <QUrl>

#include <limits>

namespace {

enum class Colour { Red = 1, Green = -7 };

constexpr qint64 kSmallest = std::numeric_limits<qint64>::min();
constexpr qint64 kLargest = std::numeric_limits<qint64>::max();
constexpr quint64 kLargestUnsigned = std::numeric_limits<quint64>::max();

QByteArray compact(const QVariant &value)
{
    return TXJSONSerializer::serialize(value, false);
}

QVariant read(const QByteArray &json)
{
    return TXJSONSerializer::deserialize(json);
}

QVariant nestedLists(int levels)
{
    QVariant value = QVariantList();
    for (int i = 1; i < levels; ++i) {
        value = QVariantList({value});
    }
    return value;
}

QByteArray brackets(int levels)
{
    return QByteArray(levels, '[') + QByteArray(levels, ']');
}

} // namespace

class TestTXJSONSerializer : public TestBase
{
    Q_OBJECT

private slots:
    void valueIsWritten_data();
    void valueIsWritten();
    void indentedTextReadsTheSame();
    void indentedTextTakesSeveralLines();
    void textIsRead_data();
    void textIsRead();
    void brokenTextGivesAnInvalidVariant_data();
    void brokenTextGivesAnInvalidVariant();
    void everyCutOffTextGivesAnInvalidVariant();
    void nullIsTellableFromAnError();
    void nestedObjectsConvertToHashes();
    void lastOfTwoEqualKeysCounts();
    void largeIntegersAreExactBothWays_data();
    void largeIntegersAreExactBothWays();
    void digitsInStringsStayStrings();
    void numberPastSixtyFourBitsIsADouble_data();
    void numberPastSixtyFourBitsIsADouble();
    void nestingHasALimit();
    void emptyContainersCountAsALevel();
    void nestingWithoutEndIsRefused();
    void releaseRecordReadsBack();
    void manyMembersAreWrittenAndRead();
};

void TestTXJSONSerializer::valueIsWritten_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("json");
    const auto row = [](const char *name, const QVariant &value, const QByteArray &json) {
        QTest::newRow(name) << value << json;
    };
    row("invalid", QVariant(), "null");
    row("null", QVariant::fromValue(nullptr), "null");
    row("true", true, "true");
    row("integer", -42, "-42");
    row("char", QVariant::fromValue<signed char>(-3), "-3");
    row("unsigned char", QVariant::fromValue<uchar>(200), "200");
    row("short", QVariant::fromValue<short>(-300), "-300");
    row("unsigned short", QVariant::fromValue<ushort>(60000), "60000");
    row("unsigned", 4000000000U, "4000000000");
    row("long", QVariant::fromValue<long>(1L << 30), "1073741824");
    row("unsigned long", QVariant::fromValue<ulong>(1UL << 31), "2147483648");
    row("largest", kLargest, "9223372036854775807");
    row("smallest", kSmallest, "-9223372036854775808");
    row("largest unsigned", kLargestUnsigned, "18446744073709551615");
    row("enumeration", QVariant::fromValue(Colour::Green), "-7");
    row("double", 0.1, "0.1");
    row("infinite", qInf(), "null");
    row("not a number", qQNaN(), "null");
    row("nested infinite", QVariantList{QVariant(-qInf())}, "[null]");
    row("string", QStringLiteral("a\"\\\n\u00e9"), "\"a\\\"\\\\\\n\xc3\xa9\"");
    row("null string", QString(), "\"\"");
    row("brackets in a string", QStringLiteral("[]{}"), "\"[]{}\"");
    row("character", QChar(u'x'), "\"x\"");
    row("bytes", QByteArray("p\xc3\xa4"), "\"p\xc3\xa4\"");
    row("bytes that are not UTF-8", QByteArray("a\xff"), "\"a\xef\xbf\xbd\"");
    row("date", QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6), Qt::UTC),
        "\"2026-02-03T04:05:06.000Z\"");
    row("URL", QUrl(QStringLiteral("https://a.example/b c")), "\"https://a.example/b%20c\"");
    row("point", QPoint(1, 2), "null");
    row("empty list", QVariantList(), "[]");
    row("list", QVariantList({1, QStringLiteral("a"), QVariant()}), "[1,\"a\",null]");
    row("strings", QStringList({QStringLiteral("a"), QStringLiteral("b")}), "[\"a\",\"b\"]");
    row("byte arrays", QVariant::fromValue(QByteArrayList({"a"})), "[\"a\"]");
    row("integers", QVariant::fromValue(QList<int>({1, 2})), "[1,2]");
    row("hashes", QVariant::fromValue(QList<QVariantHash>({{{"a", 1}}})), "[{\"a\":1}]");
    row("empty hash", QVariantHash(), "{}");
    row("hash", QVariantHash({{"b", 1}, {"a", QVariantList()}}), "{\"a\":[],\"b\":1}");
    row("map", QVariantMap({{"a", QVariantHash({{"", true}})}}), "{\"a\":{\"\":true}}");
    row("hash of strings", QVariant::fromValue(QHash<QString, QString>({{"a", "b"}})),
        "{\"a\":\"b\"}");
    row("JSON value", QJsonValue(3), "3");
    row("JSON object", QJsonObject({{"a", QJsonArray({1})}}), "{\"a\":[1]}");
    row("JSON document", QVariant::fromValue(QJsonDocument(QJsonArray({1}))), "[1]");
    row("nested unsigned",
        QVariantHash({{"a", QVariantList({kLargestUnsigned, 1, kLargestUnsigned})}}),
        "{\"a\":[18446744073709551615,1,18446744073709551615]}");
}

void TestTXJSONSerializer::valueIsWritten()
{
    QFETCH(QVariant, value);
    QFETCH(QByteArray, json);

    QCOMPARE(compact(value), json);
}

void TestTXJSONSerializer::indentedTextReadsTheSame()
{
    const QVariantHash value = {
        {"a", QVariantList({kLargestUnsigned, QVariantHash({{"b", QStringLiteral("c")}})})}};

    QCOMPARE(read(TXJSONSerializer::serialize(value, true)), read(compact(value)));
    QCOMPARE(TXJSONSerializer::serialize(kLargestUnsigned, true),
             QByteArray("18446744073709551615"));
}

void TestTXJSONSerializer::indentedTextTakesSeveralLines()
{
    QCOMPARE(TXJSONSerializer::serialize(QVariantHash({{"a", QVariantList() << 1}}), true),
             QByteArray("{\n    \"a\": [\n        1\n    ]\n}\n"));
}

void TestTXJSONSerializer::textIsRead_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, const QByteArray &json, const QVariant &value) {
        QTest::newRow(name) << json << value;
    };
    row("null", "null", QVariant::fromValue(nullptr));
    row("false", " false\n", false);
    row("string", "\"a\\u00e9\"", QStringLiteral("a\u00e9"));
    row("integer", "-5", qlonglong(-5));
    row("fraction", "0.5", 0.5);
    row("exponent", "1.5e300", 1.5e300);
    row("whole number with a fraction", "1.0", qlonglong(1));
    row("empty array", "[]", QVariantList());
    row("nested array", "[[1],[]]", QVariantList({QVariantList() << qlonglong(1), QVariantList()}));
    row("empty object", "{}", QVariantHash());
    row("object", "{\"a\":null}", QVariantHash({{"a", QVariant::fromValue(nullptr)}}));
    row("blanks before", QByteArray(100, ' ') + "{}", QVariantHash());
    row("byte order mark", "\xef\xbb\xbf{}", QVariantHash());
    row("byte order mark before a number", "\xef\xbb\xbf 7", qlonglong(7));
}

void TestTXJSONSerializer::textIsRead()
{
    QFETCH(QByteArray, json);
    QFETCH(QVariant, value);

    QCOMPARE(read(json), value);
    QCOMPARE(read(json).typeId(), value.typeId());
}

void TestTXJSONSerializer::brokenTextGivesAnInvalidVariant_data()
{
    QTest::addColumn<QByteArray>("json");
    for (const char *json : {"",
                             " ",
                             "nul",
                             "1,2",
                             "1],[2",
                             "]",
                             "[1],[2]",
                             "[1,]",
                             "{\"a\"}",
                             "{a:1}",
                             "'a'",
                             "[1]x",
                             "{}{}",
                             "\"a",
                             "NaN",
                             "1e999",
                             "01",
                             "--1",
                             "{18446744073709551615:1}",
                             "\"\xff\"",
                             "[\"\xc3\"]",
                             "{\"\xed\xa0\x80\":1}",
                             "{\"a\":1",
                             "[1 2]",
                             "18446744073709551615x"}) {
        QTest::addRow("%s", json) << QByteArray(json);
    }
    QTest::addRow("NUL") << QByteArray(1, '\0');
    QTest::addRow("NUL after") << QByteArray("[1]\0", 4);
    QTest::addRow("a number of a million digits") << QByteArray(1000000, '9');
}

void TestTXJSONSerializer::brokenTextGivesAnInvalidVariant()
{
    QFETCH(QByteArray, json);

    QVERIFY(!read(json).isValid());
    QCOMPARE(read(json).toHash(), QVariantHash());
}

void TestTXJSONSerializer::everyCutOffTextGivesAnInvalidVariant()
{
    const QByteArray json = "{\"a\":[1.5,\"\\u00e9\",18446744073709551615,{\"b\":null}]}";
    QVERIFY(read(json).isValid());

    for (qsizetype i = 0; i < json.size(); ++i) {
        QVERIFY2(!read(json.left(i)).isValid(), json.left(i).constData());
    }
}

void TestTXJSONSerializer::nullIsTellableFromAnError()
{
    QVERIFY(read("null").isValid());
    QVERIFY(read("null").isNull());
    QVERIFY(!read("nil").isValid());
}

void TestTXJSONSerializer::nestedObjectsConvertToHashes()
{
    const QVariant value = read("{\"a\":{\"b\":[{\"c\":1}]}}");

    const QVariantHash inner = value.toHash().value(QStringLiteral("a")).toHash();
    const QVariantHash innermost = inner.value(QStringLiteral("b")).toList().constFirst().toHash();
    QCOMPARE(innermost.value(QStringLiteral("c")).toInt(), 1);
    QCOMPARE(value.typeId(), int(QMetaType::QVariantHash));
}

void TestTXJSONSerializer::lastOfTwoEqualKeysCounts()
{
    QCOMPARE(read("{\"a\":1,\"b\":2,\"a\":3,\"\\u0061\":4}").toHash(),
             QVariantHash({{"a", qlonglong(4)}, {"b", qlonglong(2)}}));
}

void TestTXJSONSerializer::largeIntegersAreExactBothWays_data()
{
    QTest::addColumn<QVariant>("number");
    QTest::addRow("past the doubles") << QVariant(qlonglong(9007199254740993));
    QTest::addRow("largest") << QVariant(kLargest);
    QTest::addRow("smallest") << QVariant(kSmallest);
    QTest::addRow("first unsigned") << QVariant(quint64(kLargest) + 1);
    QTest::addRow("some unsigned") << QVariant(Q_UINT64_C(12345678901234567891));
    QTest::addRow("largest unsigned") << QVariant(kLargestUnsigned);
}

void TestTXJSONSerializer::largeIntegersAreExactBothWays()
{
    QFETCH(QVariant, number);
    const QVariant nested = QVariantHash({{"a", QVariantList({number, QStringLiteral("x\\\"1")})}});

    QCOMPARE(read(compact(number)), number);
    QCOMPARE(read(compact(number)).typeId(), number.typeId());
    QCOMPARE(read(compact(nested)), nested);
}

void TestTXJSONSerializer::digitsInStringsStayStrings()
{
    const QVariantHash value = {
        {"18446744073709551615", QStringLiteral("\"18446744073709551615\\")},
        {"number", kLargestUnsigned}};

    QCOMPARE(read(compact(value)), QVariant(value));
}

void TestTXJSONSerializer::numberPastSixtyFourBitsIsADouble_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<double>("number");
    QTest::addRow("positive") << QByteArray("18446744073709551616") << 18446744073709551616.0;
    QTest::addRow("negative") << QByteArray("-9223372036854775809") << -9223372036854775808.0;
    QTest::addRow("far") << QByteArray("1") + QByteArray(100, '0') << 1e100;
    QTest::addRow("long fraction") << QByteArray("0.30000000000000000000001") << 0.3;
    QTest::addRow("no digit before the point") << QByteArray(".30000000000000000000") << 0.3;
    QTest::addRow("large with an exponent")
        << QByteArray("18446744073709551615e1") << 184467440737095516150.0;
}

void TestTXJSONSerializer::numberPastSixtyFourBitsIsADouble()
{
    QFETCH(QByteArray, json);
    QFETCH(double, number);

    QCOMPARE(read(json).typeId(), int(QMetaType::Double));
    QCOMPARE(read(json).toDouble(), number);
}

void TestTXJSONSerializer::nestingHasALimit()
{
    constexpr int kDeepest = TXJSONSerializer::kDeepestNesting;

    QCOMPARE(compact(nestedLists(kDeepest)), brackets(kDeepest));
    QCOMPARE(compact(nestedLists(kDeepest + 1)), QByteArray());
    QCOMPARE(read(brackets(kDeepest)), nestedLists(kDeepest));
    QVERIFY(!read(brackets(kDeepest + 1)).isValid());
}

void TestTXJSONSerializer::emptyContainersCountAsALevel()
{
    QVariant value = QVariantHash();
    for (int i = 0; i < TXJSONSerializer::kDeepestNesting; ++i) {
        value = QVariantList({value});
    }

    QCOMPARE(compact(value), QByteArray());
}

void TestTXJSONSerializer::nestingWithoutEndIsRefused()
{
    QVERIFY(!read(brackets(100000)).isValid());
    QVERIFY(!read(QByteArray(100000, '[')).isValid());
    QVERIFY(!read(QByteArray("{\"a\":").repeated(100000)).isValid());
    QCOMPARE(compact(nestedLists(10000)), QByteArray());
}

void TestTXJSONSerializer::releaseRecordReadsBack()
{
    const QVariantHash record = {
        {"version", QStringLiteral("1.2.3")},
        {"revision", qlonglong(10452)},
        {"size", qlonglong(5000000000)},
        {"notes", QVariantList({QStringLiteral("a"), QStringLiteral("b")})}};

    QCOMPARE(read(compact(record)).toHash(), record);
}

void TestTXJSONSerializer::manyMembersAreWrittenAndRead()
{
    constexpr int kMembers = 200000;
    QVariantHash value;
    for (int i = 0; i < kMembers; ++i) {
        value.insert(QStringLiteral("%1").arg(i * 7919LL % 1000003), i);
    }

    const QByteArray json = compact(value);

    QCOMPARE(read(json).toHash().size(), kMembers);
}

int main(int argc, char **argv)
{
    return runTest<TestTXJSONSerializer>(argc, argv);
}

#include "tst_TXJSONSerializer.moc"
