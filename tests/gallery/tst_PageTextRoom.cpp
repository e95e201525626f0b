#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "LongTranslator.h"
#include "PageViews.h"
#include "TestBase.h"
#include "TextRoom.h"

#include <QDir>
#include <QMultiHash>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QStackedWidget>
#include <QStandardPaths>

#include <algorithm>

namespace {

/// The texts that a language has said. One with places for arguments stands for all that it becomes
/// when they are filled.
class SaidTexts
{
public:
    void insert(const QString &text)
    {
        static const QRegularExpression place(QStringLiteral("%(L?\\d{1,2}|n)"));
        if (texts.contains(text)) {
            return;
        }
        texts.insert(text);
        const qsizetype first = text.indexOf(place);
        static const QRegularExpression letter(QStringLiteral("\\pL"));
        if (first >= 0 && QString(text).remove(place).contains(letter)) {
            patterns.insert(text.left(std::min(first, kStart)), filled(text.split(place)));
        }
    }

    /// Compares with those alone that start alike, not with all.
    [[nodiscard]] bool contains(const QString &text) const
    {
        bool isSaid = texts.contains(text);
        for (qsizetype length = 0; length <= kStart && !isSaid; ++length) {
            const auto alike = patterns.equal_range(text.left(length));
            isSaid = std::any_of(alike.first, alike.second, [&text](const auto &pattern) {
                return pattern.match(text).hasMatch();
            });
        }
        return isSaid;
    }

private:
    static QRegularExpression filled(QStringList parts)
    {
        for (QString &part : parts) {
            part = QRegularExpression::escape(part);
        }
        return QRegularExpression(
            QRegularExpression::anchoredPattern(parts.join(QStringLiteral(".*"))),
            QRegularExpression::DotMatchesEverythingOption);
    }

    static constexpr qsizetype kStart = 3;
    QSet<QString> texts;
    /// By how the text starts.
    QMultiHash<QString, QRegularExpression> patterns;
};

/// A language that the gallery ships, or English when no file is loaded. What it has said is
/// remembered, since names and numbers on a page are not of the language.
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
        if (!said.isEmpty() || isEmpty()) {
            everSaid().insert(isEmpty() ? QString::fromUtf8(text) : said);
        }
        return said;
    }

    [[nodiscard]] static bool isSpoken(const QString &text) { return everSaid().contains(text); }

private:
    static SaidTexts &everSaid()
    {
        static SaidTexts texts;
        return texts;
    }
};

/// All that the gallery takes of one of its languages, until the object is gone.
class ShippedLanguage
{
public:
    explicit ShippedLanguage(const QString &code)
    {
        QLocale::setDefault(QLocale(code));
        QGuiApplication::setLayoutDirection(QLocale().textDirection());
        isWhole = code == u"en"
            || (library.loadModule("txguicommon", code) && gallery.loadModule("txgallery", code));
        QCoreApplication::installTranslator(&library);
        QCoreApplication::installTranslator(&gallery);
    }

    ~ShippedLanguage()
    {
        QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
        QLocale::setDefault(QLocale::system());
    }

    ShippedLanguage(const ShippedLanguage &) = delete;
    ShippedLanguage &operator=(const ShippedLanguage &) = delete;

    bool isWhole = false;

private:
    ShippedTranslator library;
    ShippedTranslator gallery;
};

void addPages(const char *language)
{
    for (const PageView &view : pageViews()) {
        for (const bool isSmallest : {false, true}) {
            QTest::addRow("%s%s, %s", view.name.constData(), isSmallest ? ", smallest" : "",
                          language)
                << QString::fromLatin1(language) << view.page << view.plugin << isSmallest;
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

/// How many pixels of the page are out of sight to the side.
int widthToScroll(const GalleryWindow &window)
{
    const QWidget *page = window.findChild<QStackedWidget *>()->currentWidget();
    return qobject_cast<const QScrollArea *>(page)->horizontalScrollBar()->maximum();
}

} // namespace

/// Each page in the gallery's window, in the languages that it ships and in one that needs half as
/// much room again as English: every text can be read whole, in the first size of the window and
/// in the smallest. In the first size, no page of a shipped language has to be scrolled sideways.
class TestPageTextRoom : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;

private slots:
    void textsHaveRoom_data();
    void textsHaveRoom();
    void newLanguageHasRoom_data();
    void newLanguageHasRoom();
    void shippedTextsHaveRoom_data();
    void shippedTextsHaveRoom();
};

/// The presets that the gallery makes are in the language in which they are first shown.
void TestPageTextRoom::prepare()
{
    useGalleryPlugins();
    QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
}

void TestPageTextRoom::textsHaveRoom_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<bool>("isSmallest");
    addPages("long");
}

void TestPageTextRoom::textsHaveRoom()
{
    QFETCH(QString, page);
    QFETCH(QString, plugin);
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
    QVERIFY(choosePlugin(window, plugin));

    QCOMPARE(problemsOf(window, &LongTranslator::isSpoken), QString());
}

void TestPageTextRoom::newLanguageHasRoom_data()
{
    textsHaveRoom_data();
}

void TestPageTextRoom::newLanguageHasRoom()
{
    QFETCH(QString, page);
    QFETCH(QString, plugin);
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
    QVERIFY(choosePlugin(window, plugin));

    LongTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();

    QCOMPARE(problemsOf(window, &LongTranslator::isSpoken), QString());
}

void TestPageTextRoom::shippedTextsHaveRoom_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<bool>("isSmallest");
    const QStringList codes = QStringLiteral("en " TX_LANGUAGES).split(u' ');
    for (const QString &code : codes) {
        addPages(qPrintable(code));
    }
}

void TestPageTextRoom::shippedTextsHaveRoom()
{
    QFETCH(QString, language);
    QFETCH(QString, page);
    QFETCH(QString, plugin);
    QFETCH(bool, isSmallest);
    const ShippedLanguage shipped(language);
    QVERIFY(shipped.isWhole);
    GallerySettings settings;
    settings.page = page;
    GalleryLanguages languages(QString{});
    GalleryWindow window(languages, settings);
    if (isSmallest) {
        window.resize(window.minimumSizeHint());
    }
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(choosePlugin(window, plugin));

    QCOMPARE(problemsOf(window, &ShippedTranslator::isSpoken), QString());
    if (!isSmallest) {
        QTRY_COMPARE(widthToScroll(window), 0);
    }
}

int main(int argc, char **argv)
{
    return runTest<TestPageTextRoom>(argc, argv);
}

#include "tst_PageTextRoom.moc"
