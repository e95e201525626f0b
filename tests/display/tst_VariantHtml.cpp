#include "TXVariantViewer.h"
#include "TestBase.h"
#include "VariantHtml.h"

#include <QDateTime>
#include <QMetaType>
#include <QUuid>
#include <QVariant>

#include <limits>

namespace {

constexpr QLatin1String kOpenList("<span style=\"color: #606060\"><b>[</b></span>");
constexpr QLatin1String kCloseList("<span style=\"color: #606060\"><b>]</b></span>");
constexpr QLatin1String kOpenMap("<span style=\"color: #606060\"><b>{</b></span>");
constexpr QLatin1String kCloseMap("<span style=\"color: #606060\"><b>}</b></span>");
constexpr QLatin1String kSeparator("<span style=\"color: #606060\"><b>, </b></span>");
constexpr QLatin1String kNull("<span style=\"color: #000080\">null</span>");

/// What is neither a number nor a text, and becomes a text.
struct Lightness
{
    double value = 0.0;

    [[nodiscard]] QString toText() const { return QStringLiteral("<L> ") + QString::number(value); }
};

/// What becomes nothing.
struct Silent
{
    int value = 0;
};

QString red(const QString &text)
{
    return QStringLiteral("<span style=\"color: #800000\">") + text + QStringLiteral("</span>");
}

QString green(const QString &text)
{
    return QStringLiteral("<span style=\"color: #006000\">\"") + text + QStringLiteral("\"</span>");
}

QString list(const QStringList &elements)
{
    return kOpenList + elements.join(kSeparator) + kCloseList;
}

QString map(const QStringList &entries)
{
    return kOpenMap + entries.join(kSeparator) + kCloseMap;
}

QString html(const QVariant &value)
{
    return VariantHtml::fromVariant(value, true);
}

template<class T>
QVariant nullOf()
{
    return QVariant(QMetaType::fromType<T>());
}

QVariant nested(int depth)
{
    QVariant value = 1;
    for (int level = 0; level < depth; ++level) {
        value = level % 2 == 0 ? QVariant(QVariantList{value})
                               : QVariant(QVariantMap{{QStringLiteral("k"), value}});
    }
    return value;
}

} // namespace

Q_DECLARE_METATYPE(Lightness)
Q_DECLARE_METATYPE(Silent)

// The text of a value as HTML, letter for letter.
class TestVariantHtml : public TestBase
{
    Q_OBJECT

private slots:
    void plainValueIsColouredByItsType_data();
    void plainValueIsColouredByItsType();
    void nullOfATypeFollowsTheFirstRuleThatFits_data();
    void nullOfATypeFollowsTheFirstRuleThatFits();
    void otherTypesArePlainText_data();
    void otherTypesArePlainText();
    void containerHoldsItsEntries_data();
    void containerHoldsItsEntries();
    void childrenStandLast_data();
    void childrenStandLast();
    void containerWithoutPreviewIsEmpty_data();
    void containerWithoutPreviewIsEmpty();
    void onlyStringOfAListShowsWithoutPreview();
    void customTypeShowsWhatItConvertsTo();
    void viewerGivesTheSameText();
    void lineAndKeyAreMonospaced();
    void escapingIsThatOfQt_data();
    void escapingIsThatOfQt();
    void deepValueIsWrittenWhole();
    void millionKeysAreSorted();
    void longStringIsWrittenWhole();
};

void TestVariantHtml::plainValueIsColouredByItsType_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("text") << QVariant(QStringLiteral("grey"))
                          << "<span style=\"color: #006000\">\"grey\"</span>";
    QTest::newRow("no text") << QVariant(QString()) << "<span style=\"color: #006000\">\"\"</span>";
    QTest::newRow("markup") << QVariant(QStringLiteral("<b>\"a\" & 'b'</b>"))
                            << "<span style=\"color: #006000\">\"&lt;b&gt;&quot;a&quot; &amp; "
                               "'b'&lt;/b&gt;\"</span>";
    QTest::newRow("bytes") << QVariant(QByteArray("a<b"))
                           << "<span style=\"color: #006000\">\"a&lt;b\"</span>";
    QTest::newRow("bytes that are no text")
        << QVariant(QByteArray("\xff\xfe", 2))
        << QStringLiteral("<span style=\"color: #006000\">\"\uFFFD\uFFFD\"</span>");
    QTest::newRow("int") << QVariant(-7) << "<span style=\"color: #800000\">-7</span>";
    QTest::newRow("long long") << QVariant(std::numeric_limits<qlonglong>::min())
                               << "<span style=\"color: #800000\">-9223372036854775808</span>";
    QTest::newRow("double") << QVariant(0.1) << "<span style=\"color: #800080\">0.1</span>";
    QTest::newRow("no number") << QVariant(std::numeric_limits<double>::quiet_NaN())
                               << "<span style=\"color: #800080\">nan</span>";
    QTest::newRow("infinite") << QVariant(-std::numeric_limits<double>::infinity())
                              << "<span style=\"color: #800080\">-inf</span>";
    QTest::newRow("true") << QVariant(true) << "<span style=\"color: #000080\">true</span>";
    QTest::newRow("false") << QVariant(false) << "<span style=\"color: #000080\">false</span>";
    QTest::newRow("invalid") << QVariant() << "<span style=\"color: #000080\">null</span>";
    QTest::newRow("null") << QVariant::fromValue(nullptr)
                          << "<span style=\"color: #000080\">null</span>";
}

void TestVariantHtml::plainValueIsColouredByItsType()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);

    QCOMPARE(VariantHtml::fromVariant(value, true), expected);
    QCOMPARE(VariantHtml::fromVariant(value, false), expected);
}

void TestVariantHtml::nullOfATypeFollowsTheFirstRuleThatFits_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("text") << nullOf<QString>() << green({});
    QTest::newRow("bytes") << nullOf<QByteArray>() << green({});
    QTest::newRow("int") << nullOf<int>() << red(QStringLiteral("0"));
    QTest::newRow("long long") << nullOf<qlonglong>() << red(QStringLiteral("0"));
    QTest::newRow("double") << nullOf<double>() << "<span style=\"color: #800080\">0</span>";
    QTest::newRow("bool") << nullOf<bool>() << "<span style=\"color: #000080\">false</span>";
    QTest::newRow("map") << nullOf<QVariantMap>() << QString(kNull);
    QTest::newRow("hash") << nullOf<QVariantHash>() << QString(kNull);
    QTest::newRow("list") << nullOf<QVariantList>() << QString(kNull);
    QTest::newRow("strings") << nullOf<QStringList>() << QString(kNull);
    QTest::newRow("uint") << nullOf<uint>() << QString(kNull);
    QTest::newRow("date") << nullOf<QDate>() << QString(kNull);
}

void TestVariantHtml::nullOfATypeFollowsTheFirstRuleThatFits()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);

    QCOMPARE(VariantHtml::fromVariant(value, true), expected);
    QCOMPARE(VariantHtml::fromVariant(value, false), expected);
    QCOMPARE(html(QVariantList{value}), list({expected}));
}

void TestVariantHtml::otherTypesArePlainText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("uint") << QVariant(7U) << "7";
    QTest::newRow("unsigned long long")
        << QVariant(std::numeric_limits<qulonglong>::max()) << "18446744073709551615";
    QTest::newRow("float") << QVariant(0.5F) << "0.5";
    QTest::newRow("short") << QVariant::fromValue(short(3)) << "3";
    QTest::newRow("long") << QVariant::fromValue(3L) << "3";
    QTest::newRow("character") << QVariant(QChar(u'<')) << "<";
    QTest::newRow("date") << QVariant(QDate(2024, 2, 29)) << "2024-02-29";
    QTest::newRow("time") << QVariant(QTime(1, 2, 3)) << "01:02:03.000";
    QTest::newRow("date and time")
        << QVariant(QDateTime(QDate(2024, 2, 29), QTime(1, 2, 3), Qt::UTC))
        << "2024-02-29T01:02:03.000Z";
    QTest::newRow("address") << QVariant(QUrl(QStringLiteral("https://tovra.example/a&b")))
                             << "https://tovra.example/a&b";
    QTest::newRow("identifier") << QVariant(
        QUuid(QStringLiteral("{67c8770b-44f1-410a-ab9a-f9b5446f13ee}")))
                                << "{67c8770b-44f1-410a-ab9a-f9b5446f13ee}";
    QTest::newRow("size") << QVariant(QSize(1, 2)) << "";
    QTest::newRow("list of numbers") << QVariant::fromValue(QList<int>{1, 2}) << "";
    QTest::newRow("list of texts and numbers")
        << QVariant::fromValue(QMap<QString, int>{{QStringLiteral("a"), 1}}) << "";
}

void TestVariantHtml::otherTypesArePlainText()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);

    QCOMPARE(VariantHtml::fromVariant(value, true), expected);
    QCOMPARE(VariantHtml::fromVariant(value, false), expected);
}

void TestVariantHtml::containerHoldsItsEntries_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");

    const QString one = red(QStringLiteral("1"));
    const QString two = red(QStringLiteral("2"));
    const QVariantMap unsorted{{QStringLiteral("b"), 2}, {QStringLiteral("a"), 1}};
    QVariantHash hash;
    QStringList sorted;
    for (char16_t letter = u'a'; letter <= u'z'; ++letter) {
        hash.insert(QString(QChar(letter)), 1);
        sorted.append(QChar(letter) + QStringLiteral(": ") + one);
    }

    QTest::newRow("empty list") << QVariant(QVariantList()) << list({});
    QTest::newRow("empty strings") << QVariant(QStringList()) << list({});
    QTest::newRow("empty map") << QVariant(QVariantMap()) << map({});
    QTest::newRow("empty hash") << QVariant(QVariantHash()) << map({});
    QTest::newRow("one element") << QVariant(QVariantList{1}) << list({one});
    QTest::newRow("invalid element")
        << QVariant(QVariantList{1, QVariant(), 2}) << list({one, kNull, two});
    QTest::newRow("strings") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("<")})
                             << list({green(QStringLiteral("a")), green(QStringLiteral("&lt;"))});
    QTest::newRow("map by key") << QVariant(unsorted)
                                << map({QStringLiteral("a: ") + one, QStringLiteral("b: ") + two});
    QTest::newRow("hash by key") << QVariant(hash) << map(sorted);
    QTest::newRow("capitals first")
        << QVariant(QVariantMap{{QStringLiteral("a"), 1}, {QStringLiteral("B"), 2}})
        << map({QStringLiteral("B: ") + two, QStringLiteral("a: ") + one});
    QTest::newRow("markup in a key") << QVariant(QVariantMap{{QStringLiteral("<\"&>"), 1}})
                                     << map({QStringLiteral("&lt;&quot;&amp;&gt;: ") + one});
    QTest::newRow("empty key") << QVariant(QVariantMap{{QString(), 1}})
                               << map({QStringLiteral(": ") + one});
    QTest::newRow("within one another")
        << QVariant(QVariantList{QVariantHash{{QStringLiteral("a"), QStringList{QString()}}},
                                 QVariantList{QVariantList(), 1}, 2})
        << list({map({QStringLiteral("a: ") + list({green({})})}), list({list({}), one}), two});
}

void TestVariantHtml::containerHoldsItsEntries()
{
    QFETCH(QVariant, value);
    QFETCH(QString, expected);

    QCOMPARE(html(value), expected);
}

void TestVariantHtml::childrenStandLast_data()
{
    QTest::addColumn<QVariantMap>("value");
    QTest::addColumn<QString>("expected");

    const QString children = QStringLiteral("children: ");
    const QString one = red(QStringLiteral("1"));
    const QString first = QStringLiteral("a: ") + one;
    const QString last = QStringLiteral("z: ") + one;
    const QVariantMap leaf{{QStringLiteral("children"), 1}, {QStringLiteral("z"), 1}};

    QTest::newRow("in the middle") << QVariantMap{{QStringLiteral("a"), 1},
                                                  {QStringLiteral("children"), 1},
                                                  {QStringLiteral("z"), 1}}
                                   << map({first, last, children + one});
    QTest::newRow("first") << leaf << map({last, children + one});
    QTest::newRow("last") << QVariantMap{{QStringLiteral("a"), 1}, {QStringLiteral("children"), 1}}
                          << map({first, children + one});
    QTest::newRow("alone") << QVariantMap{{QStringLiteral("children"), 1}} << map({children + one});
    QTest::newRow("without value")
        << QVariantMap{{QStringLiteral("children"), QVariant()}} << map({children + kNull});
    QTest::newRow("other letters")
        << QVariantMap{{QStringLiteral("Children"), 1}, {QStringLiteral("a"), 1}}
        << map({QStringLiteral("Children: ") + one, first});
    QTest::newRow("within children")
        << QVariantMap{{QStringLiteral("children"), QVariantList{leaf, leaf}},
                       {QStringLiteral("z"), 1}}
        << map({last, children + list({map({last, children + one}), map({last, children + one})})});
}

void TestVariantHtml::childrenStandLast()
{
    QFETCH(QVariantMap, value);
    QFETCH(QString, expected);

    QVariantHash hash;
    for (auto entry = value.cbegin(); entry != value.cend(); ++entry) {
        hash.insert(entry.key(), entry.value());
    }

    QCOMPARE(html(value), expected);
    QCOMPARE(html(hash), expected);
}

void TestVariantHtml::containerWithoutPreviewIsEmpty_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("list") << QVariant(QVariantList{1, 2});
    QTest::newRow("strings") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")});
    QTest::newRow("no strings") << QVariant(QStringList());
    QTest::newRow("map") << QVariant(QVariantMap{{QStringLiteral("a"), 1}});
    QTest::newRow("hash") << QVariant(QVariantHash{{QStringLiteral("a"), 1}});
}

void TestVariantHtml::containerWithoutPreviewIsEmpty()
{
    QFETCH(QVariant, value);

    QCOMPARE(VariantHtml::fromVariant(value, false), QString());
}

void TestVariantHtml::onlyStringOfAListShowsWithoutPreview()
{
    // What QVariant::toString() makes of such a list.
    QCOMPARE(VariantHtml::fromVariant(QStringList{QStringLiteral("<a>")}, false),
             QStringLiteral("<a>"));
}

void TestVariantHtml::customTypeShowsWhatItConvertsTo()
{
    const QVariant lightness = QVariant::fromValue(Lightness{50.0});
    QCOMPARE(html(lightness), QString());
    QCOMPARE(html(QVariant::fromValue(Silent{})), QString());

    QVERIFY((QMetaType::registerConverter<Lightness, QString>(&Lightness::toText)));
    QCOMPARE(html(lightness), QStringLiteral("<L> 50"));
    QCOMPARE(html(QVariantList{lightness, QVariant::fromValue(Silent{})}),
             list({QStringLiteral("<L> 50"), QString()}));
    QMetaType::unregisterConverterFunction(QMetaType::fromType<Lightness>(),
                                           QMetaType::fromType<QString>());
}

void TestVariantHtml::viewerGivesTheSameText()
{
    const QVariant value = QVariantList{1, QStringLiteral("a")};

    QCOMPARE(TXVariantViewer::variantToHtml(value, true), html(value));
    QCOMPARE(TXVariantViewer::variantToHtml(value, false), QString());
}

void TestVariantHtml::lineAndKeyAreMonospaced()
{
    QCOMPARE(VariantHtml::line(QStringLiteral("<b>a</b>")),
             QStringLiteral("<span style=\"font-family: monospace; overflow: "
                            "hidden\"><b>a</b></span>"));
    QCOMPARE(VariantHtml::key(QStringLiteral("<b>")),
             QStringLiteral("<span style=\"font-family: monospace\">&lt;b&gt;: </span>"));
}

void TestVariantHtml::escapingIsThatOfQt_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QString();
    QTest::newRow("plain") << QStringLiteral("plain");
    QTest::newRow("only markup") << QStringLiteral("<>&\"<>&\"");
    QTest::newRow("at the ends") << QStringLiteral("<a>");
    QTest::newRow("escaped already") << QStringLiteral("&lt;");
    QTest::newRow("apostrophe and lines") << QStringLiteral("'a'\n\t\r\u00a0");
    QTest::newRow("null bytes") << QString::fromUtf16(u"a\0<\0", 4);
    QTest::newRow("half a pair") << QString(QChar(0xd800));
}

void TestVariantHtml::escapingIsThatOfQt()
{
    QFETCH(QString, text);

    QCOMPARE(html(text), green(text.toHtmlEscaped()));
    QCOMPARE(html(QStringList{text, text}),
             list({green(text.toHtmlEscaped()), green(text.toHtmlEscaped())}));
    QCOMPARE(html(QVariantMap{{text, 1}}),
             map({text.toHtmlEscaped() + QStringLiteral(": ") + red(QStringLiteral("1"))}));
}

void TestVariantHtml::deepValueIsWrittenWhole()
{
    constexpr int kDepth = 20000;
    QString before;
    QString after;
    for (int level = 0; level < kDepth; ++level) {
        const bool isMap = level % 2 == 0;
        before += isMap ? kOpenMap + QStringLiteral("k: ") : QString(kOpenList);
        after.prepend(isMap ? kCloseMap : kCloseList);
    }

    QCOMPARE(html(nested(kDepth)), before + red(QStringLiteral("1")) + after);
}

void TestVariantHtml::millionKeysAreSorted()
{
    constexpr int kKeys = 1000000;
    QVariantHash hash;
    hash.reserve(kKeys);
    QStringList entries;
    // Numbers of seven digits, which sort as texts as they do as numbers.
    for (int key = kKeys; key < 2 * kKeys; ++key) {
        const QString text = QString::number(key);
        hash.insert(text, key);
        entries.append(text + QStringLiteral(": ") + red(text));
    }

    // No QCOMPARE, which would print it all.
    QVERIFY(html(hash) == map(entries));
}

void TestVariantHtml::longStringIsWrittenWhole()
{
    constexpr qsizetype kSize = 10000000;
    const QString piece = QString::fromUtf16(u"<b>\0&\"null\"</b>", 16);
    const QString text = piece.repeated(kSize / piece.size());

    QVERIFY(html(text) == green(text.toHtmlEscaped()));
    QVERIFY(html(text.toUtf8()) == green(text.toHtmlEscaped()));
}

int main(int argc, char **argv)
{
    return runTest<TestVariantHtml>(argc, argv);
}

#include "tst_VariantHtml.moc"
