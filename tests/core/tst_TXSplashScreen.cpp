#include "TXSplashScreen.h"

#include "InstalledHelper.h"
#include "PixelProbe.h"
#include "TestBase.h"

#include <QBuffer>
#include <QDateTime>
#include <QGuiApplication>
#include <QImage>
#include <QJsonObject>
#include <QScreen>
#include <QTemporaryDir>

#include <sys/stat.h>

#include <memory>

namespace {

const QString kInstalled = QStringLiteral("Resources/Images/oemLogo.png");
const QString kFolder = QStringLiteral("common/Tovra Hue Works");

/// Not compressed: pictures of one size in pixels have one size in bytes.
QByteArray picture(Qt::GlobalColor colour, const QSize &size = QSize(40, 30))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "BMP");
    return bytes;
}

QByteArray portableNetworkGraphic(Qt::GlobalColor colour)
{
    QImage image(QSize(40, 30), QImage::Format_ARGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

QString cachedName(int product)
{
    return kFolder + QStringLiteral("/oemLogo_%1.png").arg(product);
}

} // namespace

/// The chain of the logos. Each test runs a program of its own, since the common data folder is
/// fixed when the library is loaded.
class TestTXSplashScreen : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override { application.reset(); }

private slots:
    void installedLogoIsShownAndCached();
    void cachedLogoIsShownWithoutAnInstalledOne();
    void productsKeepSeparateLogos();
    void newLogoOfTheSameSizeIsShownAndLeavesTheCache();
    void newLogoOfAnotherSizeIsShownAndLeavesTheCache();
    void withoutLogosTheDefaultIsShown();
    void defaultMayLackItsSuffix();
    void fileReplacedByOneOfTheSameSizeIsReadAgain();
    void withoutAnythingTheSplashIsEmpty();
    void whatIsNoPictureCountsAsMissing_data();
    void whatIsNoPictureCountsAsMissing();
    void placesThatTakeNoCopyAreSilent_data();
    void placesThatTakeNoCopyAreSilent();
    void copyDoesNotGoThroughALinkToNowhere();
    void folderOfTheCopyIsNotMade();
    void cachedPathFollowsTheVariable_data();
    void cachedPathFollowsTheVariable();
    void laterChangeOfTheVariableChangesNothing();
    void constructorsPassTheirArgumentsOn();
    void pictureIsPainted_data();
    void pictureIsPainted();

private:
    [[nodiscard]] QString path(const QString &name) const { return application->path(name); }
    [[nodiscard]] bool write(const QString &name, const QByteArray &bytes) const
    {
        return application->write(name, bytes);
    }
    [[nodiscard]] QByteArray read(const QString &name) const;
    [[nodiscard]] QJsonObject run(int product = 7, const QString &defaultPath = {}) const;
    [[nodiscard]] QString shownColour(int product = 7, const QString &defaultPath = {}) const;
    void make(const QString &kind, const QString &name) const;

    std::unique_ptr<InstalledHelper> application;
};

void TestTXSplashScreen::prepare()
{
    application =
        std::make_unique<InstalledHelper>(QStringLiteral("app"), QStringLiteral("splashhelper"));
    QVERIFY(QDir().mkpath(path(kFolder)));
}

QByteArray TestTXSplashScreen::read(const QString &name) const
{
    QFile file(path(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject TestTXSplashScreen::run(int product, const QString &defaultPath) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ALLUSERSPROFILE", path("common"));
    return application->run({QString::number(product), defaultPath}, environment);
}

/// The name of the colour, or empty for no picture.
QString TestTXSplashScreen::shownColour(int product, const QString &defaultPath) const
{
    return run(product, defaultPath).value("colour").toString();
}

/// Something that is no picture.
void TestTXSplashScreen::make(const QString &kind, const QString &name) const
{
    const QByteArray nativePath = QFile::encodeName(path(name));
    if (kind == "text") {
        QVERIFY(write(name, "no picture\n"));
    } else if (kind == "empty") {
        QVERIFY(write(name, {}));
    } else if (kind == "cut off") {
        QVERIFY(write(name, picture(Qt::red).left(20)));
    } else if (kind == "unreadable") {
        QVERIFY(write(name, picture(Qt::red)));
        QVERIFY(QFile::setPermissions(path(name), QFile::Permissions()));
    } else if (kind == "folder") {
        QVERIFY(QDir().mkpath(path(name)));
    } else if (kind == "pipe") {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QCOMPARE(::mkfifo(nativePath.constData(), 0600), 0);
    } else {
        QCOMPARE(kind, "link to nowhere");
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QVERIFY(QFile::link(path("nowhere.png"), path(name)));
    }
}

void TestTXSplashScreen::installedLogoIsShownAndCached()
{
    const QByteArray logo = portableNetworkGraphic(Qt::red);
    QVERIFY(write(kInstalled, logo));

    const QJsonObject shown = run();

    QCOMPARE(shown.value("colour").toString(), "#ff0000");
    QCOMPARE(shown.value("width").toInt(), 40);
    QCOMPARE(shown.value("height").toInt(), 30);
    QCOMPARE(read(cachedName(7)), logo);
    QCOMPARE(QDir(path(kFolder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             {"oemLogo_7.png"});
}

void TestTXSplashScreen::cachedLogoIsShownWithoutAnInstalledOne()
{
    QVERIFY(write(cachedName(7), picture(Qt::green)));
    QVERIFY(write("default.png", picture(Qt::blue)));

    QCOMPARE(shownColour(7, path("default.png")), "#00ff00");
    QCOMPARE(shownColour(8, path("default.png")), "#0000ff");
}

void TestTXSplashScreen::productsKeepSeparateLogos()
{
    QVERIFY(write(kInstalled, picture(Qt::red)));
    QCOMPARE(shownColour(1000), "#ff0000");
    QVERIFY(write(kInstalled, picture(Qt::green, QSize(10, 10))));
    QCOMPARE(shownColour(-2), "#00ff00");
    QVERIFY(QFile::remove(path(kInstalled)));

    QCOMPARE(shownColour(1000), "#ff0000");
    QCOMPARE(shownColour(-2), "#00ff00");
}

void TestTXSplashScreen::newLogoOfTheSameSizeIsShownAndLeavesTheCache()
{
    QVERIFY(write(kInstalled, picture(Qt::red)));
    QVERIFY(write(cachedName(7), picture(Qt::green)));
    QCOMPARE(QFileInfo(path(kInstalled)).size(), QFileInfo(path(cachedName(7))).size());

    QCOMPARE(shownColour(), "#ff0000");

    QCOMPARE(read(cachedName(7)), picture(Qt::green));
    QVERIFY(QFile::remove(path(kInstalled)));
    QCOMPARE(shownColour(), "#00ff00");
}

void TestTXSplashScreen::newLogoOfAnotherSizeIsShownAndLeavesTheCache()
{
    QVERIFY(write(kInstalled, picture(Qt::red, QSize(80, 60))));
    QVERIFY(write(cachedName(7), picture(Qt::green)));

    QCOMPARE(shownColour(), "#ff0000");

    QCOMPARE(read(cachedName(7)), picture(Qt::green));
    QVERIFY(QFile::remove(path(kInstalled)));
    QCOMPARE(shownColour(), "#00ff00");
}

void TestTXSplashScreen::withoutLogosTheDefaultIsShown()
{
    QVERIFY(write("default.png", picture(Qt::blue)));

    QCOMPARE(shownColour(7, path("default.png")), "#0000ff");

    QVERIFY(!QFileInfo::exists(path(cachedName(7))));
}

void TestTXSplashScreen::defaultMayLackItsSuffix()
{
    QVERIFY(write("default.png", portableNetworkGraphic(Qt::blue)));

    QCOMPARE(shownColour(7, path("default")), "#0000ff");
}

void TestTXSplashScreen::fileReplacedByOneOfTheSameSizeIsReadAgain()
{
    const QDateTime written(QDate(2024, 1, 1), QTime(12, 0));
    const auto shown = [this, &written](Qt::GlobalColor colour) {
        QFile file(path("default.png"));
        if (!file.open(QFile::WriteOnly) || file.write(picture(colour)) < 0 || !file.flush()
            || !file.setFileTime(written, QFile::FileModificationTime)) {
            return QColor();
        }
        file.close();
        return TXSplashScreen::pixmap(-12345, file.fileName()).toImage().pixelColor(0, 0);
    };

    QCOMPARE(shown(Qt::red), QColor(Qt::red));
    QCOMPARE(shown(Qt::blue), QColor(Qt::blue));
}

void TestTXSplashScreen::withoutAnythingTheSplashIsEmpty()
{
    QVERIFY(run().value("isNull").toBool());
    QVERIFY(run(7, path("missing.png")).value("isNull").toBool());
    QVERIFY(run(7, path("common")).value("isNull").toBool());
}

void TestTXSplashScreen::whatIsNoPictureCountsAsMissing_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind :
         {"text", "empty", "cut off", "unreadable", "folder", "pipe", "link to nowhere"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

void TestTXSplashScreen::whatIsNoPictureCountsAsMissing()
{
    QFETCH(QString, kind);
    make(kind, "default.png");
    QVERIFY(run(7, path("default.png")).value("isNull").toBool());

    QVERIFY(write("good.png", picture(Qt::blue)));
    make(kind, cachedName(7));
    QCOMPARE(shownColour(7, path("good.png")), "#0000ff");

    make(kind, kInstalled);
    QCOMPARE(shownColour(7, path("good.png")), "#0000ff");

    QVERIFY(write(cachedName(8), picture(Qt::green)));
    QCOMPARE(shownColour(8, path("good.png")), "#00ff00");
    QCOMPARE(read(cachedName(8)), picture(Qt::green));
}

void TestTXSplashScreen::placesThatTakeNoCopyAreSilent_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"text", "empty", "folder", "pipe", "unreadable"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
    QTest::newRow("folder that is read-only") << "read-only";
}

void TestTXSplashScreen::placesThatTakeNoCopyAreSilent()
{
    QFETCH(QString, kind);
    QVERIFY(write(kInstalled, picture(Qt::red)));
    if (kind == "read-only") {
        QVERIFY(QFile::setPermissions(path(kFolder), QFile::ReadOwner | QFile::ExeOwner));
    } else {
        make(kind, cachedName(7));
    }
    const auto restore = qScopeGuard([this] {
        QFile::setPermissions(path(kFolder),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    });
    const auto before = QDir(path(kFolder)).entryList(QDir::AllEntries | QDir::System);

    QCOMPARE(shownColour(), "#ff0000");

    QCOMPARE(QDir(path(kFolder)).entryList(QDir::AllEntries | QDir::System), before);
    if (kind == "text") {
        QCOMPARE(read(cachedName(7)), "no picture\n");
    }
}

void TestTXSplashScreen::copyDoesNotGoThroughALinkToNowhere()
{
    QVERIFY(write(kInstalled, picture(Qt::red)));
    make("link to nowhere", cachedName(7));

    QCOMPARE(shownColour(), "#ff0000");

    QVERIFY(!QFileInfo::exists(path("nowhere.png")));
    QVERIFY(QFileInfo(path(cachedName(7))).isSymLink());
}

void TestTXSplashScreen::folderOfTheCopyIsNotMade()
{
    QVERIFY(QDir(path(kFolder)).removeRecursively());
    QVERIFY(write(kInstalled, picture(Qt::red)));

    QCOMPARE(shownColour(), "#ff0000");

    QVERIFY(!QFileInfo::exists(path(kFolder)));
}

void TestTXSplashScreen::cachedPathFollowsTheVariable_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("path");
    QTest::newRow("folder") << "/srv/all"
                            << "/srv/all/Tovra Hue Works//oemLogo_7.png";
    QTest::newRow("backslashes") << "C:\\ProgramData\\x"
                                 << "C:/ProgramData/x/Tovra Hue Works//oemLogo_7.png";
    QTest::newRow("slash at the end") << "/srv/all/"
                                      << "/srv/all//Tovra Hue Works//oemLogo_7.png";
    QTest::newRow("place marker") << "/srv/%1"
                                  << "/srv/%1/Tovra Hue Works//oemLogo_7.png";
    QTest::newRow("empty") << ""
                           << "/var/lib/Tovra Hue Works//oemLogo_7.png";
    QTest::newRow("not set") << QString() << "/var/lib/Tovra Hue Works//oemLogo_7.png";
}

void TestTXSplashScreen::cachedPathFollowsTheVariable()
{
    QFETCH(QString, value);
    QFETCH(QString, path);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("ALLUSERSPROFILE");
    if (!value.isNull()) {
        environment.insert("ALLUSERSPROFILE", value);
    }

    const QJsonObject answer = application->run({"7"}, environment);

    QCOMPARE(answer.value("cachedPath").toString(), path);
    QCOMPARE(answer.value("installedPath").toString(),
             application->programFolder() + "/../Resources/Images/oemLogo.png");
}

void TestTXSplashScreen::laterChangeOfTheVariableChangesNothing()
{
    QVERIFY(write(kInstalled, picture(Qt::red)));
    QVERIFY(QDir().mkpath(path("other/Tovra Hue Works")));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("ALLUSERSPROFILE", path("common"));

    const QJsonObject answer = application->run({"7", {}, path("other")}, environment);

    QCOMPARE(answer.value("cachedPath").toString(),
             path("common") + "/Tovra Hue Works//oemLogo_7.png");
    QCOMPARE(read(cachedName(7)), picture(Qt::red));
    QVERIFY(QDir(path("other/Tovra Hue Works")).isEmpty());
}

void TestTXSplashScreen::constructorsPassTheirArgumentsOn()
{
    QVERIFY(write("default.png", picture(Qt::blue)));
    QScreen *screen = QGuiApplication::primaryScreen();

    const TXSplashScreen plain(-12345, path("default.png"));
    const TXSplashScreen onTop(-12345, path("default.png"), Qt::WindowStaysOnTopHint);
    const TXSplashScreen onScreen(screen, -12345, path("default.png"), Qt::WindowStaysOnTopHint);

    QCOMPARE(plain.pixmap().size(), QSize(40, 30));
    QCOMPARE(plain.size(), QSize(40, 30));
    QVERIFY(!plain.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(onTop.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(onTop.windowFlags().testFlag(Qt::SplashScreen));
    QCOMPARE(onTop.size(), QSize(40, 30));
    QVERIFY(onScreen.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(onScreen.size(), QSize(40, 30));
    QCOMPARE(onScreen.screen(), screen);
}

void TestTXSplashScreen::pictureIsPainted_data()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("2") << 2.0;
}

void TestTXSplashScreen::pictureIsPainted()
{
    QFETCH(qreal, ratio);
    // A file that is named so has two pixels for one of the screen.
    QVERIFY(write("default@2x.png", picture(Qt::blue)));
    TXSplashScreen splash(-12345, path("default@2x.png"));
    QCOMPARE(splash.size(), QSize(20, 15));

    const PixelProbe probe(splash, ratio);

    QVERIFY(probe.isNear(QPoint(0, 0), Qt::blue));
    QVERIFY(probe.isNear(QPoint(19, 14), Qt::blue));
}

int main(int argc, char **argv)
{
    return runTest<TestTXSplashScreen>(argc, argv);
}

#include "tst_TXSplashScreen.moc"
