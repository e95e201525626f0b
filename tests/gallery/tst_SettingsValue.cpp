#include "SettingsValue.h"

#include "TestBase.h"

#include <QSettings>
#include <QSize>

class TestSettingsValue : public TestBase
{
    Q_OBJECT

private slots:
    void nothingStoredIsAnEmptyMap();
    void groupsAreMapsWithinMaps();
    void valuesKeepTheirTypes();
    void bytesThatAreNoTextAreShownInHexadecimal_data();
    void bytesThatAreNoTextAreShownInHexadecimal();
    void groupWithTheNameOfAKeyHidesNeither();
    void readingBeginsAtTheGroupOfTheSettingsAndLeavesThemThere();
    void deepGroupsAreRead();
};

void TestSettingsValue::nothingStoredIsAnEmptyMap()
{
    QSettings settings;

    QCOMPARE(settingsValue(settings), QVariantMap());
}

void TestSettingsValue::groupsAreMapsWithinMaps()
{
    QSettings settings;
    settings.setValue("Top", 1);
    settings.setValue("Gallery/Page", "variant");
    settings.setValue("Gallery/Window/Width", 800);

    const QVariantMap window = {{"Width", 800}};
    const QVariantMap gallery = {{"Page", "variant"}, {"Window", window}};
    QCOMPARE(settingsValue(settings), QVariantMap({{"Top", 1}, {"Gallery", gallery}}));
}

void TestSettingsValue::valuesKeepTheirTypes()
{
    QSettings settings;
    settings.setValue("List", QVariantList{1, "two", true});
    settings.setValue("Map", QVariantMap{{"a", 1.5}});
    settings.setValue("Size", QSize(3, 4));

    const QVariantMap value = settingsValue(settings);

    QCOMPARE(value["List"].toList().at(1), QVariant("two"));
    QCOMPARE(value["Map"].typeId(), int(QMetaType::QVariantMap));
    QCOMPARE(value["Size"], QVariant(QSize(3, 4)));
}

void TestSettingsValue::bytesThatAreNoTextAreShownInHexadecimal_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVariant>("shown");
    const QByteArray utf8 = QByteArrayLiteral("gr\xc3\xbc\xc3\x9f dich\n");
    QTest::newRow("empty") << QByteArray("") << QVariant(QByteArray(""));
    QTest::newRow("text") << utf8 << QVariant(utf8);
    QTest::newRow("null byte") << QByteArray("\x01\x00", 2) << QVariant("01 00");
    QTest::newRow("no UTF-8") << QByteArray("\xff") << QVariant("ff");
}

void TestSettingsValue::bytesThatAreNoTextAreShownInHexadecimal()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QVariant, shown);
    QSettings settings;
    settings.setValue("Bytes", bytes);

    QCOMPARE(settingsValue(settings)["Bytes"], shown);
}

void TestSettingsValue::groupWithTheNameOfAKeyHidesNeither()
{
    QSettings settings;
    settings.setValue("Folder", "/tmp");
    settings.setValue("Folder/Depth", 3);

    const QVariantMap value = settingsValue(settings);

    QCOMPARE(value["Folder"], QVariant("/tmp"));
    QCOMPARE(value["Folder/"], QVariant(QVariantMap{{"Depth", 3}}));
}

void TestSettingsValue::readingBeginsAtTheGroupOfTheSettingsAndLeavesThemThere()
{
    QSettings settings;
    settings.setValue("Outer/Inner/Key", 1);
    settings.setValue("Other", 2);
    settings.beginGroup("Outer");

    QCOMPARE(settingsValue(settings), QVariantMap({{"Inner", QVariantMap{{"Key", 1}}}}));
    QCOMPARE(settings.group(), "Outer");
}

void TestSettingsValue::deepGroupsAreRead()
{
    constexpr int kLevels = 200;
    QSettings settings;
    settings.setValue(QString("a/").repeated(kLevels) + "end", 1);

    QVariant value = settingsValue(settings);

    for (int level = 0; level < kLevels; ++level) {
        value = value.toMap().value("a");
    }
    QCOMPARE(value, QVariant(QVariantMap{{"end", 1}}));
}

int main(int argc, char **argv)
{
    return runTest<TestSettingsValue>(argc, argv);
}

#include "tst_SettingsValue.moc"
