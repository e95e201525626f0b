#include "LocalCertificate.h"
#include "TestBase.h"

#include <QFile>
#include <QProcess>

class TestLocalCertificate : public TestBase
{
    Q_OBJECT

private slots:
    void certificateIsForItsHost_data();
    void certificateIsForItsHost();
    void filesGoWithTheObject();
    void missingProgramIsTold();
};

void TestLocalCertificate::certificateIsForItsHost_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<bool>("isForLoopback");
    QTest::newRow("localhost") << "localhost" << true;
    QTest::newRow("other") << "mail.example" << false;
}

void TestLocalCertificate::certificateIsForItsHost()
{
    QFETCH(QString, host);
    QFETCH(bool, isForLoopback);
    const LocalCertificate certificate(host);
    QVERIFY2(certificate.isValid(), qPrintable(certificate.error()));
    QVERIFY(QFile::exists(certificate.keyFile()));

    const auto told = [&certificate](const QStringList &question) {
        QProcess openssl;
        openssl.start("openssl",
                      QStringList({"x509", "-noout", "-in", certificate.certificateFile()})
                          + question);
        openssl.waitForFinished();
        return openssl.readAllStandardOutput();
    };

    QVERIFY(told({"-checkhost", host}).contains("does match certificate"));
    QCOMPARE(told({"-checkip", "127.0.0.1"}).contains("does match certificate"), isForLoopback);
    QCOMPARE(told({"-issuer"}).mid(6), told({"-subject"}).mid(7));
}

void TestLocalCertificate::filesGoWithTheObject()
{
    QString file;
    {
        const LocalCertificate certificate;
        file = certificate.certificateFile();
        QVERIFY(QFile::exists(file));
    }
    QVERIFY(!QFile::exists(file));
}

void TestLocalCertificate::missingProgramIsTold()
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    const LocalCertificate certificate;
    qputenv("PATH", path);

    QVERIFY(!certificate.isValid());
    QVERIFY(!certificate.error().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestLocalCertificate>(argc, argv);
}

#include "tst_LocalCertificate.moc"
