#include "HostBuild.h"
#include "TestBase.h"

#include <QFile>

/// Where the libraries are installed when the command line says so. Nothing is built: what is
/// looked at stands after CMake has configured. The folder stays for the next run.
class TestInstallFolders : public TestBase
{
    Q_OBJECT

private slots:
    void folderOfLibrariesIsTakenFromThePrefixOn_data();
    void folderOfLibrariesIsTakenFromThePrefixOn();
    void folderOfHeadersIsTakenFromThePrefixOn();
    void folderOutsideOfThePrefixIsRefusedInWords_data();
    void folderOutsideOfThePrefixIsRefusedInWords();

private:
    /// The file of the last configuration, or an empty string.
    QString textOf(const QString &name);

    const QString folder = buildFolder() + "/tests/install/folders";
};

QString TestInstallFolders::textOf(const QString &name)
{
    QFile file(folder + '/' + name);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void TestInstallFolders::folderOfLibrariesIsTakenFromThePrefixOn_data()
{
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("libraries");
    QTest::addColumn<QString>("wayToPrefix");

    QTest::newRow("lib") << "lib"
                         << "lib"
                         << "../..";
    QTest::newRow("lib64") << "lib64"
                           << "lib64"
                           << "../..";
    QTest::newRow("folder of Debian") << "lib/x86_64-linux-gnu"
                                      << "lib/x86_64-linux-gnu"
                                      << "../../..";
    QTest::newRow("from the root on") << "/opt/tx/lib/deep"
                                      << "lib/deep"
                                      << "../../..";
}

void TestInstallFolders::folderOfLibrariesIsTakenFromThePrefixOn()
{
    QFETCH(const QString, told);
    QFETCH(const QString, libraries);
    QFETCH(const QString, wayToPrefix);

    // Without a type, which CMake would add by itself.
    const CommandResult configured = configureLibrary(
        folder, {"-DCMAKE_INSTALL_PREFIX=/opt/tx", "-DCMAKE_INSTALL_LIBDIR=" + told});

    QVERIFY2(configured.succeeded, qPrintable(configured.output));
    const QString module = textOf("install/TXGUICommon.pc");
    QVERIFY2(module.contains("prefix=${pcfiledir}/" + wayToPrefix + '\n'), qPrintable(module));
    QVERIFY2(module.contains("libdir=${prefix}/" + libraries + '\n'), qPrintable(module));
    const QString steps = textOf("cmake_install.cmake");
    for (const char *name : {"", "/pkgconfig", "/cmake/TXGUICommon"}) {
        QVERIFY2(steps.contains("DESTINATION \"${CMAKE_INSTALL_PREFIX}/" + libraries + name + '"'),
                 name);
    }
    QVERIFY(!steps.contains("DESTINATION \"/"));
}

void TestInstallFolders::folderOfHeadersIsTakenFromThePrefixOn()
{
    const CommandResult configured = configureLibrary(
        folder, {"-DCMAKE_INSTALL_PREFIX=/opt/tx", "-DCMAKE_INSTALL_INCLUDEDIR=/opt/tx/headers"});

    QVERIFY2(configured.succeeded, qPrintable(configured.output));
    const QString module = textOf("install/TXCoreCommon.pc");
    QVERIFY2(module.contains("includedir=${prefix}/headers/TXGUICommon\n"), qPrintable(module));
    QVERIFY(!textOf("cmake_install.cmake").contains("DESTINATION \"/"));
}

void TestInstallFolders::folderOutsideOfThePrefixIsRefusedInWords_data()
{
    QTest::addColumn<QString>("place");

    for (const char *place : {"LIBDIR", "INCLUDEDIR", "DATADIR"}) {
        QTest::newRow(place) << QString("CMAKE_INSTALL_") + place;
    }
}

/// Nothing would find the other folder once the prefix has moved.
void TestInstallFolders::folderOutsideOfThePrefixIsRefusedInWords()
{
    QFETCH(const QString, place);

    const CommandResult configured = configureLibrary(
        folder, {"-DCMAKE_INSTALL_PREFIX=/opt/tx", "-D" + place + "=/opt/txother/folder"});

    QVERIFY(!configured.succeeded);
    QVERIFY2(configured.output.simplified().contains(
                 place + ", /opt/txother/folder, is not below the prefix /opt/tx."),
             qPrintable(configured.output));
}

int main(int argc, char **argv)
{
    return runTest<TestInstallFolders>(argc, argv);
}

#include "tst_InstallFolders.moc"
