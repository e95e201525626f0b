#include "TXUpdateService.h"

#include "TestBase.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSignalSpy>
#include <QThread>
#include <QUrlQuery>

#include <array>
#include <memory>

namespace {

const QString kPath = QStringLiteral("/checkUpdate");
const QString kOfTheBuild = QStringLiteral("updates.tovra.example");

/// Made before main() is entered, possibly before any static object of the library.
const QUrl kEarlyUrl = TXUpdateService::url(QStringLiteral("/early"));

QString urlWith(const QString &authority)
{
    TXUpdateService::setAuthority(authority);
    return TXUpdateService::url(kPath).toString(QUrl::FullyEncoded);
}

/// Changes the service and reads it again and again; whether only what somebody has set was read.
bool readsWholeTexts(const QString &own)
{
    constexpr int kRounds = 2000;
    for (int round = 0; round < kRounds; ++round) {
        TXUpdateService::setAuthority(own);
        const QString host = TXUpdateService::url(kPath).host();
        if (host.size() != own.size() || host.count(host.front()) != host.size()) {
            return false;
        }
    }
    return true;
}

} // namespace

class TestTXUpdateService : public TestBase
{
    Q_OBJECT

protected:
    void finish() override { TXUpdateService::setAuthority(QString()); }

private slots:
    void usableBeforeTheApplication();
    void authorityIsThatOfTheBuildAtFirst();
    void emptyTextStandsForThatOfTheBuild_data();
    void emptyTextStandsForThatOfTheBuild();
    void urlIsMadeOfTheAuthority_data();
    void urlIsMadeOfTheAuthority();
    void blanksAroundDoNotCount();
    void junkNamesNoHost_data();
    void junkNamesNoHost();
    void junkIsKeptAsText();
    void pathIsParsedInTolerantMode();
    void laterChangeCountsForTheNextUrl();
    void severalThreadsMayUseItAtOnce();
};

void TestTXUpdateService::usableBeforeTheApplication()
{
    QCOMPARE(kEarlyUrl, QUrl(QStringLiteral("https://updates.tovra.example/early")));
}

void TestTXUpdateService::authorityIsThatOfTheBuildAtFirst()
{
    QCOMPARE(TXUpdateService::authority(), kOfTheBuild);
    QCOMPARE(TXUpdateService::url(kPath).toString(),
             QStringLiteral("https://updates.tovra.example/checkUpdate"));
}

void TestTXUpdateService::emptyTextStandsForThatOfTheBuild_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("blank") << " \t\n";
}

void TestTXUpdateService::emptyTextStandsForThatOfTheBuild()
{
    QFETCH(QString, text);
    TXUpdateService::setAuthority(QStringLiteral("other.example"));

    TXUpdateService::setAuthority(text);

    QCOMPARE(TXUpdateService::authority(), kOfTheBuild);
}

void TestTXUpdateService::urlIsMadeOfTheAuthority_data()
{
    QTest::addColumn<QString>("authority");
    QTest::addColumn<QString>("expected");
    QTest::newRow("host") << "other.example"
                          << "https://other.example/checkUpdate";
    QTest::newRow("port") << "other.example:8443"
                          << "https://other.example:8443/checkUpdate";
    QTest::newRow("IPv4") << "127.0.0.1:4711"
                          << "https://127.0.0.1:4711/checkUpdate";
    QTest::newRow("IPv6") << "[::1]"
                          << "https://[::1]/checkUpdate";
    QTest::newRow("IPv6 with port") << "[fe80::1]:8443"
                                    << "https://[fe80::1]:8443/checkUpdate";
    QTest::newRow("umlaut") << QStringLiteral("pr\u00fcfung.example:1")
                            << "https://xn--prfung-4ya.example:1/checkUpdate";
    QTest::newRow("colon without port") << "other.example:"
                                        << "https://other.example/checkUpdate";
}

void TestTXUpdateService::urlIsMadeOfTheAuthority()
{
    QFETCH(QString, authority);
    QFETCH(QString, expected);

    QCOMPARE(urlWith(authority), expected);
}

void TestTXUpdateService::blanksAroundDoNotCount()
{
    QCOMPARE(urlWith(QStringLiteral(" other.example:8443\n")),
             QStringLiteral("https://other.example:8443/checkUpdate"));
}

void TestTXUpdateService::junkNamesNoHost_data()
{
    QTest::addColumn<QString>("junk");
    for (const char *junk :
         {"a/b", "/", "user@host", "user:word@host", "@host", "host:99999", "host:-1", "host:80a",
          "a b", "a\\b", "a?b", "a#b", "[::1", "::1", "a%2Fb", "https://host", "a\nb"}) {
        QTest::addRow("\"%s\"", junk) << QString::fromLatin1(junk);
    }
    QTest::newRow("NUL character") << QStringLiteral("a%1b").arg(QChar(u'\0'));
    QTest::newRow("very long") << QString(100'000, u'x');
}

void TestTXUpdateService::junkNamesNoHost()
{
    QFETCH(QString, junk);

    QCOMPARE(urlWith(junk), QStringLiteral("https:///checkUpdate"));

    // With a query too, which makes QUrl forget an error.
    QUrl url = TXUpdateService::url(kPath);
    url.setQuery(QUrlQuery(QStringLiteral("a=b")));
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(manager.get(QNetworkRequest(url)));
    QSignalSpy finished(reply.get(), SIGNAL(finished()));
    QVERIFY(finished.wait());
    QCOMPARE(reply->error(), QNetworkReply::HostNotFoundError);
}

void TestTXUpdateService::junkIsKeptAsText()
{
    TXUpdateService::setAuthority(QStringLiteral("a/b"));

    QCOMPARE(TXUpdateService::authority(), QStringLiteral("a/b"));
}

void TestTXUpdateService::pathIsParsedInTolerantMode()
{
    TXUpdateService::setAuthority(QStringLiteral("h"));

    QCOMPARE(TXUpdateService::url(QStringLiteral("/a b%")).toString(QUrl::FullyEncoded),
             QStringLiteral("https://h/a%20b%25"));
}

void TestTXUpdateService::laterChangeCountsForTheNextUrl()
{
    TXUpdateService::setAuthority(QStringLiteral("one.example"));
    const QUrl before = TXUpdateService::url(kPath);

    TXUpdateService::setAuthority(QStringLiteral("two.example"));

    QCOMPARE(before.host(), QStringLiteral("one.example"));
    QCOMPARE(TXUpdateService::url(kPath).host(), QStringLiteral("two.example"));
}

void TestTXUpdateService::severalThreadsMayUseItAtOnce()
{
    constexpr int kThreads = 4;
    constexpr int kLength = 40;
    std::array<bool, kThreads> results{};
    std::array<std::unique_ptr<QThread>, kThreads> threads;
    for (size_t i = 0; i < kThreads; ++i) {
        const QString own(kLength, QChar(char16_t(u'a' + i)));
        threads[i].reset(
            QThread::create([&results, i, own] { results[i] = readsWholeTexts(own); }));
        threads[i]->start();
    }
    for (const auto &thread : threads) {
        thread->wait();
    }

    for (const bool result : results) {
        QVERIFY(result);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestTXUpdateService>(argc, argv);
}

#include "tst_TXUpdateService.moc"
