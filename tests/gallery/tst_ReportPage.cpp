#include "DialogDriver.h"
#include "GalleryLanguages.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"
#include "PdfFile.h"
#include "ReportOutputPanel.h"
#include "ReportPage.h"
#include "ReportView.h"
#include "TestBase.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <memory>

namespace {

void acceptExport(QDialog &dialog, const QString &file)
{
    auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
    QVERIFY(name);
    // Without its suffix, which the dialog adds.
    name->setText(QString(file).remove(".pdf"));
    DialogDriver::click(dialog, QDialogButtonBox::Save);
}

/// Takes the printer that writes a file, which the dialog offers beside those of the system.
void acceptPrinting(QDialog &dialog, const QString &file)
{
    auto *printers = dialog.findChild<QComboBox *>("printers");
    auto *name = dialog.findChild<QLineEdit *>("filename");
    QVERIFY(printers && name);
    printers->setCurrentText("Print to File (PDF)");
    QVERIFY(name->isEnabled());
    name->setText(file);
    DialogDriver::click(buttonOf(dialog, "Print"));
}

/// The button of this text, or else the control of this name.
QWidget *widgetOf(const QWidget &page, const QString &name)
{
    QWidget *button = buttonOf(page, name);
    return button ? button : controlOf<QWidget>(page, name);
}

/// Only pages that the report does not have.
void chooseMissingPages(QDialog &dialog)
{
    constexpr int kMissingPage = 900;
    DialogDriver::click(buttonOf(dialog, "Options >>"));
    DialogDriver::click(dialog.findChild<QRadioButton *>("printRange"));
    for (const char *name : {"to", "from"}) {
        auto *box = dialog.findChild<QSpinBox *>(name);
        QVERIFY(box && box->isVisible() && box->isEnabled());
        box->setValue(kMissingPage);
        QCOMPARE(box->value(), kMissingPage);
    }
}

} // namespace

class TestReportPage : public TestBase
{
    Q_OBJECT

private slots:
    void pageFitsTheWindow();
    void mnemonicsAreNotShared();
    void everyControlHasANameAndIsReachedByTab();
    void textsFollowTheLanguage();
    void choicesChangeTheReport();
    void paperIsTheChosenOne();
    void pageNumberAndZoomFollowTheView();
    void pageNumberAndZoomSteerTheView();
    void fittedSizeCanBeKept();
    void exportWritesAPdfThatIsOpened();
    void exportThatIsNotWantedWritesNothing();
    void controlsAreDisabledWhileExporting();
    void cancelLeavesNoFile();
    void cancelKeepsTheEarlierFile();
    void failureIsShown();
    void pageDestroyedWhileExportingEndsIt();
    void panelDestroyedByItselfEndsIt();
    void windowClosedWhileExportingEndsIt();
    void languageMayChangeWhileExporting();
    void windowDestroyedWithItsDialogOpenEndsIt_data();
    void windowDestroyedWithItsDialogOpenEndsIt();
    void windowDestroyedAfterItsDialogEndsIt_data();
    void windowDestroyedAfterItsDialogEndsIt();
    void printDialogIsOffered();
    void printerGetsTheReport();
    void cancelledPrintIsTold();
    void failedPrintIsTold();
    void fileThatNothingOpensIsTold();
    void keyboardStaysWhileWorking_data();
    void keyboardStaysWhileWorking();
    void keyboardComesToExportWhenNothingHadIt();

public slots:
    void takeUrl(const QUrl &url) { openedUrl = url; }

protected:
    void prepare() override;
    void finish() override;

private:
    using Action = std::function<void()>;

    void during(const Action &work, const Action &action);
    void duringExport(const Action &action);
    void clickAndAccept(const QString &button);
    void openPdf();
    [[nodiscard]] QString path() const { return folder->filePath("report.pdf"); }
    [[nodiscard]] ReportOutputPanel *output() const
    {
        return window->findChild<ReportOutputPanel *>();
    }
    [[nodiscard]] ReportView *view() const { return window->findChild<ReportView *>(); }

    std::unique_ptr<GalleryLanguages> languages;
    std::unique_ptr<GalleryWindow> window;
    std::unique_ptr<QTemporaryDir> folder;
    QUrl openedUrl;
};

void TestReportPage::prepare()
{
    folder = std::make_unique<QTemporaryDir>();
    GallerySettings settings;
    settings.page = "report";
    languages = std::make_unique<GalleryLanguages>(QString());
    window = std::make_unique<GalleryWindow>(*languages, settings);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    QVERIFY(qobject_cast<ReportPage *>(window->currentPage()));
}

void TestReportPage::finish()
{
    window.reset();
    languages.reset();
    folder.reset();
    QLocale::setDefault(QLocale::system());
}

/// Works, and acts once in the middle of it, when events are handled.
void TestReportPage::during(const Action &work, const Action &action)
{
    QObject context;
    bool isDue = true;
    connect(window->findChild<QProgressBar *>(), &QProgressBar::valueChanged, &context,
            [&](int value) {
                if (isDue && value > 0 && value < 100) {
                    isDue = false;
                    QTimer::singleShot(0, &context, action);
                }
            });
    work();
    QVERIFY(!isDue);
}

void TestReportPage::duringExport(const Action &action)
{
    during([this] { output()->writePdf(path()); }, action);
}

/// Exports, or prints to a file, by the button and its dialog.
void TestReportPage::clickAndAccept(const QString &button)
{
    DialogDriver driver;
    driver.expect([this](QDialog &dialog) {
        if (dialog.inherits("QPrintDialog")) {
            acceptPrinting(dialog, path());
        } else {
            acceptExport(dialog, path());
        }
    });
    DialogDriver::click(buttonOf(*window, button));
}

/// With openedUrl instead of a program.
void TestReportPage::openPdf()
{
    QDesktopServices::setUrlHandler("file", this, "takeUrl");
    DialogDriver::click(buttonOf(*window, "Open PDF"));
    QDesktopServices::unsetUrlHandler("file");
}

void TestReportPage::pageFitsTheWindow()
{
    const QWidget *viewport = window->currentPage()->parentWidget();

    QVERIFY(window->currentPage()->width() <= viewport->width());
    QVERIFY(window->currentPage()->height() <= viewport->height());
}

void TestReportPage::mnemonicsAreNotShared()
{
    QVERIFY(buttonOf(*window, "Export PDF..."));
    QCOMPARE(clashingMnemonics(*window), QStringList());
}

void TestReportPage::everyControlHasANameAndIsReachedByTab()
{
    QCOMPARE(namelessControls(*window), QStringList());
    QCOMPARE(controlsOutOfReach(*window), QStringList());
}

void TestReportPage::textsFollowTheLanguage()
{
    CapitalTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCoreApplication::processEvents();

    QCOMPARE(smallTexts(*window->currentPage(), {}), QStringList());
    QCOMPARE(controlOf<QComboBox>(*window, "FORMULA")->itemText(1), "CIEDE2000");
    QCOMPARE(controlOf<QComboBox>(*window, "ZOOM")->itemText(0), "FIT WIDTH");
    QCOMPARE(controlOf<QComboBox>(*window, "PAPER")->itemText(1), "LETTER / ANSI A");
    QVERIFY(controlOf<ReportView>(*window, "PAGES OF THE REPORT"));

    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
    QVERIFY(buttonOf(*window, "Export PDF..."));
}

void TestReportPage::choicesChangeTheReport()
{
    const QImage before = view()->viewport()->grab().toImage();
    QCOMPARE(view()->viewport()->grab().toImage(), before);

    controlOf<QDoubleSpinBox>(*window, "Tolerance")->setValue(2.5);
    const QImage tolerant = view()->viewport()->grab().toImage();
    QVERIFY(tolerant != before);

    controlOf<QComboBox>(*window, "Formula")->setCurrentText("CIE76");
    QVERIFY(view()->viewport()->grab().toImage() != tolerant);

    view()->goToPage(2);
    const QImage largestFirst = view()->viewport()->grab().toImage();
    controlOf<QComboBox>(*window, "Order of the pairs")->setCurrentText("By number");
    QVERIFY(view()->viewport()->grab().toImage() != largestFirst);
}

void TestReportPage::paperIsTheChosenOne()
{
    const auto proportions = [this] {
        const QSize size = view()->pageRect(0).size();
        return qRound(100.0 * size.height() / size.width());
    };
    QCOMPARE(proportions(), 142);
    controlOf<QComboBox>(*window, "Paper")->setCurrentIndex(1);
    QCOMPARE(proportions(), 129);
    controlOf<QComboBox>(*window, "Orientation")->setCurrentText("Landscape");
    QCOMPARE(proportions(), 77);
}

void TestReportPage::pageNumberAndZoomFollowTheView()
{
    auto *number = controlOf<QSpinBox>(*window, "Page");
    auto *zoom = controlOf<QComboBox>(*window, "Zoom");
    QCOMPARE(number->value(), 1);
    QCOMPARE(number->maximum(), view()->pageCount());
    QVERIFY(isRead(*window, QStringLiteral("of %1").arg(view()->pageCount())));
    QCOMPARE(zoom->currentText(), "Fit width");

    view()->setFocus();
    QTest::keyClick(view(), Qt::Key_PageDown);
    QCOMPARE(number->value(), 2);
    view()->setZoomPercent(150);
    QCOMPARE(zoom->currentText(), "150 %");
    QTest::keyClick(view(), Qt::Key_Plus);
    QCOMPARE(zoom->currentText(), "188 %");
    view()->setZoomPercent(400);
    QVERIFY(!controlOf<QAbstractButton>(*window, "Larger")->isEnabled());
}

void TestReportPage::pageNumberAndZoomSteerTheView()
{
    auto *number = controlOf<QSpinBox>(*window, "Page");
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, "3");
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(view()->currentPage(), 2);
    DialogDriver::click(controlOf<QAbstractButton>(*window, "Next page"));
    QCOMPARE(view()->currentPage(), 3);
    DialogDriver::click(controlOf<QAbstractButton>(*window, "Previous page"));
    QCOMPARE(view()->currentPage(), 2);

    auto *zoom = controlOf<QComboBox>(*window, "Zoom");
    zoom->setFocus();
    QTest::keyClick(zoom, Qt::Key_Down);
    QVERIFY(view()->zoomMode() == ReportView::ZoomMode::FitPage);
    QTest::keyClick(zoom, Qt::Key_End);
    QCOMPARE(view()->zoomPercent(), 400.0);
    DialogDriver::click(controlOf<QAbstractButton>(*window, "Smaller"));
    QCOMPARE(view()->zoomPercent(), 320.0);
}

/// The line of a fitted size keeps it, also below the smallest size.
void TestReportPage::fittedSizeCanBeKept()
{
    auto *zoom = controlOf<QComboBox>(*window, "Zoom");
    view()->setZoomMode(ReportView::ZoomMode::FitPage);
    view()->setMaximumHeight(200);
    QTRY_VERIFY(view()->zoomPercent() < ReportView::kSmallestZoomPercent);
    const double fitted = view()->zoomPercent();
    QVERIFY(!controlOf<QAbstractButton>(*window, "Smaller")->isEnabled());
    QCOMPARE(zoom->itemText(2), QStringLiteral("%1 %").arg(qRound(fitted)));

    zoom->setFocus();
    QTest::keyClick(zoom, Qt::Key_Down);

    QVERIFY(view()->zoomMode() == ReportView::ZoomMode::Fixed);
    QCOMPARE(view()->zoomPercent(), fitted);
}

void TestReportPage::exportWritesAPdfThatIsOpened()
{
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
    clickAndAccept("Export PDF...");

    QCOMPARE(window->findChild<QProgressBar *>()->value(), 100);
    PdfFile file(path());
    const QStringList pages = file.pageTexts();
    QCOMPARE(file.errorText(), QString());
    QCOMPARE(pages.size(), view()->pageCount());
    QVERIFY(pages.at(1).contains("Purplish blue"));
    const QString ending = QStringLiteral("%1 page(s) in \"report.pdf\"").arg(pages.size());
    QVERIFY(isRead(*window, ending));

    openPdf();
    QCOMPARE(openedUrl, QUrl::fromLocalFile(path()));
}

void TestReportPage::exportThatIsNotWantedWritesNothing()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { DialogDriver::click(dialog, QDialogButtonBox::Cancel); });
    DialogDriver::click(buttonOf(*window, "Export PDF..."));

    QVERIFY(!output()->isBusy());
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
}

void TestReportPage::controlsAreDisabledWhileExporting()
{
    QSignalSpy busy(output(), SIGNAL(busyChanged(bool)));
    duringExport([this] {
        QVERIFY(output()->isBusy());
        QVERIFY(!buttonOf(*window, "Export PDF...")->isEnabled());
        QVERIFY(!buttonOf(*window, "Print...")->isEnabled());
        QVERIFY(!controlOf<QComboBox>(*window, "Paper")->isEnabled());
        QVERIFY(buttonOf(*window, "Cancel")->isEnabled());
        // A second one is not begun.
        output()->writePdf(folder->filePath("second.pdf"));
    });
    QCOMPARE(busy.size(), 2);
    QVERIFY(QFile::exists(path()));
    QVERIFY(!QFile::exists(folder->filePath("second.pdf")));
    const QString ending = QStringLiteral("%1 page(s) in \"report.pdf\"").arg(view()->pageCount());
    QVERIFY(isRead(*window, ending));
    openPdf();
    QCOMPARE(openedUrl, QUrl::fromLocalFile(path()));
    QVERIFY(buttonOf(*window, "Export PDF...")->isEnabled());
    QVERIFY(controlOf<QComboBox>(*window, "Paper")->isEnabled());
    QVERIFY(!buttonOf(*window, "Cancel")->isEnabled());
}

void TestReportPage::cancelLeavesNoFile()
{
    duringExport([this] { DialogDriver::click(buttonOf(*window, "Cancel")); });

    QVERIFY(QDir(folder->path()).isEmpty());
    QVERIFY(isRead(*window, "Cancelled, nothing was written."));
    QCOMPARE(window->findChild<QProgressBar *>()->value(), 0);
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
}

void TestReportPage::cancelKeepsTheEarlierFile()
{
    output()->writePdf(path());
    const qint64 size = QFileInfo(path()).size();
    QVERIFY(size > 0);

    duringExport([this] { DialogDriver::click(buttonOf(*window, "Cancel")); });

    QCOMPARE(QFileInfo(path()).size(), size);
}

void TestReportPage::failureIsShown()
{
    DialogDriver driver;
    driver.expectMessageBox([this](QMessageBox &box) {
        QCOMPARE(box.icon(), QMessageBox::Critical);
        QVERIFY2(!box.text().isEmpty(), "without a reason");
        QVERIFY(!output()->isBusy());
        DialogDriver::click(box.button(QMessageBox::Ok));
    });
    output()->writePdf(folder->filePath("missing/report.pdf"));

    QVERIFY(isRead(*window, "Nothing was written."));
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
}

void TestReportPage::pageDestroyedWhileExportingEndsIt()
{
    duringExport([this] { window.reset(); });

    QVERIFY(!window);
    QVERIFY(QDir(folder->path()).isEmpty());
}

/// Never shown, it is never hidden either.
void TestReportPage::panelDestroyedByItselfEndsIt()
{
    auto panel = std::make_unique<ReportOutputPanel>();
    connect(panel->findChild<QProgressBar *>(), &QProgressBar::valueChanged, panel.get(),
            [&panel] { QTimer::singleShot(0, panel.get(), [&panel] { panel.reset(); }); });

    panel->writePdf(path());

    QVERIFY(!panel);
    QVERIFY(QDir(folder->path()).isEmpty());
}

void TestReportPage::windowClosedWhileExportingEndsIt()
{
    duringExport([this] { window->close(); });

    QVERIFY(QDir(folder->path()).isEmpty());
    QVERIFY(!output()->isBusy());
}

void TestReportPage::languageMayChangeWhileExporting()
{
    CapitalTranslator translator;
    duringExport([&translator] { QCoreApplication::installTranslator(&translator); });
    QCoreApplication::processEvents();

    QVERIFY(QFile::exists(path()));
    QVERIFY(buttonOf(*window, "OPEN PDF")->isEnabled());
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
}

void TestReportPage::windowDestroyedWithItsDialogOpenEndsIt_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("export") << "Export PDF...";
    QTest::newRow("print") << "Print...";
}

void TestReportPage::windowDestroyedWithItsDialogOpenEndsIt()
{
    QFETCH(QString, button);
    DialogDriver driver;
    driver.expect([this](QDialog & /*dialog*/) { window.reset(); });

    DialogDriver::click(buttonOf(*window, button));

    QVERIFY(!window);
    QVERIFY(QDir(folder->path()).isEmpty());
}

void TestReportPage::windowDestroyedAfterItsDialogEndsIt_data()
{
    windowDestroyedWithItsDialogOpenEndsIt_data();
}

void TestReportPage::windowDestroyedAfterItsDialogEndsIt()
{
    QFETCH(QString, button);

    during([this, button] { clickAndAccept(button); }, [this] { window.reset(); });

    QVERIFY(!window);
}

void TestReportPage::printDialogIsOffered()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) {
        QVERIFY(dialog.inherits("QPrintDialog"));
        dialog.reject();
    });
    DialogDriver::click(buttonOf(*window, "Print..."));

    QVERIFY(!output()->isBusy());
}

void TestReportPage::printerGetsTheReport()
{
    clickAndAccept("Print...");

    PdfFile file(path());
    const QStringList pages = file.pageTexts();
    QCOMPARE(file.errorText(), QString());
    QCOMPARE(pages.size(), view()->pageCount());
    QVERIFY(pages.at(1).contains("Purplish blue"));
    QVERIFY(isRead(*window, "Printed."));
    QCOMPARE(window->findChild<QProgressBar *>()->value(), 100);
    QVERIFY(!buttonOf(*window, "Open PDF")->isEnabled());
}

void TestReportPage::cancelledPrintIsTold()
{
    during([this] { clickAndAccept("Print..."); },
           [this] { DialogDriver::click(buttonOf(*window, "Cancel")); });

    QVERIFY(isRead(*window, "Cancelled, some pages may be printed."));
    QCOMPARE(window->findChild<QProgressBar *>()->value(), 0);
    QVERIFY(!output()->isBusy());
}

void TestReportPage::failedPrintIsTold()
{
    DialogDriver driver;
    driver.expect([this](QDialog &dialog) {
        chooseMissingPages(dialog);
        acceptPrinting(dialog, path());
    });
    driver.expectMessageBox([](QMessageBox &box) {
        QCOMPARE(box.icon(), QMessageBox::Critical);
        QCOMPARE(box.text(), "The report has none of the pages that are to be printed.");
        DialogDriver::click(box.button(QMessageBox::Ok));
    });
    DialogDriver::click(buttonOf(*window, "Print..."));

    QVERIFY(isRead(*window, "Printing has failed."));
    QVERIFY(QDir(folder->path()).isEmpty());
}

void TestReportPage::fileThatNothingOpensIsTold()
{
    output()->writePdf(path());
    DialogDriver driver;
    driver.expectMessageBox([this](QMessageBox &box) {
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QCOMPARE(box.text(), QStringLiteral("No program opens the file \"%1\".").arg(path()));
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    // What is to take the file cannot: so no program of this system is started.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No such method .*::takeNothing"));
    QDesktopServices::setUrlHandler("file", this, "takeNothing");
    DialogDriver::click(buttonOf(*window, "Open PDF"));
    QDesktopServices::unsetUrlHandler("file");
}

void TestReportPage::keyboardStaysWhileWorking_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("during");
    QTest::newRow("export button") << "Export PDF..."
                                   << "Cancel";
    QTest::newRow("print button") << "Print..."
                                  << "Cancel";
    QTest::newRow("choice") << "Paper"
                            << "Cancel";
    QTest::newRow("pages") << "Pages of the report"
                           << "Pages of the report";
}

void TestReportPage::keyboardStaysWhileWorking()
{
    QFETCH(QString, before);
    QFETCH(QString, during);
    QWidget *first = widgetOf(*window, before);
    QWidget *second = widgetOf(*window, during);
    QVERIFY(first && second);
    first->setFocus();
    QVERIFY(first->hasFocus());
    QList<QWidget *> visited;
    QObject context;
    connect(qApp, &QApplication::focusChanged, &context,
            [&visited](QWidget *, QWidget *now) { visited.append(now); });

    duringExport([second] { QVERIFY(second->hasFocus()); });

    QVERIFY(first->hasFocus());
    // Not by way of other controls, which would be read out.
    const bool isStep = first != second && before != "Paper";
    QVERIFY(!isStep || visited == QList<QWidget *>({second, first}));
}

void TestReportPage::keyboardComesToExportWhenNothingHadIt()
{
    QVERIFY(window->focusWidget());
    window->focusWidget()->clearFocus();
    QVERIFY(!window->focusWidget());

    duringExport([this] { DialogDriver::click(buttonOf(*window, "Cancel")); });

    QVERIFY(buttonOf(*window, "Export PDF...")->hasFocus());
}

int main(int argc, char **argv)
{
    return runTest<TestReportPage>(argc, argv);
}

#include "tst_ReportPage.moc"
