#include "EncodedTextFile.h"

#include "TestBase.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>

#include <optional>

#include <sys/stat.h>

namespace {

const QString kUmlauts = QString::fromUtf8("Größe Äpfel öffnen übermäßig ßÖÜ");

} // namespace

class TestEncodedTextFile : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { folder.emplace(); }
    void finish() override { folder.reset(); }

private slots:
    void textReadsInItsEncoding_data();
    void textReadsInItsEncoding();
    void wrongEncodingIsSeen();
    void brokenCharactersAreCounted_data();
    void brokenCharactersAreCounted();
    void emptyFileIsAnEmptyText();
    void longFileIsCut();
    void everyCodecReadsAnyBytes();
    void whatCannotBeReadTellsWhy_data();
    void whatCannotBeReadTellsWhy();

private:
    [[nodiscard]] QString fileOf(const QByteArray &bytes) const
    {
        const QString path = folder->filePath("text");
        QFile file(path);
        return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
    }

    std::optional<QTemporaryDir> folder;
};

void TestEncodedTextFile::textReadsInItsEncoding_data()
{
    QTest::addColumn<QString>("codec");
    for (const char *codec : {"ISO-8859-1", "UTF-8", "UTF-16", "windows-1252", "ISO-8859-15"}) {
        QTest::newRow(codec) << QString(codec);
    }
}

void TestEncodedTextFile::textReadsInItsEncoding()
{
    QFETCH(QString, codec);
    const QByteArray bytes = QTextCodec::codecForName(codec.toLatin1())->fromUnicode(kUmlauts);

    const EncodedText read = readEncodedText(fileOf(bytes), codec);

    QCOMPARE(read.text, kUmlauts);
    QCOMPARE(read.byteCount, qint64(bytes.size()));
    QCOMPARE(read.unreadableCount, 0);
    QVERIFY(!read.isCut);
    QVERIFY(read.error.isEmpty());
}

void TestEncodedTextFile::wrongEncodingIsSeen()
{
    const EncodedText asLatin1 = readEncodedText(fileOf(kUmlauts.toUtf8()), "ISO-8859-1");
    QVERIFY(asLatin1.text.startsWith(QString::fromUtf8("GrÃ¶")));
    QCOMPARE(asLatin1.unreadableCount, 0);

    const EncodedText asUtf8 = readEncodedText(fileOf(kUmlauts.toLatin1()), "UTF-8");
    QVERIFY(asUtf8.text.startsWith(QString("Gr") + QChar(QChar::ReplacementCharacter)));
    QVERIFY(asUtf8.unreadableCount > 0);
}

void TestEncodedTextFile::brokenCharactersAreCounted_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("count");
    QTest::newRow("none") << QByteArray("abc") << 0;
    QTest::newRow("one") << QByteArray("a\xFF"
                                       "c")
                         << 1;
    QTest::newRow("cut by the end") << QByteArray("ab\xC3") << 1;
}

void TestEncodedTextFile::brokenCharactersAreCounted()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, count);
    QCOMPARE(readEncodedText(fileOf(bytes), "UTF-8").unreadableCount, count);
}

void TestEncodedTextFile::emptyFileIsAnEmptyText()
{
    const EncodedText read = readEncodedText(fileOf({}), "UTF-8");
    QCOMPARE(read.text, QString());
    QCOMPARE(read.byteCount, 0);
    QVERIFY(read.error.isEmpty());
}

void TestEncodedTextFile::longFileIsCut()
{
    const QByteArray fitting(kMostTextBytes, 'x');
    QVERIFY(!readEncodedText(fileOf(fitting), "UTF-8").isCut);

    // In the middle of a character, which is not the file's fault.
    const EncodedText read = readEncodedText(fileOf(fitting.chopped(1) + "\xC3\xA4"), "UTF-8");
    QVERIFY(read.isCut);
    QCOMPARE(read.byteCount, kMostTextBytes);
    QCOMPARE(read.unreadableCount, 0);
    QVERIFY(read.text.startsWith("xxxx"));
}

void TestEncodedTextFile::everyCodecReadsAnyBytes()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.append(char(byte));
    }
    const QString path = fileOf(bytes + bytes);
    const auto codecs = QTextCodec::availableCodecs();
    for (const QByteArray &codec : codecs) {
        const EncodedText read = readEncodedText(path, QString::fromLatin1(codec));
        QVERIFY2(read.error.isEmpty(), codec.constData());
        QCOMPARE(read.byteCount, 512);
    }
}

void TestEncodedTextFile::whatCannotBeReadTellsWhy_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("error");
    QTest::newRow("codec") << "file"
                           << "KOI-7000"
                           << "There is no codec \"KOI-7000\".";
    QTest::newRow("no codec") << "file"
                              << ""
                              << "There is no codec \"\".";
    QTest::newRow("no path") << "none"
                             << "UTF-8"
                             << "It is no file.";
    QTest::newRow("folder") << "folder"
                            << "UTF-8"
                            << "It is no file.";
    QTest::newRow("pipe") << "pipe"
                          << "UTF-8"
                          << "It is no file.";
    QTest::newRow("missing") << "missing"
                             << "UTF-8"
                             << "It cannot be read: No such file or directory.";
}

void TestEncodedTextFile::whatCannotBeReadTellsWhy()
{
    QFETCH(QString, kind);
    QFETCH(QString, codec);
    QFETCH(QString, error);
    QString path = kind == "file" ? fileOf("abc") : folder->filePath("missing");
    if (kind == "none") {
        path.clear();
    } else if (kind == "folder") {
        path = folder->path();
    } else if (kind == "pipe") {
        path = folder->filePath("pipe");
        QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
    }

    const EncodedText read = readEncodedText(path, codec);

    QCOMPARE(read.error.toString(), error);
    QCOMPARE(read.text, QString());
}

int main(int argc, char **argv)
{
    return runTest<TestEncodedTextFile>(argc, argv);
}

#include "tst_EncodedTextFile.moc"
