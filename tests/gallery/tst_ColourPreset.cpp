#include "ColourPreset.h"

#include "JsonText.h"
#include "TestBase.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

ColourPreset newsprint()
{
    ColourPreset preset;
    preset.id = "some id";
    preset.name = "News/print \u201eneu\u201c <b> \U0001F4F0";
    preset.intent = ColourPreset::Intent::Saturation;
    preset.hasBlackPointCompensation = false;
    preset.paperWhite = {82.25, 0.1, -3.75};
    preset.inkLimitPercent = 240;
    return preset;
}

QVariantHash object(const ColourPreset &preset)
{
    return readJsonText(preset.toJson()).value.toHash();
}

} // namespace

class TestColourPreset : public TestBase
{
    Q_OBJECT

private slots:
    void jsonFormGivesTheSettingsBack_data();
    void jsonFormGivesTheSettingsBack();
    void idIsNoPartOfTheJsonForm();
    void wrongMemberIsTold_data();
    void wrongMemberIsTold();
    void everyMemberIsNeeded_data();
    void everyMemberIsNeeded();
    void whatIsNoObjectIsRefused();
    void numberAtTheEndOfItsRangeIsTaken();
    void fileThatIsNoJsonTellsWhy();
    void nameOfAFileFitsEverywhere_data();
    void nameOfAFileFitsEverywhere();
    void nameThatCannotBeListedIsRefused_data();
    void nameThatCannotBeListedIsRefused();
    void everySettingCountsInTheComparison();
    void summaryTellsEverySetting();
};

void TestColourPreset::jsonFormGivesTheSettingsBack_data()
{
    QTest::addColumn<int>("intent");
    for (const ColourPreset::Intent intent : ColourPreset::kIntents) {
        QTest::newRow(qPrintable(ColourPreset::intentName(intent))) << int(intent);
    }
}

void TestColourPreset::jsonFormGivesTheSettingsBack()
{
    QFETCH(int, intent);
    ColourPreset preset = newsprint();
    preset.intent = ColourPreset::Intent(intent);

    const ColourPresetReading reading = ColourPreset::fromJson(readJsonText(preset.toJson()).value);

    QCOMPARE(reading.error.toString(), QString());
    QVERIFY(reading.preset);
    QVERIFY(reading.preset->hasSameSettings(preset));
}

void TestColourPreset::idIsNoPartOfTheJsonForm()
{
    const ColourPreset preset = newsprint();

    QVERIFY(!preset.toJson().contains("some id"));
    QCOMPARE(ColourPreset::fromJson(object(preset)).preset->id, QString());
}

void TestColourPreset::wrongMemberIsTold_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const char *key, const QVariant &value,
                        const char *reason) {
        QTest::newRow(name) << key << value << reason;
    };
    const QVariantHash paper = {{"L", 95LL}, {"a", 0LL}, {"b", 0LL}};
    QVariantHash dark = paper;
    dark["L"] = 100.5;
    QVariantHash further = paper;
    further["c"] = 1;
    QVariantHash text = paper;
    text["b"] = "0";

    row("other format", "format", "Palette", "It is no colour preset.");
    row("format is a number", "format", 1, "\"format\" is no text.");
    row("newer version", "version", 2LL, "Its version, 2, is not known.");
    row("version is broken", "version", 1.5, "\"version\" is no whole number.");
    row("name is a list", "name", QVariantList{"a"}, "\"name\" is no text.");
    row("blank name", "name", " ", "The name is empty.");
    row("unknown intent", "renderingIntent", "Relative", "\"Relative\" is no rendering intent.");
    row("flag is a number", "blackPointCompensation", 1LL,
        "\"blackPointCompensation\" is neither true nor false.");
    row("paper is a text", "paperWhite", "#ffffff", "\"paperWhite\" is no object.");
    row("paper is too light", "paperWhite", dark, "\"paperWhite.L\" is no number from 0 to 100.");
    row("paper has a member more", "paperWhite", further, "\"paperWhite.c\" is not known.");
    row("paper's b is a text", "paperWhite", text,
        "\"paperWhite.b\" is no number from -128 to 128.");
    row("negative ink", "inkLimitPercent", -1LL, "\"inkLimitPercent\" is no number from 0 to 400.");
    row("too much ink", "inkLimitPercent", 401LL,
        "\"inkLimitPercent\" is no number from 0 to 400.");
    row("ink is null", "inkLimitPercent", QVariant::fromValue(nullptr),
        "\"inkLimitPercent\" is no number from 0 to 400.");
    row("part of a percent", "inkLimitPercent", 299.5, "\"inkLimitPercent\" is no whole number.");
    row("unknown member", "screenRuling", 175LL, "\"screenRuling\" is not known.");
}

void TestColourPreset::wrongMemberIsTold()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QVariantHash json = object(newsprint());
    json[key] = value.typeId() == QMetaType::Int ? QVariant(value.toLongLong()) : value;

    const ColourPresetReading reading = ColourPreset::fromJson(json);

    QVERIFY(!reading.preset);
    QTEST(reading.error.toString(), "reason");
}

void TestColourPreset::everyMemberIsNeeded_data()
{
    QTest::addColumn<QString>("key");
    const QStringList keys = object(newsprint()).keys();
    QCOMPARE(keys.size(), 7);
    for (const QString &key : keys) {
        QTest::newRow(qPrintable(key)) << key;
    }
}

void TestColourPreset::everyMemberIsNeeded()
{
    QFETCH(QString, key);
    QVariantHash json = object(newsprint());
    json.remove(key);

    const ColourPresetReading reading = ColourPreset::fromJson(json);

    QVERIFY(!reading.preset);
    QCOMPARE(reading.error.toString(), QString("\"%1\" is missing.").arg(key));
}

void TestColourPreset::whatIsNoObjectIsRefused()
{
    for (const QVariant &value : {QVariant(QVariantList()), QVariant("text"), QVariant(1LL)}) {
        const ColourPresetReading reading = ColourPreset::fromJson(value);
        QVERIFY(!reading.preset);
        QCOMPARE(reading.error.toString(), "It holds no JSON object.");
    }
}

void TestColourPreset::numberAtTheEndOfItsRangeIsTaken()
{
    ColourPreset preset = newsprint();
    preset.paperWhite = {100, -128, 128};
    preset.inkLimitPercent = 400;

    QVERIFY(ColourPreset::fromJson(object(preset)).preset->hasSameSettings(preset));

    preset.paperWhite.lightness = 0;
    preset.inkLimitPercent = 0;
    QVERIFY(ColourPreset::fromJson(object(preset)).preset->hasSameSettings(preset));
}

void TestColourPreset::fileThatIsNoJsonTellsWhy()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("preset.json"));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(newsprint().toJson().chopped(10));
    file.close();

    const ColourPresetReading reading = ColourPreset::fromFile(file.fileName());

    QVERIFY(!reading.preset);
    QVERIFY2(reading.error.toString().startsWith("It is no JSON"),
             qPrintable(reading.error.toString()));
    QVERIFY(!ColourPreset::fromFile(folder.filePath("none.json")).error.isEmpty());
}

void TestColourPreset::nameOfAFileFitsEverywhere_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("file");
    QTest::newRow("path") << "../a\\b:c"
                          << "___a_b_c.json";
    QTest::newRow("composed letters")
        << QString("Pru\u0308fdruck") << QString("Pru\u0308fdruck.json");
    QTest::newRow("three bytes each")
        << QString(100, QChar(0x65b0)) << QString(80, QChar(0x65b0)) + ".json";
    QTest::newRow("cut before a pair") << "x" + QString("\U0001F4F0").repeated(45)
                                       << "x" + QString("\U0001F4F0").repeated(39) + ".json";
}

void TestColourPreset::nameOfAFileFitsEverywhere()
{
    QFETCH(QString, name);
    ColourPreset preset;
    preset.name = name;

    QTEST(preset.fileName(), "file");
    QVERIFY(preset.fileName().toUtf8().size() <= 255);
}

void TestColourPreset::nameThatCannotBeListedIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem");
    const QString unshown = "The name has characters that cannot be shown.";
    QTest::newRow("plain") << "Coated paper"
                           << "";
    QTest::newRow("as long as it may be") << QString(100, 'x') << "";
    QTest::newRow("separators of paths") << "../a\\b:c"
                                         << "";
    QTest::newRow("beyond 16 bits") << "\U0001F4F0"
                                    << "";
    QTest::newRow("empty") << ""
                           << "The name is empty.";
    QTest::newRow("blanks") << " \u00a0 "
                            << "The name is empty.";
    QTest::newRow("too long") << QString(101, 'x') << "The name is longer than 100 characters.";
    QTest::newRow("two lines") << "a\nb" << unshown;
    QTest::newRow("zero") << QString("a") + QChar(0) << unshown;
    QTest::newRow("paragraph") << "a\u2029b" << unshown;
    QTest::newRow("half a character") << QString("a") + QChar(0xd83d) << unshown;
}

void TestColourPreset::nameThatCannotBeListedIsRefused()
{
    QFETCH(QString, name);

    QTEST(ColourPreset::nameProblem(name).toString(), "problem");
}

void TestColourPreset::everySettingCountsInTheComparison()
{
    const ColourPreset preset = newsprint();
    QList<ColourPreset> others(7, preset);
    others[0].name = "Other";
    others[1].intent = ColourPreset::Intent::Perceptual;
    others[2].hasBlackPointCompensation = true;
    others[3].paperWhite.lightness = 1;
    others[4].paperWhite.a = 1;
    others[5].paperWhite.b = 1;
    others[6].inkLimitPercent = 1;
    for (const ColourPreset &other : qAsConst(others)) {
        QVERIFY(!preset.hasSameSettings(other));
    }
    ColourPreset twin = preset;
    twin.id = "other id";
    QVERIFY(preset.hasSameSettings(twin));
}

void TestColourPreset::summaryTellsEverySetting()
{
    QCOMPARE(newsprint().summary(),
             "Saturation, without black point compensation, paper L* 82.3 a* 0.1 b* -3.8, at most "
             "240 % ink");
}

int main(int argc, char **argv)
{
    return runTest<TestColourPreset>(argc, argv);
}

#include "tst_ColourPreset.moc"
