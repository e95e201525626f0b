#include "TXCheckForUpdateConfigWidget.h"

#include "DialogDriver.h"
#include "LocalUpdateService.h"
#include "TXGroupBoxBolded.h"
#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QAbstractEventDispatcher>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

#include <memory>

using UpdateDialogTools::Dialog;
using UpdateDialogTools::part;
using UpdateDialogTools::useNoService;

namespace {

constexpr char kPeriod[] = "CheckForUpdatesAutoPeriod";
constexpr char kAtStartup[] = "CheckForUpdatesAtStartup";

constexpr int kPatienceMilliseconds = 30000;

QVariant stored(const char *key)
{
    return QSettings().value(QLatin1String(key));
}

void store(const char *key, const QVariant &value)
{
    QSettings().setValue(QLatin1String(key), value);
}

LocalWebReply replyWith(const QByteArray &body)
{
    LocalWebReply reply;
    reply.body = body;
    return reply;
}

/// The milliseconds of the timers that run in the dialog.
QList<int> runningTimers(const Dialog &dialog)
{
    QList<int> intervals;
    const auto timers = dialog.findChildren<QTimer *>();
    for (const QTimer *timer : timers) {
        if (timer->isActive()) {
            intervals.append(timer->interval());
        }
    }
    return intervals;
}

/// Forgets the checks at startup that wait for their 20 seconds, and tells how many they were.
int dropChecksAtStartup()
{
    constexpr int kDelayMilliseconds = 20000;
    int dropped = 0;
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    const QList<QObject *> objects = dispatcher->children();
    for (QObject *object : objects) {
        const auto timers = dispatcher->registeredTimers(object);
        if (timers.size() == 1 && timers.first().interval == kDelayMilliseconds) {
            delete object;
            ++dropped;
        }
    }
    return dropped;
}

} // namespace

class TestTXCheckForUpdateConfigWidget : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        UpdateDialogTools::clearDownloads();
        Dialog::setGlobalDetails(QString(), -1);
        panel = std::make_unique<TXCheckForUpdateConfigWidget>();
        automatic = part<QCheckBox>(*panel, "automaticCheckBox");
        atStartup = part<QCheckBox>(*panel, "atStartupCheckBox");
        checkNow = part<QPushButton>(*panel, "checkNowButton");
    }
    void finish() override { panel.reset(); }

private slots:
    void formIsAsDesigned();
    void tabGoesDownThePanel();
    void titleIsBoldUnlessSwitchedOff_data();
    void titleIsBoldUnlessSwitchedOff();
    void theOnlyMethodIsTheSlot();
    void newPanelIsNotFilledIn();

    void loadShowsTheSettings_data();
    void loadShowsTheSettings();
    void loadWritesNothing();
    void saveStoresSevenDaysOrNone_data();
    void saveStoresSevenDaysOrNone();
    void otherPeriodBecomesSevenDays();
    void savedPeriodCountsAtOnce();
    void freshInstallationChecksAtStartupOnlyAfterSaving();

    void checkNowAsksTheService_data();
    void checkNowAsksTheService();
    void checkNowHidesTheRunningDialog();
    void checkNowNeverWaitsForStartup();
    void checkNowTellsAFailure();
    void panelMayGoWhileItsDialogIsOpen();
    void windowMayGoWhileACheckIsUnderWay();

private:
    [[nodiscard]] Dialog *openDialog() const { return panel->findChild<Dialog *>(); }

    std::unique_ptr<TXCheckForUpdateConfigWidget> panel;
    QCheckBox *automatic = nullptr;
    QCheckBox *atStartup = nullptr;
    QPushButton *checkNow = nullptr;
};

void TestTXCheckForUpdateConfigWidget::formIsAsDesigned()
{
    QCOMPARE(panel->objectName(), "TXCheckForUpdateConfigWidget");
    QCOMPARE(panel->size(), QSize(285, 115));
    auto *rows = qobject_cast<QVBoxLayout *>(panel->layout());
    QVERIFY(rows);
    QCOMPARE(rows->contentsMargins(), QMargins());
    QCOMPARE(rows->count(), 2);
    const auto *box = part<TXGroupBoxBolded>(*panel, "groupBox");
    QCOMPARE(rows->itemAt(0)->widget(), box);
    QVERIFY(rows->itemAt(1)->spacerItem());
    QCOMPARE(box->title(), "Check For Updates");
    auto *controls = qobject_cast<QVBoxLayout *>(box->layout());
    QVERIFY(controls);
    QCOMPARE(controls->count(), 3);
    QCOMPARE(controls->itemAt(0)->widget(), automatic);
    QCOMPARE(controls->itemAt(1)->widget(), atStartup);
    QCOMPARE(controls->itemAt(2)->widget(), checkNow);
    QCOMPARE(automatic->text(), "Automatically Check for Updates");
    QCOMPARE(atStartup->text(), "Check for Updates at Startup");
    QCOMPARE(checkNow->text(), "Check Now");

    // The spacer takes what is too much.
    panel->resize(285, 400);
    panel->show();
    QVERIFY(box->height() < 200);
}

void TestTXCheckForUpdateConfigWidget::tabGoesDownThePanel()
{
    panel->show();
    panel->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    automatic->setFocus();

    QTest::keyClick(automatic, Qt::Key_Tab);
    QVERIFY(atStartup->hasFocus());
    QTest::keyClick(atStartup, Qt::Key_Tab);
    QVERIFY(checkNow->hasFocus());
}

void TestTXCheckForUpdateConfigWidget::titleIsBoldUnlessSwitchedOff_data()
{
    QTest::addColumn<QVariant>("switched");
    QTest::addColumn<int>("weight");
    QTest::newRow("at first") << QVariant() << int(QFont::Bold);
    QTest::newRow("on") << QVariant(true) << int(QFont::Bold);
    QTest::newRow("off") << QVariant(false) << int(QFont::Normal);
}

void TestTXCheckForUpdateConfigWidget::titleIsBoldUnlessSwitchedOff()
{
    QFETCH(QVariant, switched);
    QFETCH(int, weight);
    if (switched.isValid()) {
        panel->setBoldGroupBoxTitle(switched.toBool());
    }

    panel->show();

    QCOMPARE(int(part<QWidget>(*panel, "groupBox")->font().weight()), weight);
    for (const QWidget *control :
         {static_cast<QWidget *>(automatic), static_cast<QWidget *>(atStartup),
          static_cast<QWidget *>(checkNow)}) {
        QCOMPARE(int(control->font().weight()), int(QFont::Normal));
    }
}

void TestTXCheckForUpdateConfigWidget::theOnlyMethodIsTheSlot()
{
    const QMetaObject &meta = TXCheckForUpdateConfigWidget::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), "on_checkNowButton_clicked()");
}

void TestTXCheckForUpdateConfigWidget::newPanelIsNotFilledIn()
{
    QVERIFY(!automatic->isChecked());
    QVERIFY(!atStartup->isChecked());
}

void TestTXCheckForUpdateConfigWidget::loadShowsTheSettings_data()
{
    QTest::addColumn<QVariant>("period");
    QTest::addColumn<QVariant>("startup");
    QTest::addColumn<bool>("isAutomatic");
    QTest::addColumn<bool>("isAtStartup");
    const auto missing = QVariant();
    QTest::newRow("fresh") << missing << missing << true << true;
    QTest::newRow("off") << QVariant(0) << QVariant(false) << false << false;
    QTest::newRow("on") << QVariant(7) << QVariant(true) << true << true;
    QTest::newRow("one day") << QVariant(1) << QVariant(false) << true << false;
    QTest::newRow("thirty days") << QVariant(30) << QVariant(true) << true << true;
    QTest::newRow("negative") << QVariant(-7) << QVariant(true) << false << true;
    QTest::newRow("texts") << QVariant("7") << QVariant("false") << true << false;
    QTest::newRow("words") << QVariant("abc") << QVariant("abc") << false << true;
    QTest::newRow("empty") << QVariant("") << QVariant("") << false << false;
    QTest::newRow("lists") << QVariant(QStringList({"7", "8"}))
                           << QVariant(QStringList({"true", "true"})) << false << false;
    QTest::newRow("beyond int") << QVariant("4294967303") << QVariant(0) << true << false;
}

void TestTXCheckForUpdateConfigWidget::loadShowsTheSettings()
{
    QFETCH(QVariant, period);
    QFETCH(QVariant, startup);
    for (const bool before : {false, true}) {
        QSettings().clear();
        if (period.isValid()) {
            store(kPeriod, period);
            store(kAtStartup, startup);
        }
        automatic->setChecked(before);
        atStartup->setChecked(before);

        panel->load();

        QTEST(automatic->isChecked(), "isAutomatic");
        QTEST(atStartup->isChecked(), "isAtStartup");
    }
    // The panel shows what the dialog makes of the same setting.
    QCOMPARE(automatic->isChecked(), Dialog(nullptr, false).autoCheckPeriod() >= 1);
}

void TestTXCheckForUpdateConfigWidget::loadWritesNothing()
{
    panel->load();
    QCOMPARE(QSettings().allKeys(), QStringList());

    store(kPeriod, 30);
    panel->load();
    QCOMPARE(stored(kPeriod), QVariant(30));
}

void TestTXCheckForUpdateConfigWidget::saveStoresSevenDaysOrNone_data()
{
    QTest::addColumn<bool>("isAutomatic");
    QTest::addColumn<bool>("isAtStartup");
    QTest::addColumn<int>("days");
    QTest::newRow("both") << true << true << 7;
    QTest::newRow("automatic") << true << false << 7;
    QTest::newRow("at startup") << false << true << 0;
    QTest::newRow("neither") << false << false << 0;
}

void TestTXCheckForUpdateConfigWidget::saveStoresSevenDaysOrNone()
{
    QFETCH(bool, isAutomatic);
    QFETCH(bool, isAtStartup);
    QFETCH(int, days);
    QCOMPARE(Dialog::instance(), nullptr);
    automatic->setChecked(isAutomatic);
    atStartup->setChecked(isAtStartup);

    panel->save();

    QCOMPARE(stored(kPeriod), QVariant(days));
    QCOMPARE(stored(kAtStartup), QVariant(isAtStartup));
    QCOMPARE(QSettings().allKeys().size(), 2);

    // A second time round nothing changes.
    panel->load();
    panel->save();
    QCOMPARE(stored(kPeriod), QVariant(days));
    QCOMPARE(stored(kAtStartup), QVariant(isAtStartup));
}

void TestTXCheckForUpdateConfigWidget::otherPeriodBecomesSevenDays()
{
    store(kPeriod, 30);
    panel->load();

    panel->save();

    QCOMPARE(stored(kPeriod), QVariant(7));
}

void TestTXCheckForUpdateConfigWidget::savedPeriodCountsAtOnce()
{
    store(kPeriod, 30);
    const Dialog running(QStringLiteral("Patch Reader"), 7, false);
    const Dialog other(nullptr, false);
    QCOMPARE(Dialog::instance(), &running);
    QCOMPARE(running.autoCheckPeriod(), 30);
    panel->load();

    panel->save();
    QCOMPARE(running.autoCheckPeriod(), 7);
    QCOMPARE(runningTimers(running), QList<int>({86400000}));

    automatic->setChecked(false);
    panel->save();
    QCOMPARE(running.autoCheckPeriod(), 0);
    QCOMPARE(runningTimers(running), QList<int>());
    // The others go on by the settings that they found.
    QCOMPARE(other.autoCheckPeriod(), 30);
}

void TestTXCheckForUpdateConfigWidget::freshInstallationChecksAtStartupOnlyAfterSaving()
{
    panel->load();
    QVERIFY(automatic->isChecked());
    QVERIFY(atStartup->isChecked());
    {
        const Dialog dialog(QStringLiteral("Patch Reader"), 7, true);
        QCOMPARE(dialog.autoCheckPeriod(), 7);
    }
    QCOMPARE(dropChecksAtStartup(), 0);

    panel->save();

    {
        const Dialog dialog(QStringLiteral("Patch Reader"), 7, true);
    }
    QCOMPARE(dropChecksAtStartup(), 1);
}

void TestTXCheckForUpdateConfigWidget::checkNowAsksTheService_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("state");
    QTest::newRow("newer") << QByteArray(R"({"Revision": 20000, "ProductName": "Patch Reader"})")
                           << int(Dialog::UpdateAvailable);
    QTest::newRow("older") << QByteArray(R"({"Revision": 5})") << int(Dialog::UpToDate);
}

void TestTXCheckForUpdateConfigWidget::checkNowAsksTheService()
{
    QFETCH(QByteArray, answer);
    QFETCH(int, state);
    LocalUpdateService service;
    service.setCheckReply(replyWith(answer));
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    Dialog::setGlobalDetails(QStringLiteral("Patch Reader"), 7);
    QPointer<Dialog> seen;
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        seen = qobject_cast<Dialog *>(&dialog);
        QVERIFY(seen);
        QVERIFY(seen->isModal());
        QCOMPARE(seen->parent(), panel.get());
        QTRY_COMPARE_WITH_TIMEOUT(int(seen->state()), state, kPatienceMilliseconds);
        seen->reject();
    });

    panel->show();
    DialogDriver::click(checkNow);

    // It has gone with its exec().
    QVERIFY(!seen);
    QCOMPARE(openDialog(), nullptr);
    QCOMPARE(Dialog::instance(), nullptr);
    QCOMPARE(service.requests().size(), 1);
    // The product is the global one.
    QVERIFY(service.requests().first().query.contains("ProductType=7"));
}

void TestTXCheckForUpdateConfigWidget::checkNowHidesTheRunningDialog()
{
    Dialog running(QStringLiteral("Patch Reader"), 7, false);
    running.show();
    QTRY_COMPARE(running.state(), Dialog::ServiceError);
    QVERIFY(running.isVisible());
    bool wasHidden = false;
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        wasHidden = running.isHidden();
        QVERIFY(&dialog != &running);
        dialog.accept();
    });

    panel->on_checkNowButton_clicked();

    QVERIFY(wasHidden);
    QVERIFY(running.isHidden());
    QCOMPARE(Dialog::instance(), &running);
}

void TestTXCheckForUpdateConfigWidget::checkNowNeverWaitsForStartup()
{
    store(kAtStartup, true);
    DialogDriver driver;
    driver.expect([](QDialog &dialog) { dialog.reject(); });

    panel->on_checkNowButton_clicked();

    QCOMPARE(dropChecksAtStartup(), 0);
}

void TestTXCheckForUpdateConfigWidget::checkNowTellsAFailure()
{
    DialogDriver driver;
    driver.expect([](QDialog &dialog) {
        const auto *updates = qobject_cast<Dialog *>(&dialog);
        QTRY_COMPARE_WITH_TIMEOUT(updates->state(), Dialog::ServiceError, kPatienceMilliseconds);
        QVERIFY(part<QLabel>(*updates, "shortDescLabel")->text().startsWith("Impossible"));
        dialog.reject();
    });

    panel->on_checkNowButton_clicked();

    QCOMPARE(openDialog(), nullptr);
}

void TestTXCheckForUpdateConfigWidget::panelMayGoWhileItsDialogIsOpen()
{
    QPointer<Dialog> seen;
    DialogDriver driver;
    driver.expect([&](QDialog &dialog) {
        seen = qobject_cast<Dialog *>(&dialog);
        panel.reset();
    });

    panel->show();
    // As a click goes, which outlives the button.
    checkNow->click();

    QVERIFY(!panel);
    QVERIFY(!seen);
}

void TestTXCheckForUpdateConfigWidget::windowMayGoWhileACheckIsUnderWay()
{
    LocalUpdateService service;
    service.setCheckReply(replyWith("{}"));
    QVERIFY2(service.start(), qPrintable(service.error()));
    TXUpdateService::setAuthority(service.authority());
    auto window = std::make_unique<QWidget>();
    panel->setParent(window.get());
    TXCheckForUpdateConfigWidget *inWindow = panel.release();
    window->show();
    DialogDriver driver;
    driver.expect([&](QDialog &) { window.reset(); });

    inWindow->on_checkNowButton_clicked();

    QVERIFY(!window);
    // The dialog has waited for its check.
    QCOMPARE(service.requests().size(), 1);
}

int main(int argc, char **argv)
{
    return runTest<TestTXCheckForUpdateConfigWidget>(argc, argv);
}

#include "tst_TXCheckForUpdateConfigWidget.moc"
