#include "JsonFile.h"

#include "TestBase.h"

#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

class TestJsonFile : public TestBase
{
    Q_OBJECT

private slots:
    void goodTextGivesItsValue_data();
    void goodTextGivesItsValue();
    void badTextTellsWhy_data();
    void badTextTellsWhy();
    void tooManyValuesAreRefused();
    void separatorsInTextsAreNoValues();
    void largeFileIsRefused();
    void whatIsNoFileIsRefused_data();
    void whatIsNoFileIsRefused();
    void missingFileIsToldWithItsReason();

private:
    [[nodiscard]] QString written(const QByteArray &content) const;

    QTemporaryDir folder;
};

QString TestJsonFile::written(const QByteArray &content) const
{
    QFile file(folder.filePath("value.json"));
    const bool isWritten =
        file.open(QFile::WriteOnly | QFile::Truncate) && file.write(content) == content.size();
    return isWritten ? file.fileName() : QString();
}

void TestJsonFile::goodTextGivesItsValue_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("object") << QByteArray("{\"a\": [1, \"two\"]}")
                            << QVariant(QVariantHash{{"a", QVariantList{1LL, "two"}}});
    QTest::newRow("number") << QByteArray(" 42\n") << QVariant(42LL);
    QTest::newRow("null") << QByteArray("null") << QVariant::fromValue(nullptr);
    QTest::newRow("mark before it")
        << QByteArray("\xef\xbb\xbf[true]") << QVariant(QVariantList{true});
}

void TestJsonFile::goodTextGivesItsValue()
{
    QFETCH(QByteArray, text);
    QFETCH(QVariant, value);

    const JsonReading reading = readJsonFile(written(text));

    QVERIFY(reading.error.isEmpty());
    QCOMPARE(reading.value, value);
}

void TestJsonFile::badTextTellsWhy_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("start");
    QTest::newRow("empty") << QByteArray() << "It is empty.";
    QTest::newRow("blanks") << QByteArray(" \n ") << "It is empty.";
    QTest::newRow("web page") << QByteArray("<html></html>") << "It is no JSON (line 1: ";
    QTest::newRow("cut off") << QByteArray("{\n\"a\": 1,\n") << "It is no JSON (line 3: ";
    QTest::newRow("word") << QByteArray("{\n\n\"a\": hello}") << "It is no JSON (line 3: ";
    QTest::newRow("binary") << QByteArray("\x00\x01\xff\xfe", 4) << "It is no JSON (line 1: ";
    QTest::newRow("too deep") << QByteArray(2000, '[') + QByteArray(2000, ']')
                              << "It is no JSON (line 1: ";
}

void TestJsonFile::badTextTellsWhy()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, start);

    const JsonReading reading = readJsonFile(written(text));

    QVERIFY(!reading.value.isValid());
    QVERIFY2(reading.error.toString().startsWith(start), qPrintable(reading.error.toString()));
}

void TestJsonFile::tooManyValuesAreRefused()
{
    const QByteArray most = '[' + QByteArray("0,").repeated(kMostJsonValues - 2) + "0]";

    const JsonReading good = readJsonText(most);
    QCOMPARE(good.value.toList().size(), kMostJsonValues - 1);

    const JsonReading bad = readJsonText("[0," + most.mid(1));
    QVERIFY(!bad.value.isValid());
    QCOMPARE(bad.error.toString(), "It holds too many values: more than 1,000,000.");
}

void TestJsonFile::separatorsInTextsAreNoValues()
{
    const QByteArray text = "\"\\\"" + QByteArray(kMostJsonValues + 1, ',') + '"';

    QCOMPARE(readJsonText(text).value.toString().size(), kMostJsonValues + 2);
}

void TestJsonFile::largeFileIsRefused()
{
    QFile file(written("[1]"));
    QVERIFY(file.open(QFile::ReadWrite));
    // Takes no room on the disc.
    QVERIFY(file.resize(100 * kLargestJsonBytes));

    const JsonReading reading = readJsonFile(file.fileName());

    QVERIFY(!reading.value.isValid());
    QCOMPARE(reading.error.toString(), "It is too large: more than 64.00 MiB.");
}

void TestJsonFile::whatIsNoFileIsRefused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("device") << "/dev/zero";
    // To open it would wait for ever.
    const QString pipe = folder.filePath("pipe.json");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("pipe") << pipe;
}

void TestJsonFile::whatIsNoFileIsRefused()
{
    QFETCH(QString, path);

    const JsonReading reading = readJsonFile(path);

    QVERIFY(!reading.value.isValid());
    QCOMPARE(reading.error.toString(), "It is no file.");
}

void TestJsonFile::missingFileIsToldWithItsReason()
{
    const JsonReading reading = readJsonFile(folder.filePath("gone.json"));

    QVERIFY(!reading.value.isValid());
    QCOMPARE(reading.error.toString(), "It cannot be read: No such file or directory.");
}

int main(int argc, char **argv)
{
    return runTest<TestJsonFile>(argc, argv);
}

#include "tst_JsonFile.moc"
