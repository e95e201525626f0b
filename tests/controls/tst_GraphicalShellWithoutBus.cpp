#include "FakeFolderProgram.h"
#include "TXFileDialog.h"
#include "TestBase.h"

class GraphicalShellWithoutBusTest : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void folderIsOpenedByTheProgram_data();
    void folderIsOpenedByTheProgram();
    void fileOpensItsFolder();
    void addressOfNoBusOpensTheFolder_data();
    void addressOfNoBusOpensTheFolder();
    void missingAddressOpensTheFolder();
    void nothingIsStartedWithoutTheProgram();
    void pathThatCannotBeStartsNothing();

private:
    QTemporaryDir home;
};

void GraphicalShellWithoutBusTest::initTestCase()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS",
            "unix:path=" + QFile::encodeName(home.filePath(QStringLiteral("no bus"))));
}

void GraphicalShellWithoutBusTest::folderIsOpenedByTheProgram_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "folder";
    QTest::newRow("blanks") << " a  b ";
    QTest::newRow("umlauts") << QStringLiteral("Übergrößen");
    QTest::newRow("percent and hash") << "50%20#?";
    QTest::newRow("newline") << "a\nb";
    QTest::newRow("option") << "--help";
    QTest::newRow("quotes") << "'a' \"b\" $(c) `d` \\";
}

void GraphicalShellWithoutBusTest::folderIsOpenedByTheProgram()
{
    QFETCH(const QString, name);
    FakeFolderProgram program;
    QVERIFY(program.install());
    const QString folder = home.filePath(name);
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(TXFileDialog::showInGraphicalShell(folder));
    QTRY_COMPARE(program.calls(), FakeFolderProgram::callFor(folder));
}

void GraphicalShellWithoutBusTest::fileOpensItsFolder()
{
    FakeFolderProgram program;
    QVERIFY(program.install());
    QVERIFY(TXFileDialog::showInGraphicalShell(home.filePath(QStringLiteral("gone.txt"))));
    QTRY_COMPARE(program.calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellWithoutBusTest::addressOfNoBusOpensTheFolder_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("closed port") << "tcp:host=127.0.0.1,port=1";
    QTest::newRow("started on demand") << "autolaunch:";
    QTest::newRow("program") << "unixexec:path=/bin/false";
    QTest::newRow("word") << "bus";
    QTest::newRow("separators") << ":;,=;:,=";
    QTest::newRow("no socket") << "unix:";
    QTest::newRow("no path") << "unix:path";
    QTest::newRow("empty path") << "unix:path=";
    QTest::newRow("empty name") << "unix:abstract=";
    QTest::newRow("unknown name") << "unix:abstract=no bus";
    QTest::newRow("folder") << "unix:path=/";
    QTest::newRow("relative path") << "unix:path=bus";
    QTest::newRow("NUL") << "unix:path=%00";
    QTest::newRow("broken encoding") << "unix:path=/%zz%";
    QTest::newRow("no UTF-8") << "unix:path=/%ff";
    QTest::newRow("long path") << "unix:path=/" + QString(100000, u'x');
    QTest::newRow("long name") << "unix:abstract=" + QString(100000, u'x');
    QTest::newRow("many") << QStringLiteral("unix:path=/not/there;").repeated(1000);
}

void GraphicalShellWithoutBusTest::addressOfNoBusOpensTheFolder()
{
    QFETCH(const QString, address);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
    FakeFolderProgram program;
    QVERIFY(program.install());
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(program.calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellWithoutBusTest::missingAddressOpensTheFolder()
{
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    FakeFolderProgram program;
    QVERIFY(program.install());
    QVERIFY(TXFileDialog::showInGraphicalShell(home.path()));
    QTRY_COMPARE(program.calls(), FakeFolderProgram::callFor(home.path()));
}

void GraphicalShellWithoutBusTest::nothingIsStartedWithoutTheProgram()
{
    const FakeFolderProgram notInstalled;
    QVERIFY(!TXFileDialog::showInGraphicalShell(home.path()));
}

void GraphicalShellWithoutBusTest::pathThatCannotBeStartsNothing()
{
    FakeFolderProgram program;
    QVERIFY(program.install());
    QVERIFY(!TXFileDialog::showInGraphicalShell({}));
    QVERIFY(!TXFileDialog::showInGraphicalShell(home.path() + QChar::Null));
    QVERIFY(TXFileDialog::showInGraphicalShell(QString(100000, u'x')));
    QTRY_COMPARE(program.calls(), FakeFolderProgram::callFor(QDir::currentPath()));
}

int main(int argc, char **argv)
{
    return runTest<GraphicalShellWithoutBusTest>(argc, argv);
}

#include "tst_GraphicalShellWithoutBus.moc"
