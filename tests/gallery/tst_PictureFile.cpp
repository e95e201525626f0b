#include "PictureFile.h"
#include "PictureFiles.h"
#include "TestBase.h"

#include <QDir>
#include <QImageReader>
#include <QTemporaryDir>

#include <cstdlib>

#include <sys/stat.h>

class TestPictureFile : public TestBase
{
    Q_OBJECT

private slots:
    void pictureIsReadWhole();
    void transparencyLiesOnWhite();
    void suffixMayBeWrong();
    void unreadableFilesAreTold_data();
    void unreadableFilesAreTold();
    void whatIsNoFileIsToldAndNotOpened_data();
    void whatIsNoFileIsToldAndNotOpened();
    void tooLargeAPictureIsTold();
    void pictureAtTheLimitIsRead();
    void longNamesAreCutInTheMiddle();

private:
    void finish() override { QImageReader::setAllocationLimit(limit); }
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    QTemporaryDir folder;
    const int limit = QImageReader::allocationLimit();
};

void TestPictureFile::pictureIsReadWhole()
{
    QVERIFY(writePicture(path("a.png"), QSize(30, 20), QColor("#123456")));

    const PictureFile file = PictureFile::read(path("a.png"));

    QCOMPARE(file.problem, PictureFile::Problem::None);
    QCOMPARE(file.image.size(), QSize(30, 20));
    QCOMPARE(file.size, QSize(30, 20));
    QCOMPARE(file.image.pixelColor(29, 19).name(), "#123456");
    QCOMPARE(file.shortName(), "a.png");
    QVERIFY(file.problemText().isEmpty());
}

void TestPictureFile::transparencyLiesOnWhite()
{
    QVERIFY(writePicture(path("half.png"), QSize(4, 4), QColor(255, 0, 0, 127)));

    const PictureFile file = PictureFile::read(path("half.png"));

    QVERIFY(!file.image.hasAlphaChannel());
    QCOMPARE(file.image.pixelColor(2, 2).red(), 255);
    QVERIFY(std::abs(file.image.pixelColor(2, 2).green() - 128) <= 1);
}

void TestPictureFile::suffixMayBeWrong()
{
    QVERIFY(writePicture(path("really-png.jpg"), QSize(4, 4), Qt::blue));

    QCOMPARE(PictureFile::read(path("really-png.jpg")).image.pixelColor(0, 0), QColor(Qt::blue));
}

void TestPictureFile::unreadableFilesAreTold_data()
{
    QTest::addColumn<QString>("name");

    QVERIFY(writeBytes(path("text.png"), "No picture at all.\n"));
    QVERIFY(writeBytes(path("empty.png"), {}));
    QVERIFY(writePicture(path("whole.png"), QSize(300, 300), Qt::red));
    QFile whole(path("whole.png"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QVERIFY(writeBytes(path("start.png"), whole.read(20)));
    QVERIFY(writeHeader(path("header.bmp"), 200, 100));
    QVERIFY(writeHeader(path("nosize.bmp"), 0, 0));

    QTest::newRow("missing") << "missing.png";
    QTest::newRow("text") << "text.png";
    QTest::newRow("empty") << "empty.png";
    QTest::newRow("first bytes only") << "start.png";
    QTest::newRow("header only") << "header.bmp";
    QTest::newRow("without a size") << "nosize.bmp";
}

void TestPictureFile::unreadableFilesAreTold()
{
    QFETCH(const QString, name);

    const PictureFile file = PictureFile::read(path(name));

    QCOMPARE(file.problem, PictureFile::Problem::Unreadable);
    QVERIFY(file.image.isNull());
    QVERIFY(!file.reason.isEmpty());
    QCOMPARE(file.problemText(), QString("\"%1\" cannot be read: %2.").arg(name, file.reason));
}

void TestPictureFile::whatIsNoFileIsToldAndNotOpened_data()
{
    QTest::addColumn<QString>("name");

    QVERIFY(QDir(folder.path()).mkpath("folder.png"));
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe.png")).constData(), 0600), 0);
    QVERIFY(QFile::link(path("pipe.png"), path("link.png")));
    QVERIFY(QFile::link("/dev/zero", path("device.png")));

    QTest::newRow("folder") << "folder.png";
    // To open it would wait for ever.
    QTest::newRow("pipe") << "pipe.png";
    QTest::newRow("link to a pipe") << "link.png";
    QTest::newRow("device") << "device.png";
}

void TestPictureFile::whatIsNoFileIsToldAndNotOpened()
{
    QFETCH(const QString, name);

    const PictureFile file = PictureFile::read(path(name));

    QCOMPARE(file.problem, PictureFile::Problem::NoFile);
    QVERIFY(file.image.isNull());
    QCOMPARE(file.problemText(), QString("\"%1\" is no file.").arg(name));
}

void TestPictureFile::tooLargeAPictureIsTold()
{
    QImageReader::setAllocationLimit(1);
    QVERIFY(writePicture(path("large.png"), QSize(2000, 500), Qt::red));

    const PictureFile file = PictureFile::read(path("large.png"));

    QCOMPARE(file.problem, PictureFile::Problem::TooLarge);
    QVERIFY(file.image.isNull());
    QCOMPARE(
        file.problemText(),
        "\"large.png\" is too large: 2,000 × 500 pixels, which take more than 1 MB of memory.");
}

void TestPictureFile::pictureAtTheLimitIsRead()
{
    QImageReader::setAllocationLimit(1);
    // A megabyte, and four bytes more.
    QVERIFY(writePicture(path("just.png"), QSize(512, 512), Qt::red));
    QVERIFY(writePicture(path("over.png"), QSize(262'145, 1), Qt::red));

    QCOMPARE(PictureFile::read(path("just.png")).problem, PictureFile::Problem::None);
    QCOMPARE(PictureFile::read(path("over.png")).problem, PictureFile::Problem::TooLarge);
}

void TestPictureFile::longNamesAreCutInTheMiddle()
{
    PictureFile file;
    file.path = "/somewhere/" + QString(100, 'a') + QString(100, 'b') + ".png";

    QCOMPARE(file.shortName().size(), 40);
    QVERIFY(file.shortName().startsWith("aaa"));
    QVERIFY(file.shortName().endsWith("b.png"));
    QVERIFY(file.shortName().contains("a…b"));
}

int main(int argc, char **argv)
{
    return runTest<TestPictureFile>(argc, argv);
}

#include "tst_PictureFile.moc"
