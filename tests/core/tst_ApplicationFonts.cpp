#include "ApplicationFonts.h"

#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <memory>

namespace {

const QString kSystemFonts = QStringLiteral("/usr/share/fonts/truetype/dejavu/");
const QString kSerif = QStringLiteral("DejaVuSerif.ttf");
const QString kMono = QStringLiteral("DejaVuSansMono.ttf");

} // namespace

/// Runs where "DejaVu Sans" is the only font of the system.
class TestApplicationFonts : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void fontsOfTheFolderCanBeUsed();
    void suffixDecidesInAnyCase();
    void whatIsNoFontIsLeftOut();
    void folderThatIsNotThereIsNoTrouble();
    void fontIsAddedOnceHoweverOftenItIsLoaded();
    void changedFileIsAddedAgain();
    void fontThatTheHostRemovedComesBack();
    void newFileIsFoundByTheNextCall();
    void manyFontsAreAllThere();

private:
    [[nodiscard]] QString path(const QString &name) const { return folder->filePath(name); }
    [[nodiscard]] bool copy(const QString &font, const QString &name) const
    {
        return QFile::copy(kSystemFonts + font, path(name));
    }
    [[nodiscard]] bool write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
    }
    void load() const { ApplicationFonts::load(folder->path() + u'/'); }
    static bool has(const QString &family) { return QFontDatabase::families().contains(family); }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestApplicationFonts::prepare()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(!has("DejaVu Serif"));
    QVERIFY(!has("DejaVu Sans Mono"));
}

void TestApplicationFonts::finish()
{
    QFontDatabase::removeAllApplicationFonts();
}

void TestApplicationFonts::fontsOfTheFolderCanBeUsed()
{
    QVERIFY(copy(kSerif, "a.ttf"));
    QVERIFY(copy(kMono, u"\u00e9 %1.ttf"_qs));

    load();

    QVERIFY(has("DejaVu Serif"));
    QVERIFY(has("DejaVu Sans Mono"));
    QCOMPARE(QFontInfo(QFont("DejaVu Serif")).family(), "DejaVu Serif");
}

void TestApplicationFonts::suffixDecidesInAnyCase()
{
    QVERIFY(copy(kSerif, "a.TTF"));
    QVERIFY(copy(kMono, "a.otf"));

    load();

    QVERIFY(has("DejaVu Serif"));
    QVERIFY(!has("DejaVu Sans Mono"));
}

void TestApplicationFonts::whatIsNoFontIsLeftOut()
{
    QVERIFY(write("a text.ttf", "Not a font."));
    QVERIFY(write("an empty file.ttf", {}));
    QVERIFY(copy(kMono, "cut short.ttf"));
    QVERIFY(QFile(path("cut short.ttf")).resize(5000));
    QVERIFY(QDir(folder->path()).mkpath("folder.ttf"));
    QVERIFY(QFile::link("/no/such/file", path("leads nowhere.ttf")));
    // To open one of these would wait for ever.
    QCOMPARE(::mkfifo(QFile::encodeName(path("pipe.ttf")).constData(), 0600), 0);
    QVERIFY(QFile::link(path("pipe.ttf"), path("link to a pipe.ttf")));
    QVERIFY(copy(kSerif, "the last one is good.ttf"));

    load();

    QVERIFY(has("DejaVu Serif"));
    QVERIFY(!has("DejaVu Sans Mono"));
}

void TestApplicationFonts::folderThatIsNotThereIsNoTrouble()
{
    const QStringList before = QFontDatabase::families();

    ApplicationFonts::load(path("missing"));

    QCOMPARE(QFontDatabase::families(), before);
}

void TestApplicationFonts::fontIsAddedOnceHoweverOftenItIsLoaded()
{
    QVERIFY(copy(kSerif, "a.ttf"));
    QSignalSpy changed(qApp, SIGNAL(fontDatabaseChanged()));
    load();
    QCOMPARE(changed.size(), 1);

    for (int round = 0; round < 100; ++round) {
        load();
    }

    QCOMPARE(changed.size(), 1);
    QCOMPARE(QFontDatabase::applicationFontFamilies(0), QStringList("DejaVu Serif"));
    QCOMPARE(QFontDatabase::applicationFontFamilies(1), QStringList());
    QVERIFY(has("DejaVu Serif"));
}

void TestApplicationFonts::changedFileIsAddedAgain()
{
    QVERIFY(copy(kSerif, "a.ttf"));
    load();

    QVERIFY(QFile::remove(path("a.ttf")));
    QVERIFY(copy(kMono, "a.ttf"));
    load();

    QVERIFY(has("DejaVu Sans Mono"));
}

void TestApplicationFonts::fontThatTheHostRemovedComesBack()
{
    QVERIFY(copy(kSerif, "a.ttf"));
    load();
    QVERIFY(QFontDatabase::removeApplicationFont(0));
    QVERIFY(!has("DejaVu Serif"));
    // Another font now has the number.
    QCOMPARE(QFontDatabase::addApplicationFont(kSystemFonts + kMono), 0);

    load();

    QVERIFY(has("DejaVu Serif"));
}

void TestApplicationFonts::newFileIsFoundByTheNextCall()
{
    QVERIFY(copy(kSerif, "a.ttf"));
    load();

    QVERIFY(copy(kMono, "b.ttf"));
    load();

    QVERIFY(has("DejaVu Serif"));
    QVERIFY(has("DejaVu Sans Mono"));
}

void TestApplicationFonts::manyFontsAreAllThere()
{
    constexpr int kFonts = 200;
    for (int i = 0; i < kFonts; ++i) {
        QVERIFY(
            QFile::link(kSystemFonts + (i % 2 ? kSerif : kMono), path(QString("%1.ttf").arg(i))));
    }

    load();

    QCOMPARE(QFontDatabase::applicationFontFamilies(kFonts - 1).size(), 1);
    QCOMPARE(QFontDatabase::applicationFontFamilies(kFonts).size(), 0);
}

int main(int argc, char **argv)
{
    const TestEnvironment environment;
    const QTemporaryDir system;
    QFile config(system.filePath("fonts.conf"));
    if (!QFile::copy(kSystemFonts + "DejaVuSans.ttf", system.filePath("DejaVuSans.ttf"))
        || !config.open(QFile::WriteOnly)) {
        return 1;
    }
    config.write("<fontconfig><dir>" + QFile::encodeName(system.path())
                 + "</dir><cachedir prefix=\"xdg\">fontconfig</cachedir></fontconfig>");
    config.close();
    qputenv("FONTCONFIG_FILE", QFile::encodeName(config.fileName()));
    QApplication application(argc, argv);
    TestEnvironment::applyToApplication();
    TestApplicationFonts test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ApplicationFonts.moc"
