#include "MailDriver.h"
#include "MailServer.h"
#include "TestBase.h"

using Security = MailServer::Security;

class TestMailServer : public TestBase
{
    Q_OBJECT

private slots:
    void addressIsReadAndGoesIntoTheUrl_data();
    void addressIsReadAndGoesIntoTheUrl();
    void otherAddressesAreRefused_data();
    void otherAddressesAreRefused();
    void portIsRead_data();
    void portIsRead();
    void portAboveTheRangeIsRefused_data();
    void portAboveTheRangeIsRefused();
    void encryptionIsRead_data();
    void encryptionIsRead();
    void unknownEncryptionIsRefused_data();
    void unknownEncryptionIsRefused();
    void loginIsDeciphered();
    void passwordCountsOnlyWithALogin();
    void emptyPasswordIsAPassword();
    void passwordThatIsNoCipherIsRefused_data();
    void passwordThatIsNoCipherIsRefused();
    void wrongTypesAreEmpty();
};

void TestMailServer::addressIsReadAndGoesIntoTheUrl_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QByteArray>("url");
    QTest::newRow("name") << "mail.example.org" << QByteArray("smtp://mail.example.org:25");
    QTest::newRow("blanks around") << " localhost\t" << QByteArray("smtp://localhost:25");
    QTest::newRow("final dot") << "mail.example.org." << QByteArray("smtp://mail.example.org.:25");
    QTest::newRow("underscore") << "mail_1" << QByteArray("smtp://mail_1:25");
    QTest::newRow("IPv4") << "127.0.0.1" << QByteArray("smtp://127.0.0.1:25");
    QTest::newRow("IPv6") << "::1" << QByteArray("smtp://[::1]:25");
    QTest::newRow("IPv6 in brackets") << "[fe80::1]" << QByteArray("smtp://[fe80::1]:25");
    QTest::newRow("other script") << QStringLiteral("bücher.example")
                                  << QByteArray("smtp://xn--bcher-kva.example:25");
}

void TestMailServer::addressIsReadAndGoesIntoTheUrl()
{
    QFETCH(QString, address);
    QString reason;
    const auto server = MailServer::fromSettings({{"MailServerAddress", address}}, &reason);
    QVERIFY2(server, qPrintable(reason));
    QTEST(server->url(), "url");
}

void TestMailServer::otherAddressesAreRefused_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("words");
    QTest::newRow("empty") << ""
                           << "SMTP Server";
    QTest::newRow("blank") << " "
                           << "SMTP Server";
    for (const QString address :
         {"mail.example.org:587", "mail.example.org/path", "mia@mail.example.org",
          "smtp://mail.example.org", "a b", "a?b", "a#b", "a%2fb", "a\\b", "a..b", ".", ".a",
          "a\nb", "[::1]:25", "::1%eth0", "[::1]/", "a\r\n"}) {
        QTest::addRow("%s", qPrintable(address))
            << address + 'x' << "not the name of a mail server";
    }
    QTest::newRow("NUL") << QString::fromLatin1("a\0b", 3) << "not the name of a mail server";
    QTest::newRow("megabyte") << QString(1 << 20, 'x') << "not the name of a mail server";
}

void TestMailServer::otherAddressesAreRefused()
{
    QFETCH(QString, address);
    QFETCH(QString, words);
    QString reason;
    QVERIFY(!MailServer::fromSettings({{"MailServerAddress", address}}, &reason));
    QVERIFY2(reason.contains(words), qPrintable(reason));
    QVERIFY(reason.size() < 200);
}

void TestMailServer::portIsRead_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("port");
    QTest::newRow("missing") << QVariant() << 25;
    QTest::newRow("zero") << QVariant(0) << 25;
    QTest::newRow("negative") << QVariant(-1) << 25;
    QTest::newRow("no number") << QVariant("abc") << 25;
    QTest::newRow("least") << QVariant(1) << 1;
    QTest::newRow("highest") << QVariant(65535) << 65535;
    QTest::newRow("text") << QVariant("587") << 587;
}

void TestMailServer::portIsRead()
{
    QFETCH(QVariant, value);
    QString reason;
    const auto server = MailServer::fromSettings(
        {{"MailServerAddress", "localhost"}, {"MailServerPort", value}}, &reason);
    QVERIFY2(server, qPrintable(reason));
    QTEST(server->port, "port");
}

void TestMailServer::portAboveTheRangeIsRefused_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("one more") << QVariant(65536);
    QTest::newRow("of the panel") << QVariant(70000);
    QTest::newRow("25 in 32 bits") << QVariant((qint64(1) << 32) + 25);
}

void TestMailServer::portAboveTheRangeIsRefused()
{
    QFETCH(QVariant, value);
    QString reason;
    QVERIFY(!MailServer::fromSettings(
        {{"MailServerAddress", "localhost"}, {"MailServerPort", value}}, &reason));
    QVERIFY2(reason.contains(value.toString()), qPrintable(reason));
}

void TestMailServer::encryptionIsRead_data()
{
    QTest::addColumn<QVariant>("word");
    QTest::addColumn<Security>("security");
    QTest::addColumn<QByteArray>("scheme");
    QTest::newRow("missing") << QVariant() << Security::None << QByteArray("smtp:");
    QTest::newRow("NONE") << QVariant("NONE") << Security::None << QByteArray("smtp:");
    QTest::newRow("TLS") << QVariant("TLS") << Security::StartTls << QByteArray("smtp:");
    QTest::newRow("SSL") << QVariant("SSL") << Security::ImplicitTls << QByteArray("smtps:");
}

void TestMailServer::encryptionIsRead()
{
    QFETCH(QVariant, word);
    QFETCH(QByteArray, scheme);
    QString reason;
    const auto server = MailServer::fromSettings(
        {{"MailServerAddress", "localhost"}, {"MailWithEncryption", word}}, &reason);
    QVERIFY2(server, qPrintable(reason));
    QTEST(server->security, "security");
    QVERIFY(server->url().startsWith(scheme));
}

void TestMailServer::unknownEncryptionIsRefused_data()
{
    QTest::addColumn<QVariant>("word");
    QTest::newRow("empty") << QVariant("");
    QTest::newRow("lower case") << QVariant("tls");
    QTest::newRow("translated") << QVariant("None");
    QTest::newRow("number") << QVariant(2);
    QTest::newRow("list") << QVariant(QVariantList{"TLS"});
    QTest::newRow("megabyte") << QVariant(QString(1 << 20, 'T'));
}

void TestMailServer::unknownEncryptionIsRefused()
{
    QFETCH(QVariant, word);
    QString reason;
    QVERIFY(!MailServer::fromSettings(
        {{"MailServerAddress", "localhost"}, {"MailWithEncryption", word}}, &reason));
    QVERIFY2(reason.contains("unknown encryption"), qPrintable(reason));
    QVERIFY(reason.size() < 200);
}

void TestMailServer::loginIsDeciphered()
{
    QString reason;
    const auto settings = withLogin(mailSettings(25), "zoë", "p@ss wörd");
    const auto server = MailServer::fromSettings(settings, &reason);
    QVERIFY2(server, qPrintable(reason));
    QCOMPARE(server->login, QByteArray("zoë"));
    QCOMPARE(server->password, QByteArray("p@ss wörd"));
}

void TestMailServer::passwordCountsOnlyWithALogin()
{
    for (const QString &cipher : {enciphered("secret"), QString("no cipher")}) {
        QHash<QString, QVariant> settings = mailSettings(25);
        settings["MailServerPassword"] = cipher;
        QString reason;
        const auto server = MailServer::fromSettings(settings, &reason);
        QVERIFY2(server, qPrintable(reason));
        QCOMPARE(server->password, QByteArray());
    }
}

void TestMailServer::emptyPasswordIsAPassword()
{
    QHash<QString, QVariant> settings = withLogin(mailSettings(25), "mia", {});
    for (const bool isThere : {true, false}) {
        if (!isThere) {
            settings.remove("MailServerPassword");
        }
        QString reason;
        const auto server = MailServer::fromSettings(settings, &reason);
        QVERIFY2(server, qPrintable(reason));
        QCOMPARE(server->login, QByteArray("mia"));
        QCOMPARE(server->password, QByteArray());
    }
}

void TestMailServer::passwordThatIsNoCipherIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("clear") << "s3cret";
    QTest::newRow("cut off") << enciphered("s3cret").chopped(1);
    QTest::newRow("not ASCII") << QStringLiteral("ä😀");
    QTest::newRow("megabyte") << QString(1 << 20, 'x');
}

void TestMailServer::passwordThatIsNoCipherIsRefused()
{
    QFETCH(QString, text);
    QHash<QString, QVariant> settings = mailSettings(25);
    settings["MailServerLogin"] = "mia";
    settings["MailServerPassword"] = text;
    QString reason;
    QVERIFY(!MailServer::fromSettings(settings, &reason));
    QVERIFY2(reason.contains("enter it again"), qPrintable(reason));
    QVERIFY(!reason.contains(text));
}

void TestMailServer::wrongTypesAreEmpty()
{
    QHash<QString, QVariant> settings;
    for (const QString key : {"MailServerAddress", "MailServerPort", "MailServerLogin"}) {
        settings[key] = QVariantList{1, 2};
    }
    QString reason;
    QVERIFY(!MailServer::fromSettings(settings, &reason));
    settings["MailServerAddress"] = "localhost";
    const auto server = MailServer::fromSettings(settings, &reason);
    QVERIFY2(server, qPrintable(reason));
    QCOMPARE(server->port, 25);
    QCOMPARE(server->login, QByteArray());
}

int main(int argc, char **argv)
{
    return runTest<TestMailServer>(argc, argv);
}

#include "tst_MailServer.moc"
