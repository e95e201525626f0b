#include "GalleryLanguages.h"
#include "GalleryPages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "Mnemonics.h"
#include "TestBase.h"

#include <QTranslator>

namespace {

/// Where the build puts what the gallery ships.
QString releasedFile(const QString &module, const QString &language)
{
    return QCoreApplication::applicationDirPath() + "/../gallery/Resources/translations/" + module
        + u'_' + language + ".qm";
}

} // namespace

/// The keys with Alt of each page together with the gallery's header, in every language.
class TestTranslatedMnemonics : public TestBase
{
    Q_OBJECT

private slots:
    void mnemonicsDoNotClash_data();
    void mnemonicsDoNotClash();
};

void TestTranslatedMnemonics::mnemonicsDoNotClash_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("page");
    for (const QString &language : QStringLiteral("en " TX_LANGUAGES).split(u' ')) {
        for (const GalleryPageEntry &entry : galleryPages()) {
            QTest::addRow("%s, %s", qPrintable(language), entry.id) << language << entry.name();
        }
    }
}

void TestTranslatedMnemonics::mnemonicsDoNotClash()
{
    QFETCH(QString, language);
    QFETCH(QString, page);
    QTranslator library;
    QTranslator gallery;
    const bool isEnglish = language == u"en";
    QVERIFY(isEnglish || library.load(releasedFile("txguicommon", language)));
    QVERIFY(isEnglish || gallery.load(releasedFile("txgallery", language)));
    QCoreApplication::installTranslator(&library);
    QCoreApplication::installTranslator(&gallery);
    GallerySettings settings;
    settings.page = page;
    GalleryLanguages languages(QString{});

    const GalleryWindow window(languages, settings);

    QCOMPARE(clashingMnemonics(window).join(u'\n'), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestTranslatedMnemonics>(argc, argv);
}

#include "tst_TranslatedMnemonics.moc"
