#include "AboutWindow.h"
#include "PixelProbe.h"
#include "Samples.h"

#include "DialogDriver.h"
#include "DoubleSpinBoxWithSliderWidget.h"
#include "TXDBNavWidget.h"
#include "TXFileDialog.h"
#include "TXImageViewer.h"
#include "TXProgressBar.h"
#include "TXSelectionItemWidget.h"
#include "TXSqlTableModel.h"
#include "TXSwitchSlider.h"
#include "TXVariantViewer.h"
#include "TXWidgetListWidget.h"
#include "TestBase.h"
#include "WaitWidget.h"

#include <QComboBox>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

#include <sys/stat.h>

namespace {

constexpr int kLookMilliseconds = 20;
constexpr int kHoldMilliseconds = 30000;

QPushButton *button(const QWidget &dialog, const char *name)
{
    return dialog.findChild<QPushButton *>(QLatin1String(name));
}

void enterFirstPassword(QDialog &dialog)
{
    for (const char *field : {"password1_lineEdit", "password2_lineEdit"}) {
        dialog.findChild<QLineEdit *>(QLatin1String(field))->setText(QStringLiteral("abc"));
    }
    DialogDriver::click(button(dialog, "apply_pushButton"));
}

void makeMeasurements(int count)
{
    QSqlQuery query;
    QVERIFY(query.exec(QStringLiteral("create table measurements (id integer, de real)")));
    QVERIFY(query.prepare(QStringLiteral("insert into measurements values (?, ?)")));
    for (int id = 0; id < count; ++id) {
        query.addBindValue(id);
        query.addBindValue(id / 10.0);
        QVERIFY(query.exec());
    }
}

} // namespace

/// What the guide says of controls, viewers, progress, the lock and what else there is.
class TestGuideWidgets : public TestBase
{
    Q_OBJECT

private slots:
    void theSwitchOfTheFormTurnsThePassesOff();
    void theToleranceHasItsRange();
    void theHostRemovesThePresetThatTheBarNames();
    void eachColourHasASwatch();
    void theNavigatorTurnsThePagesOfTheTable();
    void theReplyIsFoldedOpen();
    void bothPicturesAreFitted();
    void theSpinnerComesAndGoes();
    void theWorkerMovesTheBar();
    void theFirstLockAsksForAPassword();
    void aCancelDoesNotLock();
    void theFolderOfAFileIsRemembered();
    void theAboutWindowShowsWhatItIsTold();
    void aSecretIsStoredEnciphered();
};

void TestGuideWidgets::theSwitchOfTheFormTurnsThePassesOff()
{
    const std::unique_ptr<QWidget> page(makeScanSettings(nullptr));
    auto *average = page->findChild<TXSwitchSlider *>(QStringLiteral("averageSwitch"));
    const auto *passes =
        page->findChild<DoubleSpinBoxWithSliderWidget *>(QStringLiteral("passesBox"));
    QVERIFY(average->isChecked());
    QCOMPARE(passes->value(), 3.0);
    QVERIFY(passes->isEnabled());
    average->setChecked(false);
    QVERIFY(!passes->isEnabled());
}

void TestGuideWidgets::theToleranceHasItsRange()
{
    const std::unique_ptr<DoubleSpinBoxWithSliderWidget> field(makeToleranceField(nullptr));
    QCOMPARE(field->value(), 2.0);
    field->setValue(99);
    QCOMPARE(field->value(), 20.0);
    field->setValue(0);
    QCOMPARE(field->value(), 0.5);
    QCOMPARE(field->dataName(), QStringLiteral("Tolerance"));
}

void TestGuideWidgets::theHostRemovesThePresetThatTheBarNames()
{
    const std::unique_ptr<TXSelectionItemWidget> bar(
        makePresetBar({QStringLiteral("Coated"), QStringLiteral("Newsprint")}, nullptr));
    bar->show();
    bar->selectItem(QStringLiteral("Newsprint"));
    QCOMPARE(bar->getSelectedItemName(), QStringLiteral("Newsprint"));
    DialogDriver::click(bar->removeItemButton());
    QVERIFY(!bar->existWithItemUserData(QStringLiteral("Newsprint")));
    QCOMPARE(bar->getSelectedItemName(), QStringLiteral("Coated"));
}

void TestGuideWidgets::eachColourHasASwatch()
{
    const std::unique_ptr<TXWidgetListWidget> list(
        makeSwatches({Qt::red, Qt::green, Qt::blue}, nullptr));
    QCOMPARE(list->count(), 3);
    list->resize(300, 200);
    list->show();
    QVERIFY(QTest::qWaitForWindowExposed(list.get()));
    QWidget *blue = list->widgetAt(2);
    for (const qreal ratio : {1.0, 2.0}) {
        QVERIFY(PixelProbe(*blue, ratio).isNear(blue->rect().center(), Qt::blue));
    }
}

void TestGuideWidgets::theNavigatorTurnsThePagesOfTheTable()
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        database.setDatabaseName(QStringLiteral(":memory:"));
        QVERIFY(database.open());
        makeMeasurements(250);
        const std::unique_ptr<QWidget> page(makeMeasurementView(nullptr));
        const QAbstractItemModel *rows = page->findChild<QTableView *>()->model();
        QCOMPARE(rows->rowCount(), 100);
        auto *navigator = page->findChild<TXDBNavWidget *>();
        navigator->setOffset(200);
        QVERIFY(navigator->select());
        QCOMPARE(rows->rowCount(), 50);
        QCOMPARE(rows->index(0, 0).data().toInt(), 200);
    }
    QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
}

void TestGuideWidgets::theReplyIsFoldedOpen()
{
    const std::unique_ptr<TXVariantViewer> viewer(
        makeReplyViewer(R"({"patch": "P1", "lab": [50, 1, 2]})", nullptr));
    QVERIFY(viewer->isExpanded());
    QCOMPARE(viewer->findChildren<TXVariantViewer *>().size(), 2);
}

void TestGuideWidgets::bothPicturesAreFitted()
{
    QPixmap original(200, 100);
    original.fill(Qt::red);
    QPixmap print(200, 100);
    print.fill(Qt::blue);
    const std::unique_ptr<TXImageViewer> viewer(makeComparison(original, print, nullptr));
    viewer->resize(400, 300);
    viewer->show();
    QVERIFY(QTest::qWaitForWindowExposed(viewer.get()));
    QCOMPARE(viewer->scale(), viewer->scaleHint(TXImageViewer::ScaleFit));
    for (const qreal ratio : {1.0, 2.0}) {
        const PixelProbe probe(*viewer, ratio);
        QVERIFY(probe.isNear({100, 150}, Qt::red));
        QVERIFY(probe.isNear({300, 150}, Qt::blue));
    }
}

void TestGuideWidgets::theSpinnerComesAndGoes()
{
    QWidget page;
    page.resize(200, 200);
    showSpinner(&page);
    showSpinner(&page);
    QTRY_COMPARE(page.findChildren<WaitWidget *>().size(), 1);
    QCOMPARE(page.findChild<WaitWidget *>()->geometry().center(), QPoint(99, 99));
    hideSpinner(&page);
    QTRY_VERIFY(!page.findChild<WaitWidget *>());
}

void TestGuideWidgets::theWorkerMovesTheBar()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("1\n2\n") > 0);
    file.close();
    // Who opens the pipe for reading waits until somebody opens its other end.
    QFile pipe(folder.filePath(QStringLiteral("pipe.txt")));
    QCOMPARE(mkfifo(QFile::encodeName(pipe.fileName()).constData(), 0600), 0);
    TXProgressBar bar;
    const QString message = QStringLiteral("Reading ") + pipe.fileName();
    bool isHalf = false;
    const QDeadlineTimer patience(kHoldMilliseconds);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        isHalf = bar.isVisible() && bar.value() == 50 && bar.message() == message;
        if (isHalf || patience.hasExpired()) {
            look.stop();
            pipe.open(QIODevice::ReadWrite);
        }
    });
    look.start(kLookMilliseconds);
    QCOMPARE(countRows({file.fileName(), pipe.fileName()}, &bar), 2);
    QVERIFY(isHalf);
    QCOMPARE(bar.minimum(), 0);
    QCOMPARE(bar.maximum(), 100);
    QVERIFY(bar.isTextVisible());
}

void TestGuideWidgets::theFirstLockAsksForAPassword()
{
    QWidget window;
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { DialogDriver::click(button(dialog, "lockPushButton")); });
    driver.expect(enterFirstPassword);
    QVERIFY(askToLock(&window));
    const QString stored = QSettings().value(QStringLiteral("LockPassword")).toString();
    QCOMPARE(stored, QStringLiteral("900150983cd24fb0d6963f7d28e17f72"));
}

void TestGuideWidgets::aCancelDoesNotLock()
{
    QWidget window;
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { DialogDriver::click(button(dialog, "cancelPushButton")); });
    QVERIFY(!askToLock(&window));
}

void TestGuideWidgets::theFolderOfAFileIsRemembered()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QWidget window;
    DialogDriver driver;
    driver.expect([&file](QDialog &dialog) {
        auto *chooser = qobject_cast<QFileDialog *>(&dialog);
        QVERIFY(chooser);
        chooser->setDirectory(QFileInfo(file).path());
        chooser->selectFile(file.fileName());
        chooser->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText("a.txt");
        static_cast<QDialog *>(chooser)->accept();
    });
    QCOMPARE(askForReadings(&window), file.fileName());
    driver.expect([&folder](QDialog &dialog) {
        auto *chooser = qobject_cast<QFileDialog *>(&dialog);
        QVERIFY(chooser);
        QCOMPARE(chooser->directory().canonicalPath(),
                 QFileInfo(folder.path()).canonicalFilePath());
        dialog.reject();
    });
    QVERIFY(askForReadings(&window).isEmpty());
}

void TestGuideWidgets::theAboutWindowShowsWhatItIsTold()
{
    AboutWindow window;
    window.show();
    QVERIFY(window.windowTitle().contains(QStringLiteral("Patch Reader")));
    QString texts;
    const auto labels = window.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        texts += label->text() + u'\n';
    }
    QVERIFY2(texts.contains(QStringLiteral("2.1.0")), qPrintable(texts));
    QVERIFY2(texts.contains(QStringLiteral("https://patchreader.example")), qPrintable(texts));
}

void TestGuideWidgets::aSecretIsStoredEnciphered()
{
    QVERIFY(storedToken().isEmpty());
    storeToken(QStringLiteral("größer als 3"));
    QCOMPARE(storedToken(), QStringLiteral("größer als 3"));
    const QByteArray stored = QSettings().value(QStringLiteral("Token")).toByteArray();
    QVERIFY(!stored.isEmpty());
    QVERIFY2(!stored.contains("als 3"), stored.constData());
    QVERIFY2(!QByteArray::fromBase64(stored).contains("als 3"), stored.constData());
    QSettings().setValue(QStringLiteral("Token"), QStringLiteral("damaged"));
    QVERIFY(storedToken().isEmpty());
}

int main(int argc, char **argv)
{
    return runTest<TestGuideWidgets>(argc, argv);
}

#include "tst_GuideWidgets.moc"
