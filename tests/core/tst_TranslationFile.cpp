#include "TranslationFile.h"

#include "InstalledHelper.h"
#include "TestBase.h"

#include <QDataStream>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTranslator>

namespace {

const QByteArray kMark = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");

QByteArray number(quint32 value)
{
    return QByteArray::fromHex(QByteArray::number(value, 16).rightJustified(8, '0'));
}

QByteArray section(char tag, const QByteArray &bytes)
{
    return tag + number(quint32(bytes.size())) + bytes;
}

/// A file with one message.
QByteArray withMessage(const QByteArray &hexMessage)
{
    return kMark + section('\x42', number(1) + number(0))
        + section('\x69', QByteArray::fromHex(hexMessage));
}

QByteArray withContexts(const QByteArray &hexContexts)
{
    return kMark + section('\x2f', QByteArray::fromHex(hexContexts));
}

/// A file whose list of contexts is not ended. Qt takes the byte behind, the tag 0x88, for the
/// length of a name, and looks for the next one 82 bytes behind the end of the file.
QByteArray withOpenContexts(qsizetype fileBytes)
{
    QByteArray bytes = withContexts("0001 0001 0000 0141") + section('\x88', QByteArray(50, '\1'));
    bytes.insert(kMark.size(), section('\x11', QByteArray(fileBytes - bytes.size() - 5, 'x')));
    return bytes;
}

QByteArray withDependencies(const QStringList &names)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QString &name : names) {
        stream << name;
    }
    return kMark + section('\x96', bytes);
}

QByteArray goodFile()
{
    QFile file(builtTranslation());
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void damage(QByteArray *bytes, QRandomGenerator *random)
{
    for (int i = random->bounded(1, 5); i > 0; --i) {
        const qsizetype at = random->bounded(int(bytes->size()));
        bytes->replace(at, 1, QByteArray(1, char(random->bounded(random->bounded(2) ? 256 : 10))));
    }
}

void lookUp(const QTranslator &translator)
{
    for (const char *text : {"No Style has been loaded.", "Select your translation file",
                             "Translation file %1 failed to load"}) {
        for (const int n : {-1, 0, 3}) {
            (void)translator.translate("QObject", text, nullptr, n);
            (void)translator.translate("", text, "hint", n);
        }
    }
}

class Folder
{
public:
    [[nodiscard]] QString path() const { return folder.path(); }
    [[nodiscard]] bool write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(folder.filePath(name));
        return QDir().mkpath(QFileInfo(file).path()) && file.open(QFile::WriteOnly)
            && file.write(bytes) == bytes.size();
    }

private:
    QTemporaryDir folder;
};

} // namespace

class TestTranslationFile : public TestBase
{
    Q_OBJECT

private slots:
    void fileOfQtsToolIsHarmless();
    void contentsAreJudged_data();
    void contentsAreJudged();
    void whatCannotBeReadIsNotHarmless();
    void dependenciesAreJudgedAsWell_data();
    void dependenciesAreJudgedAsWell();
    void fileIsFoundAsQtFindsIt_data();
    void fileIsFoundAsQtFindsIt();
    void filesAreCountedHoweverTheyAreNamed();
    void harmlessFilesCanBeLookedUp();
    void costGrowsWithTheFileAlone();
};

void TestTranslationFile::fileOfQtsToolIsHarmless()
{
    QVERIFY(goodFile().size() > 100);
    QVERIFY(TranslationFile::areHarmless(goodFile()));
    const QFileInfo info(builtTranslation());
    QVERIFY(TranslationFile::isHarmless(info.fileName(), info.path()));
}

void TestTranslationFile::contentsAreJudged_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isHarmless");
    QTest::newRow("empty") << QByteArray() << true;
    QTest::newRow("mark alone") << kMark << true;
    QTest::newRow("translation") << withMessage("03 00000002 0041 01") << true;
    QTest::newRow("no translation") << withMessage("03 ffffffff 01") << true;
    QTest::newRow("translation too long") << withMessage("03 00000100 0041 01") << false;
    QTest::newRow("source too long") << withMessage("06 7fffffff 41 01") << false;
    QTest::newRow("context too long") << withMessage("07 ffffffff 41 01") << false;
    QTest::newRow("comment too long") << withMessage("08 00000003 41 01") << false;
    QTest::newRow("length cut short") << withMessage("06 0000") << false;
    QTest::newRow("nothing behind a comment") << withMessage("08 00000000") << false;
    QTest::newRow("no end") << withMessage("05 00000000") << true;
    QTest::newRow("unknown tag") << withMessage("77 ffffffff") << true;
    QTest::newRow("place outside")
        << kMark + section('\x42', number(1) + number(0xffffffff)) + section('\x69', "\1") << true;
    QTest::newRow("half a hash") << kMark + section('\x42', number(1)) << false;
    QTest::newRow("section too long") << kMark + "\x42" + number(1000) + "x" << true;
    QTest::newRow("contexts") << withContexts("0001 0001 0000 0141 00") << true;
    QTest::newRow("contexts without the last end") << withContexts("0001 0001 0000 0141") << true;
    QTest::newRow("no table") << withContexts("0000 0000") << false;
    QTest::newRow("half a number") << withContexts("01") << false;
    QTest::newRow("table too long") << withContexts("ffff 0001") << false;
    QTest::newRow("list outside") << withContexts("0001 7fff 0000 0141 00") << false;
    // Behind the file are zeroes, up to the end of a page of 4096 bytes.
    QTest::newRow("name too long") << withContexts("0001 0001 0000 ff41 00") << true;
    QTest::newRow("way to the last byte of the page") << withOpenContexts(4096 - 83) << true;
    QTest::newRow("way out of the page") << withOpenContexts(4096 - 82) << false;
    QTest::newRow("way out of a full page") << withOpenContexts(4096) << false;
    QTest::newRow("way into the next page") << withOpenContexts(4097) << true;
    const QByteArray bad = section('\x2f', QByteArray(4, '\0'));
    const QByteArray good = section('\x2f', QByteArray::fromHex("0001 0001 0000 0141 00"));
    QTest::newRow("the last section counts") << kMark + bad + good << true;
    QTest::newRow("an empty one is the end") << kMark + bad + section('\x42', "") + good << false;
    QTest::newRow("one without a tag is, too") << kMark + bad + section('\0', "x") + good << false;
}

void TestTranslationFile::contentsAreJudged()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isHarmless);

    QCOMPARE(TranslationFile::areHarmless(bytes), isHarmless);
}

void TestTranslationFile::whatCannotBeReadIsNotHarmless()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("folder.qm"));

    QVERIFY(!TranslationFile::isHarmless("none.qm", folder.path()));
    QVERIFY(!TranslationFile::isHarmless("folder.qm", folder.path()));
    QVERIFY(!TranslationFile::isHarmless("", folder.path()));
    QVERIFY(!TranslationFile::isHarmless(QString(QChar(0)), folder.path()));
}

void TestTranslationFile::dependenciesAreJudgedAsWell_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<bool>("isHarmless");
    QTest::newRow("good") << QStringList{"good"} << true;
    QTest::newRow("good ones") << QStringList{"good", "good_fr", "good.qm"} << true;
    QTest::newRow("damaged") << QStringList{"good", "damaged"} << false;
    QTest::newRow("missing") << QStringList{"missing"} << false;
    QTest::newRow("no name") << QStringList{""} << false;
    QTest::newRow("NUL") << QStringList{QString("good") + QChar(0)} << false;
    QTest::newRow("itself") << QStringList{"a"} << false;
    QTest::newRow("itself by a longer name") << QStringList{"a_fr.x_CA"} << false;
    QTest::newRow("one that leads back") << QStringList{"back"} << false;
}

// Without the look, Qt crashes as it loads what leads back.
void TestTranslationFile::dependenciesAreJudgedAsWell()
{
    QFETCH(QStringList, names);
    QFETCH(bool, isHarmless);
    const Folder folder;
    QVERIFY(folder.write("good.qm", goodFile()));
    QVERIFY(folder.write("damaged.qm", withContexts("0000 0000")));
    QVERIFY(folder.write("back.qm", withDependencies({"a"})));
    QVERIFY(folder.write("a.qm", withDependencies(names)));

    QCOMPARE(TranslationFile::isHarmless("a.qm", folder.path()), isHarmless);

    QTranslator translator;
    QVERIFY(!isHarmless || translator.load("a.qm", folder.path()));
}

void TestTranslationFile::fileIsFoundAsQtFindsIt_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"a", "a.qm", "a_fr", "a_fr.qm", "a_fr_CA.qm", "a.b", "a.b.c_d", "ab",
                             "_", "_a", ".", "..", "../x/a", "sub/a", "sub_a", "no", ""}) {
        QTest::newRow(name) << QString(name);
    }
}

void TestTranslationFile::fileIsFoundAsQtFindsIt()
{
    QFETCH(QString, name);
    const Folder folder;
    for (const char *file : {"a", "a_fr.qm", "a.b.qm", ".qm", "_.qm", "sub.qm", "sub/a.qm"}) {
        QVERIFY(folder.write(file, goodFile()));
    }

    for (const QString &asked : {name, folder.path() + u'/' + name}) {
        QTranslator translator;
        QCOMPARE(TranslationFile::isHarmless(asked, folder.path()),
                 translator.load(asked, folder.path()));
    }
}

// Two names in each of twenty files would make a million of them.
void TestTranslationFile::filesAreCountedHoweverTheyAreNamed()
{
    const Folder folder;
    QVERIFY(folder.write("0.qm", goodFile()));
    for (int i = 1; i <= 20; ++i) {
        const QString before = QString::number(i - 1);
        QVERIFY(folder.write(QString("%1.qm").arg(i), withDependencies({before, before})));
    }
    QVERIFY(folder.write("99.qm", withDependencies(QStringList(99, "0"))));
    QVERIFY(folder.write("100.qm", withDependencies(QStringList(100, "0"))));

    QVERIFY(TranslationFile::isHarmless("5", folder.path()));
    QVERIFY(!TranslationFile::isHarmless("20", folder.path()));
    QVERIFY(TranslationFile::isHarmless("99", folder.path()));
    QVERIFY(!TranslationFile::isHarmless("100", folder.path()));
}

// Without the look into the file, Qt crashes within the first dozen.
void TestTranslationFile::harmlessFilesCanBeLookedUp()
{
    const QByteArray good = goodFile();
    QRandomGenerator random(7);
    int harmless = 0;
    int harmful = 0;
    for (int round = 0; round < 20'000; ++round) {
        QByteArray bytes = good;
        damage(&bytes, &random);
        // As a file that is mapped into memory.
        const QByteArray mapped = bytes + QByteArray(4096 - bytes.size() % 4096, '\0');
        QTranslator translator;
        if (!translator.load(reinterpret_cast<const uchar *>(mapped.constData()),
                             int(bytes.size()))) {
            continue;
        }
        if (TranslationFile::areHarmless(bytes)) {
            lookUp(translator);
            ++harmless;
        } else {
            ++harmful;
        }
    }
    QVERIFY(harmless > 1000);
    QVERIFY(harmful > 1000);
}

// Each of the messages leads into the same long chain.
void TestTranslationFile::costGrowsWithTheFileAlone()
{
    constexpr int kMessages = 200'000;
    QByteArray hashes;
    QByteArray messages;
    for (int i = 0; i < kMessages; ++i) {
        hashes += number(1) + number(0);
        messages += QByteArray::fromHex("0600000000");
    }

    QVERIFY(TranslationFile::areHarmless(
        QByteArray(kMark + section('\x42', hashes) + section('\x69', messages + '\1'))));
}

int main(int argc, char **argv)
{
    return runTest<TestTranslationFile>(argc, argv);
}

#include "tst_TranslationFile.moc"
