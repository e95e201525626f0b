#include "WebCertificate.h"
#include "WebPageTest.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

/// The web server of the page, and what it serves.
class TestWebInterfacePageServer : public WebPageTest
{
    Q_OBJECT

private slots:
    void pageIsServedAtTheLinkOfThePanel_data();
    void pageIsServedAtTheLinkOfThePanel();
    void clickedLinkLeadsToThePage();
    void userIsAskedForHisPassword();
    void pageIsServedOverHttps();
    void settingsCountFromTheNextStart();
    void otherComputersReachItOnlyWhenAllowed();
    void requestsAreShown();
    void visitsAreTold();
    void visitWithoutAServerIsToldInWords();
    void serverThatCannotStartIsToldInWords_data();
    void serverThatCannotStartIsToldInWords();
    void takenPortIsToldInWords();
    void endlessAnswerIsGivenUp_data();
    void endlessAnswerIsGivenUp();
    void pageMayGoDuringAVisit();
    void serverGoesWithThePage();
};

void TestWebInterfacePageServer::pageIsServedAtTheLinkOfThePanel_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("none") << "";
    QTest::newRow("name") << "web";
    QTest::newRow("slash before") << "/web";
    QTest::newRow("several parts") << "a/b";
    QTest::newRow("blanks") << "  my web ";
    QTest::newRow("markup") << "<b>\"x\"</b>";
    QTest::newRow("entity") << "&lt;b&gt;";
    QTest::newRow("query and fragment") << "a?b#c%";
    QTest::newRow("non-ASCII") << QString::fromUtf8("zoë 😀");
}

void TestWebInterfacePageServer::pageIsServedAtTheLinkOfThePanel()
{
    QFETCH(QString, path);
    QVERIFY2(startWith(openSettings(path)), qPrintable(server->error()));
    QCOMPARE(int(server->port()), link().port());

    const WebAnswer answer = fetchPage(link());
    QUrl beside = link();
    beside.setPath(beside.path() + "x");

    QCOMPARE(answer.status, 200);
    QVERIFY(answer.body.contains("<h1>TXGUICommon Gallery</h1>"));
    QVERIFY(answer.body.contains("<td>" + path.toHtmlEscaped().toUtf8() + "</td>"));
    QCOMPARE(fetchPage(beside).status, 404);
}

/// Takes the place of the user's browser as long as it lives.
class Browser : public QObject
{
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("http"), this, "open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("http")); }
    Q_DISABLE_COPY_MOVE(Browser)

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

void TestWebInterfacePageServer::clickedLinkLeadsToThePage()
{
    Browser browser;
    QVERIFY2(startWith(openSettings(QStringLiteral("my & web"))), qPrintable(server->error()));
    auto *list = configuration->findChild<QTextBrowser *>("hostTextEdit");
    QTextCursor cursor = list->document()->find(QStringLiteral("127.0.0.1"));
    QVERIFY(!cursor.isNull());
    const QPoint place = list->cursorRect(cursor).center() - QPoint(4, 0);

    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);

    QCOMPARE(browser.opened.size(), 1);
    QCOMPARE(fetchPage(browser.opened.first()).status, 200);
    QTRY_COMPARE_WITH_TIMEOUT(lines(0), QStringLiteral("127.0.0.1: GET /my%20&%20web/, 200"),
                              kPatienceMilliseconds);
}

void TestWebInterfacePageServer::userIsAskedForHisPassword()
{
    QVERIFY2(startWith(withUser(openSettings(), QString::fromUtf8("s3crét:"))),
             qPrintable(server->error()));

    QCOMPARE(fetchPage(link()).status, 401);
    QCOMPARE(fetchPage(link(), {"mia:wrong"}).status, 401);
    const WebAnswer answer = fetchPage(link(), {QByteArray("mia:s3cr\xc3\xa9t:")});
    QCOMPARE(answer.status, 200);
    QVERIFY(answer.body.contains("<td>mia</td>"));
    QVERIFY(!answer.body.contains("s3cr"));
    QVERIFY(!lines(0).contains("s3cr"));
}

void TestWebInterfacePageServer::pageIsServedOverHttps()
{
    configuration->load(openSettings(QStringLiteral("web")));
    press("Make Certificate");
    QHash<QString, QVariant> settings = configuration->save();
    QCOMPARE(settings.value("Secure"), QVariant(true));
    QCOMPARE(settings.value("Certificate"), QVariant(WebCertificate::file()));
    QVERIFY2(startWith(settings), qPrintable(server->error()));
    QCOMPARE(link().scheme(), QStringLiteral("https"));

    QCOMPARE(fetchPage(link()).error, QNetworkReply::SslHandshakeFailedError);
    const WebAnswer answer = fetchPage(link(), {{}, WebCertificate::file()});
    QCOMPARE(answer.status, 200);
    QVERIFY(answer.body.contains("<td>HTTPS</td>"));

    press("Visit the Page");
    QTRY_VERIFY_WITH_TIMEOUT(lines(1).contains("status 200"), kPatienceMilliseconds);
}

void TestWebInterfacePageServer::settingsCountFromTheNextStart()
{
    QVERIFY2(startWith(openSettings(QStringLiteral("old"))), qPrintable(server->error()));
    const QUrl old = link();
    QHash<QString, QVariant> settings = configuration->save();
    settings.insert("Path", "new");
    configuration->load(settings);
    QCOMPARE(fetchPage(old).status, 200);
    QCOMPARE(fetchPage(link()).status, 404);

    server->setRunning(false);
    QCOMPARE(fetchPage(old).error, QNetworkReply::ConnectionRefusedError);
    QVERIFY2(startWith(settings), qPrintable(server->error()));

    QCOMPARE(fetchPage(link()).status, 200);
}

void TestWebInterfacePageServer::otherComputersReachItOnlyWhenAllowed()
{
    QVERIFY2(startWith(openSettings()), qPrintable(server->error()));
    const quint16 port = server->port();
    // Any address but 127.0.0.1 will do; on Linux this one is there without a network too.
    const QUrl other(QStringLiteral("http://127.0.0.2:%1/").arg(port));
    QCOMPARE(fetchPage(other).error, QNetworkReply::ConnectionRefusedError);

    press("Other computers may connect");
    QVERIFY2(server->isRunning(), qPrintable(server->error()));
    QCOMPARE(server->port(), port);
    QCOMPARE(fetchPage(other).status, 200);
    QCOMPARE(fetchPage(link()).status, 200);

    press("Other computers may connect");
    QCOMPARE(fetchPage(other).error, QNetworkReply::ConnectionRefusedError);
    QCOMPARE(fetchPage(link()).status, 200);
}

void TestWebInterfacePageServer::requestsAreShown()
{
    QVERIFY2(startWith(openSettings(QStringLiteral("web"))), qPrintable(server->error()));
    QUrl beside = link();
    beside.setPath(QStringLiteral("/<b>"));

    fetchPage(link());
    fetchPage(beside);

    const QString expected = QStringLiteral("127.0.0.1: GET /web/, 200\n"
                                            "127.0.0.1: GET /%3Cb%3E, 404");
    QTRY_COMPARE_WITH_TIMEOUT(lines(0), expected, kPatienceMilliseconds);
    press("Clear");
    QCOMPARE(lines(0), QString());
}

void TestWebInterfacePageServer::visitsAreTold()
{
    QVERIFY2(startWith(withUser(openSettings(), QStringLiteral("s3cret"))),
             qPrintable(server->error()));

    press("Visit the Page");
    QTRY_VERIFY_WITH_TIMEOUT(lines(1).contains("status 200"), kPatienceMilliseconds);
    QVERIFY(lines(1).startsWith(link().toString(QUrl::FullyEncoded)));
    QVERIFY(lines(0).contains("GET /, 200"));

    // The server keeps the settings with which it was started.
    QHash<QString, QVariant> settings = configuration->save();
    settings = withUser(settings, QStringLiteral("other"));
    configuration->load(settings);
    press("Visit the Page");
    QTRY_VERIFY_WITH_TIMEOUT(lines(1).contains("status 401"), kPatienceMilliseconds);
}

void TestWebInterfacePageServer::visitWithoutAServerIsToldInWords()
{
    configuration->load(openSettings());
    press("Visit the Page");
    QTRY_VERIFY_WITH_TIMEOUT(lines(1).contains("Connection refused"), kPatienceMilliseconds);
}

void TestWebInterfacePageServer::serverThatCannotStartIsToldInWords_data()
{
    using Settings = QHash<QString, QVariant>;
    QTest::addColumn<Settings>("settings");
    QTest::addColumn<QString>("reason");
    QTest::newRow("not enabled") << Settings({{"Port", 8080}})
                                 << "the box \"Enabled\" of the panel is not checked";
    QTest::newRow("no certificate")
        << Settings({{"Enabled", true}, {"Secure", true}}) << "HTTPS needs a certificate file";
    QTest::newRow("certificate gone")
        << Settings({{"Enabled", true}, {"Secure", true}, {"Certificate", "/no/such.pem"}})
        << "cannot serve: there is no file /no/such.pem";
    QTest::newRow("no file") << Settings(
        {{"Enabled", true}, {"Secure", true}, {"Certificate", "/dev/zero"}})
                             << "cannot serve: /dev/zero is no file with a certificate";
    QTest::newRow("no certificate in the file")
        << Settings({{"Enabled", true}, {"Secure", true}, {"Certificate", "/etc/passwd"}})
        << "cannot serve: /etc/passwd does not hold a certificate and its key";
}

void TestWebInterfacePageServer::serverThatCannotStartIsToldInWords()
{
    using Settings = QHash<QString, QVariant>;
    QFETCH(Settings, settings);
    QFETCH(QString, reason);
    configuration->load(settings);

    server->setRunning(true);

    QVERIFY(!server->isRunning());
    QVERIFY2(server->error().contains(reason), qPrintable(server->error()));
    // What is missing is not installed by anything.
    QVERIFY(!server->error().contains("setup"));
    QVERIFY2(startWith(openSettings()), qPrintable(server->error()));
    QCOMPARE(server->error(), QString());
}

void TestWebInterfacePageServer::takenPortIsToldInWords()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress(QHostAddress::LocalHost)));
    configuration->load({{"Enabled", true}, {"Port", int(other.serverPort())}});

    server->setRunning(true);

    QVERIFY(!server->isRunning());
    const QString words = QStringLiteral("port %1 is taken by another program");
    QVERIFY2(server->error().contains(words.arg(other.serverPort())), qPrintable(server->error()));
    QVERIFY(!server->error().contains("setup"));
}

void TestWebInterfacePageServer::endlessAnswerIsGivenUp_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("byte by byte") << 1 << 500;
    QTest::newRow("as fast as can be") << 100'000 << 0;
}

void TestWebInterfacePageServer::endlessAnswerIsGivenUp()
{
    QFETCH(int, step);
    QFETCH(int, milliseconds);
    QTcpServer endless;
    QVERIFY(endless.listen(QHostAddress(QHostAddress::LocalHost)));
    QTimer pump;
    QTcpSocket *client = nullptr;
    connect(&endless, &QTcpServer::newConnection, this, [&] {
        client = endless.nextPendingConnection();
        client->write("HTTP/1.1 200 OK\r\n\r\n");
        pump.start(milliseconds);
    });
    qint64 written = 0;
    connect(&pump, &QTimer::timeout, this, [&] {
        if (client->bytesToWrite() == 0) {
            written += client->write(QByteArray(step, 'x'));
        }
    });
    configuration->load({{"Enabled", true}, {"Port", int(endless.serverPort())}});

    press("Visit the Page");

    QTRY_VERIFY_WITH_TIMEOUT(lines(1).contains("Operation canceled"), kPatienceMilliseconds);
    pump.stop();
    QVERIFY(written > 0);
    // What was read, and what the system holds between the two.
    QVERIFY2(written < (1 << 26), qPrintable(QString::number(written)));
}

void TestWebInterfacePageServer::pageMayGoDuringAVisit()
{
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress(QHostAddress::LocalHost)));
    configuration->load({{"Enabled", true}, {"Port", int(silent.serverPort())}});
    press("Visit the Page");
    press("Visit the Page");
    QTRY_VERIFY_WITH_TIMEOUT(silent.hasPendingConnections(), kPatienceMilliseconds);

    page.reset();
    QCoreApplication::processEvents();

    QVERIFY(silent.isListening());
}

void TestWebInterfacePageServer::serverGoesWithThePage()
{
    QVERIFY2(startWith(openSettings()), qPrintable(server->error()));
    const QUrl url = link();
    page.reset();
    QCOMPARE(fetchPage(url).error, QNetworkReply::ConnectionRefusedError);
}

int main(int argc, char **argv)
{
    return runTest<TestWebInterfacePageServer>(argc, argv);
}

#include "tst_WebInterfacePageServer.moc"
