#include "MailSubject.h"
#include "TestBase.h"

class TestMailSubject : public TestBase
{
    Q_OBJECT

private slots:
    void subjectIsRead_data();
    void subjectIsRead();
};

void TestMailSubject::subjectIsRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("subject");
    QTest::newRow("plain") << QByteArray("From: a\r\nSubject: Proof is ready\r\nTo: b\r\n\r\nx")
                           << "Proof is ready";
    QTest::newRow("any case") << QByteArray("SUBJECT:x\n\n") << "x";
    QTest::newRow("no line end") << QByteArray("Subject: x") << "x";
    QTest::newRow("folded") << QByteArray("Subject: Proof\r\n is\r\n\tready\r\nTo: b\r\n\r\n")
                            << "Proof is ready";
    QTest::newRow("base64") << QByteArray("Subject: =?utf-8?B?RMO8c3NlbA==?=\r\n\r\n")
                            << QString::fromUtf8("D\u00fcssel");
    QTest::newRow("quoted") << QByteArray("Subject: =?UTF-8?q?D=C3=BCssel_2?= 3\r\n\r\n")
                            << QString::fromUtf8("D\u00fcssel 2 3");
    QTest::newRow("words in a row")
        << QByteArray("Subject: =?utf-8?b?YQ==?=\r\n =?utf-8?b?Yg==?=\r\n\r\n") << "ab";
    QTest::newRow("text before a word")
        << QByteArray("Subject: x =?utf-8?b?YQ==?=\r\n\r\n") << "x a";
    QTest::newRow("other encoding")
        << QByteArray("Subject: =?koi8-r?B?YQ==?=\r\n\r\n") << "=?koi8-r?B?YQ==?=";
    QTest::newRow("cut off") << QByteArray("Subject: =?utf-8?B?YQ") << "=?utf-8?B?YQ";
    QTest::newRow("in the body") << QByteArray("To: b\r\n\r\nSubject: x\r\n") << QString();
    QTest::newRow("none") << QByteArray("To: b\r\n") << QString();
    QTest::newRow("nothing") << QByteArray() << QString();
}

void TestMailSubject::subjectIsRead()
{
    QFETCH(QByteArray, content);

    QTEST(mailSubject(content), "subject");
}

int main(int argc, char **argv)
{
    return runTest<TestMailSubject>(argc, argv);
}

#include "tst_MailSubject.moc"
