#include "HostRecording.h"
#include "HostSearch.h"
#include "TestBase.h"

#include <optional>

class TestHostSearchLines : public TestBase
{
    Q_OBJECT

private slots:
    void lineTellsAHost_data();
    void lineTellsAHost();
    void recordsOfOneServerHaveOneKey_data();
    void recordsOfOneServerHaveOneKey();
    void damagedLineTellsNothing_data();
    void damagedLineTellsNothing();
    void cutOrChangedLinesDoNoHarm();
    void addressIsToldWithTheHost();
};

void TestHostSearchLines::lineTellsAHost_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("url");

    const auto add = [](const char *name, const QByteArray &line, const char *url) {
        QTest::newRow(name) << "=;eth0;" + line << url;
    };
    add("usual", "IPv4;nas;_smb._tcp;local;nas.local;10.0.0.1;445;", "smb://nas.local");
    add("without texts", "IPv4;nas;_smb._tcp;local;nas.local;10.0.0.1;445", "smb://nas.local");
    add("with texts", "IPv4;nas;_smb._tcp;local;nas.local;10.0.0.1;445;\"a=;b\" \";;\"",
        "smb://nas.local");
    add("capitals", "IPv4;NAS;_smb._tcp;local;NAS.Local;10.0.0.1;445;", "smb://nas.local");
    add("type in words", "IPv4;nas;Microsoft Windows Network;local;nas.local;10.0.0.1;445;",
        "smb://nas.local");
    add("other port", "IPv4;nas;_smb._tcp;local;nas.local;10.0.0.1;1445;", "smb://nas.local:1445");
    add("highest port", "IPv4;nas;_smb._tcp;local;nas.local;10.0.0.1;65535;",
        "smb://nas.local:65535");
    add("full stop at the end", "IPv4;nas;_smb._tcp;local;nas.local.;10.0.0.1;445;",
        "smb://nas.local");
    add("escapes in the service's name",
        "IPv4;a\\032\\059\\.\\\\b\\;_smb._tcp;local;nas.local;10.0.0.1;445;", "smb://nas.local");
    add("escaped host that is usable", "IPv4;n;_smb._tcp;local;n\\097s.local;10.0.0.1;445;",
        "smb://nas.local");
    add("full stop within a label", "IPv4;n;_smb._tcp;local;a\\.b.local;10.0.0.1;445;",
        "smb://10.0.0.1");
    add("full stop by its number", "IPv4;n;_smb._tcp;local;a\\046b.local;10.0.0.1;445;",
        "smb://10.0.0.1");
    add("numbers of another base", "IPv4;n;_smb._tcp;local;0x7f.1;10.0.0.1;445;", "smb://10.0.0.1");
    add("one number", "IPv4;n;_smb._tcp;local;2130706433;10.0.0.1;445;", "smb://10.0.0.1");
    add("octal numbers", "IPv4;n;_smb._tcp;local;010.0.0.1;10.0.0.1;445;", "smb://10.0.0.1");
    add("address in place of a name", "IPv4;n;_smb._tcp;local;10.0.0.9;10.0.0.1;445;",
        "smb://10.0.0.1");
    add("IPv6 in place of a name", "IPv4;n;_smb._tcp;local;fd00::9;10.0.0.1;445;",
        "smb://10.0.0.1");
    add("digits in a name", "IPv4;n;_smb._tcp;local;10.0.0.nas;10.0.0.1;445;", "smb://10.0.0.nas");
    add("umlaut in the host", "IPv4;n;_smb._tcp;local;b\\195\\188ro.local;10.0.0.1;445;",
        "smb://xn--bro-hoa.local");
    add("blank in the host", "IPv4;n;_smb._tcp;local;my\\032nas.local;10.0.0.1;445;",
        "smb://10.0.0.1");
    add("blank and another port", "IPv4;n;_smb._tcp;local;my nas.local;10.0.0.1;7;",
        "smb://10.0.0.1:7");
    add("quote in the host", "IPv4;n;_smb._tcp;local;mia's.local;10.0.0.1;445;", "smb://10.0.0.1");
    add("semicolon in the host", "IPv4;n;_smb._tcp;local;a\\059b.local;10.0.0.1;445;",
        "smb://10.0.0.1");
    add("leading dash", "IPv4;n;_smb._tcp;local;-x.local;10.0.0.1;445;", "smb://10.0.0.1");
    add("slash", "IPv4;n;_smb._tcp;local;a\\047b;10.0.0.1;445;", "smb://10.0.0.1");
    add("at sign", "IPv4;n;_smb._tcp;local;a@b;10.0.0.1;445;", "smb://10.0.0.1");
    add("percent sign", "IPv4;n;_smb._tcp;local;a%41;10.0.0.1;445;", "smb://10.0.0.1");
    add("line break", "IPv4;n;_smb._tcp;local;a\\010b;10.0.0.1;445;", "smb://10.0.0.1");
    add("null byte", "IPv4;n;_smb._tcp;local;a\\000b;10.0.0.1;445;", "smb://10.0.0.1");
    add("no UTF-8", "IPv4;n;_smb._tcp;local;a\\255b;10.0.0.1;445;", "smb://10.0.0.1");
    add("no host", "IPv4;n;_smb._tcp;local;;10.0.0.1;445;", "smb://10.0.0.1");
    add("escape too high", "IPv4;n;_smb._tcp;local;a\\999b;10.0.0.1;445;", "smb://10.0.0.1");
    add("escape at the end", "IPv4;n;_smb._tcp;local;a b\\;10.0.0.1;445;", "smb://10.0.0.1");
    add("IPv6", "IPv6;n;_smb._tcp;local;a b;fd00::7;445;", "smb://[fd00::7]");
    add("IPv6 of a link", "IPv6;n;_smb._tcp;local;a b;FE80::7;1445;",
        "smb://[fe80::7%25eth0]:1445");
    add("IPv6 by name", "IPv6;n;_smb._tcp;local;nas.local;fe80::7;445;", "smb://nas.local");
}

void TestHostSearchLines::lineTellsAHost()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, url);
    const std::optional<HostSearch::Host> host = HostSearch::hostOf(line);
    QVERIFY(host);
    QCOMPARE(host->url.toString(QUrl::FullyEncoded), url);
    QVERIFY(host->url.isValid());
    QVERIFY(host->url.path().isEmpty());
}

void TestHostSearchLines::recordsOfOneServerHaveOneKey_data()
{
    QTest::addColumn<QByteArray>("one");
    QTest::addColumn<QByteArray>("other");
    QTest::addColumn<bool>("same");
    const QByteArray first = "=;eth0;IPv4;n;_smb._tcp;local;nas.local;10.0.0.1;445;";
    QTest::newRow("other address")
        << first << QByteArray("=;e;IPv6;n;t;local;nas.local;::9;445;") << true;
    QTest::newRow("other spelling")
        << first << QByteArray("=;e;IPv4;n;t;local;NAS.local;10.0.0.1;445;") << true;
    QTest::newRow("full stop within a label")
        << first << QByteArray("=;e;IPv4;n;t;local;nas\\.local;10.0.0.1;445;") << false;
    QTest::newRow("other service")
        << first << QByteArray("=;e;IPv4;m;t;l;nas.local;10.0.0.1;445;") << true;
    QTest::newRow("other port") << first << QByteArray("=;e;IPv4;n;t;l;nas.local;10.0.0.1;446;")
                                << false;
    QTest::newRow("other host") << first << QByteArray("=;e;IPv4;n;t;l;sun.local;10.0.0.1;445;")
                                << false;
    QTest::newRow("unusable name, two addresses")
        << QByteArray("=;e;IPv4;n;t;l;a b;10.0.0.1;445;")
        << QByteArray("=;e;IPv6;n;t;l;a b;fd00::1;445;") << true;
    QTest::newRow("no name, two addresses") << QByteArray("=;e;IPv4;n;t;l;;10.0.0.1;445;")
                                            << QByteArray("=;e;IPv4;n;t;l;;10.0.0.2;445;") << false;
}

void TestHostSearchLines::recordsOfOneServerHaveOneKey()
{
    QFETCH(QByteArray, one);
    QFETCH(QByteArray, other);
    QFETCH(bool, same);
    const std::optional<HostSearch::Host> first = HostSearch::hostOf(one);
    const std::optional<HostSearch::Host> second = HostSearch::hostOf(other);
    QVERIFY(first && second);
    QCOMPARE(first->key == second->key, same);
}

void TestHostSearchLines::damagedLineTellsNothing_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("heard of") << QByteArray("+;eth0;IPv4;nas;_smb._tcp;local");
    QTest::newRow("gone") << QByteArray("-;eth0;IPv4;nas;_smb._tcp;local");
    QTest::newRow("heard of, with all fields")
        << QByteArray("+;eth0;IPv4;n;_smb._tcp;local;nas.local;10.0.0.1;445;");
    QTest::newRow("mark only") << QByteArray("=");
    QTest::newRow("semicolons") << QByteArray("=;;;;;;;;;;");
    QTest::newRow("no port") << QByteArray("=;eth0;IPv4;n;_smb._tcp;local;nas.local;10.0.0.1");
    QTest::newRow("empty port") << QByteArray("=;e;IPv4;n;_smb._tcp;local;nas.local;10.0.0.1;;");
    QTest::newRow("port 0") << QByteArray("=;e;IPv4;n;_smb._tcp;local;nas.local;10.0.0.1;0;");
    QTest::newRow("port below 0") << QByteArray("=;e;IPv4;n;_smb._tcp;local;nas.local;1.1.1.1;-1;");
    QTest::newRow("port too high") << QByteArray("=;e;IPv4;n;t;local;nas.local;1.1.1.1;65536;");
    QTest::newRow("port far too high")
        << QByteArray("=;e;IPv4;n;t;local;nas.local;1.1.1.1;99999999999999999999;");
    QTest::newRow("port with a sign") << QByteArray("=;e;IPv4;n;t;local;nas.local;1.1.1.1;+445;");
    QTest::newRow("port with a blank") << QByteArray("=;e;IPv4;n;t;local;nas.local;1.1.1.1; 445;");
    QTest::newRow("port in words") << QByteArray("=;e;IPv4;n;t;local;nas.local;1.1.1.1;smb;");
    QTest::newRow("neither host nor address") << QByteArray("=;e;IPv4;n;t;local;;;445;");
    QTest::newRow("address in words") << QByteArray("=;e;IPv4;n;t;local;a b;nas;445;");
    QTest::newRow("address too high") << QByteArray("=;e;IPv4;n;t;local;a b;10.0.0.256;445;");
    QTest::newRow("octal address") << QByteArray("=;e;IPv4;n;t;local;010.0.0.1;010.0.0.1;445;");
    QTest::newRow("address with a sign") << QByteArray("=;e;IPv4;n;t;local;a b;+10.0.0.1;445;");
    QTest::newRow("address with blanks") << QByteArray("=;e;IPv4;n;t;local;a b; 10. 0.0.1;445;");
    QTest::newRow("address too short") << QByteArray("=;e;IPv4;n;t;local;a b;10.0.1;445;");
    QTest::newRow("address is a hole") << QByteArray("=;e;IPv4;n;t;local;a b;10..0.1;445;");
    QTest::newRow("IPv6 too long") << QByteArray("=;e;IPv6;n;t;local;a b;1:2:3:4:5:6:7:8:9;445;");
    QTest::newRow("IPv6 in words") << QByteArray("=;e;IPv6;n;t;local;a b;x::y;445;");
    QTest::newRow("IPv6 with a path") << QByteArray("=;e;IPv6;n;t;local;a b;::1]/x;445;");
    QTest::newRow("card with a path") << QByteArray("=;e]/x;IPv6;n;t;local;a b;fe80::1;445;");
    QTest::newRow("error") << QByteArray("Failed to resolve service 'nas': Timeout reached");
    QTest::newRow("null bytes") << QByteArray(100, '\0');
    QTest::newRow("long") << QByteArray(60'000, ';');
    QTest::newRow("backslashes") << QByteArray(60'000, '\\');
}

void TestHostSearchLines::damagedLineTellsNothing()
{
    QFETCH(QByteArray, line);
    const std::optional<HostSearch::Host> host = HostSearch::hostOf(line);
    QVERIFY2(!host, host ? host->url.toEncoded().constData() : "");
}

void TestHostSearchLines::cutOrChangedLinesDoNoHarm()
{
    int told = 0;
    const auto check = [&told](const QByteArray &line) {
        const std::optional<HostSearch::Host> host = HostSearch::hostOf(line);
        if (host) {
            ++told;
            QVERIFY2(host->url.isValid() && !host->url.host().isEmpty(), line.constData());
            QVERIFY2(host->url.path().isEmpty() && host->url.userInfo().isEmpty(),
                     line.constData());
            QVERIFY2(!host->url.host().startsWith('-'), line.constData());
        }
    };
    const QByteArray strange = QByteArray("\0\n\r\t ;=\\-\"'@/:%[]#?0\xff", 21);
    for (const QByteArray &line : kRecording.split('\n')) {
        for (qsizetype at = 0; at < line.size(); ++at) {
            check(line.left(at));
            check(line.mid(at));
            for (const char character : strange) {
                check(QByteArray(line).replace(at, 1, QByteArray(1, character)));
                check(QByteArray(line).insert(at, character));
            }
        }
    }
    QVERIFY(told > 1000);
}

void TestHostSearchLines::addressIsToldWithTheHost()
{
    const auto addressIn = [](const QByteArray &line) {
        const std::optional<HostSearch::Host> host = HostSearch::hostOf(line);
        return host ? host->address : QStringLiteral("no host");
    };
    QCOMPARE(addressIn("=;eth0;IPv4;n;t;l;nas.local;10.0.0.1;445;"), "10.0.0.1");
    QCOMPARE(addressIn("=;eth0;IPv6;n;t;l;nas.local;fd00::7;445;"), "fd00::7");
    QCOMPARE(addressIn("=;eth0;IPv6;n;t;l;nas.local;fe80::7;445;"), "fe80::7%eth0");
    QCOMPARE(addressIn("=;eth0;IPv4;n;t;l;a b;10.0.0.1;445;"), "10.0.0.1");
    QCOMPARE(addressIn("=;eth0;IPv4;n;t;l;nas.local;-x;445;"), "");
    QCOMPARE(addressIn("=;eth0;IPv6;n;t;l;nas.local;fe80:: --x;445;"), "");
}

int main(int argc, char **argv)
{
    return runTest<TestHostSearchLines>(argc, argv);
}

#include "tst_HostSearchLines.moc"
