#include "TXDialogDirectories.h"

#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace {

const QString kKey = QStringLiteral("ImportPath");

bool makeFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly);
}

} // namespace

class TestTXDialogDirectories : public TestBase
{
    Q_OBJECT

private slots:
    void nothingRememberedIsEmpty();
    void folderIsRemembered();
    void fileGivesItsFolder();
    void fileThatIsGoneGivesItsFolder();
    void folderThatIsGoneGivesTheNearestAboveIt();
    void folderThatComesBackIsGivenAgain();
    void everythingGoneGivesTheRoot();
    void relativePathIsTakenFromTheCurrentFolder();
    void pathIsCleaned();
    void laterPathReplacesTheEarlier();
    void emptyPathIsForgotten();
    void anyKeyIsSafe();
    void emptyKeyIsIgnored();
    void settingsOfAnotherTypeAreEmpty_data();
    void settingsOfAnotherTypeAreEmpty();
    void valueLiesInItsGroup();
};

void TestTXDialogDirectories::nothingRememberedIsEmpty()
{
    QCOMPARE(getOpenDialogDirectoryForKey(kKey), QString());
}

void TestTXDialogDirectories::folderIsRemembered()
{
    const QTemporaryDir folder;

    saveOpenDialogDirectoryForKey(kKey, folder.path());

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), folder.path());
    QCOMPARE(getOpenDialogDirectoryForKey(QStringLiteral("importpath2")), QString());
}

void TestTXDialogDirectories::fileGivesItsFolder()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a,b;\u00e9 %1.qm"));
    QVERIFY(makeFile(file));

    saveOpenDialogDirectoryForKey(kKey, file);

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), folder.path());
}

void TestTXDialogDirectories::fileThatIsGoneGivesItsFolder()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.qm"));
    QVERIFY(makeFile(file));
    saveOpenDialogDirectoryForKey(kKey, file);

    QVERIFY(QFile::remove(file));

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), folder.path());
}

void TestTXDialogDirectories::folderThatIsGoneGivesTheNearestAboveIt()
{
    const QTemporaryDir folder;

    saveOpenDialogDirectoryForKey(kKey, folder.filePath(QStringLiteral("a/b/c.qm")));

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), folder.path());
}

void TestTXDialogDirectories::folderThatComesBackIsGivenAgain()
{
    const QTemporaryDir folder;
    const QString inner = folder.filePath(QStringLiteral("a/b"));
    saveOpenDialogDirectoryForKey(kKey, inner);
    QCOMPARE(getOpenDialogDirectoryForKey(kKey), folder.path());

    QVERIFY(QDir().mkpath(inner));

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), inner);
}

void TestTXDialogDirectories::everythingGoneGivesTheRoot()
{
    saveOpenDialogDirectoryForKey(kKey, QDir::rootPath() + QStringLiteral("no such folder/a"));

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), QDir::rootPath());
}

void TestTXDialogDirectories::relativePathIsTakenFromTheCurrentFolder()
{
    saveOpenDialogDirectoryForKey(kKey, QStringLiteral("."));

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), QDir::currentPath());
}

void TestTXDialogDirectories::pathIsCleaned()
{
    const QTemporaryDir folder;

    saveOpenDialogDirectoryForKey(kKey, folder.path() + QStringLiteral("//a/.././"));

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), folder.path());
}

void TestTXDialogDirectories::laterPathReplacesTheEarlier()
{
    const QTemporaryDir first;
    const QTemporaryDir second;

    saveOpenDialogDirectoryForKey(kKey, first.path());
    saveOpenDialogDirectoryForKey(kKey, second.path());

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), second.path());
}

void TestTXDialogDirectories::emptyPathIsForgotten()
{
    saveOpenDialogDirectoryForKey(kKey, QDir::homePath());

    saveOpenDialogDirectoryForKey(kKey, QString());

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), QString());
    QCOMPARE(QSettings().allKeys(), QStringList());
}

void TestTXDialogDirectories::anyKeyIsSafe()
{
    const QTemporaryDir folder;
    const QStringList keys = {"a",
                              "a/b",
                              "a/b/",
                              "/",
                              "//",
                              "\\",
                              "a\\b",
                              "%2F",
                              "a%2Fb",
                              " ",
                              "..",
                              "=",
                              "[a]",
                              "a;b",
                              "\n",
                              QStringLiteral("\u00e9\u4e2d"),
                              QString(QChar(0))};
    for (const QString &key : keys) {
        const QString path = folder.filePath(QString::number(keys.indexOf(key)));
        QVERIFY(QDir().mkpath(path));
        saveOpenDialogDirectoryForKey(key, path);
    }

    for (const QString &key : keys) {
        QCOMPARE(getOpenDialogDirectoryForKey(key),
                 folder.filePath(QString::number(keys.indexOf(key))));
    }
    QSettings settings;
    settings.beginGroup(QStringLiteral("OpenDialogDirectories"));
    QCOMPARE(settings.childKeys().size(), keys.size());
    QCOMPARE(settings.childGroups(), QStringList());
}

void TestTXDialogDirectories::emptyKeyIsIgnored()
{
    saveOpenDialogDirectoryForKey(QString(), QDir::homePath());

    QCOMPARE(getOpenDialogDirectoryForKey(QString()), QString());
    QCOMPARE(QSettings().allKeys(), QStringList());
}

void TestTXDialogDirectories::settingsOfAnotherTypeAreEmpty_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addRow("number") << QVariant(5);
    QTest::addRow("list") << QVariant(QStringList({QDir::homePath(), QDir::homePath()}));
    QTest::addRow("bytes") << QVariant(QDir::homePath().toUtf8());
    QTest::addRow("words") << QVariant(QStringLiteral("no path at all"));
    QTest::addRow("empty") << QVariant(QString());
    QTest::addRow("NUL") << QVariant(QDir::homePath() + QChar(0));
}

void TestTXDialogDirectories::settingsOfAnotherTypeAreEmpty()
{
    QFETCH(QVariant, value);
    QSettings().setValue(QStringLiteral("OpenDialogDirectories/") + kKey, value);

    QCOMPARE(getOpenDialogDirectoryForKey(kKey), QString());
}

void TestTXDialogDirectories::valueLiesInItsGroup()
{
    saveOpenDialogDirectoryForKey(kKey, QDir::homePath());

    QCOMPARE(QSettings().value(QStringLiteral("OpenDialogDirectories/ImportPath")).toString(),
             QDir::homePath());
}

int main(int argc, char **argv)
{
    return runTest<TestTXDialogDirectories>(argc, argv);
}

#include "tst_TXDialogDirectories.moc"
