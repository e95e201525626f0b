#include "ClosedPort.h"
#include "FullServer.h"
#include "LocalCertificate.h"
#include "LocalFtpServer.h"
#include "LocalMailServer.h"
#include "LocalScriptedServer.h"
#include "LocalSftpServer.h"
#include "SilentServer.h"
#include "TXFTP.h"
#include "TXTransferSettings.h"
#include "TestBase.h"

#include <QProcess>
#include <QUrl>

namespace {

constexpr int kShortMilliseconds = 300;
/// Longer than a loaded machine takes to get to where a server falls silent.
constexpr int kConversationMilliseconds = 2000;

QUrl urlOf(const QString &scheme, quint16 port)
{
    return {QStringLiteral("%1://mia:s3cret@127.0.0.1:%2/").arg(scheme).arg(port)};
}

void addSchemes()
{
    QTest::addColumn<QString>("scheme");
    QTest::addRow("ftp") << "ftp";
    QTest::addRow("ftps") << "ftps";
    QTest::addRow("sftp") << "sftp";
}

} // namespace

class TestTXFTPFailures : public TestBase
{
    Q_OBJECT

protected:
    void finish() override;

private slots:
    void unusableUrlIsRefused_data();
    void unusableUrlIsRefused();
    void hugeLoginEndsInAnError_data();
    void hugeLoginEndsInAnError();
    void closedPortIsTold_data();
    void closedPortIsTold();
    void unknownHostIsTold_data();
    void unknownHostIsTold();
    void silentServerEndsByTimeOut_data();
    void silentServerEndsByTimeOut();
    void connectionThatNeverCompletesEndsByTimeOut_data();
    void connectionThatNeverCompletesEndsByTimeOut();
    void ftpServerThatFallsSilentEndsByTimeOut_data();
    void ftpServerThatFallsSilentEndsByTimeOut();
    void sftpServerThatFallsSilentEndsByTimeOut_data();
    void sftpServerThatFallsSilentEndsByTimeOut();
    void serverOfAnotherProtocolIsTold_data();
    void serverOfAnotherProtocolIsTold();
    void oddServerEndsInAnError_data();
    void oddServerEndsInAnError();
    void lastLineOfTheServerIsTold();
    void lineThatRepeatsThePasswordIsNotTold();
    void goingDownEndsACheck_data();
    void goingDownEndsACheck();

private:
    /// Checks the URL and compares the code; the text has to be there and without the password.
    void failWith(const QUrl &url, int code);
};

void TestTXFTPFailures::finish()
{
    TXTransferSettings::setConnectTimeout(0);
    TXTransferSettings::setTotalTimeout(0);
}

void TestTXFTPFailures::failWith(const QUrl &url, int code)
{
    TXFTP ftp;
    QVERIFY(!ftp.check(url));
    QVERIFY2(ftp.errorCode() == code,
             qPrintable(QString::number(ftp.errorCode()) + u' ' + ftp.errorText()));
    QVERIFY(!ftp.errorText().isEmpty());
    QVERIFY2(!ftp.errorText().contains("s3cret"), qPrintable(ftp.errorText()));
}

void TestTXFTPFailures::unusableUrlIsRefused_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<int>("code");

    QTest::newRow("null") << QUrl() << int(TXFTP::InvalidUrl);
    QTest::newRow("port too high") << QUrl("ftp://h:65536/") << int(TXFTP::InvalidUrl);
    QTest::newRow("port 0") << QUrl("ftp://127.0.0.1:0/") << int(TXFTP::InvalidUrl);
    QTest::newRow("port below 0") << QUrl("ftp://h:-1/") << int(TXFTP::InvalidUrl);
    QTest::newRow("no host") << QUrl("ftp:///in/") << int(TXFTP::InvalidUrl);
    QTest::newRow("no host but a user") << QUrl("ftp://mia@/in/") << int(TXFTP::InvalidUrl);
    QTest::newRow("path only") << QUrl("ftp:in") << int(TXFTP::InvalidUrl);
    QTest::newRow("line break in the host") << QUrl("ftp://a\r\nb/") << int(TXFTP::InvalidUrl);
    QTest::newRow("coded line break in the host")
        << QUrl("ftp://a%0d%0ab/") << int(TXFTP::InvalidUrl);
    QTest::newRow("null byte in the host") << QUrl("sftp://a%00b/") << int(TXFTP::InvalidUrl);
    QTest::newRow("blank in the host") << QUrl("sftp://a b/") << int(TXFTP::InvalidUrl);
    QTest::newRow("no scheme") << QUrl("//127.0.0.1/") << int(TXFTP::UnsupportedScheme);
    QTest::newRow("http") << QUrl("http://127.0.0.1/") << int(TXFTP::UnsupportedScheme);
    QTest::newRow("file") << QUrl("file:///etc/passwd") << int(TXFTP::UnsupportedScheme);
    QTest::newRow("scp") << QUrl("scp://127.0.0.1/") << int(TXFTP::UnsupportedScheme);
    QTest::newRow("telnet") << QUrl("telnet://127.0.0.1/") << int(TXFTP::UnsupportedScheme);
}

void TestTXFTPFailures::unusableUrlIsRefused()
{
    QFETCH(QUrl, url);
    QFETCH(int, code);
    failWith(url, code);
}

void TestTXFTPFailures::hugeLoginEndsInAnError_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<int>("characters");
    QTest::addColumn<bool>("isSent");
    for (const QString scheme : {"ftp", "sftp"}) {
        QTest::addRow("%s, the longest", qPrintable(scheme)) << scheme << 65536 << true;
        QTest::addRow("%s, one more", qPrintable(scheme)) << scheme << 65537 << false;
        QTest::addRow("%s, megabytes", qPrintable(scheme)) << scheme << 9000000 << false;
    }
}

void TestTXFTPFailures::hugeLoginEndsInAnError()
{
    QFETCH(QString, scheme);
    QFETCH(int, characters);
    QFETCH(bool, isSent);
    LocalFtpServer ftpServer;
    LocalSftpServer sftpServer;
    LocalServer &server = scheme == u"ftp" ? static_cast<LocalServer &>(ftpServer) : sftpServer;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QUrl url = urlOf(scheme, server.port());
    for (const bool isUserName : {true, false}) {
        isUserName ? url.setUserName(QString(characters, u'u'))
                   : url.setPassword(QString(characters, u'p'));
        TXFTP ftp;
        QVERIFY(!ftp.check(url));
        QVERIFY(!ftp.errorText().isEmpty());
        QCOMPARE(ftp.errorCode() != TXFTP::InvalidUrl, isSent);
    }
}

void TestTXFTPFailures::closedPortIsTold_data()
{
    addSchemes();
}

void TestTXFTPFailures::closedPortIsTold()
{
    QFETCH(QString, scheme);
    failWith(urlOf(scheme, closedPort()), TXFTP::CannotConnect);
}

void TestTXFTPFailures::unknownHostIsTold_data()
{
    addSchemes();
}

void TestTXFTPFailures::unknownHostIsTold()
{
    QFETCH(QString, scheme);
    failWith(QUrl(scheme + "://mia:s3cret@nohost.invalid/"), TXFTP::HostNotFound);
}

void TestTXFTPFailures::silentServerEndsByTimeOut_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<int>("connectMilliseconds");
    QTest::addColumn<int>("totalMilliseconds");
    for (const QString scheme : {"ftp", "ftps", "sftp"}) {
        QTest::addRow("%s, connecting", qPrintable(scheme)) << scheme << kShortMilliseconds << 0;
        QTest::addRow("%s, in all", qPrintable(scheme)) << scheme << 50000 << kShortMilliseconds;
    }
}

void TestTXFTPFailures::silentServerEndsByTimeOut()
{
    QFETCH(QString, scheme);
    QFETCH(int, connectMilliseconds);
    QFETCH(int, totalMilliseconds);
    TXTransferSettings::setConnectTimeout(connectMilliseconds);
    TXTransferSettings::setTotalTimeout(totalMilliseconds);
    const SilentServer server;

    failWith(urlOf(scheme, server.port()), TXFTP::TimedOut);

    QVERIFY(server.waitForClient(0));
}

void TestTXFTPFailures::connectionThatNeverCompletesEndsByTimeOut_data()
{
    addSchemes();
}

void TestTXFTPFailures::connectionThatNeverCompletesEndsByTimeOut()
{
    QFETCH(QString, scheme);
    TXTransferSettings::setConnectTimeout(kShortMilliseconds);
    const FullServer server;
    QVERIFY(server.port() != 0);

    failWith(urlOf(scheme, server.port()), TXFTP::TimedOut);
}

void TestTXFTPFailures::ftpServerThatFallsSilentEndsByTimeOut_data()
{
    QTest::addColumn<LocalFtpServer::Silence>("silence");
    QTest::addColumn<QStringList>("log");
    QTest::newRow("after the greeting")
        << LocalFtpServer::Silence::AfterGreeting << QStringList("USER mia");
    QTest::newRow("after USER") << LocalFtpServer::Silence::AfterUser
                                << QStringList({"USER mia", "PASS"});
}

void TestTXFTPFailures::ftpServerThatFallsSilentEndsByTimeOut()
{
    QFETCH(LocalFtpServer::Silence, silence);
    QFETCH(QStringList, log);
    TXTransferSettings::setConnectTimeout(kConversationMilliseconds);
    LocalFtpServer server;
    server.setSilence(silence);
    QVERIFY2(server.start(), qPrintable(server.error()));

    failWith(urlOf("ftp", server.port()), TXFTP::TimedOut);
    QCOMPARE(server.log(), log);
}

void TestTXFTPFailures::sftpServerThatFallsSilentEndsByTimeOut_data()
{
    QTest::addColumn<LocalSftpServer::Silence>("silence");
    QTest::newRow("after the version") << LocalSftpServer::Silence::AfterGreeting;
    QTest::newRow("after the password") << LocalSftpServer::Silence::AfterUser;
}

void TestTXFTPFailures::sftpServerThatFallsSilentEndsByTimeOut()
{
    QFETCH(LocalSftpServer::Silence, silence);
    TXTransferSettings::setConnectTimeout(kConversationMilliseconds);
    LocalSftpServer server;
    server.setSilence(silence);
    QVERIFY2(server.start(), qPrintable(server.error()));

    failWith(urlOf("sftp", server.port()), TXFTP::TimedOut);

    QTRY_VERIFY(server.isSilent());
}

void TestTXFTPFailures::serverOfAnotherProtocolIsTold_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QByteArray>("greeting");
    for (const QString scheme : {"ftp", "ftps", "sftp"}) {
        QTest::addRow("%s, web", qPrintable(scheme))
            << scheme << QByteArray("HTTP/1.1 400 Bad Request\r\n\r\n");
        QTest::addRow("%s, mail", qPrintable(scheme))
            << scheme << QByteArray("554 no mail today\r\n");
    }
    QTest::newRow("ftp, SSH") << "ftp" << QByteArray("SSH-2.0-x\r\n");
    QTest::newRow("ftps, FTP") << "ftps" << QByteArray("220 hello\r\n");
    QTest::newRow("sftp, FTP") << "sftp" << QByteArray("220 hello\r\n");
}

void TestTXFTPFailures::serverOfAnotherProtocolIsTold()
{
    QFETCH(QString, scheme);
    QFETCH(QByteArray, greeting);
    LocalScriptedServer server({greeting});
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf(scheme, server.port())));

    QVERIFY(ftp.errorCode() != TXFTP::NoError);
    QVERIFY(ftp.errorCode() != TXFTP::LoginDenied);
    QVERIFY(!ftp.errorText().isEmpty());
    if (scheme == u"ftps") {
        QCOMPARE(ftp.errorCode(), int(TXFTP::NoEncryption));
    }
}

void TestTXFTPFailures::oddServerEndsInAnError_data()
{
    QTest::addColumn<QList<QByteArray>>("answers");
    QTest::newRow("closes at once") << QList<QByteArray>();
    QTest::newRow("closes after the greeting") << QList<QByteArray>({"220 hello\r\n", ""});
    QTest::newRow("closes after USER")
        << QList<QByteArray>({"220 hello\r\n", "331 password?\r\n", ""});
    QTest::newRow("closes in the middle of a line") << QList<QByteArray>({"220 hel"});
    QTest::newRow("a line of a megabyte")
        << QList<QByteArray>({"220 " + QByteArray(1 << 20, 'x') + "\r\n", ""});
    QTest::newRow("bytes without a line end") << QList<QByteArray>({QByteArray(1 << 20, 'x')});
    QTest::newRow("null bytes") << QList<QByteArray>({QByteArray("22\0 \0\r\n", 8), ""});
    QTest::newRow("empty lines") << QList<QByteArray>({QByteArray("\r\n").repeated(1000)});
    QTest::newRow("a greeting without an end")
        << QList<QByteArray>({QByteArray("220-hello\r\n").repeated(100000)});
    QTest::newRow("demands an account")
        << QList<QByteArray>({"220 hello\r\n", "332 account?\r\n", "500 no\r\n"});
}

void TestTXFTPFailures::oddServerEndsInAnError()
{
    QFETCH(QList<QByteArray>, answers);
    TXTransferSettings::setConnectTimeout(kShortMilliseconds);
    LocalScriptedServer server(answers);
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf("ftp", server.port())));

    QVERIFY(ftp.errorCode() != TXFTP::NoError);
    QVERIFY(!ftp.errorText().isEmpty());
    QVERIFY(ftp.errorText().size() < 2000);
}

void TestTXFTPFailures::lastLineOfTheServerIsTold()
{
    LocalScriptedServer server({"220 hello\r\n", "530 closed on \x1b[1msundays\r\n", ""});
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf("ftp", server.port())));

    QCOMPARE(ftp.errorCode(), int(TXFTP::LoginDenied));
    QVERIFY2(ftp.errorText().contains("530 closed on"), qPrintable(ftp.errorText()));
    QVERIFY2(ftp.errorText().endsWith("sundays"), qPrintable(ftp.errorText()));
    QVERIFY(!ftp.errorText().contains(u'\x1b'));
}

void TestTXFTPFailures::lineThatRepeatsThePasswordIsNotTold()
{
    LocalScriptedServer server(
        {"220 hello\r\n", "331 password?\r\n", "530 \"s3cret\" is wrong\r\n", ""});
    QVERIFY2(server.start(), qPrintable(server.error()));

    failWith(urlOf("ftp", server.port()), TXFTP::LoginDenied);
}

void TestTXFTPFailures::goingDownEndsACheck_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("server");
    for (const QString scheme : {"ftp", "ftps", "sftp"}) {
        QTest::addRow("%s, silent", qPrintable(scheme)) << scheme << "silent";
        QTest::addRow("%s, full", qPrintable(scheme)) << scheme << "full";
    }
}

/// The helper's time-outs are 60 seconds, and so would be its end.
void TestTXFTPFailures::goingDownEndsACheck()
{
    QFETCH(QString, scheme);
    QFETCH(QString, server);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // The pool's thread may not have freed what OpenSSL keeps for each thread when the process
    // ends, and a sanitizer would report that.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    process.setProcessEnvironment(environment);

    process.start(QCoreApplication::applicationDirPath() + "/ftpquitter", {scheme, server});

    constexpr int kSurelyMilliseconds = 20000;
    QVERIFY2(process.waitForFinished(kSurelyMilliseconds), "the check holds up the end");
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("ended with 42\n"));
}

int main(int argc, char **argv)
{
    return runTest<TestTXFTPFailures>(argc, argv);
}

#include "tst_TXFTPFailures.moc"
