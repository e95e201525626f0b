#include "ReportPageTest.h"

#include <QApplication>
#include <QFile>

namespace {

/// The button of this text, or else the control of this name.
QWidget *widgetOf(const QWidget &page, const QString &name)
{
    QWidget *button = buttonOf(page, name);
    return button ? button : controlOf<QWidget>(page, name);
}

} // namespace

/// What may happen to the page, its window and the keyboard while a report is written.
class TestReportPageWorking : public ReportPageTest
{
    Q_OBJECT

private slots:
    void pageDestroyedWhileExportingEndsIt();
    void panelDestroyedByItselfEndsIt();
    void windowClosedWhileExportingEndsIt();
    void languageMayChangeWhileExporting();
    void windowDestroyedWithItsDialogOpenEndsIt_data();
    void windowDestroyedWithItsDialogOpenEndsIt();
    void windowDestroyedAfterItsDialogEndsIt_data();
    void windowDestroyedAfterItsDialogEndsIt();
    void keyboardStaysWhileWorking_data();
    void keyboardStaysWhileWorking();
    void keyboardComesToExportWhenNothingHadIt();
};

void TestReportPageWorking::pageDestroyedWhileExportingEndsIt()
{
    duringExport([this] { window.reset(); });

    QVERIFY(!window);
    QVERIFY(isNothingWritten());
}

/// Never shown, it is never hidden either.
void TestReportPageWorking::panelDestroyedByItselfEndsIt()
{
    auto panel = std::make_unique<ReportOutputPanel>();
    connect(panel->findChild<QProgressBar *>(), &QProgressBar::valueChanged, panel.get(),
            [&panel] { QTimer::singleShot(0, panel.get(), [&panel] { panel.reset(); }); });

    panel->writePdf(path());

    QVERIFY(!panel);
    QVERIFY(isNothingWritten());
}

void TestReportPageWorking::windowClosedWhileExportingEndsIt()
{
    duringExport([this] { window->close(); });

    QVERIFY(isNothingWritten());
    QVERIFY(!output()->isBusy());
}

void TestReportPageWorking::languageMayChangeWhileExporting()
{
    CapitalTranslator translator;
    duringExport([&translator] { QCoreApplication::installTranslator(&translator); });
    QCoreApplication::processEvents();

    QVERIFY(QFile::exists(path()));
    QVERIFY(buttonOf(*window, "OPEN PDF")->isEnabled());
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();
}

void TestReportPageWorking::windowDestroyedWithItsDialogOpenEndsIt_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("export") << "Export PDF...";
    QTest::newRow("print") << "Print...";
}

void TestReportPageWorking::windowDestroyedWithItsDialogOpenEndsIt()
{
    QFETCH(QString, button);
    DialogDriver driver;
    driver.expect([this](QDialog & /*dialog*/) { window.reset(); });

    DialogDriver::click(buttonOf(*window, button));

    QVERIFY(!window);
    QVERIFY(isNothingWritten());
}

void TestReportPageWorking::windowDestroyedAfterItsDialogEndsIt_data()
{
    windowDestroyedWithItsDialogOpenEndsIt_data();
}

void TestReportPageWorking::windowDestroyedAfterItsDialogEndsIt()
{
    QFETCH(QString, button);

    during([this, button] { clickAndAccept(button); }, [this] { window.reset(); });

    QVERIFY(!window);
}

void TestReportPageWorking::keyboardStaysWhileWorking_data()
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

void TestReportPageWorking::keyboardStaysWhileWorking()
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

void TestReportPageWorking::keyboardComesToExportWhenNothingHadIt()
{
    QVERIFY(window->focusWidget());
    window->focusWidget()->clearFocus();
    QVERIFY(!window->focusWidget());

    duringExport([this] { DialogDriver::click(buttonOf(*window, "Cancel")); });

    QVERIFY(buttonOf(*window, "Export PDF...")->hasFocus());
}

int main(int argc, char **argv)
{
    return runTest<TestReportPageWorking>(argc, argv);
}

#include "tst_ReportPageWorking.moc"
