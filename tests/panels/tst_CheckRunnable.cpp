#include "CheckRunnable.h"

#include "ClosedPort.h"
#include "FullServer.h"
#include "LocalFtpServer.h"
#include "LocalSftpServer.h"
#include "SilentServer.h"
#include "TXTransferSettings.h"
#include "TestBase.h"

#include <QPointer>
#include <QSignalSpy>
#include <QThread>
#include <QThreadPool>

#include <memory>

namespace {

constexpr int kShortMilliseconds = 300;

/// Runs a check of the URL on this thread; the number of the status, or -2 when it was not told
/// exactly once.
int check(const QUrl &url)
{
    CheckRunnable runnable(url);
    const QSignalSpy spy(&runnable, SIGNAL(finished(FTPConfigurationWidget::FtpStatus)));
    runnable.run();
    return spy.count() == 1 ? spy.first().first().toInt() : -2;
}

QUrl urlOf(const QString &scheme, quint16 port)
{
    QUrl url;
    url.setScheme(scheme);
    url.setHost(QStringLiteral("127.0.0.1"));
    url.setPort(port);
    url.setUserName(QStringLiteral("mia"), QUrl::DecodedMode);
    url.setPassword(QStringLiteral("s3cret"), QUrl::DecodedMode);
    return url;
}

std::unique_ptr<LocalServer> makeServer(const QString &scheme)
{
    if (scheme == QStringLiteral("sftp")) {
        return std::make_unique<LocalSftpServer>();
    }
    return std::make_unique<LocalFtpServer>();
}

} // namespace

class TestCheckRunnable : public TestBase
{
    Q_OBJECT

protected:
    void finish() override
    {
        TXTransferSettings::setConnectTimeout(0);
        TXTransferSettings::setTotalTimeout(0);
    }

private slots:
    void serverDecidesOnTheLogin_data();
    void serverDecidesOnTheLogin();
    void unreachableHostIsAHostError_data();
    void unreachableHostIsAHostError();
    void muteServerIsAHostErrorByTimeOut_data();
    void muteServerIsAHostErrorByTimeOut();
    void probeGoesToTheRoot_data();
    void probeGoesToTheRoot();
    void lineBreaksInjectNoCommand_data();
    void lineBreaksInjectNoCommand();
    void poolRunsItOffThisThreadAndFreesIt();
};

void TestCheckRunnable::serverDecidesOnTheLogin_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<int>("status");
    for (const char *scheme : {"ftp", "sftp"}) {
        QTest::addRow("%s, right", scheme) << scheme << "mia"
                                           << "s3cret" << 0;
        QTest::addRow("%s, wrong password", scheme) << scheme << "mia"
                                                    << "secret" << 1;
        QTest::addRow("%s, no password", scheme) << scheme << "mia"
                                                 << "" << 1;
        QTest::addRow("%s, unknown user", scheme) << scheme << "eve"
                                                  << "s3cret" << 1;
        QTest::addRow("%s, no user", scheme) << scheme << ""
                                             << "" << 1;
    }
}

void TestCheckRunnable::serverDecidesOnTheLogin()
{
    QFETCH(QString, scheme);
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(int, status);
    const std::unique_ptr<LocalServer> server = makeServer(scheme);
    QVERIFY2(server->start(), qPrintable(server->error()));
    QUrl url = urlOf(scheme, server->port());
    url.setUserName(user, QUrl::DecodedMode);
    url.setPassword(password, QUrl::DecodedMode);

    QCOMPARE(check(url), status);
}

void TestCheckRunnable::unreachableHostIsAHostError_data()
{
    QTest::addColumn<QUrl>("url");
    for (const char *scheme : {"ftp", "sftp"}) {
        QTest::addRow("%s, closed port", scheme) << urlOf(scheme, closedPort());
        QUrl unknown = urlOf(scheme, 21);
        unknown.setHost(QStringLiteral("nohost.invalid"));
        QTest::addRow("%s, unknown host", scheme) << unknown;
        QUrl empty = urlOf(scheme, 21);
        empty.setHost(QStringLiteral(""));
        QTest::addRow("%s, no host", scheme) << empty;
    }
    QTest::newRow("scheme nobody knows") << urlOf(QStringLiteral("gopher"), closedPort());
    QTest::newRow("file") << QUrl(QStringLiteral("file:///etc/hostname"));
    QTest::newRow("empty") << QUrl();
    QTest::newRow("invalid") << QUrl(QStringLiteral("ftp://host:99999/"));
}

void TestCheckRunnable::unreachableHostIsAHostError()
{
    QFETCH(QUrl, url);

    QCOMPARE(check(url), int(FTPConfigurationWidget::FtpHostError));
}

void TestCheckRunnable::muteServerIsAHostErrorByTimeOut_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<bool>("full");
    for (const char *scheme : {"ftp", "sftp"}) {
        QTest::addRow("%s, never writes", scheme) << scheme << false;
        QTest::addRow("%s, never accepts", scheme) << scheme << true;
    }
}

void TestCheckRunnable::muteServerIsAHostErrorByTimeOut()
{
    QFETCH(QString, scheme);
    QFETCH(bool, full);
    const SilentServer silent;
    const FullServer filled;
    const quint16 port = full ? filled.port() : silent.port();
    QVERIFY(port != 0);
    TXTransferSettings::setConnectTimeout(kShortMilliseconds);

    QCOMPARE(check(urlOf(scheme, port)), int(FTPConfigurationWidget::FtpHostError));

    QVERIFY(full || silent.waitForClient(0));
}

void TestCheckRunnable::probeGoesToTheRoot_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::newRow("ftp") << "ftp";
    QTest::newRow("sftp") << "sftp";
}

void TestCheckRunnable::probeGoesToTheRoot()
{
    QFETCH(QString, scheme);
    const std::unique_ptr<LocalServer> server = makeServer(scheme);
    QVERIFY2(server->start(), qPrintable(server->error()));
    QUrl url = urlOf(scheme, server->port());
    url.setPath(QStringLiteral("/elsewhere/"));

    QCOMPARE(check(url), int(FTPConfigurationWidget::FtpOk));

    const QString log = server->log().join(u'\n');
    QVERIFY(!log.isEmpty());
    QVERIFY2(!log.contains(QStringLiteral("elsewhere")), qPrintable(log));
    QVERIFY2(!log.contains(QStringLiteral("CWD")), qPrintable(log));
}

void TestCheckRunnable::lineBreaksInjectNoCommand_data()
{
    QTest::addColumn<QString>("scheme");
    QTest::addColumn<QByteArray>("place");
    for (const char *scheme : {"ftp", "sftp"}) {
        for (const char *place : {"user", "password", "host", "path"}) {
            QTest::addRow("%s, %s", scheme, place) << scheme << QByteArray(place);
        }
    }
}

void TestCheckRunnable::lineBreaksInjectNoCommand()
{
    QFETCH(QString, scheme);
    QFETCH(QByteArray, place);
    const QString evil = QStringLiteral("mia\r\nMKD evil\r\nNOOP");
    const std::unique_ptr<LocalServer> server = makeServer(scheme);
    QVERIFY2(server->start(), qPrintable(server->error()));
    QUrl url = urlOf(scheme, server->port());
    if (place == "user") {
        url.setUserName(evil, QUrl::DecodedMode);
    } else if (place == "password") {
        url.setPassword(evil, QUrl::DecodedMode);
    } else if (place == "host") {
        url.setHost(QStringLiteral("127.0.0.1\r\nMKD evil"), QUrl::DecodedMode);
    } else {
        url.setPath(u'/' + evil + u'/', QUrl::DecodedMode);
    }

    const int status = check(url);

    QCOMPARE(status == int(FTPConfigurationWidget::FtpOk), place == "path");
    QVERIFY2(!server->log().join(u'\n').contains(QStringLiteral("evil")),
             qPrintable(server->log().join(u'\n')));
}

void TestCheckRunnable::poolRunsItOffThisThreadAndFreesIt()
{
    auto runnable = std::make_unique<CheckRunnable>(urlOf(QStringLiteral("ftp"), closedPort()));
    QVERIFY(runnable->autoDelete());
    QVERIFY(!runnable->parent());
    const QPointer<CheckRunnable> watched(runnable.get());
    QThread *runner = nullptr;
    connect(
        runnable.get(), &CheckRunnable::finished, runnable.get(),
        [&runner] { runner = QThread::currentThread(); }, Qt::DirectConnection);

    QThreadPool::globalInstance()->start(runnable.release());
    QVERIFY(QThreadPool::globalInstance()->waitForDone());

    QVERIFY(runner);
    QVERIFY(runner != QThread::currentThread());
    QVERIFY(watched.isNull());
}

int main(int argc, char **argv)
{
    return runTest<TestCheckRunnable>(argc, argv);
}

#include "tst_CheckRunnable.moc"
