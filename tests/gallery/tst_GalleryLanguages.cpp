#include "GalleryLanguages.h"
#include "TestBase.h"
#include "TestTranslations.h"

#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

/// Files of a language of its own, for as long as the object lives: in the program's folder, whence
/// they are installed, and named in a folder that lists nothing else, since other tests have files
/// in the program's too.
class OwnFiles
{
public:
    OwnFiles() { removeFiles(); }
    ~OwnFiles() { removeFiles(); }
    OwnFiles(const OwnFiles &) = delete;
    OwnFiles &operator=(const OwnFiles &) = delete;

    [[nodiscard]] QString listFolder() const { return list.path(); }

    [[nodiscard]] bool listFrench() const { return write(list.filePath("gallerytest_fr.qm")); }

    [[nodiscard]] bool listUrdu() const { return write(list.filePath("gallerytest_ur.qm")); }

    [[nodiscard]] bool addDamaged() const
    {
        return write(inProgram(kDamaged)) && write(list.filePath(kDamaged));
    }

    [[nodiscard]] bool addWhole() const
    {
        return QFile::copy(inProgram("gallerytest_fr.qm"), inProgram(kWhole))
            && write(list.filePath(kWhole));
    }

    void removeFiles() const
    {
        for (const QString &name : {kDamaged, kWhole}) {
            QFile::remove(inProgram(name));
            QFile::remove(list.filePath(name));
        }
    }

private:
    const QString kDamaged = QStringLiteral("languagesdamaged_eo.qm");
    const QString kWhole = QStringLiteral("languageswhole_eo.qm");

    static QString inProgram(const QString &name) { return testTranslationsFolder() + u'/' + name; }

    static bool write(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write("no translation") > 0;
    }

    QTemporaryDir list;
};

QString translatedLog()
{
    return QCoreApplication::translate("GalleryPages", "Log");
}

/// Whether a window follows when the language is used, into the direction in which it is written.
bool isLaidOutIn(const char *code, GalleryLanguages &languages, const QWidget &window)
{
    return languages.use(code) && QTest::qWaitFor([&window, code] {
               return window.layoutDirection() == QLocale(code).textDirection();
           });
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
    void damagedFileIsToldAndTheOthersAreInstalled();
    void errorsGoWithTheNextLanguage();
    void changeIsTold();
    void languageThatHasGoneGivesWayToEnglish();
    void objectIsFoundWhileItLives();
    void windowsAreLaidOutAsTheLanguageIsWritten();

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
    QTest::newRow("Spanish") << "es" << QString::fromUtf8("Español");
    QTest::newRow("Mexican Spanish") << "es_MX" << QString::fromUtf8("Español de México");
    QTest::newRow("Chinese") << "zh_CN" << QString::fromUtf8("简体中文");
    QTest::newRow("Arabic") << "ar" << QString::fromUtf8("العربية");
    QTest::newRow("none that is known") << "xx"
                                        << "xx";
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

void TestGalleryLanguages::damagedFileIsToldAndTheOthersAreInstalled()
{
    const OwnFiles files;
    QVERIFY(files.addDamaged());
    QVERIFY(files.addWhole());
    GalleryLanguages languages(files.listFolder());

    QVERIFY(languages.use("eo"));

    QCOMPARE(languages.errors().size(), 1);
    QCOMPARE(languages.errors().first().domain, "LocalisationErrorDomain");
    const QString told = languages.errors().first().getLocalizedDescription();
    QVERIFY2(told.contains("languagesdamaged_eo.qm"), qPrintable(told));
    QCOMPARE(translatedLog(), "Journal");
}

void TestGalleryLanguages::errorsGoWithTheNextLanguage()
{
    const OwnFiles files;
    QVERIFY(files.addDamaged());
    QVERIFY(files.listFrench());
    GalleryLanguages languages(files.listFolder());
    QVERIFY(languages.use("eo"));
    QCOMPARE(languages.errors().size(), 1);

    QVERIFY(!languages.use("xx"));
    QCOMPARE(languages.errors().size(), 1);

    QVERIFY(languages.use("fr"));
    QVERIFY(languages.errors().isEmpty());
}

void TestGalleryLanguages::changeIsTold()
{
    GalleryLanguages languages(testTranslationsFolder());
    const QSignalSpy changes(&languages, SIGNAL(changed()));

    QVERIFY(languages.use("fr"));
    QCOMPARE(changes.count(), 1);

    QVERIFY(!languages.use("xx"));
    QCOMPARE(changes.count(), 1);

    languages.lookAgain();
    QCOMPARE(changes.count(), 2);
    QCOMPARE(languages.current(), "fr");
    QCOMPARE(translatedLog(), "Journal");
}

void TestGalleryLanguages::languageThatHasGoneGivesWayToEnglish()
{
    const OwnFiles files;
    QVERIFY(files.addWhole());
    GalleryLanguages languages(files.listFolder());
    QVERIFY(languages.use("eo"));
    QCOMPARE(translatedLog(), "Journal");

    files.removeFiles();
    languages.lookAgain();

    QCOMPARE(languages.current(), "en");
    QCOMPARE(translatedLog(), "Log");
}

void TestGalleryLanguages::objectIsFoundWhileItLives()
{
    QCOMPARE(GalleryLanguages::instance(), nullptr);
    {
        const GalleryLanguages languages(testTranslationsFolder());
        QCOMPARE(GalleryLanguages::instance(), &languages);
        QCOMPARE(languages.translationsFolder(), testTranslationsFolder());
    }
    QCOMPARE(GalleryLanguages::instance(), nullptr);
}

void TestGalleryLanguages::windowsAreLaidOutAsTheLanguageIsWritten()
{
    const OwnFiles files;
    QVERIFY(files.listUrdu());
    QVERIFY(files.listFrench());
    QWidget window;
    {
        GalleryLanguages languages(files.listFolder());
        // There and back again, more than once. Qt has no texts of its own in Urdu.
        for (const char *code : {"ur", "fr", "ur", "fr", "ur", "en"}) {
            QVERIFY(isLaidOutIn(code, languages, window));
        }
        QVERIFY(isLaidOutIn("ur", languages, window));
    }
    QTRY_COMPARE(window.layoutDirection(), Qt::LeftToRight);
}

int main(int argc, char **argv)
{
    return runTest<TestGalleryLanguages>(argc, argv);
}

#include "tst_GalleryLanguages.moc"
