#include "LocalCertificate.h"
#include "LocalFtpServer.h"
#include "LocalSftpServer.h"
#include "SilentServer.h"
#include "TXFTP.h"
#include "TXTransferSettings.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

namespace {

/// As a panel composes it: each part in decoded mode.
QUrl urlOf(const QString &scheme, quint16 port, const QString &user = QStringLiteral("mia"),
           const QString &password = QStringLiteral("s3cret"))
{
    QUrl url;
    url.setPort(port);
    url.setScheme(scheme);
    url.setHost(QStringLiteral("127.0.0.1"));
    url.setPassword(password, QUrl::DecodedMode);
    url.setUserName(user, QUrl::DecodedMode);
    url.setPath(QStringLiteral("/"));
    return url;
}

/// An FTP, FTPS or SFTP server, as the scheme says.
std::unique_ptr<LocalServer> serverFor(const QString &scheme,
                                       const QString &user = QStringLiteral("mia"),
                                       const QString &password = QStringLiteral("s3cret"))
{
    if (scheme == u"sftp") {
        auto server = std::make_unique<LocalSftpServer>();
        server->setUser(user, password);
        return server;
    }
    auto server = std::make_unique<LocalFtpServer>();
    server->setUser(user, password);
    if (scheme == u"ftps") {
        const auto certificate = std::make_shared<const LocalCertificate>();
        server->setCertificate(certificate);
        TXTransferSettings::setCertificateAuthoritiesFile(certificate->certificateFile());
    }
    return server;
}

void addSchemes()
{
    QTest::addColumn<QString>("scheme");
    QTest::addRow("ftp") << "ftp";
    QTest::addRow("ftps") << "ftps";
    QTest::addRow("sftp") << "sftp";
}

} // namespace

class TestTXFTP : public TestBase
{
    Q_OBJECT

protected:
    void finish() override;

private slots:
    void noErrorBeforeTheFirstCheck();
    void rightLoginSucceeds_data();
    void rightLoginSucceeds();
    void refusedLoginIsToldApart_data();
    void refusedLoginIsToldApart();
    void successClearsTheError();
    void loginIsSentAsItWasTyped_data();
    void loginIsSentAsItWasTyped();
    void undecodableLoginIsSentByteForByte();
    void emptyUserNameIsAnonymousForFtp();
    void emptyUserNameIsEmptyForSftp();
    void onlyTheLoginHappens_data();
    void onlyTheLoginHappens();
    void controlCharacterIsRefusedWithoutAConnection_data();
    void controlCharacterIsRefusedWithoutAConnection();
    void noCommandCanBeAdded_data();
    void noCommandCanBeAdded();
    void keysOfTheUserAreLeftAlone();
    void hostKeyIsCheckedAgainstTheKnownOnes_data();
    void hostKeyIsCheckedAgainstTheKnownOnes();
    void certificateHasToBeTrusted_data();
    void certificateHasToBeTrusted();
};

void TestTXFTP::finish()
{
    TXTransferSettings::setCertificateAuthoritiesFile({});
    TXTransferSettings::setKnownHostsFile({});
}

void TestTXFTP::noErrorBeforeTheFirstCheck()
{
    const TXFTP ftp;
    QCOMPARE(ftp.errorCode(), 0);
    QVERIFY(ftp.errorText().isEmpty());
}

void TestTXFTP::rightLoginSucceeds_data()
{
    addSchemes();
}

void TestTXFTP::rightLoginSucceeds()
{
    QFETCH(QString, scheme);
    const auto server = serverFor(scheme);
    QVERIFY2(server->start(), qPrintable(server->error()));
    TXFTP ftp;

    QVERIFY2(ftp.check(urlOf(scheme, server->port())), qPrintable(ftp.errorText()));

    QCOMPARE(ftp.errorCode(), int(TXFTP::NoError));
    QCOMPARE(ftp.errorText(), QString());
    QVERIFY(server->log().at(0).endsWith("mia"));
}

void TestTXFTP::refusedLoginIsToldApart_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    for (const QString scheme : {"ftp", "ftps", "sftp"}) {
        const QByteArray name = scheme.toLatin1();
        QTest::addRow("%s, wrong password", name.constData()) << scheme << "mia"
                                                              << "wr0ng";
        QTest::addRow("%s, no password", name.constData()) << scheme << "mia"
                                                           << "";
        QTest::addRow("%s, unknown user", name.constData()) << scheme << "eve"
                                                            << "s3cret";
    }
}

void TestTXFTP::refusedLoginIsToldApart()
{
    QFETCH(QString, scheme);
    QFETCH(QString, user);
    QFETCH(QString, password);
    const auto server = serverFor(scheme);
    QVERIFY2(server->start(), qPrintable(server->error()));
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf(scheme, server->port(), user, password)));

    QCOMPARE(ftp.errorCode(), int(TXFTP::LoginDenied));
    const QString text = ftp.errorText();
    QVERIFY2(text.startsWith("The server refused the login."), qPrintable(text));
    QCOMPARE(text.contains("530"), scheme != u"sftp");
    QVERIFY(password.isEmpty() || !text.contains(password));
}

void TestTXFTP::successClearsTheError()
{
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;
    QVERIFY(!ftp.check(QUrl()));
    QVERIFY(!ftp.errorText().isEmpty());

    QVERIFY2(ftp.check(urlOf("ftp", server.port())), qPrintable(ftp.errorText()));

    QCOMPARE(ftp.errorCode(), 0);
    QCOMPARE(ftp.errorText(), QString());
}

void TestTXFTP::loginIsSentAsItWasTyped_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    for (const QString scheme : {"ftp", "sftp"}) {
        const QByteArray name = scheme.toLatin1();
        QTest::addRow("%s, marks of URLs", name.constData()) << scheme << "mia@example.com:1/x?y#z"
                                                             << "p@ss:w/o?r#d;type=i";
        QTest::addRow("%s, not ASCII", name.constData()) << scheme << "zoë"
                                                         << "пароль 密码";
        QTest::addRow("%s, inner blanks", name.constData()) << scheme << "mia  m"
                                                            << " a  b";
        QTest::addRow("%s, looks encoded", name.constData()) << scheme << "mia%0D%0ADELE x"
                                                             << "100%25 %0a%00";
        QTest::addRow("%s, quotes", name.constData()) << scheme << R"(o'"\mia)"
                                                      << R"("'\)";
    }
}

void TestTXFTP::loginIsSentAsItWasTyped()
{
    QFETCH(QString, scheme);
    QFETCH(QString, user);
    QFETCH(QString, password);
    const auto server = serverFor(scheme, user, password);
    QVERIFY2(server->start(), qPrintable(server->error()));
    TXFTP ftp;

    QVERIFY2(ftp.check(urlOf(scheme, server->port(), user, password)),
             qPrintable(ftp.errorText() + server->log().join(u'\n')));
    QCOMPARE(server->log().at(0), (scheme == u"ftp" ? "USER " : "login ") + user);
}

void TestTXFTP::undecodableLoginIsSentByteForByte()
{
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;
    const QUrl url =
        QUrl::fromEncoded("ftp://m%FFa:x@127.0.0.1:" + QByteArray::number(server.port()));

    QVERIFY(!ftp.check(url));

    QCOMPARE(ftp.errorCode(), int(TXFTP::LoginDenied));
    // The server takes its bytes for UTF-8 and leaves out what is none.
    QVERIFY2(server.log().at(0).startsWith("USER m"), qPrintable(server.log().join(u'\n')));
    QVERIFY(!server.log().at(0).contains(u'\u00ff'));
}

void TestTXFTP::emptyUserNameIsAnonymousForFtp()
{
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf("ftp", server.port(), {}, "s3cret")));

    QCOMPARE(ftp.errorCode(), int(TXFTP::LoginDenied));
    QCOMPARE(server.log().at(0), QStringLiteral("USER anonymous"));
}

void TestTXFTP::emptyUserNameIsEmptyForSftp()
{
    LocalSftpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf("sftp", server.port(), {}, "s3cret")));

    QCOMPARE(ftp.errorCode(), int(TXFTP::LoginDenied));
    QCOMPARE(server.log().filter("anonymous"), QStringList());
}

void TestTXFTP::onlyTheLoginHappens_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QStringList>("log");
    QTest::addRow("ftp") << "ftp" << QStringList({"USER mia", "PASS", "PWD"});
    QTest::addRow("sftp") << "sftp" << QStringList({"login mia", "accepted", "realpath ."});
}

void TestTXFTP::onlyTheLoginHappens()
{
    QFETCH(QString, scheme);
    QFETCH(QStringList, log);
    const auto server = serverFor(scheme);
    QVERIFY2(server->start(), qPrintable(server->error()));
    QUrl url = urlOf(scheme, server->port());
    url.setPath("/in/;type=d");
    url.setQuery("a=b");
    url.setFragment("c");
    TXFTP ftp;

    QVERIFY2(ftp.check(url), qPrintable(ftp.errorText()));

    QStringList seen = server->log();
    seen.removeAll("QUIT");
    QCOMPARE(seen, log);
}

void TestTXFTP::controlCharacterIsRefusedWithoutAConnection_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    const QList<ushort> characters = {0, 1, '\t', '\n', '\r', 0x1f, 0x7f};
    for (const ushort character : characters) {
        for (const QString scheme : {"ftp", "ftps", "sftp"}) {
            const QString text = QStringLiteral("a%1b").arg(QChar(character));
            QTest::addRow("%s, %d in the user name", qPrintable(scheme), character)
                << scheme << text << "x";
            QTest::addRow("%s, %d in the password", qPrintable(scheme), character)
                << scheme << "mia" << text;
        }
    }
}

void TestTXFTP::controlCharacterIsRefusedWithoutAConnection()
{
    QFETCH(QString, scheme);
    QFETCH(QString, user);
    QFETCH(QString, password);
    const SilentServer server;
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf(scheme, server.port(), user, password)));

    QCOMPARE(ftp.errorCode(), int(TXFTP::InvalidUrl));
    QVERIFY2(ftp.errorText().contains("control character"), qPrintable(ftp.errorText()));
    QVERIFY(!server.waitForClient(0));
}

void TestTXFTP::noCommandCanBeAdded_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::newRow("by the password") << "mia"
                                     << "s3cret\r\nMKD stolen";
    QTest::newRow("by a line feed") << "mia"
                                    << "s3cret\nMKD stolen";
    QTest::newRow("by the user name") << "mia\r\nPASS s3cret\r\nMKD stolen"
                                      << "s3cret";
}

void TestTXFTP::noCommandCanBeAdded()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf("ftp", server.port(), user, password)));
    // Only the probe after it is seen, and the server is well.
    QVERIFY2(ftp.check(urlOf("ftp", server.port())), qPrintable(ftp.errorText()));

    QCOMPARE(server.log().mid(0, 3), QStringList({"USER mia", "PASS", "PWD"}));
    QVERIFY(QDir(server.homeFolder()).isEmpty());
}

void TestTXFTP::keysOfTheUserAreLeftAlone()
{
    const QString folder = QDir::homePath() + "/.ssh";
    QVERIFY(QDir().mkpath(folder));
    QProcess openssl;
    openssl.start("openssl", {"genrsa", "-traditional", "-out", folder + "/id_rsa", "2048"});
    QVERIFY(openssl.waitForFinished());
    QCOMPARE(openssl.exitCode(), 0);
    LocalSftpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf("sftp", server.port(), "mia", "wr0ng")));

    QCOMPARE(server.log(), QStringList({"login mia", "refused"}));
}

void TestTXFTP::hostKeyIsCheckedAgainstTheKnownOnes_data()
{
    QTest::addColumn<QString>("known");
    QTest::addColumn<int>("code");
    QTest::newRow("the same key") << "this" << int(TXFTP::NoError);
    QTest::newRow("another key") << "other" << int(TXFTP::NotTrusted);
    QTest::newRow("no key") << "none" << int(TXFTP::NotTrusted);
    QTest::newRow("no such file") << "missing" << int(TXFTP::NotTrusted);
}

void TestTXFTP::hostKeyIsCheckedAgainstTheKnownOnes()
{
    QFETCH(QString, known);
    QFETCH(int, code);
    LocalSftpServer server;
    LocalSftpServer otherServer;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QVERIFY2(otherServer.start(), qPrintable(otherServer.error()));
    const QTemporaryDir folder;
    QFile file(folder.filePath("known hosts"));
    TXTransferSettings::setKnownHostsFile(file.fileName());
    if (known != u"missing") {
        QVERIFY(file.open(QFile::WriteOnly));
    }
    if (known == u"this" || known == u"other") {
        const QByteArray key = known == u"this" ? server.hostKey() : otherServer.hostKey();
        file.write("[127.0.0.1]:" + QByteArray::number(server.port()) + ' ' + key + '\n');
    }
    file.close();
    TXFTP ftp;

    QCOMPARE(ftp.check(urlOf("sftp", server.port())), code == TXFTP::NoError);

    QCOMPARE(ftp.errorCode(), code);
    QCOMPARE(ftp.errorText().isEmpty(), code == TXFTP::NoError);
    // Who is not trusted is not told the password.
    QCOMPARE(server.log().contains("login mia"), code == TXFTP::NoError);
}

void TestTXFTP::certificateHasToBeTrusted_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<bool>("isAuthority");
    QTest::newRow("unknown") << "localhost" << false;
    QTest::newRow("for another name") << "ftp.example" << true;
}

void TestTXFTP::certificateHasToBeTrusted()
{
    QFETCH(QString, host);
    QFETCH(bool, isAuthority);
    const auto certificate = std::make_shared<const LocalCertificate>(host);
    if (isAuthority) {
        TXTransferSettings::setCertificateAuthoritiesFile(certificate->certificateFile());
    }
    LocalFtpServer server;
    server.setCertificate(certificate);
    QVERIFY2(server.start(), qPrintable(server.error()));
    TXFTP ftp;

    QVERIFY(!ftp.check(urlOf("ftps", server.port())));

    QCOMPARE(ftp.errorCode(), int(TXFTP::NotTrusted));
    QVERIFY2(ftp.errorText().contains("certificate"), qPrintable(ftp.errorText()));
    QCOMPARE(server.log(), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestTXFTP>(argc, argv);
}

#include "tst_TXFTP.moc"
