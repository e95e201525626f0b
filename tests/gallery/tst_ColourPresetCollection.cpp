#include "ColourPresetCollection.h"

#include "PresetFiles.h"
#include "TestBase.h"

#include "TXError.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

#include <sys/stat.h>

class TestColourPresetCollection : public TestBase
{
    Q_OBJECT

private slots:
    void firstStartMakesPresets();
    void emptiedFolderStaysEmpty();
    void presetOfAnyNameIsThereAfterTheNextStart_data();
    void presetOfAnyNameIsThereAfterTheNextStart();
    void orderIsThatOfTheirMaking();
    void nameInUseIsRefused();
    void ownNameMayChangeItsCase();
    void nameSharedByFilesMayStay();
    void copyGetsTheFirstFreeNumber();
    void copyOfALongNameIsShortened();
    void renamingKeepsTheFile();
    void unknownIdIsTold();
    void damagedFilesAreListedAndLeftAlone();
    void linkedFileIsNotFollowed();
    void importTakesAFreeName();
    void badFileIsNotImported();
    void exportedFileImportsAgain();
    void exportIntoTheOwnFolderIsRefused();
    void removedFileIsGone();
    void fileRemovedByOthersIsNoError();
    void fullDiskLosesNothing();
    void folderThatCannotBeMadeIsTold();
    void failedFirstStartIsAFirstStartAgain();
    void folderThatIsNoneIsTold();
    void suffixInCapitalsStays();
    void exportReplacesNoPipe();

protected:
    void prepare() override;
    void finish() override;

private:
    /// A collection over the same folder, as the next start has it.
    [[nodiscard]] std::unique_ptr<ColourPresetCollection> reloaded() const;
    [[nodiscard]] QString fileOf(const QString &id) const;
    [[nodiscard]] static QStringList namesIn(const ColourPresetCollection &presets);

    std::unique_ptr<QTemporaryDir> place;
    std::unique_ptr<ColourPresetCollection> collection;
    TXError error;
};

void TestColourPresetCollection::prepare()
{
    place = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(place->path()).mkdir("presets"));
    collection = std::make_unique<ColourPresetCollection>(place->filePath("presets"));
    error = TXError();
    QVERIFY(collection->load(&error));
}

void TestColourPresetCollection::finish()
{
    collection.reset();
    place.reset();
}

std::unique_ptr<ColourPresetCollection> TestColourPresetCollection::reloaded() const
{
    auto other = std::make_unique<ColourPresetCollection>(collection->folder());
    other->load(nullptr);
    return other;
}

QString TestColourPresetCollection::fileOf(const QString &id) const
{
    return collection->folder() + '/' + id;
}

QStringList TestColourPresetCollection::namesIn(const ColourPresetCollection &presets)
{
    QStringList names;
    for (const ColourPreset &preset : presets.presets()) {
        names.append(preset.name);
    }
    return names;
}

void TestColourPresetCollection::firstStartMakesPresets()
{
    ColourPresetCollection fresh(place->filePath("never/was"));

    QVERIFY(fresh.load(&error));

    QCOMPARE(namesIn(fresh), QStringList({"Coated paper", "Newsprint", "Contract proof"}));
    QCOMPARE(filesIn(fresh.folder()).size(), 3);
    ColourPresetCollection next(fresh.folder());
    QVERIFY(next.load(&error));
    QCOMPARE(namesIn(next), namesIn(fresh));
}

void TestColourPresetCollection::emptiedFolderStaysEmpty()
{
    ColourPresetCollection fresh(place->filePath("new"));
    QVERIFY(fresh.load(&error));
    while (!fresh.presets().isEmpty()) {
        QVERIFY(fresh.remove(fresh.presets().constFirst().id, &error));
    }

    ColourPresetCollection next(fresh.folder());
    QVERIFY(next.load(&error));

    QVERIFY(next.presets().isEmpty());
}

void TestColourPresetCollection::presetOfAnyNameIsThereAfterTheNextStart_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("path upwards") << "../../outside";
    QTest::newRow("absolute path") << "/tmp/outside";
    QTest::newRow("reserved on some systems") << "CON";
    QTest::newRow("characters of patterns") << "a*?\"<>|:";
    QTest::newRow("hidden") << ".json";
    QTest::newRow("other script") << "\u65b0\u805e\u7d19 \U0001F4F0";
    QTest::newRow("longer than a file's name in bytes") << QString(100, QChar(0x65b0));
}

void TestColourPresetCollection::presetOfAnyNameIsThereAfterTheNextStart()
{
    QFETCH(QString, name);

    const QString id = collection->add(presetCalled(name), &error);

    QVERIFY(!id.isEmpty());
    QCOMPARE(filesIn(collection->folder()), QStringList(id));
    QCOMPARE(filesIn(place->path()), QStringList("presets"));
    QCOMPARE(reloaded()->find(id)->name, name);
}

void TestColourPresetCollection::orderIsThatOfTheirMaking()
{
    QStringList names;
    for (int i = 50; i > 0; --i) {
        names.append(QString::number(i));
        QVERIFY(!collection->add(presetCalled(names.constLast()), &error).isEmpty());
    }

    QCOMPARE(namesIn(*collection), names);
    QCOMPARE(namesIn(*reloaded()), names);
}

void TestColourPresetCollection::nameInUseIsRefused()
{
    const QString proof = collection->add(presetCalled("Proof"), &error);
    const QString other = collection->add(presetCalled("Other"), &error);
    QVERIFY(!error.isValid());
    const QSignalSpy spy(collection.get(), SIGNAL(changed(int)));

    QVERIFY(collection->add(presetCalled("proof"), &error).isEmpty());
    QCOMPARE(error.getLocalizedDescription(), "\"proof\" cannot be saved.");
    QCOMPARE(error.subErrors.constFirst().getLocalizedDescription(),
             "Another preset is called \"proof\".");
    QVERIFY(!collection->rename(other, "PROOF", nullptr));
    QVERIFY(!collection->rename(other, " ", nullptr));

    QCOMPARE(spy.size(), 0);
    QCOMPARE(namesIn(*collection), QStringList({"Proof", "Other"}));
    QCOMPARE(namesIn(*reloaded()), QStringList({"Proof", "Other"}));
    QVERIFY(collection->find(proof));
}

void TestColourPresetCollection::ownNameMayChangeItsCase()
{
    const QString id = collection->add(presetCalled("Proof"), &error);

    QVERIFY(collection->rename(id, "PROOF", &error));

    QCOMPARE(reloaded()->find(id)->name, "PROOF");
}

void TestColourPresetCollection::nameSharedByFilesMayStay()
{
    for (const char *id : {"a.json", "b.json"}) {
        QVERIFY(writeBytes(fileOf(id), presetCalled("Same").toJson()));
    }
    QVERIFY(collection->load(&error));
    QCOMPARE(namesIn(*collection), QStringList({"Same", "Same"}));

    ColourPreset changed = *collection->find("b.json");
    changed.inkLimitPercent = 200;

    QVERIFY(collection->replace(changed, &error));
    QCOMPARE(reloaded()->find("b.json")->inkLimitPercent, 200);
    QCOMPARE(reloaded()->find("a.json")->inkLimitPercent, 300);
}

void TestColourPresetCollection::copyGetsTheFirstFreeNumber()
{
    ColourPreset original = presetCalled("Proof");
    original.inkLimitPercent = 222;
    const QString id = collection->add(original, &error);
    collection->add(presetCalled("PROOF 2"), &error);

    const QString copy = collection->duplicate(id, &error);

    QCOMPARE(collection->find(copy)->name, "Proof 3");
    QCOMPARE(collection->find(copy)->inkLimitPercent, 222);
    QVERIFY(copy != id);
    QCOMPARE(reloaded()->find(copy)->name, "Proof 3");
}

void TestColourPresetCollection::copyOfALongNameIsShortened()
{
    const QString newspaper = "\U0001F4F0";
    const QString name = 'x' + newspaper.repeated(49) + 'x';
    const QString id = collection->add(presetCalled(name), &error);
    QVERIFY(!id.isEmpty());

    const QString copy = collection->duplicate(id, &error);

    QCOMPARE(collection->find(copy)->name, 'x' + newspaper.repeated(48) + " 2");
}

void TestColourPresetCollection::renamingKeepsTheFile()
{
    const QString id = collection->add(presetCalled("Old"), &error);
    const QSignalSpy spy(collection.get(), SIGNAL(changed(int)));

    QVERIFY(collection->rename(id, "New", &error));

    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.constFirst().constFirst().toInt(), 0);
    QCOMPARE(filesIn(collection->folder()), QStringList(id));
    QCOMPARE(reloaded()->find(id)->name, "New");
}

void TestColourPresetCollection::unknownIdIsTold()
{
    QVERIFY(!collection->replace(presetCalled("Name"), &error));
    QCOMPARE(error.subErrors.constFirst().getLocalizedDescription(), "There is no such preset.");
    QVERIFY(!collection->rename("none", "Name", nullptr));
    QVERIFY(collection->duplicate("none", nullptr).isEmpty());
    QVERIFY(!collection->exportFile("none", place->filePath("out.json"), nullptr));
    QVERIFY(collection->remove("none", nullptr));
    QCOMPARE(filesIn(place->path()), QStringList("presets"));
    QVERIFY(filesIn(collection->folder()).isEmpty());
}

void TestColourPresetCollection::damagedFilesAreListedAndLeftAlone()
{
    const QByteArray half = presetCalled("Half").toJson().left(20);
    QVERIFY(writeBytes(fileOf("half.json"), half));
    QVERIFY(writeBytes(fileOf("other.json"), "{}"));
    QVERIFY(writeBytes(fileOf("good.json"), presetCalled("Good").toJson()));
    QVERIFY(writeBytes(collection->folder() + "/readme.txt", "Keep"));
    QVERIFY(QDir(collection->folder()).mkdir("folder.json"));

    QVERIFY(collection->load(&error));
    collection->add(presetCalled("Half"), &error);

    QCOMPARE(namesIn(*collection), QStringList({"Good", "Half"}));
    QCOMPARE(collection->damagedFiles().size(), 2);
    QCOMPARE(collection->damagedFiles().constFirst().name, "half.json");
    QVERIFY(collection->damagedFiles().constFirst().reason.toString().startsWith("It is no JSON"));
    QCOMPARE(collection->damagedFiles().constLast().reason.toString(), "\"format\" is missing.");
    QCOMPARE(bytesOf(fileOf("half.json")), half);
    QCOMPARE(bytesOf(fileOf("other.json")), QByteArray("{}"));
}

void TestColourPresetCollection::linkedFileIsNotFollowed()
{
    const QString outside = place->filePath("outside.json");
    QVERIFY(writeBytes(outside, presetCalled("Outside").toJson()));
    QVERIFY(QFile::link(outside, fileOf("link.json")));

    QVERIFY(collection->load(&error));

    QVERIFY(collection->presets().isEmpty());
    QCOMPARE(collection->damagedFiles().constFirst().reason.toString(),
             "It is a link to another place.");
}

void TestColourPresetCollection::importTakesAFreeName()
{
    const QString file = place->filePath("import.json");
    QVERIFY(writeBytes(file, presetCalled("Proof").toJson()));

    const QString first = collection->importFile(file, &error);
    const QString second = collection->importFile(file, &error);

    QCOMPARE(namesIn(*reloaded()), QStringList({"Proof", "Proof 2"}));
    QVERIFY(first != second);
    QCOMPARE(bytesOf(file), presetCalled("Proof").toJson());
}

void TestColourPresetCollection::badFileIsNotImported()
{
    const QString file = place->filePath("import.json");
    QVERIFY(writeBytes(file, "[]"));

    QVERIFY(collection->importFile(file, &error).isEmpty());

    QCOMPARE(error.getLocalizedDescription(), QString("\"%1\" cannot be imported.").arg(file));
    QCOMPARE(error.subErrors.constFirst().getLocalizedDescription(), "It holds no JSON object.");
    QVERIFY(collection->importFile(place->path(), nullptr).isEmpty());
    QVERIFY(collection->presets().isEmpty());
}

void TestColourPresetCollection::exportedFileImportsAgain()
{
    ColourPreset preset = presetCalled("Proof");
    preset.paperWhite = {90, 1, 2};
    const QString id = collection->add(preset, &error);
    const QString file = place->filePath("out.json");
    QVERIFY(writeBytes(file, "something longer that was there before"));

    QVERIFY(collection->exportFile(id, file, &error));

    QVERIFY(ColourPreset::fromFile(file).preset->hasSameSettings(preset));
    QVERIFY(!collection->exportFile(id, place->filePath("no/folder/out.json"), &error));
    QVERIFY(!error.subErrors.constFirst().getLocalizedDescription().isEmpty());
}

void TestColourPresetCollection::exportIntoTheOwnFolderIsRefused()
{
    const QString id = collection->add(presetCalled("Proof"), &error);
    const QString other = collection->add(presetCalled("Other"), &error);
    const QString link = place->filePath("link.json");
    QVERIFY(QFile::link(fileOf(other), link));
    const QString way = place->filePath("presets/../presets/new.json");

    for (const QString &path : {fileOf(other), way, link}) {
        QVERIFY2(!collection->exportFile(id, path, &error), qPrintable(path));
        QCOMPARE(error.subErrors.constFirst().getLocalizedDescription(),
                 "That is the folder of the presets themselves.");
    }

    QCOMPARE(namesIn(*reloaded()), QStringList({"Proof", "Other"}));
}

void TestColourPresetCollection::removedFileIsGone()
{
    const QString id = collection->add(presetCalled("Proof"), &error);

    QVERIFY(collection->remove(id, &error));

    QVERIFY(collection->presets().isEmpty());
    QVERIFY(filesIn(collection->folder()).isEmpty());
}

void TestColourPresetCollection::fileRemovedByOthersIsNoError()
{
    const QString id = collection->add(presetCalled("Proof"), &error);
    QVERIFY(QFile::remove(fileOf(id)));

    QVERIFY(collection->remove(id, &error));

    QVERIFY(collection->presets().isEmpty());
}

void TestColourPresetCollection::fullDiskLosesNothing()
{
    const QString id = collection->add(presetCalled("Proof"), &error);
    const QByteArray before = bytesOf(fileOf(id));
    {
        const FullDisk disk;
        QVERIFY(!collection->rename(id, "Other", &error));
        QVERIFY(collection->duplicate(id, nullptr).isEmpty());
        QVERIFY(!collection->exportFile(id, place->filePath("out.json"), nullptr));
    }

    QCOMPARE(error.getLocalizedDescription(), "\"Other\" cannot be saved.");
    QVERIFY(!error.subErrors.constFirst().getLocalizedDescription().isEmpty());
    QCOMPARE(namesIn(*collection), QStringList("Proof"));
    QCOMPARE(bytesOf(fileOf(id)), before);
    QCOMPARE(filesIn(collection->folder()), QStringList(id));
    QCOMPARE(filesIn(place->path()), QStringList("presets"));
}

void TestColourPresetCollection::folderThatCannotBeMadeIsTold()
{
    QVERIFY(writeBytes(place->filePath("file"), "no folder"));
    ColourPresetCollection blocked(place->filePath("file/presets"));

    QVERIFY(!blocked.load(&error));

    QVERIFY(blocked.presets().isEmpty());
    QCOMPARE(error.subErrors.constFirst().getLocalizedDescription(),
             QString("The folder \"%1\" cannot be made.").arg(blocked.folder()));
}

void TestColourPresetCollection::failedFirstStartIsAFirstStartAgain()
{
    ColourPresetCollection fresh(place->filePath("new"));
    {
        const FullDisk disk;
        QVERIFY(!fresh.load(&error));
    }

    QVERIFY(fresh.load(&error));

    QCOMPARE(fresh.presets().size(), 3);
}

void TestColourPresetCollection::folderThatIsNoneIsTold()
{
    QVERIFY(writeBytes(place->filePath("file"), "no folder"));
    ColourPresetCollection blocked(place->filePath("file"));

    QVERIFY(!blocked.load(&error));

    QCOMPARE(error.subErrors.constFirst().getLocalizedDescription(),
             QString("The folder \"%1\" cannot be read.").arg(blocked.folder()));
    QCOMPARE(bytesOf(place->filePath("file")), QByteArray("no folder"));
}

void TestColourPresetCollection::suffixInCapitalsStays()
{
    QVERIFY(writeBytes(fileOf("a.JSON"), presetCalled("Capitals").toJson()));
    QVERIFY(writeBytes(fileOf("a.json"), presetCalled("Small").toJson()));
    QVERIFY(collection->load(&error));

    QVERIFY(collection->rename("a.JSON", "Renamed", &error));
    QVERIFY(collection->remove("a.json", &error));

    QCOMPARE(filesIn(collection->folder()), QStringList("a.JSON"));
    QCOMPARE(namesIn(*reloaded()), QStringList("Renamed"));
}

void TestColourPresetCollection::exportReplacesNoPipe()
{
    const QString id = collection->add(presetCalled("Proof"), &error);
    const QString pipe = place->filePath("pipe");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

    QVERIFY(!collection->exportFile(id, pipe, &error));

    QCOMPARE(error.subErrors.constFirst().getLocalizedDescription(), "It is no file.");
    QCOMPARE(filesIn(place->path()), QStringList({"pipe", "presets"}));
}

int main(int argc, char **argv)
{
    return runTest<TestColourPresetCollection>(argc, argv);
}

#include "tst_ColourPresetCollection.moc"
