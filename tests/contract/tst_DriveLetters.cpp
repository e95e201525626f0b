#include "DriveLetters.h"
#include "NetworkDriveFolder.h"
#include "TestBase.h"

#include <QDir>

class TestDriveLetters : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { QVERIFY(QDir(NetworkDriveFolder::path()).removeRecursively()); }

private slots:
    void letterOfAMountPoint_data();
    void letterOfAMountPoint();
    void mountPointOfALetter_data();
    void mountPointOfALetter();
    void noFolderMeansNoLetterInUse();
    void entriesOfTheFolderAreInUse();
    void allLettersMayBeInUse();
};

void TestDriveLetters::letterOfAMountPoint_data()
{
    QTest::addColumn<QString>("mountPoint");
    QTest::addColumn<QChar>("letter");
    const QChar none;
    QTest::newRow("whole") << "N:/" << QChar('N');
    QTest::newRow("colon") << "N:" << QChar('N');
    QTest::newRow("letter") << "N" << QChar('N');
    QTest::newRow("lower case") << "n:/" << QChar('N');
    QTest::newRow("first") << "a" << QChar('A');
    QTest::newRow("last") << "Z:" << QChar('Z');
    QTest::newRow("null") << QString() << none;
    QTest::newRow("empty") << "" << none;
    QTest::newRow("two letters") << "NN" << none;
    QTest::newRow("path") << "N:/a" << none;
    QTest::newRow("two slashes") << "N://" << none;
    QTest::newRow("backslash") << "N:\\" << none;
    QTest::newRow("slash alone") << "N/" << none;
    QTest::newRow("colon alone") << ":/" << none;
    QTest::newRow("blank before") << " N:/" << none;
    QTest::newRow("blank behind") << "N:/ " << none;
    QTest::newRow("digit") << "1:/" << none;
    QTest::newRow("before A") << "@" << none;
    QTest::newRow("behind Z") << "[" << none;
    QTest::newRow("umlaut") << "Ä:/" << none;
    QTest::newRow("dotless i") << QString(QChar(0x131)) + ":/" << none;
    QTest::newRow("long s") << QString(QChar(0x17f)) << none;
    QTest::newRow("wide N") << QString(QChar(0xff2e)) << none;
    QTest::newRow("Greek") << "Ν:/" << none;
    QTest::newRow("outside the plane") << "😀" << none;
}

void TestDriveLetters::letterOfAMountPoint()
{
    QFETCH(QString, mountPoint);
    QTEST(DriveLetters::letterOf(mountPoint), "letter");
}

void TestDriveLetters::mountPointOfALetter_data()
{
    QTest::addColumn<QChar>("letter");
    QTest::addColumn<QString>("mountPoint");
    QTest::newRow("upper case") << QChar('N') << "N:/";
    QTest::newRow("lower case") << QChar('n') << "N:/";
    QTest::newRow("null") << QChar() << QString();
    QTest::newRow("digit") << QChar('1') << QString();
    QTest::newRow("slash") << QChar('/') << QString();
    QTest::newRow("dotless i") << QChar(0x131) << QString();
}

void TestDriveLetters::mountPointOfALetter()
{
    QFETCH(QChar, letter);
    QTEST(DriveLetters::mountPoint(letter), "mountPoint");
}

void TestDriveLetters::noFolderMeansNoLetterInUse()
{
    QCOMPARE(DriveLetters::inUse(), QStringList());
    QVERIFY(!QDir(NetworkDriveFolder::path()).exists());
}

void TestDriveLetters::entriesOfTheFolderAreInUse()
{
    QVERIFY(NetworkDriveFolder::place('Z', "/nowhere"));
    QVERIFY(NetworkDriveFolder::place('N', "/nowhere"));
    QVERIFY(QDir(NetworkDriveFolder::path()).mkdir("C"));
    QCOMPARE(DriveLetters::inUse(), QStringList({"C:/", "N:/", "Z:/"}));
}

void TestDriveLetters::allLettersMayBeInUse()
{
    QStringList all;
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        QVERIFY(NetworkDriveFolder::place(letter, "/nowhere"));
        all.append(QString(QChar(letter)) + ":/");
    }
    QCOMPARE(DriveLetters::inUse(), all);
}

int main(int argc, char **argv)
{
    return runTest<TestDriveLetters>(argc, argv);
}

#include "tst_DriveLetters.moc"
