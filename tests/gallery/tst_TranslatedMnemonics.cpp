#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "Mnemonics.h"
#include "PageViews.h"
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

protected:
    void prepare() override { useGalleryPlugins(); }

private slots:
    void mnemonicsDoNotClash_data();
    void mnemonicsDoNotClash();
};

void TestTranslatedMnemonics::mnemonicsDoNotClash_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("plugin");
    for (const QString &language : QStringLiteral("en " TX_LANGUAGES).split(u' ')) {
        for (const PageView &view : pageViews()) {
            QTest::addRow("%s, %s", qPrintable(language), view.name.constData())
                << language << view.page << view.plugin;
        }
    }
}

void TestTranslatedMnemonics::mnemonicsDoNotClash()
{
    QFETCH(QString, language);
    QFETCH(QString, page);
    QFETCH(QString, plugin);
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
    QVERIFY(choosePlugin(window, plugin));

    QCOMPARE(clashingMnemonics(window).join(u'\n'), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestTranslatedMnemonics>(argc, argv);
}

#include "tst_TranslatedMnemonics.moc"
