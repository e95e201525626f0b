#include "ReportPageTest.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QSpinBox>

/// The page with its choices, and its view of the report.
class TestReportPage : public ReportPageTest
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
};

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
    // Within the whole pixels of a page of some hundred.
    const auto isHighByWidth = [this](double expected) {
        const QSize size = view()->pageRect(0).size();
        return qAbs(double(size.height()) / size.width() - expected) < 0.005;
    };
    QVERIFY(isHighByWidth(297.0 / 210));
    controlOf<QComboBox>(*window, "Paper")->setCurrentIndex(1);
    QVERIFY(isHighByWidth(11 / 8.5));
    controlOf<QComboBox>(*window, "Orientation")->setCurrentText("Landscape");
    QVERIFY(isHighByWidth(8.5 / 11));
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

int main(int argc, char **argv)
{
    return runTest<TestReportPage>(argc, argv);
}

#include "tst_ReportPage.moc"
