#include "ColourPresetCollection.h"

#include "PresetFiles.h"
#include "TestBase.h"

#include "TXError.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

/// What others do to the folder while it is in use.
class TestColourPresetChanges : public TestBase
{
    Q_OBJECT

private slots:
    void changeByOthersIsNotReplacedAtOnce();
    void changeByOthersIsNotDeletedAtOnce();
    void fileWrittenAnewWithoutAChangeIsReplaced();
    void fileThatHasBecomeDamagedIsLeftAlone_data();
    void fileThatHasBecomeDamagedIsLeftAlone();
    void fileThatIsGoneIsMadeAgain();

protected:
    void prepare() override;
    void finish() override;

private:
    [[nodiscard]] QString file() const { return collection->folder() + '/' + id; }

    std::unique_ptr<QTemporaryDir> place;
    std::unique_ptr<ColourPresetCollection> collection;
    QString id;
    TXError error;
};

void TestColourPresetChanges::prepare()
{
    place = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(place->path()).mkdir("presets"));
    collection = std::make_unique<ColourPresetCollection>(place->filePath("presets"));
    ColourPreset ours = presetCalled("Ours");
    ours.paperWhite = {95.12345, 1.0 / 3, -0.1};
    id = collection->add(ours, nullptr);
    QVERIFY(!id.isEmpty());
    error = TXError();
}

void TestColourPresetChanges::finish()
{
    collection.reset();
    place.reset();
}

void TestColourPresetChanges::changeByOthersIsNotReplacedAtOnce()
{
    ColourPresetCollection theirs(collection->folder());
    QVERIFY(theirs.load(nullptr));
    QVERIFY(theirs.rename(id, "Theirs", nullptr));
    const QSignalSpy spy(collection.get(), SIGNAL(changed(int)));

    QVERIFY(!collection->rename(id, "New", &error));

    QCOMPARE(error.getLocalizedDescription(), "\"New\" cannot be saved.");
    QVERIFY(error.subErrors.constFirst().getLocalizedDescription().startsWith(
        "Another program has changed it"));
    QCOMPARE(collection->find(id)->name, "Theirs");
    QCOMPARE(spy.size(), 1);
    QCOMPARE(ColourPreset::fromFile(file()).preset->name, "Theirs");

    QVERIFY(collection->rename(id, "New", &error));
    QCOMPARE(ColourPreset::fromFile(file()).preset->name, "New");
}

void TestColourPresetChanges::changeByOthersIsNotDeletedAtOnce()
{
    QVERIFY(writeBytes(file(), presetCalled("Theirs").toJson()));

    QVERIFY(!collection->remove(id, &error));

    QCOMPARE(error.getLocalizedDescription(), "\"Ours\" cannot be deleted.");
    QCOMPARE(collection->find(id)->name, "Theirs");
    QVERIFY(collection->remove(id, &error));
    QVERIFY(filesIn(collection->folder()).isEmpty());
}

void TestColourPresetChanges::fileWrittenAnewWithoutAChangeIsReplaced()
{
    QVERIFY(writeBytes(file(), collection->find(id)->toJson().simplified()));

    QVERIFY(collection->rename(id, "New", &error));

    QCOMPARE(ColourPreset::fromFile(file()).preset->name, "New");
}

void TestColourPresetChanges::fileThatHasBecomeDamagedIsLeftAlone_data()
{
    QTest::addColumn<bool>("isLink");
    QTest::newRow("no preset any more") << false;
    QTest::newRow("link to another place") << true;
}

void TestColourPresetChanges::fileThatHasBecomeDamagedIsLeftAlone()
{
    QFETCH(bool, isLink);
    const QString outside = place->filePath("outside.json");
    QVERIFY(writeBytes(outside, "[]"));
    QVERIFY(QFile::remove(file()));
    QVERIFY(isLink ? QFile::link(outside, file()) : QFile::copy(outside, file()));

    QVERIFY(!collection->rename(id, "New", &error));
    QCOMPARE(error.subErrors.constFirst().getLocalizedDescription(),
             isLink ? "It is a link to another place." : "It holds no JSON object.");
    QVERIFY(!collection->remove(id, &error));

    QCOMPARE(bytesOf(outside), QByteArray("[]"));
    QCOMPARE(bytesOf(file()), QByteArray("[]"));
    QCOMPARE(collection->find(id)->name, "Ours");
}

void TestColourPresetChanges::fileThatIsGoneIsMadeAgain()
{
    QVERIFY(QDir(collection->folder()).removeRecursively());

    QVERIFY(collection->rename(id, "New", &error));

    QCOMPARE(ColourPreset::fromFile(file()).preset->name, "New");
}

int main(int argc, char **argv)
{
    return runTest<TestColourPresetChanges>(argc, argv);
}

#include "tst_ColourPresetChanges.moc"
