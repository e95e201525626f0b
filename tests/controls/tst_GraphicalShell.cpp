#include "FakeFolderProgram.h"
#include "LocalMessageBus.h"
#include "TXFileDialog.h"
#include "TestBase.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QLocalServer>

#include <optional>

namespace {

constexpr int kMostBlockedMilliseconds = 3000;
constexpr int kNotBlockedMilliseconds = 900;

constexpr char kAddressVariable[] = "DBUS_SESSION_BUS_ADDRESS";
constexpr char kRuntimeVariable[] = "XDG_RUNTIME_DIR";

const QString kService = QStringLiteral("org.freedesktop.FileManager1");
const QString kFileManagerConnection = QStringLiteral("file manager");

} // namespace

/// A file manager that opens no window.
class FakeFileManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    bool answers = true;
    QString refusal;
    QList<QDBusMessage> calls;

public slots:
    Q_SCRIPTABLE void ShowFolders(const QStringList &, const QString &) { take(); }
    Q_SCRIPTABLE void ShowItems(const QStringList &, const QString &) { take(); }

private:
    void take()
    {
        calls.append(message());
        setDelayedReply(!answers);
        if (!refusal.isEmpty()) {
            sendErrorReply(refusal, QStringLiteral("no"));
        }
    }
};

class GraphicalShellTest : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fileIsShownSelected();
    void folderIsShownItself();
    void relativePathIsMadeAbsolute();
    void namesAreFullyEncoded_data();
    void namesAreFullyEncoded();
    void busIsFoundAtItsAddress_data();
    void busIsFoundAtItsAddress();
    void busIsFoundBehindAMuteOne();
    void busIsFoundInTheRuntimeFolder_data();
    void busIsFoundInTheRuntimeFolder();
    void callsInQuickSuccessionAllArrive();
    void silentFileManagerIsNotWaitedFor();
    void refusedFileOpensTheFolder();
    void fileManagerThatEndsOpensTheFolder();
    void missingServiceOpensTheFolder();
    void serviceThatDoesNotStartOpensTheFolder();
    void silentBusOpensTheFolderInTime();
    void busThatTalksAgainIsAskedAgain();

private:
    void prepare() override;
    void finish() override;
    void startFileManager();
    void checkThatTheFileManagerIsAsked();

    LocalMessageBus bus;
    std::optional<FakeFileManager> manager;
    std::optional<FakeFolderProgram> program;
    QTemporaryDir home;
    QByteArray runtimeFolder;
};

void GraphicalShellTest::initTestCase()
{
    runtimeFolder = qgetenv(kRuntimeVariable);
    QVERIFY(bus.start());
}

void GraphicalShellTest::prepare()
{
    manager.emplace();
    program.emplace();
    QVERIFY(program->install());
}

void GraphicalShellTest::finish()
{
    QDBusConnection::disconnectFromBus(kFileManagerConnection);
    qputenv(kAddressVariable, bus.address().toUtf8());
    qputenv(kRuntimeVariable, runtimeFolder);
    program.reset();
    manager.reset();
}

void GraphicalShellTest::startFileManager()
{
    QDBusConnection connection =
        QDBusConnection::connectToBus(bus.address(), kFileManagerConnection);
    QVERIFY(connection.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &*manager,
                                      QDBusConnection::ExportScriptableSlots));
    QVERIFY(connection.registerService(kService));
}

void GraphicalShellTest::fileIsShownSelected()
{
    startFileManager();
    QFile file(home.filePath(QStringLiteral("a.txt")));
    QVERIFY(file.open(QFile::WriteOnly));
    QVERIFY(TXFileDialog::showInGraphicalShell(file.fileName()));
    QTRY_COMPARE(manager->calls.size(), 1);
    const QDBusMessage call = manager->calls.first();
    QCOMPARE(call.member(), QStringLiteral("ShowItems"));
    QCOMPARE(call.arguments(),
             QVariantList({QStringList(QStringLiteral("file://") + file.fileName()), QString()}));
}

void GraphicalShellTest::folderIsShownItself()
{
    startFileManager();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(manager->calls.size(), 1);
    const QDBusMessage call = manager->calls.first();
    QCOMPARE(call.member(), QStringLiteral("ShowFolders"));
    QCOMPARE(call.arguments(),
             QVariantList({QStringList(QStringLiteral("file://") + home.path()), QString()}));
}

void GraphicalShellTest::relativePathIsMadeAbsolute()
{
    startFileManager();
    QVERIFY(TXFileDialog::showInGraphicalShell(QStringLiteral("not there.txt")));
    QTRY_COMPARE(manager->calls.size(), 1);
    QCOMPARE(manager->calls.first().arguments().first().toStringList(),
             QStringList(QStringLiteral("file://") + QDir::currentPath()
                         + QStringLiteral("/not%20there.txt")));
}

void GraphicalShellTest::namesAreFullyEncoded_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("uri");
    QTest::newRow("blank") << "/a b"
                           << "file:///a%20b";
    QTest::newRow("umlaut") << QStringLiteral("/ü") << "file:///%C3%BC";
    QTest::newRow("percent") << "/a%20b"
                             << "file:///a%2520b";
    QTest::newRow("hash, question mark") << "/a#b?c"
                                         << "file:///a%23b%3Fc";
    QTest::newRow("newline") << "/a\nb"
                             << "file:///a%0Ab";
    QTest::newRow("quotes") << "/\"a\""
                            << "file:///%22a%22";
    QTest::newRow("like a host") << "//host/a"
                                 << "file:///host/a";
}

void GraphicalShellTest::namesAreFullyEncoded()
{
    QFETCH(const QString, path);
    startFileManager();
    QVERIFY(TXFileDialog::showInGraphicalShell(path));
    QTRY_COMPARE(manager->calls.size(), 1);
    const QStringList uris = manager->calls.first().arguments().first().toStringList();
    QCOMPARE(uris.size(), 1);
    QTEST(uris.first(), "uri");
}

void GraphicalShellTest::checkThatTheFileManagerIsAsked()
{
    startFileManager();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(manager->calls.size(), 1);
    QCOMPARE(program->calls(), QStringList());
}

void GraphicalShellTest::busIsFoundAtItsAddress_data()
{
    const QString socket = bus.socket();
    QString encoded = QString::fromLatin1(socket.toUtf8().toHex('%'));
    encoded.prepend(u'%');
    QTest::addColumn<QString>("address");
    QTest::newRow("path") << "unix:path=" + socket;
    QTest::newRow("further entries") << "unix:a=b,path=" + socket + ",c=d";
    QTest::newRow("abstract") << bus.abstractAddress();
    QTest::newRow("percent-encoded") << "unix:path=" + encoded;
    QTest::newRow("after a missing one") << "unix:path=/not/there;unix:path=" + socket;
    QTest::newRow("before a missing one") << "unix:path=" + socket + ";unix:path=/not/there";
    QTest::newRow("after other transports")
        << "tcp:host=127.0.0.1,port=1;autolaunch:;unix:;" + bus.address();
    QTest::newRow("after nonsense") << ";,;=;unix:path;%;" + bus.address();
}

void GraphicalShellTest::busIsFoundAtItsAddress()
{
    QFETCH(const QString, address);
    qputenv(kAddressVariable, address.toUtf8());
    checkThatTheFileManagerIsAsked();
}

void GraphicalShellTest::busIsFoundBehindAMuteOne()
{
    QLocalServer mute;
    QVERIFY(mute.listen(home.filePath(QStringLiteral("mute"))));
    const QString address = QStringLiteral("unix:path=") + mute.fullServerName();
    qputenv(kAddressVariable, (address + u';' + bus.address()).toUtf8());
    startFileManager();
    // The mute one takes the time of the first call.
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QVERIFY(TXFileDialog::showInGraphicalShell(home.filePath(QStringLiteral("a.txt"))));
    QTRY_VERIFY(!manager->calls.isEmpty()
                && manager->calls.last().member() == QStringLiteral("ShowItems"));
}

void GraphicalShellTest::busIsFoundInTheRuntimeFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "plain";
    QTest::newRow("to be encoded") << QStringLiteral("a, b;c=%20~ü");
}

void GraphicalShellTest::busIsFoundInTheRuntimeFolder()
{
    QFETCH(const QString, name);
    const QString folder = home.filePath(name);
    QVERIFY(QFile::link(QFileInfo(bus.socket()).path(), folder));
    qputenv(kRuntimeVariable, QFile::encodeName(folder));
    qunsetenv(kAddressVariable);
    checkThatTheFileManagerIsAsked();
    // An empty variable is as good as none.
    qputenv(kAddressVariable, "");
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(manager->calls.size(), 2);
}

void GraphicalShellTest::callsInQuickSuccessionAllArrive()
{
    constexpr int kCalls = 200;
    startFileManager();
    for (int call = 0; call < kCalls; ++call) {
        QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    }
    QTRY_COMPARE(manager->calls.size(), kCalls);
    QCOMPARE(program->calls(), QStringList());
}

void GraphicalShellTest::silentFileManagerIsNotWaitedFor()
{
    manager->answers = false;
    startFileManager();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(manager->calls.size(), 2);
    QCOMPARE(program->calls(), QStringList());
    // Both calls end here, not in the next test.
    QDBusConnection::disconnectFromBus(kFileManagerConnection);
    QTRY_COMPARE(program->calls().size(), 2);
}

void GraphicalShellTest::refusedFileOpensTheFolder()
{
    manager->refusal = QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod");
    startFileManager();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.filePath(QStringLiteral("a.txt"))));
    QTRY_COMPARE(program->calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellTest::fileManagerThatEndsOpensTheFolder()
{
    manager->answers = false;
    startFileManager();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(manager->calls.size(), 1);
    QDBusConnection::disconnectFromBus(kFileManagerConnection);
    QTRY_COMPARE(program->calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellTest::missingServiceOpensTheFolder()
{
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(program->calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellTest::serviceThatDoesNotStartOpensTheFolder()
{
    QVERIFY(bus.announce(kService, QStringLiteral("/bin/false")));
    QDBusMessage reload = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ReloadConfig"));
    QCOMPARE(QDBusConnection::sessionBus().call(reload).type(), QDBusMessage::ReplyMessage);
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(program->calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellTest::silentBusOpensTheFolderInTime()
{
    bus.hold();
    QElapsedTimer clock;
    clock.start();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    const qint64 blocked = clock.elapsed();
    bus.goOn();
    QVERIFY2(blocked < kMostBlockedMilliseconds, qPrintable(QString::number(blocked)));
    QTRY_COMPARE(program->calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellTest::busThatTalksAgainIsAskedAgain()
{
    bus.hold();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QElapsedTimer clock;
    clock.start();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    const qint64 blocked = clock.elapsed();
    bus.goOn();
    QVERIFY2(blocked < kNotBlockedMilliseconds, qPrintable(QString::number(blocked)));
    QTRY_COMPARE(program->calls().size(), 2);
    // The bus takes its connections in their order, so that it has answered what waits.
    startFileManager();
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(manager->calls.size(), 1);
    QCOMPARE(program->calls().size(), 2);
}

int main(int argc, char **argv)
{
    return runTest<GraphicalShellTest>(argc, argv);
}

#include "tst_GraphicalShell.moc"
