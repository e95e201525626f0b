#include "DialogDriver.h"
#include "FontsPanel.h"
#include "GalleryAppearance.h"
#include "LanguagePage.h"
#include "PageChecks.h"
#include "StyleSamplePanel.h"
#include "StyleSheetPanel.h"
#include "StyleSheets.h"
#include "TXSelectionItemWidget.h"
#include "TestBase.h"

#include <QComboBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTemporaryDir>

#include <algorithm>

namespace {

const QString kSheet = QStringLiteral("languagepagetest.css");
const QString kShippedCopy = QStringLiteral("languagepagetest-shipped.css");

/// As the gallery's own build has it.
QString shippedSheet()
{
    return QCoreApplication::applicationDirPath()
        + QStringLiteral("/../gallery/Resources/Templates/") + StyleSheets::shippedName();
}

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// A font of the system that is a file "*.ttf", or an empty string.
QString anyFontFile()
{
    QDirIterator files(QStringLiteral("/usr/share/fonts"), {QStringLiteral("DejaVuSans.ttf")},
                       QDir::Files, QDirIterator::Subdirectories);
    return files.hasNext() ? files.next() : QString();
}

/// The colour that fills most of a widget.
QColor groundOf(QWidget &widget)
{
    const QImage picture = widget.grab().toImage();
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    return *std::max_element(
        counts.keyBegin(), counts.keyEnd(),
        [&counts](QRgb first, QRgb second) { return counts[first] < counts[second]; });
}

bool hasColoursOfTheApplication(QWidget &widget)
{
    const QPalette expected = QApplication::palette();
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        if (widget.palette().color(QPalette::Active, role)
            != expected.color(QPalette::Active, role)) {
            return false;
        }
    }
    const bool isField = qobject_cast<QLineEdit *>(&widget)
        || qobject_cast<QAbstractSpinBox *>(&widget) || qobject_cast<QPlainTextEdit *>(&widget);
    return !isField || groundOf(widget) == expected.base().color();
}

QStringList controlsInOtherColours(const QWidget &page)
{
    QStringList names;
    const auto widgets = page.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!hasColoursOfTheApplication(*widget)) {
            names.append(widget->metaObject()->className());
        }
    }
    return names;
}

} // namespace

/// The parts of the page that are about the style sheet and the fonts. The sheets are put beside
/// the program for each test.
class TestLanguagePageStyle : public TestBase
{
    Q_OBJECT

private slots:
    void startsWithoutASheet();
    void chosenSheetIsAppliedAndShown();
    void noneTakesTheSheetAway();
    void readAgainTakesTheFileAsItIsNow();
    void missingSheetIsToldAndTheOneInUseStays();
    void largeSheetIsShownInPart();
    void sheetOutlivesAChangeOfStyle();
    void coloursChangeUnderASheet_data();
    void coloursChangeUnderASheet();
    void shippedSheetIsClean();
    void shippedSheetNamesPicturesThatAreThere();
    void shippedSheetNamesNoTextColours();
    void shippedSheetLeavesTheProgressReadable();
    void shippedSheetLeavesRoomForTheSignsOfTheBar();
    void pictureShowsTheShippedSheet();
    void sampleIsAlive();
    void fontsAreShownInThemselves();
    void fileThatIsNoFontIsNamedAsSuch();
    void missingFontsAreTold();
    void textsFollowTheLanguage();

protected:
    void prepare() override;
    void finish() override;

private:
    QComboBox *sheetBox() const { return controlOf<QComboBox>(*page, "Sheet"); }
    void choose(const QString &sheet);
    void chooseShippedCopy();
    QString textShown() const;

    std::unique_ptr<LanguagePage> page;
};

void TestLanguagePageStyle::prepare()
{
    QVERIFY(QDir().mkpath(StyleSheets::folder()));
    QVERIFY(write(StyleSheets::folder() + u'/' + kSheet,
                  "QSpinBox { min-height: 70px; image: url('../Images/a.png'); }"));
    page = std::make_unique<LanguagePage>();
    page->resize(860, 640);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
}

void TestLanguagePageStyle::finish()
{
    StyleSheets::remove();
    applyGalleryStyle("Fusion");
    applyGalleryColours(GalleryColours::System);
    page.reset();
    QFile::remove(StyleSheets::folder() + u'/' + kSheet);
    QFile::remove(StyleSheets::folder() + u'/' + kShippedCopy);
}

void TestLanguagePageStyle::choose(const QString &sheet)
{
    sheetBox()->setFocus();
    const int wanted = sheetBox()->findText(sheet);
    QVERIFY(wanted >= 0);
    while (sheetBox()->currentIndex() != wanted) {
        const int before = sheetBox()->currentIndex();
        QTest::keyClick(sheetBox(), before < wanted ? Qt::Key_Down : Qt::Key_Up);
        QVERIFY(sheetBox()->currentIndex() != before);
    }
}

void TestLanguagePageStyle::chooseShippedCopy()
{
    QVERIFY(QFile::copy(shippedSheet(), StyleSheets::folder() + u'/' + kShippedCopy));
    DialogDriver::click(buttonOf(*page, "Read Again"));
    choose(kShippedCopy);
}

QString TestLanguagePageStyle::textShown() const
{
    return page->findChild<StyleSheetPanel *>()->findChild<QPlainTextEdit *>()->toPlainText();
}

void TestLanguagePageStyle::startsWithoutASheet()
{
    QCOMPARE(sheetBox()->currentText(), "None");
    QVERIFY(sheetBox()->findText(kSheet) > 0);
    QVERIFY(textShown().isEmpty());
    QVERIFY(qApp->styleSheet().isEmpty());
}

void TestLanguagePageStyle::chosenSheetIsAppliedAndShown()
{
    choose(kSheet);

    QCOMPARE(textShown(), qApp->styleSheet());
    QCOMPARE(textShown(),
             QStringLiteral("QSpinBox { min-height: 70px; image: url('%1/../Images/a.png'); }")
                 .arg(QCoreApplication::applicationDirPath()));
    const auto *spinBox = page->findChild<StyleSamplePanel *>()->findChild<QSpinBox *>();
    QTRY_VERIFY(spinBox->height() >= 70);
}

void TestLanguagePageStyle::noneTakesTheSheetAway()
{
    choose(kSheet);

    choose("None");

    QVERIFY(qApp->styleSheet().isEmpty());
    QVERIFY(textShown().isEmpty());
    const auto *spinBox = page->findChild<StyleSamplePanel *>()->findChild<QSpinBox *>();
    QTRY_VERIFY(spinBox->height() < 70);
}

void TestLanguagePageStyle::readAgainTakesTheFileAsItIsNow()
{
    choose(kSheet);
    QVERIFY(write(StyleSheets::folder() + u'/' + kSheet, "QLabel { padding: 3px; }"));

    DialogDriver::click(buttonOf(*page, "Read Again"));

    QCOMPARE(qApp->styleSheet(), "QLabel { padding: 3px; }");
    QCOMPARE(textShown(), "QLabel { padding: 3px; }");
    QCOMPARE(sheetBox()->currentText(), kSheet);
}

void TestLanguagePageStyle::missingSheetIsToldAndTheOneInUseStays()
{
    choose(kSheet);
    const QString before = qApp->styleSheet();
    QVERIFY(QFile::remove(StyleSheets::folder() + u'/' + kSheet));

    DialogDriver::click(buttonOf(*page, "Read Again"));

    QVERIFY(isRead(*page, "No Style has been loaded."));
    QCOMPARE(qApp->styleSheet(), before);
    QCOMPARE(textShown(), before);
    QCOMPARE(sheetBox()->currentText(), kSheet);

    choose("None");
    QVERIFY(!isRead(*page, "No Style has been loaded."));
    QCOMPARE(sheetBox()->findText(kSheet), -1);
}

void TestLanguagePageStyle::largeSheetIsShownInPart()
{
    const QByteArray sheet = "/*" + QByteArray(300'000, 'x') + "*/ QSpinBox { min-height: 70px; }";
    QVERIFY(write(StyleSheets::folder() + u'/' + kSheet, sheet));

    choose(kSheet);

    QCOMPARE(qApp->styleSheet().size(), sheet.size());
    QCOMPARE(textShown().size(), 100'001);
    QVERIFY(textShown().endsWith(QChar(0x2026)));
}

void TestLanguagePageStyle::sheetOutlivesAChangeOfStyle()
{
    const auto *spinBox = page->findChild<StyleSamplePanel *>()->findChild<QSpinBox *>();
    choose(kSheet);

    QVERIFY(applyGalleryStyle("Windows"));
    QCoreApplication::sendPostedEvents();
    QTRY_VERIFY(spinBox->height() >= 70);

    choose("None");
    QTRY_VERIFY(spinBox->height() < 70);
    QCOMPARE(galleryStyleKey(galleryStyleName()), "Windows");
}

void TestLanguagePageStyle::coloursChangeUnderASheet_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("shipped") << kShippedCopy;
    QTest::newRow("other") << kSheet;
}

void TestLanguagePageStyle::coloursChangeUnderASheet()
{
    QFETCH(QString, sheet);
    chooseShippedCopy();
    applyGalleryColours(GalleryColours::Light);
    choose(sheet);

    for (const auto colours : {GalleryColours::Dark, GalleryColours::Light}) {
        applyGalleryColours(colours);

        QCOMPARE(controlsInOtherColours(*page), QStringList());
        QVERIFY(!qApp->styleSheet().isEmpty());
    }
}

/// A sheet that cannot be parsed makes Qt print a warning, and that fails the test.
void TestLanguagePageStyle::shippedSheetIsClean()
{
    chooseShippedCopy();

    QVERIFY(textShown().contains("QPushButton"));
    QVERIFY(!page->grab().isNull());
}

void TestLanguagePageStyle::shippedSheetNamesPicturesThatAreThere()
{
    QFile file(shippedSheet());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString sheet = QString::fromUtf8(file.readAll());
    static const QRegularExpression place("url\\('([^']+)'\\)");
    int places = 0;
    for (auto match = place.globalMatch(sheet); match.hasNext(); ++places) {
        const QString path =
            QCoreApplication::applicationDirPath() + "/../gallery/bin/" + match.next().captured(1);
        QVERIFY2(!QImage(path).isNull(), qPrintable(path));
    }
    QVERIFY(places > 0);
    QCOMPARE(places, sheet.count("url("));
}

void TestLanguagePageStyle::shippedSheetNamesNoTextColours()
{
    QFile file(shippedSheet());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString sheet = QString::fromUtf8(file.readAll());
    static const QRegularExpression fixedColour("#[0-9a-fA-F]{3,8}\\b|rgba?\\(|[\\s{;]color\\s*:");

    QVERIFY2(!sheet.contains(fixedColour), qPrintable(fixedColour.match(sheet).captured()));
}

/// The style draws the part of the text on the bar in another colour, a sheet does not.
void TestLanguagePageStyle::shippedSheetLeavesTheProgressReadable()
{
    chooseShippedCopy();
    auto *progress = page->findChild<StyleSamplePanel *>()->findChild<QProgressBar *>();

    progress->setValue(progress->maximum());

    QCOMPARE(groundOf(*progress), progress->palette().base().color());
    const QColor bar = progress->palette().highlight().color();
    const QPixmap picture = progress->grab();
    QCOMPARE(picture.toImage().pixelColor(picture.width() / 4, picture.height() - 4), bar);
}

void TestLanguagePageStyle::shippedSheetLeavesRoomForTheSignsOfTheBar()
{
    chooseShippedCopy();
    TXSelectionItemWidget bar;
    bar.show();

    int buttons = 0;
    const auto children = bar.findChildren<QPushButton *>();
    for (const QPushButton *button : children) {
        QStyleOptionButton option;
        option.initFrom(button);
        const QRect room =
            button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
        QVERIFY(room.width() >= button->fontMetrics().horizontalAdvance(button->text()));
        ++buttons;
    }
    QCOMPARE(buttons, 7);
}

void TestLanguagePageStyle::pictureShowsTheShippedSheet()
{
    // There is none beside a test: what is shown is why.
    page->fillForPicture();

    const bool isThere = QFile::exists(StyleSheets::folder() + u'/' + StyleSheets::shippedName());
    QCOMPARE(isRead(*page, "No Style has been loaded."), !isThere);
    QCOMPARE(textShown(), qApp->styleSheet());
}

void TestLanguagePageStyle::sampleIsAlive()
{
    const auto *sample = page->findChild<StyleSamplePanel *>();
    auto *copies = sample->findChild<QSpinBox *>();
    const auto *progress = sample->findChild<QProgressBar *>();
    QCOMPARE(progress->value(), copies->value());

    QTest::keyClick(copies, Qt::Key_Up);

    QCOMPARE(progress->value(), 6);
}

void TestLanguagePageStyle::fontsAreShownInThemselves()
{
    const QTemporaryDir folder;
    QVERIFY2(QFile::copy(anyFontFile(), folder.filePath("letters.ttf")), "no font on this system");
    FontsPanel panel(folder.path());
    panel.show();

    QVERIFY(isRead(panel, "DejaVu Sans, from letters.ttf"));
    const auto *specimen = controlOf<QLabel>(panel, "Specimen of DejaVu Sans");
    QVERIFY(specimen);
    QCOMPARE(specimen->font().family(), "DejaVu Sans");
    QVERIFY(specimen->text().startsWith("Aa Bb"));
}

void TestLanguagePageStyle::fileThatIsNoFontIsNamedAsSuch()
{
    const QTemporaryDir folder;
    QVERIFY(write(folder.filePath("rubbish.ttf"), "no font"));
    FontsPanel panel(folder.path());
    panel.show();

    QVERIFY(isRead(panel, "rubbish.ttf"));
    QVERIFY(isRead(panel, "This file is no font."));
}

void TestLanguagePageStyle::missingFontsAreTold()
{
    FontsPanel panel("/nowhere/fonts");
    panel.show();

    QVERIFY(isRead(panel, "There are no fonts in " + QDir::toNativeSeparators("/nowhere/fonts")));
}

void TestLanguagePageStyle::textsFollowTheLanguage()
{
    QVERIFY(QFile::remove(StyleSheets::folder() + u'/' + kSheet));
    emit sheetBox()->activated(sheetBox()->findText(kSheet));
    CapitalTranslator capitals;
    QVERIFY(QCoreApplication::installTranslator(&capitals));
    QTRY_VERIFY(isRead(*page, "NO STYLE HAS BEEN LOADED."));

    QCOMPARE(smallTexts(*page->findChild<StyleSheetPanel *>(), {}), QStringList());
    QCOMPARE(smallTexts(*page->findChild<StyleSamplePanel *>(), {}), QStringList());
    QVERIFY(QCoreApplication::removeTranslator(&capitals));
    QCoreApplication::sendPostedEvents();
}

int main(int argc, char **argv)
{
    return runTest<TestLanguagePageStyle>(argc, argv);
}

#include "tst_LanguagePageStyle.moc"
