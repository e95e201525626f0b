#include "TestBase.h"
#include "UpdateDialogTools.h"

#include <QAbstractEventDispatcher>
#include <QSettings>
#include <QTimer>
#include <QTimerEvent>

using UpdateDialogTools::clearDownloads;
using UpdateDialogTools::Dialog;
using UpdateDialogTools::newRelease;
using UpdateDialogTools::receive;
using UpdateDialogTools::useNoService;

namespace {

constexpr int kDayMilliseconds = 86400000;

QTimer *timerOf(const Dialog &dialog)
{
    return dialog.findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
}

/// The number of the tick, from 1, at which a dialog that is up to date begins to check.
int tickOfTheCheck(Dialog &dialog)
{
    dialog.updateState(Dialog::UpToDate);
    int tick = 0;
    while (dialog.state() != Dialog::Checking && tick < 1000) {
        ++tick;
        dialog.onTimer();
    }
    return tick;
}

/// Objects of the event loop that run a single shot of this many milliseconds.
QList<QObject *> singleShots(int milliseconds)
{
    QList<QObject *> found;
    QAbstractEventDispatcher *dispatcher = QAbstractEventDispatcher::instance();
    const QList<QObject *> objects = dispatcher->children();
    for (QObject *object : objects) {
        const auto timers = dispatcher->registeredTimers(object);
        if (timers.size() == 1 && timers.first().interval == milliseconds) {
            found.append(object);
        }
    }
    return found;
}

void fire(QObject *singleShot)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(singleShot);
    QTimerEvent event(timers.first().timerId);
    QCoreApplication::sendEvent(singleShot, &event);
}

} // namespace

class TestTXCheckForUpdateWidgetSchedule : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override
    {
        useNoService();
        clearDownloads();
    }

private slots:
    void ticksOnceADay();
    void checkComesAtThePeriodPlusTwo_data();
    void checkComesAtThePeriodPlusTwo();
    void checksComeAgainAndAgain();
    void periodBelowOneStops_data();
    void periodBelowOneStops();
    void settingThePeriodCountsAnew();
    void settingThePeriodLeavesTheSettingsAlone();
    void dueTickDuringATransferIsUsedUp();
    void automaticCheckShowsNothing();
    void periodSetting_data();
    void periodSetting();
    void startupCheck_data();
    void startupCheck();
    void startupCheckShowsTheDialogWhenItsTimeComes();
    void startupCheckDiesWithTheDialog();
};

void TestTXCheckForUpdateWidgetSchedule::ticksOnceADay()
{
    Dialog dialog;
    QCOMPARE(dialog.autoCheckPeriod(), 7);
    QVERIFY(timerOf(dialog)->isActive());
    QVERIFY(!timerOf(dialog)->isSingleShot());
    QCOMPARE(timerOf(dialog)->interval(), kDayMilliseconds);

    dialog.setAutoCheckPeriod(1);
    dialog.updateState(Dialog::UpToDate);
    for (int tick = 1; tick <= 3; ++tick) {
        QCOMPARE(dialog.state(), Dialog::UpToDate);
        QTimerEvent event(timerOf(dialog)->timerId());
        QCoreApplication::sendEvent(timerOf(dialog), &event);
    }
    QCOMPARE(dialog.state(), Dialog::Checking);
}

void TestTXCheckForUpdateWidgetSchedule::checkComesAtThePeriodPlusTwo_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<int>("tick");
    QTest::newRow("a day") << 1 << 3;
    QTest::newRow("a week") << 7 << 9;
    QTest::newRow("eight days") << 8 << 10;
    QTest::newRow("a month") << 30 << 32;
}

void TestTXCheckForUpdateWidgetSchedule::checkComesAtThePeriodPlusTwo()
{
    QFETCH(int, period);
    QFETCH(int, tick);
    Dialog dialog;
    dialog.setAutoCheckPeriod(period);
    QCOMPARE(tickOfTheCheck(dialog), tick);
}

void TestTXCheckForUpdateWidgetSchedule::checksComeAgainAndAgain()
{
    Dialog dialog;
    QCOMPARE(tickOfTheCheck(dialog), 9);
    QCOMPARE(tickOfTheCheck(dialog), 9);
}

void TestTXCheckForUpdateWidgetSchedule::periodBelowOneStops_data()
{
    QTest::addColumn<int>("days");
    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("smallest") << INT_MIN;
}

void TestTXCheckForUpdateWidgetSchedule::periodBelowOneStops()
{
    QFETCH(int, days);
    Dialog dialog;
    dialog.setAutoCheckPeriod(days);
    QCOMPARE(dialog.autoCheckPeriod(), days);
    QVERIFY(!timerOf(dialog)->isActive());
    dialog.setAutoCheckPeriod(days);
    QVERIFY(!timerOf(dialog)->isActive());
    dialog.setAutoCheckPeriod(7);
    QVERIFY(timerOf(dialog)->isActive());
    QCOMPARE(timerOf(dialog)->interval(), kDayMilliseconds);
}

void TestTXCheckForUpdateWidgetSchedule::settingThePeriodCountsAnew()
{
    Dialog dialog;
    for (int tick = 0; tick < 8; ++tick) {
        dialog.onTimer();
    }
    dialog.setAutoCheckPeriod(7);
    QCOMPARE(tickOfTheCheck(dialog), 9);
}

void TestTXCheckForUpdateWidgetSchedule::settingThePeriodLeavesTheSettingsAlone()
{
    Dialog dialog;
    dialog.setAutoCheckPeriod(30);
    QCOMPARE(QSettings().allKeys(), QStringList());
}

void TestTXCheckForUpdateWidgetSchedule::dueTickDuringATransferIsUsedUp()
{
    Dialog dialog;
    dialog.updateState(Dialog::Downloading);
    for (int tick = 0; tick < 9; ++tick) {
        dialog.onTimer();
    }
    QCOMPARE(dialog.state(), Dialog::Downloading);
    QCOMPARE(tickOfTheCheck(dialog), 9);
}

void TestTXCheckForUpdateWidgetSchedule::automaticCheckShowsNothing()
{
    Dialog dialog;
    QCOMPARE(tickOfTheCheck(dialog), 9);
    QTRY_COMPARE(dialog.state(), Dialog::ServiceError);
    QVERIFY(!dialog.isVisible());
    receive(dialog, {{QStringLiteral("Revision"), 1}});
    QVERIFY(!dialog.isVisible());
    receive(dialog, newRelease());
    QVERIFY(dialog.isVisible());
}

void TestTXCheckForUpdateWidgetSchedule::periodSetting_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("period");
    QTest::newRow("missing") << QVariant() << 7;
    QTest::newRow("number") << QVariant(30) << 30;
    QTest::newRow("none") << QVariant(0) << 0;
    QTest::newRow("negative") << QVariant(-3) << -3;
    QTest::newRow("number as text") << QVariant(QStringLiteral("5")) << 5;
    QTest::newRow("text") << QVariant(QStringLiteral("weekly")) << 0;
    QTest::newRow("empty text") << QVariant(QString()) << 0;
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff\1", 3)) << 0;
    QTest::newRow("huge") << QVariant(QStringLiteral("99999999999999999999")) << 0;
    QTest::newRow("largest") << QVariant(INT_MAX) << INT_MAX;
    QTest::newRow("list") << QVariant(QStringList{QStringLiteral("1"), QStringLiteral("2")}) << 0;
}

void TestTXCheckForUpdateWidgetSchedule::periodSetting()
{
    QFETCH(QVariant, stored);
    QFETCH(int, period);
    if (stored.isValid()) {
        QSettings().setValue(QStringLiteral("CheckForUpdatesAutoPeriod"), stored);
    }
    const Dialog dialog;
    QCOMPARE(dialog.autoCheckPeriod(), period);
    QCOMPARE(timerOf(dialog)->isActive(), period > 0);
}

void TestTXCheckForUpdateWidgetSchedule::startupCheck_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("mayCheck");
    QTest::addColumn<bool>("checks");
    QTest::newRow("wanted") << QVariant(true) << true << true;
    QTest::newRow("wanted as text") << QVariant(QStringLiteral("true")) << true << true;
    QTest::newRow("missing") << QVariant() << true << false;
    QTest::newRow("not wanted") << QVariant(false) << true << false;
    QTest::newRow("empty") << QVariant(QString()) << true << false;
    QTest::newRow("wanted, but not of this dialog") << QVariant(true) << false << false;
}

void TestTXCheckForUpdateWidgetSchedule::startupCheck()
{
    QFETCH(QVariant, stored);
    QFETCH(bool, mayCheck);
    QFETCH(bool, checks);
    if (stored.isValid()) {
        QSettings().setValue(QStringLiteral("CheckForUpdatesAtStartup"), stored);
    }
    const auto before = singleShots(20000).size();
    const Dialog plain(nullptr, mayCheck);
    QCOMPARE(singleShots(20000).size() - before, checks ? 1 : 0);
    const Dialog detailed(QStringLiteral("Patch Reader"), 7, mayCheck);
    QCOMPARE(singleShots(20000).size() - before, checks ? 2 : 0);
    for (QObject *shot : singleShots(20000)) {
        delete shot;
    }
}

void TestTXCheckForUpdateWidgetSchedule::startupCheckShowsTheDialogWhenItsTimeComes()
{
    QSettings().setValue(QStringLiteral("CheckForUpdatesAtStartup"), true);
    Dialog dialog(nullptr, true);
    dialog.updateState(Dialog::UpToDate);
    QCOMPARE(singleShots(20000).size(), 1);
    fire(singleShots(20000).first());
    QCOMPARE(dialog.state(), Dialog::Checking);
    QVERIFY(dialog.isVisible());
}

void TestTXCheckForUpdateWidgetSchedule::startupCheckDiesWithTheDialog()
{
    QSettings().setValue(QStringLiteral("CheckForUpdatesAtStartup"), true);
    {
        const Dialog dialog(nullptr, true);
    }
    QCOMPARE(singleShots(20000).size(), 1);
    fire(singleShots(20000).first());
}

int main(int argc, char **argv)
{
    return runTest<TestTXCheckForUpdateWidgetSchedule>(argc, argv);
}

#include "tst_TXCheckForUpdateWidgetSchedule.moc"
