#include "GalleryLanguages.h"
#include "TestBase.h"
#include "TestTranslations.h"

#include <QTemporaryDir>

namespace {

QString translatedLog()
{
    return QCoreApplication::translate("GalleryPages", "Log");
}

} // namespace

class TestGalleryLanguages : public TestBase
{
    Q_OBJECT

private slots:
    void missingFolderLeavesEnglish();
    void codesAreReadFromTheFileNames();
    void languageIsNamedByItself_data();
    void languageIsNamedByItself();
    void useTranslatesAndTellsTheWindows();
    void englishTakesTheTranslationAway();
    void unknownCodeChangesNothing();
    void translationsGoWithTheObject();
    void localeFollowsTheLanguage();

protected:
    void finish() override { QLocale::setDefault(QLocale::system()); }
};

void TestGalleryLanguages::missingFolderLeavesEnglish()
{
    const GalleryLanguages languages("/nowhere");

    QCOMPARE(languages.codes(), QStringList("en"));
    QCOMPARE(languages.current(), "en");
    QCOMPARE(languages.systemCode(), "en");
}

void TestGalleryLanguages::codesAreReadFromTheFileNames()
{
    const QTemporaryDir folder;
    for (const char *name :
         {"txgallery_fr.qm", "library_fr.qm", "library_pt_BR.qm", "library_de.qm", "library_en.qm",
          "noLanguage.qm", "library_it.ts", "library_x.qm"}) {
        QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    }

    QCOMPARE(GalleryLanguages(folder.path()).codes(), QStringList({"en", "de", "fr", "pt_BR"}));
}

void TestGalleryLanguages::languageIsNamedByItself_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("English") << "en"
                             << "English";
    QTest::newRow("French") << "fr" << QString::fromUtf8("Français");
    QTest::newRow("German") << "de"
                            << "Deutsch";
}

void TestGalleryLanguages::languageIsNamedByItself()
{
    QFETCH(QString, code);

    QTEST(GalleryLanguages::displayName(code), "name");
}

void TestGalleryLanguages::useTranslatesAndTellsTheWindows()
{
    struct Window : QWidget
    {
        int changes = 0;
        void changeEvent(QEvent *event) override
        {
            changes += event->type() == QEvent::LanguageChange ? 1 : 0;
        }
    } window;
    GalleryLanguages languages(testTranslationsFolder());

    QVERIFY(languages.use("fr"));

    QCOMPARE(languages.current(), "fr");
    QCOMPARE(translatedLog(), "Journal");
    QTRY_VERIFY(window.changes > 0);
}

void TestGalleryLanguages::englishTakesTheTranslationAway()
{
    GalleryLanguages languages(testTranslationsFolder());
    QVERIFY(languages.use("fr"));

    QVERIFY(languages.use("en"));

    QCOMPARE(translatedLog(), "Log");
}

void TestGalleryLanguages::unknownCodeChangesNothing()
{
    GalleryLanguages languages(testTranslationsFolder());
    QVERIFY(languages.use("fr"));

    QVERIFY(!languages.use("de"));

    QCOMPARE(languages.current(), "fr");
    QCOMPARE(translatedLog(), "Journal");
}

void TestGalleryLanguages::translationsGoWithTheObject()
{
    {
        GalleryLanguages languages(testTranslationsFolder());
        QVERIFY(languages.use("fr"));
    }
    QCOMPARE(translatedLog(), "Log");
}

void TestGalleryLanguages::localeFollowsTheLanguage()
{
    GalleryLanguages languages(testTranslationsFolder(), GalleryLanguages::Formats::OfLanguage);

    QVERIFY(languages.use("fr"));
    QCOMPARE(QLocale().language(), QLocale::French);

    QVERIFY(languages.use("en"));
    QCOMPARE(QLocale(), QLocale("en"));
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryLanguages>(argc, argv);
}

#include "tst_GalleryLanguages.moc"
