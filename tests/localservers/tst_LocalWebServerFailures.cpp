#include "LocalCertificate.h"
#include "LocalWebServer.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QThread>

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/stat.h>

#include <memory>

namespace {

constexpr int kPatienceMilliseconds = 20000;
/// Nobody serves it, and below 1024 it is for the superuser.
constexpr quint16 kReservedPort = 1;

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

/// Whether the system lets everybody listen there.
bool isPortForEverybody(quint16 port)
{
    return contentOf(QStringLiteral("/proc/sys/net/ipv4/ip_unprivileged_port_start"))
               .trimmed()
               .toInt()
        <= port;
}

} // namespace

/// Settings with which the server cannot start.
class TestLocalWebServerFailures : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void takenPortIsToldInWords();
    void reservedPortIsToldInWords();
    void badCertificateIsToldInWords_data();
    void badCertificateIsToldInWords();
    void lockedKeyIsToldInWords();

private:
    std::unique_ptr<LocalWebServer> server;
    std::unique_ptr<QTemporaryDir> folder;
};

void TestLocalWebServerFailures::prepare()
{
    server = std::make_unique<LocalWebServer>();
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void TestLocalWebServerFailures::finish()
{
    server.reset();
    folder.reset();
}

void TestLocalWebServerFailures::takenPortIsToldInWords()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress(QHostAddress::LocalHost)));
    server->setWantedPort(other.serverPort());

    for (const auto reach :
         {LocalWebServer::Reach::ThisComputer, LocalWebServer::Reach::AllAddresses}) {
        server->setReach(reach);
        QVERIFY(!server->start());
        QVERIFY2(
            server->error().contains(QStringLiteral("cannot serve: port %1 is taken by another "
                                                    "program")
                                         .arg(other.serverPort())),
            qPrintable(server->error()));
        QVERIFY(LocalWebServer::tellsOfSettings(server->error()));
        QVERIFY(!server->isRunning());
    }
    other.close();
    QVERIFY2(server->start(), qPrintable(server->error()));
}

void TestLocalWebServerFailures::reservedPortIsToldInWords()
{
    QString error;
    bool isRunning = false;
    const auto startWithoutRights = [&] {
        // Of this thread and of what it starts. Who may not drop the right does not have it.
        ::prctl(PR_CAPBSET_DROP, CAP_NET_BIND_SERVICE, 0, 0, 0);
        LocalWebServer powerless;
        powerless.setWantedPort(kReservedPort);
        isRunning = powerless.start();
        error = powerless.error();
    };
    const std::unique_ptr<QThread> thread(QThread::create(startWithoutRights));
    thread->start();
    QVERIFY(thread->wait(kPatienceMilliseconds));

    // Some systems have no such rights at all.
    const bool isForEverybody = isPortForEverybody(kReservedPort);
    QVERIFY2(isRunning == isForEverybody, qPrintable(error));
    QCOMPARE(error.contains(QStringLiteral("cannot serve: port 1 is for programs with more rights "
                                           "only")),
             !isForEverybody);
}

void TestLocalWebServerFailures::badCertificateIsToldInWords_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "missing"
                             << "cannot serve: there is no file ";
    QTest::newRow("folder") << "folder"
                            << "is no file with a certificate";
    QTest::newRow("pipe") << "pipe"
                          << "is no file with a certificate";
    QTest::newRow("device") << "device"
                            << "is no file with a certificate";
    QTest::newRow("huge") << "huge"
                          << "is no file with a certificate";
    QTest::newRow("empty") << "empty"
                           << "does not hold a certificate and its key";
    QTest::newRow("rubbish") << "rubbish"
                             << "does not hold a certificate and its key";
    QTest::newRow("without key") << "certificate"
                                 << "does not hold a certificate and its key";
    QTest::newRow("key of another") << "mixed"
                                    << "does not hold a certificate and its key";
}

void TestLocalWebServerFailures::badCertificateIsToldInWords()
{
    QFETCH(QString, kind);
    QFETCH(QString, reason);
    const LocalCertificate certificate;
    const LocalCertificate another;
    QString file = folder->filePath(kind + ".pem");
    const QByteArray own = contentOf(certificate.certificateFile());
    if (kind == "folder") {
        QVERIFY(QDir().mkdir(file));
    } else if (kind == "pipe") {
        QCOMPARE(::mkfifo(qPrintable(file), 0600), 0);
    } else if (kind == "device") {
        file = QStringLiteral("/dev/zero");
    } else if (kind == "huge") {
        write(file, {});
        QVERIFY(QFile::resize(file, 1 << 30));
    } else if (kind != "missing") {
        write(file,
              kind == "empty"         ? QByteArray()
                  : kind == "rubbish" ? QByteArray("-----BEGIN CERTIFICATE-----\n\xff\n")
                  : kind == "mixed"   ? own + contentOf(another.keyFile())
                                      : own);
    }
    server->setCertificate(file);

    QVERIFY(!server->start());

    QVERIFY2(server->error().contains(reason), qPrintable(server->error()));
    QVERIFY2(server->error().contains(file), qPrintable(server->error()));
    QVERIFY(LocalWebServer::tellsOfSettings(server->error()));
}

void TestLocalWebServerFailures::lockedKeyIsToldInWords()
{
    const LocalCertificate certificate;
    const QString locked = folder->filePath(QStringLiteral("locked.pem"));
    QProcess openssl;
    openssl.start(
        QStringLiteral("openssl"),
        {"ec", "-aes128", "-passout", "pass:hidden", "-in", certificate.keyFile(), "-out", locked});
    QVERIFY(openssl.waitForFinished());
    const QString file = folder->filePath(QStringLiteral("both.pem"));
    write(file, contentOf(locked) + contentOf(certificate.certificateFile()));
    server->setCertificate(file);

    QVERIFY(!server->start());

    QVERIFY2(server->error().contains("is locked by a password"), qPrintable(server->error()));
}

int main(int argc, char **argv)
{
    return runTest<TestLocalWebServerFailures>(argc, argv);
}

#include "tst_LocalWebServerFailures.moc"
