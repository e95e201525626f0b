#include "GallerySettings.h"
#include "TestBase.h"

#include <QSettings>

class TestGallerySettings : public TestBase
{
    Q_OBJECT

private slots:
    void defaultsFollowTheSystem();
    void savedIsLoaded();
    void damagedValuesReadAsDefaults();
};

void TestGallerySettings::defaultsFollowTheSystem()
{
    const GallerySettings settings = GallerySettings::load();

    QVERIFY(settings.geometry.isEmpty());
    QVERIFY(settings.page.isEmpty());
    QCOMPARE(settings.colours, GalleryColours::System);
    QVERIFY(settings.style.isEmpty());
    QVERIFY(settings.language.isEmpty());
}

void TestGallerySettings::savedIsLoaded()
{
    GallerySettings settings;
    settings.geometry = QByteArray("geometry");
    settings.page = "log";
    settings.colours = GalleryColours::Dark;
    settings.style = "Windows";
    settings.language = "fr";

    settings.save();

    const GallerySettings loaded = GallerySettings::load();
    QCOMPARE(loaded.geometry, settings.geometry);
    QCOMPARE(loaded.page, settings.page);
    QCOMPARE(loaded.colours, settings.colours);
    QCOMPARE(loaded.style, settings.style);
    QCOMPARE(loaded.language, settings.language);
}

void TestGallerySettings::damagedValuesReadAsDefaults()
{
    QSettings().setValue("Gallery/Palette", "purple");
    QSettings().setValue("Gallery/Style", "none such");

    const GallerySettings settings = GallerySettings::load();

    QCOMPARE(settings.colours, GalleryColours::System);
    QVERIFY(settings.style.isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestGallerySettings>(argc, argv);
}

#include "tst_GallerySettings.moc"
