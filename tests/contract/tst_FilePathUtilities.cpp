#include "FilePathUtilities.h"

#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

bool makeFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("x") == 1;
}

} // namespace

class TestFilePathUtilities : public TestBase
{
    Q_OBJECT

private slots:
    void fileIsRemoved_data();
    void fileIsRemoved();
    void linkIsRemovedAndItsTargetStays();
    void folderStays();
    void linkToAFolderStays();
    void nothingThereIsFalse_data();
    void nothingThereIsFalse();
};

void TestFilePathUtilities::fileIsRemoved_data()
{
    QTest::addColumn<QString>("name");
    QTest::addRow("plain") << "file.qm";
    QTest::addRow("blanks") << " a b ";
    QTest::addRow("not ASCII") << QStringLiteral("\u00e9\u4e2d");
    QTest::addRow("wildcard") << "*";
}

void TestFilePathUtilities::fileIsRemoved()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    QVERIFY(makeFile(folder.filePath(name)));
    QVERIFY(makeFile(folder.filePath(QStringLiteral("other"))));

    QVERIFY(FilePathUtilities::remove(folder.filePath(name)));

    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(QStringLiteral("other")));
}

void TestFilePathUtilities::linkIsRemovedAndItsTargetStays()
{
    const QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("target"));
    const QString link = folder.filePath(QStringLiteral("link.lnk"));
    QVERIFY(makeFile(target));
    QVERIFY(QFile::link(target, link));

    QVERIFY(FilePathUtilities::remove(link));

    QVERIFY(!QFileInfo(link).isSymLink());
    QVERIFY(QFile::exists(target));
}

void TestFilePathUtilities::folderStays()
{
    const QTemporaryDir folder;

    QVERIFY(!FilePathUtilities::remove(folder.path()));
    QVERIFY(!FilePathUtilities::remove(folder.path() + u'/'));

    QVERIFY(QFileInfo(folder.path()).isDir());
}

void TestFilePathUtilities::linkToAFolderStays()
{
    const QTemporaryDir folder;
    const QString link = folder.filePath(QStringLiteral("link.lnk"));
    QVERIFY(QFile::link(folder.path(), link));

    QVERIFY(!FilePathUtilities::remove(link));

    QVERIFY(QFileInfo(link).isSymLink());
}

void TestFilePathUtilities::nothingThereIsFalse_data()
{
    QTest::addColumn<QString>("path");
    QTest::addRow("empty") << QString();
    QTest::addRow("missing") << QDir::tempPath() + QStringLiteral("/no such folder/no such file");
    QTest::addRow("NUL") << QStringLiteral("a") + QChar(0) + u'b';
    QTest::addRow("too long") << QDir::tempPath() + u'/' + QString(100000, u'x');
}

void TestFilePathUtilities::nothingThereIsFalse()
{
    QFETCH(QString, path);

    QVERIFY(!FilePathUtilities::remove(path));
}

int main(int argc, char **argv)
{
    return runTest<TestFilePathUtilities>(argc, argv);
}

#include "tst_FilePathUtilities.moc"
