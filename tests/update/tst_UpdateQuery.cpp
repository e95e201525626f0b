#include "UpdateQuery.h"

#include "TXUpdateService.h"
#include "TestBase.h"

#include <QUrlQuery>

namespace {

/// The value as it stands in the address, percent-encoded.
QString sent(const QString &value)
{
    const QUrl url = UpdateQuery::address(QStringLiteral("/p"), {{QStringLiteral("V"), value}});
    const QString query = url.query(QUrl::FullyEncoded);
    return query.startsWith(QStringLiteral("V=")) ? query.mid(2) : QStringLiteral("no value");
}

QString sentByQt(const QString &value)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("V"), value);
    QUrl url(QStringLiteral("https://h/p"));
    url.setQuery(query);
    return url.query(QUrl::FullyEncoded).mid(2);
}

} // namespace

class TestUpdateQuery : public TestBase
{
    Q_OBJECT

protected:
    void finish() override { TXUpdateService::setAuthority(QString()); }

private slots:
    void itemsStandInTheirOrder();
    void ordinaryValueLooksAsQtWritesIt_data();
    void ordinaryValueLooksAsQtWritesIt();
    void anyValueArrivesAsItIs_data();
    void anyValueArrivesAsItIs();
    void emptyValueKeepsItsEqualsSign();
    void namesAreEncodedToo();
    void junkOfAServiceStaysWithoutHost();
};

void TestUpdateQuery::itemsStandInTheirOrder()
{
    TXUpdateService::setAuthority(QStringLiteral("[::1]:8443"));

    const QUrl url = UpdateQuery::address(QStringLiteral("/download"),
                                          {{QStringLiteral("Z"), QStringLiteral("1")},
                                           {QStringLiteral("A"), QStringLiteral("2")},
                                           {QStringLiteral("Z"), QStringLiteral("3")}});

    QCOMPARE(url.toString(QUrl::FullyEncoded),
             QStringLiteral("https://[::1]:8443/download?Z=1&A=2&Z=3"));
}

void TestUpdateQuery::ordinaryValueLooksAsQtWritesIt_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("word") << "Finale";
    QTest::newRow("number") << "-1";
    QTest::newRow("date") << "2026-11-21T11:44:42Z";
    QTest::newRow("blanks") << "release candidate 2";
    QTest::newRow("umlauts") << QStringLiteral("Prüfung");
    QTest::newRow("signs that may stand in a query") << "a:b/c?d@e!f$g'h(i)j*k,l;m-n.o_p~q";
    QTest::newRow("delimiters") << "a&b=c#d";
}

void TestUpdateQuery::ordinaryValueLooksAsQtWritesIt()
{
    QFETCH(QString, value);

    QCOMPARE(sent(value), sentByQt(value));
    QVERIFY(!value.contains(u':') || sent(value).contains(u':'));
}

void TestUpdateQuery::anyValueArrivesAsItIs_data()
{
    QTest::addColumn<QString>("value");
    for (const char *value : {"a&b", "a#b", "a+b", "a%b", "100%", "%26", "%2B", "%zz", "a=b", "a b",
                              "&Status=x", "+", "%", "%25", "a\nb\r\nHost: x", "<\"'>\\^`{|}[]"}) {
        QTest::addRow("\"%s\"", value) << QString::fromLatin1(value);
    }
    QTest::newRow("umlauts") << QStringLiteral("Prüfung ß €");
    QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F3A8");
    QTest::newRow("NUL character") << QStringLiteral("a%1b").arg(QChar(u'\0'));
    QTest::newRow("long") << QString(100'000, u'%');
}

void TestUpdateQuery::anyValueArrivesAsItIs()
{
    QFETCH(QString, value);
    const QByteArray encoded = sent(value).toLatin1();

    QVERIFY(!encoded.contains('&') && !encoded.contains('#'));
    // As addresses are read, and as the fields of forms are.
    QCOMPARE(QUrl::fromPercentEncoding(encoded), value);
    QCOMPARE(QUrl::fromPercentEncoding(QByteArray(encoded).replace('+', ' ')), value);
}

void TestUpdateQuery::emptyValueKeepsItsEqualsSign()
{
    QCOMPARE(sent(QStringLiteral("")), QString());
    QCOMPARE(sent(QString()), QString());
}

void TestUpdateQuery::namesAreEncodedToo()
{
    const QUrl url = UpdateQuery::address(QStringLiteral("/p"),
                                          {{QStringLiteral("a+b&c%20"), QStringLiteral("1")}});

    QCOMPARE(url.query(QUrl::FullyEncoded), QStringLiteral("a%2Bb%26c%2520=1"));
}

void TestUpdateQuery::junkOfAServiceStaysWithoutHost()
{
    TXUpdateService::setAuthority(QStringLiteral("host:99999"));

    const QUrl url = UpdateQuery::address(QStringLiteral("/p"), {{QStringLiteral("a"), QString()}});

    QCOMPARE(url.toString(QUrl::FullyEncoded), QStringLiteral("https:///p?a="));
}

int main(int argc, char **argv)
{
    return runTest<TestUpdateQuery>(argc, argv);
}

#include "tst_UpdateQuery.moc"
