#include "GalleryLanguages.h"
#include "GalleryPages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "LongTranslator.h"
#include "TestBase.h"
#include "TextRoom.h"

#include <QSet>

namespace {

/// A language that the gallery ships. What it has said is remembered, since names and numbers on
/// a page are not of the language.
class ShippedTranslator final : public QTranslator
{
public:
    [[nodiscard]] bool loadModule(const QString &module, const QString &language)
    {
        return load(QCoreApplication::applicationDirPath() + "/../gallery/Resources/translations/"
                    + module + u'_' + language + ".qm");
    }

    [[nodiscard]] QString translate(const char *context, const char *text, const char *hint,
                                    int number) const override
    {
        const QString said = QTranslator::translate(context, text, hint, number);
        if (!said.isEmpty()) {
            everSaid().insert(said);
        }
        return said;
    }

    [[nodiscard]] static bool isSpoken(const QString &text) { return everSaid().contains(text); }

private:
    static QSet<QString> &everSaid()
    {
        static QSet<QString> texts;
        return texts;
    }
};

void addPages(const char *language)
{
    for (const GalleryPageEntry &entry : galleryPages()) {
        for (const bool isSmallest : {false, true}) {
            QTest::addRow("%s%s, %s", entry.id, isSmallest ? ", smallest" : "", language)
                << QString::fromLatin1(language) << entry.name() << isSmallest;
        }
    }
}

/// What is wrong when the layouts have come to rest, which takes a few rounds of the event loop.
QString problemsOf(const QWidget &window, bool (*isOfInterest)(const QString &))
{
    QStringList problems;
    const bool isGood = QTest::qWaitFor(
        [&] {
            problems = TextRoom::problems(window, isOfInterest);
            return problems.isEmpty();
        },
        10000);
    return isGood ? QString() : problems.join(u'\n');
}

} // namespace

/// Each page in the gallery's window, in the languages that it ships and in one that needs half as
/// much room again as English: every text can be read whole, in the first size of the window and
/// in the smallest.
class TestPageTextRoom : public TestBase
{
    Q_OBJECT

private slots:
    void textsHaveRoom_data();
    void textsHaveRoom();
    void newLanguageHasRoom_data();
    void newLanguageHasRoom();
    void shippedTextsHaveRoom_data();
    void shippedTextsHaveRoom();

protected:
    void finish() override { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }
};

void TestPageTextRoom::textsHaveRoom_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("isSmallest");
    addPages("long");
}

void TestPageTextRoom::textsHaveRoom()
{
    QFETCH(QString, page);
    QFETCH(bool, isSmallest);
    LongTranslator translator;
    QCoreApplication::installTranslator(&translator);
    GallerySettings settings;
    settings.page = page;
    GalleryLanguages languages(QString{});
    GalleryWindow window(languages, settings);
    if (isSmallest) {
        window.resize(window.minimumSizeHint());
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QCOMPARE(problemsOf(window, &LongTranslator::isSpoken), QString());
}

void TestPageTextRoom::newLanguageHasRoom_data()
{
    textsHaveRoom_data();
}

void TestPageTextRoom::newLanguageHasRoom()
{
    QFETCH(QString, page);
    QFETCH(bool, isSmallest);
    GallerySettings settings;
    settings.page = page;
    GalleryLanguages languages(QString{});
    GalleryWindow window(languages, settings);
    if (isSmallest) {
        window.resize(window.minimumSizeHint());
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    LongTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();

    QCOMPARE(problemsOf(window, &LongTranslator::isSpoken), QString());
}

void TestPageTextRoom::shippedTextsHaveRoom_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("isSmallest");
    const QStringList codes = QStringLiteral(TX_LANGUAGES).split(u' ');
    for (const QString &code : codes) {
        addPages(qPrintable(code));
    }
}

void TestPageTextRoom::shippedTextsHaveRoom()
{
    QFETCH(QString, language);
    QFETCH(QString, page);
    QFETCH(bool, isSmallest);
    ShippedTranslator library;
    ShippedTranslator gallery;
    QVERIFY(library.loadModule("txguicommon", language));
    QVERIFY(gallery.loadModule("txgallery", language));
    QCoreApplication::installTranslator(&library);
    QCoreApplication::installTranslator(&gallery);
    GallerySettings settings;
    settings.page = page;
    GalleryLanguages languages(QString{});
    GalleryWindow window(languages, settings);
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
    if (isSmallest) {
        window.resize(window.minimumSizeHint());
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QCOMPARE(problemsOf(window, &ShippedTranslator::isSpoken), QString());
}

int main(int argc, char **argv)
{
    return runTest<TestPageTextRoom>(argc, argv);
}

#include "tst_PageTextRoom.moc"
