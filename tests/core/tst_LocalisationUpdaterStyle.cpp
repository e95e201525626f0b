#include "LocalisationUpdater.h"

#include "InstalledHelper.h"
#include "OrdinaryRights.h"
#include "PixelProbe.h"
#include "TXError.h"
#include "TestBase.h"

#include <QDir>
#include <QFile>
#include <QFrame>
#include <QImage>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTranslator>

#include <sys/stat.h>

#include <memory>

namespace {

const QString kFailure = QStringLiteral("No Style has been loaded.");
const QByteArray kRed = "QFrame { background-color: #c01020; }";
const QColor kRedColour(0xc0, 0x10, 0x20);
const QString kParseWarning = QStringLiteral("Could not parse application stylesheet");
const QString kSystemFonts = QStringLiteral("/usr/share/fonts/truetype/dejavu/");

/// The colour in the middle of a frame, in the application's present style.
QColor colourOfAFrame()
{
    QFrame frame;
    frame.resize(20, 20);
    return PixelProbe(frame).at({10, 10});
}

} // namespace

class TestLocalisationUpdaterStyle : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void sheetIsAppliedToTheApplication();
    void quotedPlacesStandBelowTheProgram_data();
    void quotedPlacesStandBelowTheProgram();
    void pictureBesideTheProgramIsShown();
    void textIsReadAsUtf8_data();
    void textIsReadAsUtf8();
    void whatIsNoSheetIsAppliedAllTheSame_data();
    void whatIsNoSheetIsAppliedAllTheSame();
    void sheetOfTenMegabytesIsApplied();
    void sheetBeyondTheLimitIsNotRead();
    void failureIsToldAndTheStyleStays_data();
    void failureIsToldAndTheStyleStays();
    void failureNeedsNoError();
    void failureIsToldInTheLanguageOfTheMoment();
    void unreadableSheetIsAFailure();
    void pipeIsNotOpened();
    void absolutePathIsAppendedAsWell();
    void emptyNameMeansTheDefaultSheet();
    void folderOfTheProgramComesInAsItIs_data();
    void folderOfTheProgramComesInAsItIs();
    void fontsAreLoadedWithAndWithoutASheet_data();
    void fontsAreLoadedWithAndWithoutASheet();
    void withoutWidgetsThereIsNoStyle_data();
    void withoutWidgetsThereIsNoStyle();

private:
    /// Where a file of this test is, as seen from the program.
    [[nodiscard]] QString relative(const QString &name) const
    {
        return "../" + QFileInfo(folder->path()).fileName() + '/' + name;
    }
    [[nodiscard]] bool write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(folder->filePath(name));
        return file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size();
    }
    [[nodiscard]] bool apply(TXError *error) const
    {
        return LocalisationUpdater::updateCSSFileOfApp(error, relative("a.css"));
    }

    std::unique_ptr<QTemporaryDir> folder;
};

void TestLocalisationUpdaterStyle::prepare()
{
    folder = std::make_unique<QTemporaryDir>(
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/..")
        + "/tst_LocalisationUpdaterStyle-XXXXXX");
    QVERIFY(folder->isValid());
}

void TestLocalisationUpdaterStyle::finish()
{
    qApp->setStyleSheet(QString());
    folder.reset();
}

void TestLocalisationUpdaterStyle::sheetIsAppliedToTheApplication()
{
    QVERIFY(write("a.css", kRed));
    QFrame before;
    before.resize(20, 20);
    QVERIFY(colourOfAFrame() != kRedColour);
    TXError error;

    QVERIFY(apply(&error));

    QCOMPARE(qApp->styleSheet(), QString(kRed));
    QCOMPARE(PixelProbe(before).at({10, 10}), kRedColour);
    QCOMPARE(colourOfAFrame(), kRedColour);
    QVERIFY(!error.isValid());
}

void TestLocalisationUpdaterStyle::quotedPlacesStandBelowTheProgram_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::newRow("single") << "url('../Images/a.png')"
                            << "url('"
                            << "/../Images/a.png')";
    QTest::newRow("double") << "url(\"../Images/a.png\")"
                            << "url(\""
                            << "/../Images/a.png\")";
    QTest::newRow("absolute") << "url('/a.png')"
                              << "url('"
                              << "//a.png')";
    QTest::newRow("none") << "url(a.png)"
                          << "url(a.png)" << QString();
}

void TestLocalisationUpdaterStyle::quotedPlacesStandBelowTheProgram()
{
    QFETCH(QString, place);
    QFETCH(QString, before);
    QFETCH(QString, after);
    const QString inserted = after.isNull() ? QString() : QCoreApplication::applicationDirPath();
    QVERIFY(write("a.css", "QFrame#nobody { image: " + place.toUtf8() + "; }"));

    QVERIFY(apply(nullptr));

    QCOMPARE(qApp->styleSheet(), "QFrame#nobody { image: " + before + inserted + after + "; }");
}

void TestLocalisationUpdaterStyle::pictureBesideTheProgramIsShown()
{
    QImage picture(20, 20, QImage::Format_RGB32);
    picture.fill(kRedColour);
    QVERIFY(picture.save(folder->filePath("x.png")));
    QVERIFY(
        write("a.css", "QFrame { background-image: url('" + relative("x.png").toUtf8() + "'); }"));
    QVERIFY(colourOfAFrame() != kRedColour);

    QVERIFY(apply(nullptr));

    QCOMPARE(colourOfAFrame(), kRedColour);
}

void TestLocalisationUpdaterStyle::textIsReadAsUtf8_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QString red = QString::fromUtf8(kRed);
    QTest::newRow("UTF-8") << kRed + "/* \xc3\xa9 */" << red + u"/* \u00e9 */"_qs;
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + kRed << red;
    QTest::newRow("Latin-1") << kRed + "/* \xe9 */" << red + u"/* \ufffd */"_qs;
    QTest::newRow("Windows line ends") << kRed + "\r\n" << red + "\r\n";
    QTest::newRow("empty") << QByteArray() << QString();
}

void TestLocalisationUpdaterStyle::textIsReadAsUtf8()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QVERIFY(write("a.css", bytes));

    QVERIFY(apply(nullptr));

    QCOMPARE(qApp->styleSheet(), text);
    QCOMPARE(colourOfAFrame() == kRedColour, !bytes.isEmpty());
}

void TestLocalisationUpdaterStyle::whatIsNoSheetIsAppliedAllTheSame_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QColor>("colour");
    const QColor plain = colourOfAFrame();
    QTest::newRow("bracket at the end") << kRed + "QLabel { image: url(" << kRedColour;
    QTest::newRow("quote at the end") << kRed + "QLabel { image: url('" << kRedColour;
    QTest::newRow("no rules") << QByteArray("No style sheet at all.") << plain;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe"
                                          "Q\0F\0r\0a\0m\0e\0 \0{\0}\0",
                                          18)
                            << plain;
    QTest::newRow("brackets only") << QByteArray(1000, '{') << plain;
}

// Qt tells the log that it cannot read the sheet, and shows the rules up to the place where it
// ends.
void TestLocalisationUpdaterStyle::whatIsNoSheetIsAppliedAllTheSame()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QColor, colour);
    QVERIFY(write("a.css", bytes));
    TXError error;
    const QFrame frame;
    QTest::ignoreMessage(QtWarningMsg, qPrintable(kParseWarning));

    QVERIFY(apply(&error));

    QVERIFY(!error.isValid());
    QVERIFY(!qApp->styleSheet().isEmpty());
    QCOMPARE(colourOfAFrame(), colour);
}

void TestLocalisationUpdaterStyle::sheetOfTenMegabytesIsApplied()
{
    constexpr qsizetype kTenMegabytes = qsizetype(10) * 1024 * 1024;
    const QByteArray rule = "QLabel#nobody { image: url('../Images/a.png'); }\n";
    QVERIFY(write("a.css", rule.repeated(kTenMegabytes / rule.size()) + kRed));

    QVERIFY(apply(nullptr));

    QCOMPARE(colourOfAFrame(), kRedColour);
}

void TestLocalisationUpdaterStyle::sheetBeyondTheLimitIsNotRead()
{
    QVERIFY(write("a.css", kRed));
    // Takes no room on the disk, and more memory than there is.
    QVERIFY(QFile(folder->filePath("a.css")).resize(qint64(1) << 40));
    TXError error;

    QVERIFY(!apply(&error));

    QCOMPARE(error.domain, "CSSFileLoading");
}

void TestLocalisationUpdaterStyle::failureIsToldAndTheStyleStays_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "missing.css";
    QTest::newRow("folder") << ".";
    QTest::newRow("NUL") << QString("a.css") + QChar(0);
    QTest::newRow("marker") << "%1";
    QTest::newRow("long") << QString(100'000, 'x');
}

void TestLocalisationUpdaterStyle::failureIsToldAndTheStyleStays()
{
    QFETCH(QString, name);
    qApp->setStyleSheet(kRed);
    TXError error;
    error.code = 5;

    QVERIFY(!LocalisationUpdater::updateCSSFileOfApp(&error, relative(name)));

    QCOMPARE(error.domain, "CSSFileLoading");
    QCOMPARE(error.code, 0);
    QCOMPARE(error.getLocalizedDescription(), kFailure);
    QVERIFY(error.isValid());
    QCOMPARE(qApp->styleSheet(), QString(kRed));
}

void TestLocalisationUpdaterStyle::failureNeedsNoError()
{
    QVERIFY(!apply(nullptr));
}

void TestLocalisationUpdaterStyle::failureIsToldInTheLanguageOfTheMoment()
{
    TXError error;
    QVERIFY(!apply(&error));
    QTranslator french;
    QVERIFY(french.load(builtTranslation()));

    QVERIFY(QCoreApplication::installTranslator(&french));

    QCOMPARE(error.getLocalizedDescription(), u"Aucun style n'a \u00e9t\u00e9 charg\u00e9."_qs);
}

void TestLocalisationUpdaterStyle::unreadableSheetIsAFailure()
{
    QVERIFY(write("a.css", kRed));
    QVERIFY(QFile::setPermissions(folder->filePath("a.css"), QFile::WriteOwner));
    TXError error;
    const OrdinaryRights rights;
    QVERIFY(QFile::exists(folder->filePath("a.css")));

    QVERIFY(!apply(&error));

    QCOMPARE(error.domain, "CSSFileLoading");
}

void TestLocalisationUpdaterStyle::pipeIsNotOpened()
{
    QCOMPARE(::mkfifo(QFile::encodeName(folder->filePath("a.css")).constData(), 0600), 0);
    TXError error;

    QVERIFY(!apply(&error));

    QCOMPARE(error.domain, "CSSFileLoading");
}

void TestLocalisationUpdaterStyle::absolutePathIsAppendedAsWell()
{
    const InstalledHelper helper;
    const QString absolute = helper.path("a.css");
    QVERIFY(helper.write("a.css", kRed));
    QCOMPARE(helper.run({"widgets", "style", absolute})["result"].toBool(true), false);

    QVERIFY(helper.write("bin" + absolute, "QFrame { color: blue; }"));

    QCOMPARE(helper.run({"widgets", "style", absolute})["sheet"].toString(),
             "QFrame { color: blue; }");
}

void TestLocalisationUpdaterStyle::emptyNameMeansTheDefaultSheet()
{
    const InstalledHelper helper;
    QCOMPARE(helper.run({"widgets", "style", ""})["result"].toBool(true), false);

    QVERIFY(helper.write("Resources/Templates/TovraStyle.css", kRed));

    const QJsonObject answer = helper.run({"widgets", "style", ""});
    QCOMPARE(answer["result"].toBool(), true);
    QCOMPARE(answer["withoutError"].toBool(), true);
    QCOMPARE(answer["sheet"].toString(), QString(kRed));
    QCOMPARE(answer["hasError"].toBool(true), false);
}

void TestLocalisationUpdaterStyle::folderOfTheProgramComesInAsItIs_data()
{
    QTest::addColumn<QString>("place");
    for (const char *place : {R"(a\1b)", R"(\0\\2)", "%1", "%1 %2 %L1", "url(", "a b"}) {
        QTest::newRow(place) << QString(place);
    }
}

void TestLocalisationUpdaterStyle::folderOfTheProgramComesInAsItIs()
{
    QFETCH(QString, place);
    const InstalledHelper helper(place);
    QVERIFY(helper.write("Resources/a.css", "QFrame { image: url('../Images/a.png'); }"));

    const QJsonObject answer = helper.run({"widgets", "style", "../Resources/a.css"});

    QCOMPARE(answer["sheet"].toString(),
             "QFrame { image: url('" + helper.programFolder() + "/../Images/a.png'); }");
}

void TestLocalisationUpdaterStyle::fontsAreLoadedWithAndWithoutASheet_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("with a sheet") << "widgets"
                                  << "../a.css";
    QTest::newRow("without a sheet") << "widgets"
                                     << "../missing.css";
    QTest::newRow("without widgets") << "gui"
                                     << "../a.css";
}

void TestLocalisationUpdaterStyle::fontsAreLoadedWithAndWithoutASheet()
{
    QFETCH(QString, kind);
    QFETCH(QString, sheet);
    const InstalledHelper helper;
    QVERIFY(helper.write("a.css", kRed));
    QVERIFY(helper.write("Resources/Fonts/broken.ttf", "Not a font."));
    QVERIFY(helper.copy(kSystemFonts + "DejaVuSerif.ttf", "Resources/Fonts/Serif.ttf"));
    QVERIFY(helper.copy(kSystemFonts + "DejaVuSans.ttf", "system/Sans.ttf"));
    QVERIFY(
        helper.write("fonts.conf",
                     "<fontconfig><dir>" + QFile::encodeName(helper.path("system"))
                         + "</dir><cachedir prefix=\"xdg\">fontconfig</cachedir></fontconfig>"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("FONTCONFIG_FILE", helper.path("fonts.conf"));

    const QJsonObject answer = helper.run({kind, "style", sheet}, environment);

    QCOMPARE(answer["result"].toBool(), kind == "widgets" && sheet == "../a.css");
    const QStringList families = answer["families"].toVariant().toStringList();
    QVERIFY(families.contains("DejaVu Serif"));
    QVERIFY(!families.contains("DejaVu Sans Mono"));
}

void TestLocalisationUpdaterStyle::withoutWidgetsThereIsNoStyle_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"none", "core", "gui"}) {
        QTest::newRow(kind) << QString(kind);
    }
}

void TestLocalisationUpdaterStyle::withoutWidgetsThereIsNoStyle()
{
    QFETCH(QString, kind);
    const InstalledHelper helper;
    QVERIFY(helper.write("a.css", kRed));
    // Nothing can be done with it where there is no GUI.
    QVERIFY(helper.copy(kSystemFonts + "DejaVuSerif.ttf", "Resources/Fonts/Serif.ttf"));

    const QJsonObject answer = helper.run({kind, "style", "../a.css"});

    QCOMPARE(answer["result"].toBool(true), false);
    QCOMPARE(answer["withoutError"].toBool(true), false);
    QCOMPARE(answer["error"].toString(), kFailure);
    QCOMPARE(answer["domain"].toString(), "CSSFileLoading");
    QCOMPARE(answer["code"].toInt(5), 0);
}

int main(int argc, char **argv)
{
    return runTest<TestLocalisationUpdaterStyle>(argc, argv);
}

#include "tst_LocalisationUpdaterStyle.moc"
