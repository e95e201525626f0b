#include "FTPConfigurationWidget.h"

#include "ClosedPort.h"
#include "FtpPanelHelpers.h"
#include "LocalFtpServer.h"
#include "LocalSftpServer.h"
#include "SilentServer.h"
#include "TXResources.h"
#include "TXTransferSettings.h"
#include "TestBase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QSignalSpy>
#include <QThreadPool>

#include <memory>

using FtpTest::child;
using FtpTest::settingsFor;

namespace {

QString spinnerFile()
{
    return QCoreApplication::applicationDirPath()
        + QStringLiteral("/../Resources/Images/ajax-loader.gif");
}

/// The picture as it is in the sources: the build puts a copy beside the tests.
QString goodSpinnerFile()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/pictures/ajax-loader.gif");
}

bool installSpinner()
{
    QFile::remove(spinnerFile());
    return QDir().mkpath(QFileInfo(QDir::cleanPath(spinnerFile())).path())
        && QFile::copy(goodSpinnerFile(), spinnerFile());
}

/// A URL of the user whom the local servers let in.
QByteArray urlOf(const QByteArray &scheme, quint16 port, const QByteArray &password = "s3cret")
{
    return scheme + "://mia:" + password + "@127.0.0.1:" + QByteArray::number(port) + "/in/";
}

constexpr int kClientMilliseconds = 5000;
constexpr int kShortMilliseconds = 300;
/// Far above what destroying takes, and far below the time-outs.
constexpr qint64 kAtOnceMilliseconds = 1000;

} // namespace

/// What the panel shows while it checks a connection, and what after it.
class TestFTPConnectionCheck : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        QVERIFY(installSpinner());
        open();
    }

    void finish() override
    {
        QThreadPool::globalInstance()->waitForDone();
        TXTransferSettings::setConnectTimeout(0);
        panel.reset();
        QFile::remove(spinnerFile());
    }

private slots:
    void spinnerIsTheFileOfTheHost();
    void spinnerLoopsForEver();
    void missingSpinnerIsSilent();
    void damagedSpinnerIsSilent_data();
    void damagedSpinnerIsSilent();

    void checkShowsTheSpinnerAndDisablesTheButton();
    void buttonStartsACheck();
    void checkOfEmptyHostFails();
    void callsFromCodeAreAnsweredOneByOne();

    void verdictShowsBulletAndAdvice_data();
    void verdictShowsBulletAndAdvice();
    void verdictIsShownBeforeItIsTold();
    void hiddenStatusShowsNoVerdict();
    void newCheckTakesTheOldVerdictAway();
    void verdictIsNamedForReadingAids();

    void endOfACheckEnablesTheButtonOfAnInactivePanelToo();
    void enablingButtonsEndsTheDisplayAndNotTheCheck();
    void panelMayGoDuringACheck();

    void serversAnswerShows_data();
    void serversAnswerShows();
    void muteServerKeepsTheSpinnerTurningUntilTheTimeOut();
    void panelGoesAtOnceWhileAServerIsMute();
    void checkUsesTheFieldsOfItsStart();

private:
    void open() { panel = std::make_unique<FTPConfigurationWidget>(); }
    [[nodiscard]] QLabel &progress() const { return *child<QLabel>(*panel, "progressLabel"); }
    [[nodiscard]] QPushButton &button() const { return *child<QPushButton>(*panel, "checkFTP"); }
    [[nodiscard]] QMovie &spinner() const { return *progress().findChild<QMovie *>(); }

    std::unique_ptr<FTPConfigurationWidget> panel;
};

void TestFTPConnectionCheck::spinnerIsTheFileOfTheHost()
{
    QCOMPARE(spinner().fileName(), spinnerFile());
    QCOMPARE(spinner().format(), QByteArray("GIF"));
    QVERIFY(spinner().isValid());
    QCOMPARE(spinner().scaledSize(), QSize(button().height(), button().height()));
    QCOMPARE(spinner().state(), QMovie::NotRunning);
    QVERIFY(progress().isHidden());

    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    QCOMPARE(spinner().scaledSize(), QSize(button().height(), button().height()));
}

void TestFTPConnectionCheck::spinnerLoopsForEver()
{
    QCOMPARE(spinner().loopCount(), -1);
    const int frames = spinner().frameCount();
    QVERIFY(frames >= 24);
    for (int frame = 0; frame < frames; ++frame) {
        QVERIFY(spinner().jumpToFrame(frame));
        QVERIFY(spinner().nextFrameDelay() <= 40);
        const QImage picture = spinner().currentImage();
        QCOMPARE(qAlpha(picture.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(picture.pixel(picture.rect().center())), 0);
    }
}

void TestFTPConnectionCheck::missingSpinnerIsSilent()
{
    QVERIFY(QFile::remove(spinnerFile()));
    open();
    QVERIFY(!spinner().isValid());
    const QSignalSpy spy(panel.get(),
                         SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel->load(settingsFor(urlOf("ftp", closedPort())));
    panel->show();

    button().click();

    QVERIFY(progress().isVisible());
    QVERIFY(!button().isEnabled());
    QTRY_COMPARE(spy.count(), 1);
    QVERIFY(button().isEnabled());
    QVERIFY(!progress().pixmap().isNull());
}

void TestFTPConnectionCheck::damagedSpinnerIsSilent_data()
{
    QTest::addColumn<QByteArray>("content");
    QFile good(goodSpinnerFile());
    QVERIFY(good.open(QFile::ReadOnly));
    const QByteArray content = good.readAll();
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("other file") << QByteArray("<html></html>");
    QTest::newRow("head only") << content.left(13);
    QTest::newRow("cut in the first picture") << content.left(100);
    QTest::newRow("cut in the middle") << content.left(content.size() / 2);
    QTest::newRow("garbage behind the head") << content.left(40) + QByteArray(5000, '\xff');
}

void TestFTPConnectionCheck::damagedSpinnerIsSilent()
{
    QFETCH(QByteArray, content);
    QFile file(spinnerFile());
    QVERIFY(file.open(QFile::WriteOnly | QFile::Truncate));
    QCOMPARE(file.write(content), content.size());
    file.close();
    open();
    const QSignalSpy spy(panel.get(),
                         SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel->load(settingsFor(urlOf("ftp", closedPort())));
    panel->show();

    panel->checkFTP();

    QTRY_COMPARE(spy.count(), 1);
}

void TestFTPConnectionCheck::checkShowsTheSpinnerAndDisablesTheButton()
{
    panel->load(settingsFor(urlOf("ftp", closedPort())));
    panel->show();
    progress().setToolTip(QStringLiteral("earlier"));

    panel->checkFTP();

    QCOMPARE(progress().movie(), &spinner());
    QCOMPARE(progress().toolTip(), QString());
    QVERIFY(progress().isVisible());
    QCOMPARE(spinner().state(), QMovie::Running);
    QVERIFY(!button().isEnabled());
    QTRY_VERIFY(button().isEnabled());
    QCOMPARE(spinner().state(), QMovie::NotRunning);
}

void TestFTPConnectionCheck::buttonStartsACheck()
{
    const QSignalSpy spy(panel.get(),
                         SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel->load(settingsFor(urlOf("ftp", closedPort())));
    panel->show();

    QTest::mouseClick(&button(), Qt::LeftButton);
    QTest::mouseClick(&button(), Qt::LeftButton);

    QTRY_COMPARE(spy.count(), 1);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().value<FTPConfigurationWidget::FtpStatus>(),
             FTPConfigurationWidget::FtpHostError);
}

void TestFTPConnectionCheck::checkOfEmptyHostFails()
{
    QSignalSpy spy(panel.get(), SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel->activateFTP(true);

    button().click();

    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().value<FTPConfigurationWidget::FtpStatus>(),
             FTPConfigurationWidget::FtpHostError);
}

void TestFTPConnectionCheck::callsFromCodeAreAnsweredOneByOne()
{
    const QSignalSpy spy(panel.get(),
                         SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel->load(settingsFor(urlOf("ftp", closedPort())));

    panel->checkFTP();
    panel->checkFTP(false);
    panel->checkFTP(true);

    QTRY_COMPARE(spy.count(), 3);
    QVERIFY(button().isEnabled());
    QCOMPARE(spinner().state(), QMovie::NotRunning);
}

void TestFTPConnectionCheck::verdictShowsBulletAndAdvice_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("good");
    QTest::addColumn<QString>("advice");
    QTest::newRow("ok") << 0 << true << "";
    QTest::newRow("login") << 1 << false << "Please check the user name and password";
    QTest::newRow("host") << 2 << false << "Please check the host name and port number";
    QTest::newRow("next") << 3 << false << "Try to connect again to the FTP";
    QTest::newRow("negative") << -1 << false << "Try to connect again to the FTP";
    QTest::newRow("large") << INT_MAX << false << "Try to connect again to the FTP";
}

void TestFTPConnectionCheck::verdictShowsBulletAndAdvice()
{
    QFETCH(int, status);
    QFETCH(bool, good);
    QFETCH(QString, advice);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    button().setEnabled(false);
    const QSignalSpy spy(panel.get(),
                         SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));

    panel->onFinished(FTPConfigurationWidget::FtpStatus(status));

    const QPixmap bullet =
        good ? TXDisplayFixBulletStaticImage() : TXDisplayErrorBulletStaticImage();
    QCOMPARE(progress().pixmap().height(), button().height());
    QCOMPARE(progress().pixmap().toImage(), bullet.scaledToHeight(button().height()).toImage());
    QCOMPARE(progress().toolTip(), advice);
    QVERIFY(progress().isVisible());
    QVERIFY(button().isEnabled());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(int(spy.first().first().value<FTPConfigurationWidget::FtpStatus>()), status);
}

void TestFTPConnectionCheck::verdictIsShownBeforeItIsTold()
{
    bool isShownAlready = false;
    connect(panel.get(), &FTPConfigurationWidget::ftpConnectionStatus, panel.get(),
            [&] { isShownAlready = !progress().isHidden() && !progress().pixmap().isNull(); });

    panel->onFinished(FTPConfigurationWidget::FtpOk);

    QVERIFY(isShownAlready);
}

void TestFTPConnectionCheck::hiddenStatusShowsNoVerdict()
{
    const QSignalSpy spy(panel.get(),
                         SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel->load(settingsFor(urlOf("ftp", closedPort())));
    panel->setVisibleStatus(false);
    panel->show();

    panel->checkFTP();
    QVERIFY(progress().isVisible());
    QCOMPARE(spinner().state(), QMovie::Running);

    QTRY_COMPARE(spy.count(), 1);
    QVERIFY(progress().isHidden());
    QVERIFY(progress().pixmap().isNull());
    QCOMPARE(progress().toolTip(), QString());
    QVERIFY(button().isEnabled());
    panel->setVisibleStatus(true);
    panel->onFinished(FTPConfigurationWidget::FtpOk);
    QVERIFY(progress().isVisible());
}

void TestFTPConnectionCheck::newCheckTakesTheOldVerdictAway()
{
    panel->show();
    panel->onFinished(FTPConfigurationWidget::FtpLoginError);
    QVERIFY(!progress().movie());

    panel->checkFTP();

    QVERIFY(progress().pixmap().isNull());
    QCOMPARE(progress().movie(), &spinner());
    QCOMPARE(progress().toolTip(), QString());
}

void TestFTPConnectionCheck::verdictIsNamedForReadingAids()
{
    panel->checkFTP();
    QCOMPARE(progress().accessibleName(), QStringLiteral("Checking the connection"));
    panel->onFinished(FTPConfigurationWidget::FtpOk);
    QCOMPARE(progress().accessibleName(), QStringLiteral("Connection succeeded"));
    panel->onFinished(FTPConfigurationWidget::FtpHostError);
    QCOMPARE(progress().accessibleName(), QStringLiteral("Connection failed"));
}

void TestFTPConnectionCheck::endOfACheckEnablesTheButtonOfAnInactivePanelToo()
{
    panel->load(settingsFor(urlOf("ftp", closedPort()), false));
    QVERIFY(!button().isEnabled());

    panel->onFinished(FTPConfigurationWidget::FtpOk);

    QVERIFY(button().isEnabled());
}

void TestFTPConnectionCheck::enablingButtonsEndsTheDisplayAndNotTheCheck()
{
    const QSignalSpy spy(panel.get(),
                         SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel->load(settingsFor(urlOf("ftp", closedPort())));
    panel->checkFTP();

    panel->enableButtons();

    QVERIFY(progress().isHidden());
    QVERIFY(button().isEnabled());
    QCOMPARE(spinner().state(), QMovie::NotRunning);
    QTRY_COMPARE(spy.count(), 1);
}

void TestFTPConnectionCheck::panelMayGoDuringACheck()
{
    panel->load(settingsFor(urlOf("ftp", closedPort())));
    for (int i = 0; i < 20; ++i) {
        panel->checkFTP();
    }

    panel.reset();

    QVERIFY(QThreadPool::globalInstance()->waitForDone());
    QCoreApplication::processEvents();
}

void TestFTPConnectionCheck::serversAnswerShows_data()
{
    QTest::addColumn<bool>("isSftp");
    QTest::addColumn<QByteArray>("password");
    QTest::addColumn<int>("status");
    QTest::newRow("ftp") << false << QByteArray("s3cret") << 0;
    QTest::newRow("ftp, wrong password") << false << QByteArray("secret") << 1;
    QTest::newRow("sftp") << true << QByteArray("s3cret") << 0;
    QTest::newRow("sftp, wrong password") << true << QByteArray("secret") << 1;
}

void TestFTPConnectionCheck::serversAnswerShows()
{
    QFETCH(bool, isSftp);
    QFETCH(QByteArray, password);
    QFETCH(int, status);
    std::unique_ptr<LocalServer> server = std::make_unique<LocalFtpServer>();
    if (isSftp) {
        server = std::make_unique<LocalSftpServer>();
    }
    QVERIFY2(server->start(), qPrintable(server->error()));
    QSignalSpy spy(panel.get(), SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel->load(settingsFor(urlOf(isSftp ? "sftp" : "ftp", server->port(), password)));
    panel->show();

    QTest::mouseClick(&button(), Qt::LeftButton);

    QVERIFY(spy.wait());
    QCOMPARE(spy.first().first().toInt(), status);
    const QPixmap bullet =
        status == 0 ? TXDisplayFixBulletStaticImage() : TXDisplayErrorBulletStaticImage();
    QCOMPARE(progress().pixmap().toImage(), bullet.scaledToHeight(button().height()).toImage());
    QCOMPARE(progress().toolTip(),
             status == 0 ? QString() : QStringLiteral("Please check the user name and password"));
    const QString log = server->log().join(u'\n');
    QVERIFY(!log.isEmpty());
    QVERIFY2(!log.contains(QStringLiteral("/in")), qPrintable(log));
}

void TestFTPConnectionCheck::muteServerKeepsTheSpinnerTurningUntilTheTimeOut()
{
    const SilentServer server;
    TXTransferSettings::setConnectTimeout(kShortMilliseconds);
    const QSignalSpy spy(panel.get(),
                         SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    const QSignalSpy frames(&spinner(), SIGNAL(frameChanged(int)));
    panel->load(settingsFor(urlOf("ftp", server.port())));
    panel->show();

    button().click();

    QVERIFY(server.waitForClient(kClientMilliseconds));
    QTRY_VERIFY(frames.count() >= 3);
    QCOMPARE(spy.count(), 0);
    QVERIFY(!button().isEnabled());
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(progress().toolTip(), QStringLiteral("Please check the host name and port number"));
}

void TestFTPConnectionCheck::panelGoesAtOnceWhileAServerIsMute()
{
    const SilentServer server;
    TXTransferSettings::setConnectTimeout(3 * int(kAtOnceMilliseconds));
    panel->load(settingsFor(urlOf("ftp", server.port())));
    panel->checkFTP();
    QVERIFY(server.waitForClient(kClientMilliseconds));
    QElapsedTimer timer;
    timer.start();

    panel.reset();

    QVERIFY(timer.elapsed() < kAtOnceMilliseconds);
    QCOMPARE(QThreadPool::globalInstance()->activeThreadCount(), 1);
}

void TestFTPConnectionCheck::checkUsesTheFieldsOfItsStart()
{
    LocalFtpServer server;
    QVERIFY2(server.start(), qPrintable(server.error()));
    QSignalSpy spy(panel.get(), SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    panel->load(settingsFor(urlOf("ftp", server.port())));

    panel->checkFTP();
    panel->load({});

    QVERIFY(spy.wait());
    QCOMPARE(spy.first().first().toInt(), int(FTPConfigurationWidget::FtpOk));
}

int main(int argc, char **argv)
{
    return runTest<TestFTPConnectionCheck>(argc, argv);
}

#include "tst_FTPConnectionCheck.moc"
