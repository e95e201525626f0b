#include "WebAddressList.h"

#include "TestBase.h"

#include <QTranslator>

using WebAddressList::Service;

namespace {

const QHostAddress kLoopback(QHostAddress::LocalHost);
const QHostAddress kEthernet(QStringLiteral("192.0.2.7"));

QString lineOf(const QHostAddress &address, const Service &service)
{
    return WebAddressList::html({address}, service);
}

} // namespace

class TestWebAddressList : public TestBase
{
    Q_OBJECT

private slots:
    void lineIsALinkAndALineBreak();
    void loopbackHasANote();
    void noteIsTranslatedAsMarkup();
    void portIsLeftOutForItsOwnScheme_data();
    void portIsLeftOutForItsOwnScheme();
    void portAboveTheGreatestGivesNoLine();
    void onlyAddressesOfIPv4HaveALine();
    void orderAndRepetitionsAreKept();
    void noAddressGivesNothing();
    void pathIsTrimmedAndSetBetweenSlashes_data();
    void pathIsTrimmedAndSetBetweenSlashes();
    void nothingOfThePathIsMarkup_data();
    void nothingOfThePathIsMarkup();
    void longPathIsKeptWhole();
};

void TestWebAddressList::lineIsALinkAndALineBreak()
{
    QCOMPARE(lineOf(kEthernet, {false, 8080, QStringLiteral("web")}),
             QStringLiteral("<a href=\"http://192.0.2.7:8080/web/\">"
                            "http://192.0.2.7:8080/web/</a><br/>"));
}

void TestWebAddressList::loopbackHasANote()
{
    QCOMPARE(lineOf(kLoopback, {true, 8080, {}}),
             QStringLiteral("<a href=\"https://127.0.0.1:8080/\">https://127.0.0.1:8080/</a>"
                            "&nbsp;&nbsp;&nbsp;(to be used only from this computer)<br/>"));
    // It counts as an address like any other.
    QCOMPARE(lineOf(QHostAddress(QStringLiteral("127.0.0.2")), {false, 80, {}}),
             QStringLiteral("<a href=\"http://127.0.0.2/\">http://127.0.0.2/</a><br/>"));
}

void TestWebAddressList::noteIsTranslatedAsMarkup()
{
    class German : public QTranslator
    {
    public:
        QString translate(const char *context, const char *text, const char *, int) const override
        {
            const bool isNote = QByteArray(context) == "TXWebInterfaceConfigurationWidget"
                && QByteArray(text) == "&nbsp;&nbsp;&nbsp;(to be used only from this computer)";
            return isNote ? QStringLiteral("&nbsp;(<i>hier</i>)") : QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));

    const QString line = lineOf(kLoopback, {false, 80, {}});
    QCoreApplication::removeTranslator(&translator);

    QCOMPARE(line,
             QStringLiteral("<a href=\"http://127.0.0.1/\">http://127.0.0.1/</a>"
                            "&nbsp;(<i>hier</i>)<br/>"));
}

void TestWebAddressList::portIsLeftOutForItsOwnScheme_data()
{
    QTest::addColumn<bool>("isSecure");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("url");
    QTest::newRow("http 80") << false << 80 << "http://192.0.2.7/";
    QTest::newRow("http 443") << false << 443 << "http://192.0.2.7:443/";
    QTest::newRow("https 80") << true << 80 << "https://192.0.2.7:80/";
    QTest::newRow("https 443") << true << 443 << "https://192.0.2.7/";
    QTest::newRow("http 1") << false << 1 << "http://192.0.2.7:1/";
    QTest::newRow("https 1") << true << 1 << "https://192.0.2.7:1/";
    QTest::newRow("http 65535") << false << 65535 << "http://192.0.2.7:65535/";
    QTest::newRow("https 65535") << true << 65535 << "https://192.0.2.7:65535/";
}

void TestWebAddressList::portIsLeftOutForItsOwnScheme()
{
    QFETCH(bool, isSecure);
    QFETCH(int, port);
    QFETCH(QString, url);
    QCOMPARE(WebAddressList::url(kEthernet, {isSecure, port, {}}).toString(QUrl::FullyEncoded),
             url);
    QCOMPARE(lineOf(kEthernet, {isSecure, port, {}}),
             QStringLiteral("<a href=\"%1\">%1</a><br/>").arg(url));
}

void TestWebAddressList::portAboveTheGreatestGivesNoLine()
{
    QVERIFY(!lineOf(kEthernet, {false, 65535, {}}).isEmpty());
    QCOMPARE(WebAddressList::html({kLoopback, kEthernet}, {false, 65536, {}}), QString());
}

void TestWebAddressList::onlyAddressesOfIPv4HaveALine()
{
    const QList<QHostAddress> addresses = {
        QHostAddress(QHostAddress::LocalHostIPv6), QHostAddress(QStringLiteral("fe80::1%eth0")),
        // The same in IPv6, and none at all.
        QHostAddress(QStringLiteral("::ffff:192.0.2.7")), QHostAddress()};
    QCOMPARE(WebAddressList::html(addresses, {false, 80, {}}), QString());

    QCOMPARE(WebAddressList::html(addresses + QList<QHostAddress>({kEthernet}), {false, 80, {}}),
             lineOf(kEthernet, {false, 80, {}}));
}

void TestWebAddressList::orderAndRepetitionsAreKept()
{
    const Service service = {false, 80, {}};
    QCOMPARE(WebAddressList::html({kEthernet, kLoopback, kEthernet}, service),
             lineOf(kEthernet, service) + lineOf(kLoopback, service) + lineOf(kEthernet, service));
}

void TestWebAddressList::noAddressGivesNothing()
{
    QCOMPARE(WebAddressList::html({}, {true, 443, QStringLiteral("web")}), QString());
}

void TestWebAddressList::pathIsTrimmedAndSetBetweenSlashes_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("path");
    QTest::newRow("none") << ""
                          << "/";
    QTest::newRow("blanks") << " \t \n"
                            << "/";
    QTest::newRow("no-break spaces") << QString(2, QChar(QChar::Nbsp)) << "/";
    QTest::newRow("name") << "web"
                          << "/web/";
    QTest::newRow("name in blanks") << "  web\t"
                                    << "/web/";
    QTest::newRow("slash before") << "/web"
                                  << "//web/";
    QTest::newRow("slash behind") << "web/"
                                  << "/web//";
    QTest::newRow("slashes around") << "/web/"
                                    << "//web//";
    QTest::newRow("slash alone") << "/"
                                 << "///";
    QTest::newRow("several parts") << "a/b/c"
                                   << "/a/b/c/";
    QTest::newRow("up") << "../a"
                        << "/../a/";
    QTest::newRow("looks like a URL") << "http://x.y"
                                      << "/http://x.y/";
}

void TestWebAddressList::pathIsTrimmedAndSetBetweenSlashes()
{
    QFETCH(QString, typed);
    QFETCH(QString, path);
    QCOMPARE(lineOf(kEthernet, {false, 8080, typed}),
             QStringLiteral("<a href=\"http://192.0.2.7:8080%1\">http://192.0.2.7:8080%1</a><br/>")
                 .arg(path));
}

void TestWebAddressList::nothingOfThePathIsMarkup_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("encoded");
    QTest::newRow("space") << "a b"
                           << "a%20b";
    QTest::newRow("double quote") << "a\"b"
                                  << "a%22b";
    QTest::newRow("single quote") << "a'b"
                                  << "a'b";
    QTest::newRow("tag") << "<b>x</b>"
                         << "%3Cb%3Ex%3C/b%3E";
    QTest::newRow("end of the link") << "\"><img src=x>"
                                     << "%22%3E%3Cimg%20src=x%3E";
    QTest::newRow("query") << "a?b=c"
                           << "a%3Fb=c";
    QTest::newRow("fragment") << "a#b"
                              << "a%23b";
    QTest::newRow("percent") << "100%"
                             << "100%25";
    QTest::newRow("encoded already") << "a%20b"
                                     << "a%2520b";
    QTest::newRow("place of an argument") << "%1%2"
                                          << "%251%252";
    QTest::newRow("ampersand") << "a&b"
                               << "a&amp;b";
    QTest::newRow("entity") << "&lt;b&gt;"
                            << "&amp;lt;b&amp;gt;";
    QTest::newRow("numbered entity") << "&#60;"
                                     << "&amp;%2360;";
    QTest::newRow("nameless entity") << "&quot"
                                     << "&amp;quot";
    QTest::newRow("backslash") << "a\\b"
                               << "a%5Cb";
    QTest::newRow("non-ASCII") << QString::fromUtf8("zoë😀") << "zo%C3%AB%F0%9F%98%80";
    QTest::newRow("control characters") << QString("a\x01"
                                                   "b\x7f"
                                                   "c\nd")
                                        << "a%01b%7Fc%0Ad";
    QTest::newRow("NUL") << QString("a") + QChar(0) + "b"
                         << "a%00b";
    QTest::newRow("half a character") << QString("a") + QChar(0xd83d) + "b"
                                      << "a%ED%A0%BDb";
    QTest::newRow("right to left") << QString(QChar(0x202e)) + "x"
                                   << "%E2%80%AEx";
    QTest::newRow("at") << "user@host:1"
                        << "user@host:1";
    QTest::newRow("brackets") << "[x]{y}|^`"
                              << "[x]%7By%7D%7C%5E%60";
}

void TestWebAddressList::nothingOfThePathIsMarkup()
{
    QFETCH(QString, typed);
    QFETCH(QString, encoded);
    const QString url = "http://192.0.2.7:8080/" + encoded + "/";

    QCOMPARE(lineOf(kEthernet, {false, 8080, typed}),
             "<a href=\"" + url + "\">" + url + "</a><br/>");
    QVERIFY(WebAddressList::url(kEthernet, {false, 8080, typed}).isValid());
}

void TestWebAddressList::longPathIsKeptWhole()
{
    const QString path(100'000, u'x');
    const QString line = lineOf(kEthernet, {false, 80, path});
    QCOMPARE(line,
             "<a href=\"http://192.0.2.7/" + path + "/\">http://192.0.2.7/" + path + "/</a><br/>");
}

int main(int argc, char **argv)
{
    return runTest<TestWebAddressList>(argc, argv);
}

#include "tst_WebAddressList.moc"
