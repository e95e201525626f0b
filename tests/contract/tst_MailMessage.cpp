#include "MailMessage.h"
#include "MailReader.h"
#include "TestBase.h"

namespace {

constexpr qsizetype kMegabyte = 1 << 20;

MailAddress address(const QString &text)
{
    QString reason;
    return MailAddress::fromText(text, &reason).value();
}

MailMessage simpleMail(const QString &subject = "Hello", const QString &body = "Hello.\n")
{
    return {address("mia@example.org"), {address("bob@example.net")}, {}, subject, body};
}

QByteArray contentOf(const MailMessage &mail)
{
    return mail.content(QDateTime::currentDateTime());
}

} // namespace

class TestMailMessage : public TestBase
{
    Q_OBJECT

private slots:
    void headersAreThere();
    void copyHeaderIsThereOnlyForCopies();
    void namesArriveInAddressHeaders();
    void subjectArrives_data();
    void subjectArrives();
    void bodyArrives_data();
    void bodyArrives();
    void nothingInjectsAHeader();
    void idDiffersFromMailToMail();
    void envelopeNamesEverybodyOnce();
    void megabytesAreQuick();
};

void TestMailMessage::headersAreThere()
{
    const QDateTime date(QDate(2024, 2, 29), QTime(23, 59, 58), Qt::OffsetFromUTC, 5400);
    const QJsonObject mail = readMail(simpleMail().content(date));
    QCOMPARE(mail["error"].toString(), QString());
    QCOMPARE(mail["names"].toVariant().toStringList(),
             QStringList({"Date", "Message-ID", "From", "To", "Subject", "MIME-Version",
                          "Content-Type", "Content-Transfer-Encoding"}));
    QCOMPARE(mail["date"].toString(), "Thu, 29 Feb 2024 23:59:58 +0130");
    QCOMPARE(qint64(mail["time"].toDouble()), date.toSecsSinceEpoch());
    QCOMPARE(mail["from"].toString(), "mia@example.org");
    QCOMPARE(mail["to"].toString(), "bob@example.net");
    QCOMPARE(mail["type"].toString(), "text/plain");
    QCOMPARE(mail["charset"].toString(), "utf-8");
    QVERIFY(mail["defects"].toArray().isEmpty());
    const QRegularExpression id(R"(^<[0-9a-f-]{36}@example\.org>$)");
    QVERIFY2(id.match(mail["id"].toString()).hasMatch(), qPrintable(mail["id"].toString()));
}

void TestMailMessage::copyHeaderIsThereOnlyForCopies()
{
    MailMessage message = simpleMail();
    QVERIFY(!contentOf(message).contains("Cc:"));
    message.copyReceivers = {address("eve@example.org"), address("Ann <ann@example.org>")};
    const QJsonObject mail = readMail(contentOf(message));
    QCOMPARE(mail["cc"].toString(), "eve@example.org, Ann <ann@example.org>");
    QVERIFY(mail["defects"].toArray().isEmpty());
}

void TestMailMessage::namesArriveInAddressHeaders()
{
    MailMessage message = simpleMail();
    const QString longName = QStringLiteral("Zoë Müller-Lüdenscheid 😀 ").repeated(20).trimmed();
    message.sender = address(QStringLiteral("Zoë <mia@example.org>"));
    message.receivers = {address("\"Moll, Bob\" <bob@example.org>"),
                         address(longName + " <eve@example.org>"), address("ann@example.org")};
    const QJsonObject mail = readMail(contentOf(message));
    QVERIFY2(mail["defects"].toArray().isEmpty(), QJsonDocument(mail).toJson());
    QCOMPARE(mail["from"].toString(), QStringLiteral("Zoë <mia@example.org>"));
    QCOMPARE(mail["to"].toString(),
             "Moll, Bob <bob@example.org>, " + longName + " <eve@example.org>, ann@example.org");
    QVERIFY(mail["longestHeaderLine"].toInt() <= 76);
    QVERIFY(mail["isAscii"].toBool());
}

void TestMailMessage::subjectArrives_data()
{
    QTest::addColumn<QString>("subject");
    QTest::newRow("plain") << "Report of today";
    QTest::newRow("empty") << "";
    QTest::newRow("other scripts") << QStringLiteral("Prüfbericht – 印刷 😀");
    QTest::newRow("long plain") << QStringLiteral("word ").repeated(100).trimmed();
    QTest::newRow("long word") << QString(2000, 'x');
    QTest::newRow("long other") << QStringLiteral("ä€😀").repeated(300);
    QTest::newRow("like an encoded word") << "=?UTF-8?B?YQ==?=";
}

void TestMailMessage::subjectArrives()
{
    QFETCH(QString, subject);
    const QJsonObject mail = readMail(contentOf(simpleMail(subject)));
    QVERIFY2(mail["defects"].toArray().isEmpty(), QJsonDocument(mail).toJson());
    QCOMPARE(mail["subject"].toString(), subject);
    QVERIFY(mail["longestHeaderLine"].toInt() <= 76);
    QVERIFY(mail["isAscii"].toBool());
}

void TestMailMessage::bodyArrives_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("encoding");
    QTest::newRow("plain") << "a\r\nb\r\n"
                           << "a\nb\n"
                           << "7bit";
    QTest::newRow("line ends") << "a\nb\rc\r\nd"
                               << "a\nb\nc\nd\n"
                               << "7bit";
    QTest::newRow("blank lines") << "\n\na\n\n"
                                 << "\n\na\n\n"
                                 << "7bit";
    QTest::newRow("empty") << ""
                           << "\n"
                           << "7bit";
    QTest::newRow("dots") << ".\n..\n.a\n"
                          << ".\n..\n.a\n"
                          << "7bit";
    QTest::newRow("like headers") << "Bcc: x@x.org\n\nb"
                                  << "Bcc: x@x.org\n\nb\n"
                                  << "7bit";
    QTest::newRow("longest line") << QString(998, 'x') << QString(998, 'x') + '\n' << "7bit";
    QTest::newRow("too long") << QString(999, 'x') << QString(999, 'x') + '\n' << "base64";
    QTest::newRow("not ASCII") << QStringLiteral("ä\r\n😀") << QStringLiteral("ä\n😀\n") << "base64";
    QTest::newRow("NUL") << QString(QChar(0)) + "a" << QString(QChar(0)) + "a\n"
                         << "base64";
}

void TestMailMessage::bodyArrives()
{
    QFETCH(QString, body);
    QFETCH(QString, expected);
    QFETCH(QString, encoding);
    const QJsonObject mail = readMail(contentOf(simpleMail("Hello", body)));
    QVERIFY2(mail["defects"].toArray().isEmpty(), QJsonDocument(mail).toJson());
    QCOMPARE(mail["body"].toString().remove('\r'), expected);
    QCOMPARE(mail["encoding"].toString(), encoding);
    QVERIFY(mail["longestLine"].toInt() <= (encoding == "7bit" ? 998 : 76));
    QVERIFY(mail["isAscii"].toBool());
}

void TestMailMessage::nothingInjectsAHeader()
{
    const QStringList names = readMail(contentOf(simpleMail()))["names"].toVariant().toStringList();
    const QString attack = "a\r\nBcc: eve@example.org\n\rX-A: b\r\n\r\nbody";
    MailMessage message = simpleMail(attack);
    message.sender = address("a\r\nBcc: eve\r\n\r\nbody <mia@example.org>");
    message.receivers = {address("\"" + attack + "\" <mia@example.org>")};
    const QJsonObject mail = readMail(contentOf(message));
    QCOMPARE(mail["names"].toVariant().toStringList(), names);
    QCOMPARE(mail["subject"].toString(), "a Bcc: eve@example.org  X-A: b  body");
    QCOMPARE(mail["body"].toString().remove('\r'), "Hello.\n");
}

void TestMailMessage::idDiffersFromMailToMail()
{
    const MailMessage message = simpleMail();
    QVERIFY(readMail(contentOf(message))["id"] != readMail(contentOf(message))["id"]);
}

void TestMailMessage::envelopeNamesEverybodyOnce()
{
    MailMessage message = simpleMail();
    message.receivers = {address("B <b@x.org>"), address("a@x.org"), address("b@x.org")};
    message.copyReceivers = {address("c@x.org"), address("a@x.org")};
    QCOMPARE(message.envelopeReceivers(), QList<QByteArray>({"b@x.org", "a@x.org", "c@x.org"}));
}

void TestMailMessage::megabytesAreQuick()
{
    const QString text(kMegabyte, 'x');
    QElapsedTimer timer;
    timer.start();
    const QByteArray content = contentOf(simpleMail(text, text));
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(content.size() > 2 * kMegabyte);
    const QJsonObject mail = readMail(contentOf(simpleMail("Hello", text)));
    QCOMPARE(mail["body"].toString().trimmed(), text);
    QVERIFY(mail["longestLine"].toInt() <= 76);
}

int main(int argc, char **argv)
{
    return runTest<TestMailMessage>(argc, argv);
}

#include "tst_MailMessage.moc"
