#include "InstallerName.h"

#include "TestBase.h"

class TestInstallerName : public TestBase
{
    Q_OBJECT

private slots:
    void ordinaryNamePassesUntouched_data();
    void ordinaryNamePassesUntouched();
    void onlyTheLastComponentCounts_data();
    void onlyTheLastComponentCounts();
    void nameThatIsNoFileCountsAsMissing_data();
    void nameThatIsNoFileCountsAsMissing();
    void millionsOfSlashesAreNoEffort();
};

void TestInstallerName::ordinaryNamePassesUntouched_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "setup.exe";
    QTest::newRow("blanks and brackets") << "Patch Reader 2.1 (x64) [final].exe";
    QTest::newRow("umlauts") << QStringLiteral("Prüfgerät Größe.msi");
    QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F3A8 \u8272.dmg");
    QTest::newRow("signs") << "a+b=c&d#e%20f;g,h'i!.exe";
    QTest::newRow("no suffix") << "setup";
    QTest::newRow("hidden") << ".setup";
    QTest::newRow("many dots") << "a..b...exe";
    QTest::newRow("dots in front") << "..setup.exe";
    QTest::newRow("dots at the end") << "setup..";
    QTest::newRow("blanks around") << " setup.exe ";
    QTest::newRow("tilde") << "~";
    QTest::newRow("begins like a device") << "console.exe";
    QTest::newRow("port of two digits") << "COM10.exe";
    QTest::newRow("device as the suffix") << "setup.nul";
    QTest::newRow("device with a blank") << "aux pack.exe";
    QTest::newRow("very long") << QString(5000, u'x');
}

void TestInstallerName::ordinaryNamePassesUntouched()
{
    QFETCH(QString, name);

    QCOMPARE(InstallerName::in(name), name);
}

void TestInstallerName::onlyTheLastComponentCounts_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("slash") << "folder/setup.exe";
    QTest::newRow("backslash") << "folder\\setup.exe";
    QTest::newRow("absolute") << "/etc/cron.d/setup.exe";
    QTest::newRow("drive") << "C:\\Windows\\setup.exe";
    QTest::newRow("share") << "\\\\server\\share\\setup.exe";
    QTest::newRow("up") << "../../setup.exe";
    QTest::newRow("up by backslashes") << "..\\..\\setup.exe";
    QTest::newRow("both, slash last") << "a\\b/setup.exe";
    QTest::newRow("both, backslash last") << "a/b\\setup.exe";
    QTest::newRow("several at once") << "a//\\/setup.exe";
    QTest::newRow("address") << "https://evil.example/setup.exe";
    QTest::newRow("control character before") << "a\nb/setup.exe";
}

void TestInstallerName::onlyTheLastComponentCounts()
{
    QFETCH(QString, path);

    QCOMPARE(InstallerName::in(path), QStringLiteral("setup.exe"));
}

void TestInstallerName::nameThatIsNoFileCountsAsMissing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("null") << QString();
    for (const char *path :
         {"",       ".",          "..",         "...",          " ",           ". .",
          ".. ",    "/",          "\\",         "setup.exe/",   "setup.exe\\", "a/..",
          "a\\.",   "/..",        "a\tb.exe",   "a\nb.exe",     "\x7f",        "setup.exe\x1b",
          "C:",     "C:evil.exe", "a.exe:b",    "a/C:evil.exe", ":",           "NUL",
          "nul",    "con.exe",    "Aux.tar.gz", "prn ",         "com1",        "COM0.exe",
          "lpt9.x", "nul .exe",   "conin$",     "CONOUT$",      "a/nul"}) {
        QTest::addRow("\"%s\"", path) << QString::fromLatin1(path);
    }
    QTest::newRow("NUL character") << QStringLiteral("a.exe%1.txt").arg(QChar(u'\0'));
    QTest::newRow("NUL character alone") << QString(QChar(u'\0'));
    QTest::newRow("control character beyond ASCII") << QStringLiteral("a\u0085b");
    QTest::newRow("blank beyond ASCII") << QStringLiteral("\u00a0");
    QTest::newRow("port with a raised digit") << QStringLiteral("COM\u00b9.exe");
}

void TestInstallerName::nameThatIsNoFileCountsAsMissing()
{
    QFETCH(QString, path);

    const QString name = InstallerName::in(path);

    QVERIFY2(name.isEmpty(), qPrintable(name));
}

void TestInstallerName::millionsOfSlashesAreNoEffort()
{
    const QString path = QString(10'000'000, u'/') + QStringLiteral("setup.exe");

    QCOMPARE(InstallerName::in(path), QStringLiteral("setup.exe"));
}

int main(int argc, char **argv)
{
    return runTest<TestInstallerName>(argc, argv);
}

#include "tst_InstallerName.moc"
