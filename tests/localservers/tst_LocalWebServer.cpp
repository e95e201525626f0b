#include "LocalCertificate.h"
#include "LocalWebServer.h"
#include "ProcessTable.h"
#include "TestBase.h"
#include "WebClient.h"

#include <QFile>
#include <QSignalSpy>
#include <QTcpSocket>
#include <QTimer>

namespace {

constexpr int kPatienceMilliseconds = 20000;

QUrl urlOf(const LocalWebServer &server, const QString &path,
           const QString &scheme = QStringLiteral("http"))
{
    return QUrl::fromEncoded(
        QStringLiteral("%1://127.0.0.1:%2%3").arg(scheme).arg(server.port()).arg(path).toUtf8());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

} // namespace

class TestLocalWebServer : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void pageIsServedAtItsPathAlone_data();
    void pageIsServedAtItsPathAlone();
    void onlyTheUserIsLetIn_data();
    void onlyTheUserIsLetIn();
    void pageIsServedOverHttps();
    void plainRequestToHttpsIsHarmless();
    void contentCountsFromTheNextStart();
    void headersKeepThePageHarmless();
    void otherMethodsAreRefused();
    void bytesOfThePathNeedNoEncoding();
    void requestsAreLoggedWithoutSecrets();
    void loginInTheTargetIsNotLogged();
    void brokenRequestsAreHarmless_data();
    void brokenRequestsAreHarmless();
    void silentClientsDoNotStopOthers();
    void slowClientsDoNotStopOthers();
    void stopFreesThePortForTheNextStart();
    void loopbackIsTheOnlyPlaceByDefault();
    void everyAddressIsServedWhenWanted();

private:
    /// What the server sends back for these bytes.
    [[nodiscard]] QByteArray answerTo(const QByteArray &request) const;

    /// Another one than 127.0.0.1, as 127.0.0.2 is on any Linux.
    const QHostAddress otherAddress = QHostAddress(QStringLiteral("127.0.0.2"));
    std::unique_ptr<LocalWebServer> server;
    std::unique_ptr<QTemporaryDir> folder;
};

void TestLocalWebServer::prepare()
{
    server = std::make_unique<LocalWebServer>();
    server->setContent(QString::fromUtf8("<p>zoë</p>"));
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void TestLocalWebServer::finish()
{
    server.reset();
    folder.reset();
}

QByteArray TestLocalWebServer::answerTo(const QByteArray &request) const
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), server->port());
    socket.write(request);
    static_cast<void>(
        QTest::qWaitFor([&socket] { return socket.state() == QAbstractSocket::UnconnectedState; },
                        kPatienceMilliseconds));
    return socket.readAll();
}

void TestLocalWebServer::pageIsServedAtItsPathAlone_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<int>("status");
    QTest::newRow("root") << "/"
                          << "/" << 200;
    QTest::newRow("beside the root") << "/"
                                     << "/web/" << 404;
    QTest::newRow("path") << "/web/"
                          << "/web/" << 200;
    QTest::newRow("with a query") << "/web/"
                                  << "/web/?a=b" << 200;
    QTest::newRow("above the path") << "/web/"
                                    << "/" << 404;
    QTest::newRow("below the path") << "/web/"
                                    << "/web/x" << 404;
    QTest::newRow("without the slash") << "/web/"
                                       << "/web" << 404;
    QTest::newRow("two slashes") << "//web/"
                                 << "//web/" << 200;
    QTest::newRow("one slash of two") << "//web/"
                                      << "/web/" << 200;
    QTest::newRow("way up in the path") << "/../web/"
                                        << "/web/" << 200;
    QTest::newRow("slashes alone") << "///"
                                   << "/" << 200;
    QTest::newRow("encoded") << "/a%20b%3F%25%C3%AB/"
                             << "/a%20b%3F%25%C3%AB/" << 200;
    QTest::newRow("encoded otherwise") << "/web/"
                                       << "/%77eb/" << 200;
    QTest::newRow("encoded percent") << "/%2541/"
                                     << "/A/" << 404;
    QTest::newRow("file of the system") << "/web/"
                                        << "/web/..%2f..%2fetc/passwd" << 404;
}

void TestLocalWebServer::pageIsServedAtItsPathAlone()
{
    QFETCH(QString, path);
    QFETCH(QString, asked);
    QFETCH(int, status);
    server->setPath(path);
    QVERIFY2(server->start(), qPrintable(server->error()));

    const WebAnswer answer = fetchPage(urlOf(*server, asked));

    QCOMPARE(answer.status, status);
    QCOMPARE(answer.body == QString::fromUtf8("<p>zoë</p>").toUtf8(), status == 200);
    QCOMPARE(answer.contentType, QByteArray("text/html; charset=utf-8"));
    QCOMPARE(server->error(), QString());
}

void TestLocalWebServer::onlyTheUserIsLetIn_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("login");
    QTest::addColumn<int>("status");
    const QString zoe = QString::fromUtf8("zoë");
    QTest::newRow("nobody set") << ""
                                << "" << QByteArray() << 200;
    QTest::newRow("nobody set, login sent") << ""
                                            << "x" << QByteArray("a:b") << 200;
    QTest::newRow("right") << "mia"
                           << "s3cret" << QByteArray("mia:s3cret") << 200;
    QTest::newRow("none sent") << "mia"
                               << "s3cret" << QByteArray() << 401;
    QTest::newRow("wrong password") << "mia"
                                    << "s3cret" << QByteArray("mia:s3cre") << 401;
    QTest::newRow("wrong name") << "mia"
                                << "s3cret" << QByteArray("mi:s3cret") << 401;
    QTest::newRow("no password") << "mia"
                                 << "" << QByteArray("mia:") << 200;
    QTest::newRow("no colon") << "mia"
                              << "" << QByteArray("mia") << 401;
    QTest::newRow("non-ASCII") << zoe << "ä:b" << (zoe + ":ä:b").toUtf8() << 200;
    QTest::newRow("half a character")
        << QString(QChar(0xd800)) << "s3cret" << QByteArray("?:s3cret") << 200;
}

void TestLocalWebServer::onlyTheUserIsLetIn()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QByteArray, login);
    QFETCH(int, status);
    server->setUser(user, password);
    QVERIFY2(server->start(), qPrintable(server->error()));

    const WebAnswer answer = fetchPage(urlOf(*server, QStringLiteral("/")), {login});
    // Who is not let in does not learn what there is.
    const WebAnswer beside = fetchPage(urlOf(*server, QStringLiteral("/x")), {login});

    QCOMPARE(answer.status, status);
    QCOMPARE(answer.wantedLogin.startsWith("Basic "), status == 401);
    QCOMPARE(beside.status, status == 200 ? 404 : 401);
}

void TestLocalWebServer::pageIsServedOverHttps()
{
    const LocalCertificate certificate;
    QVERIFY2(certificate.isValid(), qPrintable(certificate.error()));
    const QString file = folder->filePath(QStringLiteral("both.pem"));
    write(file, contentOf(certificate.keyFile()) + contentOf(certificate.certificateFile()));
    server->setCertificate(file);
    QVERIFY2(server->start(), qPrintable(server->error()));
    const QUrl url = urlOf(*server, QStringLiteral("/"), QStringLiteral("https"));

    const WebAnswer stranger = fetchPage(url);
    const WebAnswer friendly = fetchPage(url, {{}, certificate.certificateFile()});

    QCOMPARE(stranger.error, QNetworkReply::SslHandshakeFailedError);
    QCOMPARE(friendly.status, 200);
    QCOMPARE(friendly.body, QString::fromUtf8("<p>zoë</p>").toUtf8());
    QCOMPARE(server->error(), QString());
}

void TestLocalWebServer::plainRequestToHttpsIsHarmless()
{
    const LocalCertificate certificate;
    const QString file = folder->filePath(QStringLiteral("both.pem"));
    write(file, contentOf(certificate.certificateFile()) + contentOf(certificate.keyFile()));
    server->setCertificate(file);
    QVERIFY2(server->start(), qPrintable(server->error()));

    QCOMPARE(fetchPage(urlOf(*server, QStringLiteral("/"))).status, 0);

    const QUrl url = urlOf(*server, QStringLiteral("/"), QStringLiteral("https"));
    QCOMPARE(fetchPage(url, {{}, certificate.certificateFile()}).status, 200);
    QCOMPARE(server->error(), QString());
}

void TestLocalWebServer::contentCountsFromTheNextStart()
{
    QVERIFY2(server->start(), qPrintable(server->error()));
    const QByteArray first = fetchPage(urlOf(*server, QStringLiteral("/"))).body;

    server->setContent(QStringLiteral("second \"page\" \n") + QChar(0xd800));

    QCOMPARE(fetchPage(urlOf(*server, QStringLiteral("/"))).body, first);
    server->stop();
    QVERIFY2(server->start(), qPrintable(server->error()));
    // Half a character cannot be sent.
    QCOMPARE(fetchPage(urlOf(*server, QStringLiteral("/"))).body,
             QByteArray("second \"page\" \n?"));
}

void TestLocalWebServer::headersKeepThePageHarmless()
{
    QVERIFY2(server->start(), qPrintable(server->error()));
    QVERIFY(fetchPage(urlOf(*server, QStringLiteral("/")))
                .securityPolicy.startsWith("default-src 'none'"));
}

void TestLocalWebServer::otherMethodsAreRefused()
{
    QVERIFY2(server->start(), qPrintable(server->error()));
    const QUrl url = urlOf(*server, QStringLiteral("/"));
    QCOMPARE(fetchPage(url, {{}, {}, "DELETE"}).status, 501);
    QCOMPARE(fetchPage(url, {{}, {}, "HEAD"}).status, 200);
    QCOMPARE(fetchPage(url, {{}, {}, "HEAD"}).body, QByteArray());
    QCOMPARE(fetchPage(url).status, 200);
}

void TestLocalWebServer::bytesOfThePathNeedNoEncoding()
{
    server->setPath(QStringLiteral("/zo%C3%AB/"));
    QVERIFY2(server->start(), qPrintable(server->error()));

    QVERIFY(answerTo("GET /zo\xc3\xab/ HTTP/1.0\r\n\r\n").contains(" 200 OK\r\n"));
}

void TestLocalWebServer::loginInTheTargetIsNotLogged()
{
    QVERIFY2(server->start(), qPrintable(server->error()));

    QVERIFY(!answerTo("GET http://mia:s3@cret@127.0.0.1/a@b HTTP/1.0\r\n\r\n").isEmpty());
    QVERIFY(!answerTo("GET /user@host/ HTTP/1.0\r\n\r\n").isEmpty());

    const QStringList expected = {QStringLiteral("127.0.0.1: GET http://b, 404"),
                                  QStringLiteral("127.0.0.1: GET /user@host/, 404")};
    QCOMPARE(server->log(), expected);
}

void TestLocalWebServer::requestsAreLoggedWithoutSecrets()
{
    server->setUser(QStringLiteral("mia"), QStringLiteral("s3cret"));
    QVERIFY2(server->start(), qPrintable(server->error()));
    QSignalSpy logged(server.get(), SIGNAL(logged(QString)));

    fetchPage(urlOf(*server, QStringLiteral("/")), {"mia:wrong"});
    fetchPage(urlOf(*server, QStringLiteral("/?token=hidden")), {"mia:s3cret"});
    fetchPage(urlOf(*server, QStringLiteral("/x")), {"mia:s3cret"});

    const QStringList expected = {QStringLiteral("127.0.0.1: GET /, 401"),
                                  QStringLiteral("127.0.0.1: GET /, 200"),
                                  QStringLiteral("127.0.0.1: GET /x, 404")};
    QCOMPARE(server->log(), expected);
    QCOMPARE(logged.count(), 3);
}

void TestLocalWebServer::brokenRequestsAreHarmless_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("rubbish") << QByteArray("\x16\x03\x01\x00\xff\x1b[2J\r\n\r\n");
    QTest::newRow("no target") << QByteArray("GET\r\n\r\n");
    QTest::newRow("old protocol") << QByteArray("GET /\r\n");
    QTest::newRow("blanks") << QByteArray("GET   /   HTTP/1.1\r\n\r\n");
    QTest::newRow("bad version") << QByteArray("GET / HTTP/x.y\r\n\r\n");
    QTest::newRow("long line") << "GET /" + QByteArray(100'000, 'x') + " HTTP/1.1\r\n\r\n";
    QTest::newRow("many headers") << "GET / HTTP/1.1\r\n" + QByteArray("A: b\r\n").repeated(500)
            + "\r\n";
    QTest::newRow("bad login") << QByteArray(
        "GET / HTTP/1.1\r\nAuthorization: Basic \xff=\r\n\r\n");
    QTest::newRow("login of nothing") << QByteArray("GET / HTTP/1.1\r\nAuthorization:\r\n\r\n");
    QTest::newRow("breaks off") << QByteArray("GET / HT");
}

void TestLocalWebServer::brokenRequestsAreHarmless()
{
    QFETCH(QByteArray, request);
    server->setUser(QStringLiteral("mia"), QStringLiteral("s3cret"));
    QVERIFY2(server->start(), qPrintable(server->error()));
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), server->port());
    QVERIFY(socket.waitForConnected(kPatienceMilliseconds));

    socket.write(request);
    socket.disconnectFromHost();
    QTRY_COMPARE_WITH_TIMEOUT(socket.state(), QAbstractSocket::UnconnectedState,
                              kPatienceMilliseconds);

    const WebAnswer answer = fetchPage(urlOf(*server, QStringLiteral("/")), {"mia:s3cret"});
    QCOMPARE(answer.status, 200);
    const QStringList lines = server->log();
    for (const QString &line : lines) {
        QVERIFY2(!line.contains(QChar(27)) && line.size() <= 1000, qPrintable(line));
    }
    QCOMPARE(server->error(), QString());
}

void TestLocalWebServer::silentClientsDoNotStopOthers()
{
    const LocalCertificate certificate;
    const QString file = folder->filePath(QStringLiteral("both.pem"));
    write(file, contentOf(certificate.certificateFile()) + contentOf(certificate.keyFile()));
    server->setCertificate(file);
    QVERIFY2(server->start(), qPrintable(server->error()));
    QTcpSocket silent[20];
    for (QTcpSocket &socket : silent) {
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), server->port());
        QVERIFY(socket.waitForConnected(kPatienceMilliseconds));
    }

    const QUrl url = urlOf(*server, QStringLiteral("/"), QStringLiteral("https"));
    QCOMPARE(fetchPage(url, {{}, certificate.certificateFile()}).status, 200);
}

void TestLocalWebServer::slowClientsDoNotStopOthers()
{
    QVERIFY2(server->start(), qPrintable(server->error()));
    // More than there are places, and none is ever silent for long.
    QTcpSocket slow[80];
    for (QTcpSocket &socket : slow) {
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), server->port());
        QVERIFY(socket.waitForConnected(kPatienceMilliseconds));
    }
    QTimer drops;
    const auto writeDrops = [&slow] {
        for (QTcpSocket &socket : slow) {
            if (socket.state() == QAbstractSocket::ConnectedState) {
                socket.write("G");
            }
        }
    };
    connect(&drops, &QTimer::timeout, this, writeDrops);
    drops.start(1000);

    QCOMPARE(fetchPage(urlOf(*server, QStringLiteral("/"))).status, 200);

    // The first ones have gone, the last one is served.
    QTRY_COMPARE_WITH_TIMEOUT(slow[0].state(), QAbstractSocket::UnconnectedState,
                              kPatienceMilliseconds);
    QCOMPARE(slow[79].state(), QAbstractSocket::ConnectedState);
    QCOMPARE(server->error(), QString());
}

void TestLocalWebServer::stopFreesThePortForTheNextStart()
{
    QVERIFY2(server->start(), qPrintable(server->error()));
    const quint16 port = server->port();
    QCOMPARE(fetchPage(urlOf(*server, QStringLiteral("/"))).status, 200);
    const qint64 process = server->processId();
    server->setWantedPort(port);

    server->stop();

    QVERIFY(!isAlive(process));
    // The system still keeps the ends of connections there.
    QVERIFY2(server->start(), qPrintable(server->error()));
    QCOMPARE(server->port(), port);
    QCOMPARE(fetchPage(urlOf(*server, QStringLiteral("/"))).status, 200);
}

void TestLocalWebServer::loopbackIsTheOnlyPlaceByDefault()
{
    QVERIFY2(server->start(), qPrintable(server->error()));
    QTcpSocket socket;
    socket.connectToHost(otherAddress, server->port());
    QVERIFY(!socket.waitForConnected(kPatienceMilliseconds));
    QCOMPARE(socket.error(), QAbstractSocket::ConnectionRefusedError);
}

void TestLocalWebServer::everyAddressIsServedWhenWanted()
{
    server->setReach(LocalWebServer::Reach::AllAddresses);
    QVERIFY2(server->start(), qPrintable(server->error()));

    QUrl url = urlOf(*server, QStringLiteral("/"));
    QCOMPARE(fetchPage(url).status, 200);
    url.setHost(otherAddress.toString());
    QCOMPARE(fetchPage(url).status, 200);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalWebServer>(argc, argv);
}

#include "tst_LocalWebServer.moc"
