#include "LanguageBox.h"
#include "PixelProbe.h"
#include "Samples.h"

#include "ConfWidget.h"
#include "DialogDriver.h"
#include "EMailSenderWidget.h"
#include "IWidgetPlugin.h"
#include "TXError.h"
#include "TXStringI18n.h"
#include "TestBase.h"
#include "WidgetPluginManager.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kProgramMilliseconds = 60000;

QString pathFromProgram(const QString &path)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + path);
}

QString labelText(const QWidget &widget)
{
    return widget.findChild<QLabel *>()->text();
}

/// Whether a label of the widget has this text, written without "&".
bool says(const QWidget &widget, const QString &text)
{
    const auto labels = widget.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&text](const QLabel *label) { return label->text().remove(u'&') == text; });
}

} // namespace

/// What the guide says of the program, its folders, plug-ins, style and language.
class TestGuideStart : public TestBase
{
    Q_OBJECT

protected:
    void finish() override;

private slots:
    void theProgramShowsItsLog();
    void aPluginBringsItsPage();
    void aPageSavesWhatItsUserChose();
    void theStyleSheetColoursAndFindsItsPicture();
    void aMissingStyleSheetIsTold();
    void thePaletteReachesWidgetsUnderAStyleSheet();
    void aChosenLanguageReachesItsOwnTexts();
    void aChosenLanguageReachesTheLibrary();
    void aTextMadeBeforeIsShownInTheNewLanguage();
    void arabicRunsFromRightToLeft();
};

void TestGuideStart::finish()
{
    qApp->setStyleSheet(QString());
    QApplication::setPalette(QPalette());
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QLocale::setDefault(QLocale::c());
}

void TestGuideStart::theProgramShowsItsLog()
{
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(pathFromProgram(QStringLiteral("PatchReader")), QStringList());
    QVERIFY2(program.waitForFinished(kProgramMilliseconds), qPrintable(program.errorString()));
    const QByteArray output = program.readAll();
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), 0);
    QVERIFY2(output.contains("Patchworks/PatchReader: PatchReader has started\n"),
             output.constData());
}

void TestGuideStart::aPluginBringsItsPage()
{
    const WidgetPluginManager manager;
    QTabWidget tabs;
    addPluginPages(manager, &tabs);
    QVERIFY(manager.plugin(QStringLiteral("Scanner")));
    QCOMPARE(tabs.count(), 1);
    QCOMPARE(tabs.tabText(0), QStringLiteral("Scanner"));
    QCOMPARE(tabs.widget(0)->findChild<QSpinBox *>()->value(), 300);
}

void TestGuideStart::aPageSavesWhatItsUserChose()
{
    const WidgetPluginManager manager;
    QTabWidget tabs;
    addPluginPages(manager, &tabs);
    auto *page = qobject_cast<ConfWidget *>(tabs.widget(0));
    const QSignalSpy changes(page, SIGNAL(confWidgetChanged()));
    page->load({{QStringLiteral("ScannerResolution"), 600}});
    QCOMPARE(changes.count(), 0);
    page->findChild<QSpinBox *>()->setValue(1200);
    QCOMPARE(changes.count(), 1);
    savePluginPages(tabs);

    QTabWidget next;
    addPluginPages(manager, &next);
    QCOMPARE(next.widget(0)->findChild<QSpinBox *>()->value(), 1200);
}

void TestGuideStart::theStyleSheetColoursAndFindsItsPicture()
{
    QWidget window;
    auto *button = new QPushButton(QStringLiteral("Read"), &window);
    button->setObjectName(QStringLiteral("readButton"));
    auto *paper = new QLabel(&window);
    paper->setObjectName(QStringLiteral("paper"));
    auto *rows = new QVBoxLayout(&window);
    rows->addWidget(button);
    rows->addWidget(paper);
    QVERIFY(applyStyle(&window));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (const qreal ratio : {1.0, 2.0}) {
        QVERIFY(PixelProbe(*button, ratio).isNear({4, 4}, QColor(0x2f, 0x6f, 0x4f)));
        QVERIFY(PixelProbe(*paper, ratio).isNear({16, 16}, QColor(0xf2, 0xe8, 0xd0)));
    }
}

void TestGuideStart::aMissingStyleSheetIsTold()
{
    const QString sheet = pathFromProgram(QStringLiteral("../Resources/Templates/PatchReader.css"));
    QVERIFY(QFile::rename(sheet, sheet + QStringLiteral(".away")));
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        QCOMPARE(box.icon(), QMessageBox::Warning);
        DialogDriver::click(box, QDialogButtonBox::Ok);
    });
    const bool isApplied = applyStyle(nullptr);
    QVERIFY(QFile::rename(sheet + QStringLiteral(".away"), sheet));
    QVERIFY(!isApplied);
}

void TestGuideStart::thePaletteReachesWidgetsUnderAStyleSheet()
{
    QWidget window;
    QVERIFY(applyStyle(&window));
    const QString sheet = qApp->styleSheet();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    changePalette(dark);
    QVERIFY(PixelProbe(window).isNear({5, 5}, QColor(0x20, 0x20, 0x20)));
    QCOMPARE(qApp->styleSheet(), sheet);
}

void TestGuideStart::aChosenLanguageReachesItsOwnTexts()
{
    LanguageBox box;
    QCOMPARE(labelText(box), QStringLiteral("&Language:"));
    box.use(QStringLiteral("de"));
    QTRY_COMPARE(labelText(box), QStringLiteral("&Sprache:"));
    box.use(QStringLiteral("en"));
    QTRY_COMPARE(labelText(box), QStringLiteral("&Language:"));
}

void TestGuideStart::aChosenLanguageReachesTheLibrary()
{
    LanguageBox box;
    const EMailSenderWidget panel;
    QVERIFY(says(panel, QStringLiteral("SMTP Server:")));
    box.use(QStringLiteral("de"));
    QTRY_VERIFY(says(panel, QStringLiteral("SMTP-Server:")));
    box.use(QStringLiteral("en"));
    QTRY_VERIFY(says(panel, QStringLiteral("SMTP Server:")));
}

void TestGuideStart::aTextMadeBeforeIsShownInTheNewLanguage()
{
    TXError error;
    QVERIFY(!importFolder({QStringLiteral("/nowhere/a.txt"), QStringLiteral("/nowhere/b.txt")},
                          &error));
    LanguageBox box;
    box.use(QStringLiteral("de"));
    QCOMPARE(error.getLocalizedDescription(), QStringLiteral("2 Dateien wurden ausgelassen."));
    const QString stored =
        TXStringI18n("Import", "Import of %1", nullptr, -1).arg(QStringLiteral("a")).toFlatString();
    QCOMPARE(TXStringI18n::fromString(stored).toString(), QStringLiteral("Einlesen von a"));
}

void TestGuideStart::arabicRunsFromRightToLeft()
{
    LanguageBox box;
    box.use(QStringLiteral("ar"));
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    QCOMPARE(box.layoutDirection(), Qt::RightToLeft);
    box.use(QStringLiteral("de"));
    QCOMPARE(box.layoutDirection(), Qt::LeftToRight);
}

int main(int argc, char **argv)
{
    return runTest<TestGuideStart>(argc, argv);
}

#include "tst_GuideStart.moc"
