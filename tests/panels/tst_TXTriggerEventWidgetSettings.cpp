#include "TestBase.h"
#include "TriggerPanelHelpers.h"

#include <cmath>
#include <limits>

using TriggerTest::EachDay;
using TriggerTest::EachHour;
using TriggerTest::EachMonth;
using TriggerTest::EachWeek;
using TriggerTest::Panel;
using TriggerTest::setDebugging;
using TriggerTest::Settings;

namespace {

constexpr qint64 kBeyondInt = qint64(1) << 32;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Settings settingsOf(int period, int day, int hour)
{
    return {{"Period", period}, {"DayNumber", day}, {"HourInDay", hour}};
}

} // namespace

/// Loading and saving.
class TestTXTriggerEventWidgetSettings : public TestBase
{
    Q_OBJECT

private slots:
    void newPanelSavesWhatItShows();
    void settingsComeBack_data();
    void settingsComeBack();
    void nothingLoadsAsMondayAtMidnight();
    void oddPeriodIsEachWeek_data();
    void oddPeriodIsEachWeek();
    void numbersInTextsAreRead();
    void hoursThatAreNotOfferedAreEachWeek();
    void oddDay_data();
    void oddDay();
    void oddHour_data();
    void oddHour();
    void dayBelongsToTheNewPeriod();
    void daysOutOfTheListLeaveTheSelection();
    void dailyEventKeepsItsDay();
    void disabledListsAreSaved();
    void savedWithoutDataIsOne();
    void dataOfOtherTypesAreSavedAsTheyAre();
};

void TestTXTriggerEventWidgetSettings::newPanelSavesWhatItShows()
{
    Panel panel;
    const Settings saved = panel.widget.save();
    QCOMPARE(saved, settingsOf(EachMonth, 1, 0));
    for (const QVariant &value : saved) {
        QCOMPARE(value.typeId(), int(QMetaType::Int));
    }
}

void TestTXTriggerEventWidgetSettings::settingsComeBack_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<int>("day");
    QTest::addColumn<int>("hour");
    QTest::newRow("first of month") << 0 << 1 << 0;
    QTest::newRow("last of month") << 0 << 28 << 23;
    QTest::newRow("Monday") << 1 << 1 << 1;
    QTest::newRow("Sunday") << 1 << 7 << 12;
    QTest::newRow("day") << 2 << 1 << 17;
    QTest::newRow("hour") << 3 << 1 << 4;
    QTest::newRow("minute") << 4 << 1 << 5;
}

void TestTXTriggerEventWidgetSettings::settingsComeBack()
{
    QFETCH(int, period);
    QFETCH(int, day);
    QFETCH(int, hour);
    setDebugging(true);
    Panel panel;

    panel.widget.load(settingsOf(period, day, hour));

    QCOMPARE(panel.widget.save(), settingsOf(period, day, hour));
}

void TestTXTriggerEventWidgetSettings::nothingLoadsAsMondayAtMidnight()
{
    Panel panel;
    panel.widget.load(settingsOf(EachMonth, 12, 9));

    panel.widget.load({});

    QCOMPARE(panel.periods->currentText(), "Each Week");
    QCOMPARE(panel.widget.save(), settingsOf(EachWeek, 1, 0));
}

void TestTXTriggerEventWidgetSettings::oddPeriodIsEachWeek_data()
{
    QTest::addColumn<QVariant>("period");
    QTest::newRow("not offered") << QVariant(3);
    QTest::newRow("negative") << QVariant(-1);
    QTest::newRow("large") << QVariant(std::numeric_limits<int>::max());
    // Both are a period in their lower 32 bits.
    QTest::newRow("beyond int") << QVariant(kBeyondInt);
    QTest::newRow("beyond unsigned int") << QVariant(quint64(kBeyondInt) + 2);
    QTest::newRow("not whole") << QVariant(0.4);
    QTest::newRow("nearly day") << QVariant(1.9);
    QTest::newRow("not a number") << QVariant(kNan);
    QTest::newRow("infinite") << QVariant(kInfinity);
    QTest::newRow("text") << QVariant("each day");
    QTest::newRow("empty text") << QVariant("");
    QTest::newRow("not whole in text") << QVariant("1.5");
    QTest::newRow("list") << QVariant(QVariantList({0, 2}));
    QTest::newRow("hash") << QVariant(QVariantHash({{"Period", 2}}));
    QTest::newRow("invalid") << QVariant();
}

void TestTXTriggerEventWidgetSettings::oddPeriodIsEachWeek()
{
    QFETCH(QVariant, period);
    Panel panel;
    panel.selectPeriod(EachDay);

    panel.widget.load({{"Period", period}});

    QCOMPARE(panel.widget.save(), settingsOf(EachWeek, 1, 0));
}

void TestTXTriggerEventWidgetSettings::numbersInTextsAreRead()
{
    // As a file of settings gives them back.
    Panel panel;
    panel.widget.load({{"Period", "0"}, {"DayNumber", "17"}, {"HourInDay", "8"}});
    QCOMPARE(panel.widget.save(), settingsOf(EachMonth, 17, 8));

    panel.widget.load({{"Period", 1.0}, {"DayNumber", 3.0}, {"HourInDay", qint64(9)}});
    QCOMPARE(panel.widget.save(), settingsOf(EachWeek, 3, 9));
}

void TestTXTriggerEventWidgetSettings::hoursThatAreNotOfferedAreEachWeek()
{
    Panel panel;
    panel.widget.load(settingsOf(EachHour, 4, 5));
    QCOMPARE(panel.widget.save(), settingsOf(EachWeek, 4, 5));

    panel.widget.addHourTriggerPeriod();
    panel.widget.load(settingsOf(EachHour, 4, 5));
    QCOMPARE(panel.widget.save(), settingsOf(EachHour, 4, 5));
}

void TestTXTriggerEventWidgetSettings::oddDay_data()
{
    QTest::addColumn<QVariant>("day");
    QTest::addColumn<int>("expected");
    QTest::newRow("31") << QVariant(31) << 12;
    QTest::newRow("29") << QVariant(29) << 12;
    QTest::newRow("beyond int") << QVariant(kBeyondInt + 3) << 12;
    QTest::newRow("not whole") << QVariant(2.5) << 12;
    QTest::newRow("infinite") << QVariant(kInfinity) << 12;
    QTest::newRow("zero") << QVariant(0) << 1;
    QTest::newRow("negative") << QVariant(-5) << 1;
    QTest::newRow("far below") << QVariant(-kBeyondInt + 3) << 1;
    QTest::newRow("text") << QVariant("Monday") << 1;
    QTest::newRow("list") << QVariant(QVariantList({3, 4})) << 1;
    QTest::newRow("not a number") << QVariant(kNan) << 1;
    QTest::newRow("invalid") << QVariant() << 1;
}

void TestTXTriggerEventWidgetSettings::oddDay()
{
    QFETCH(QVariant, day);
    QFETCH(int, expected);
    Panel panel;
    panel.widget.load(settingsOf(EachMonth, 12, 0));

    panel.widget.load({{"Period", 0}, {"DayNumber", day}});

    QCOMPARE(panel.widget.save(), settingsOf(EachMonth, expected, 0));

    // Without a selection before, it is the first that stays.
    Panel fresh;
    fresh.widget.load({{"Period", 0}, {"DayNumber", day}});
    QCOMPARE(fresh.widget.save(), settingsOf(EachMonth, 1, 0));
}

void TestTXTriggerEventWidgetSettings::oddHour_data()
{
    QTest::addColumn<QVariant>("hour");
    QTest::addColumn<int>("expected");
    QTest::newRow("24") << QVariant(24) << 9;
    QTest::newRow("beyond int") << QVariant(kBeyondInt + 3) << 9;
    QTest::newRow("not whole") << QVariant(2.5) << 9;
    QTest::newRow("negative") << QVariant(-1) << 0;
    QTest::newRow("far below") << QVariant(-kBeyondInt + 3) << 0;
    QTest::newRow("text") << QVariant("08:00 am") << 0;
    QTest::newRow("list") << QVariant(QVariantList({3, 4})) << 0;
    QTest::newRow("not a number") << QVariant(kNan) << 0;
    QTest::newRow("invalid") << QVariant() << 0;
}

void TestTXTriggerEventWidgetSettings::oddHour()
{
    QFETCH(QVariant, hour);
    QFETCH(int, expected);
    Panel panel;
    panel.widget.load(settingsOf(EachDay, 1, 9));

    panel.widget.load({{"Period", 2}, {"HourInDay", hour}});

    QCOMPARE(panel.widget.save(), settingsOf(EachDay, 1, expected));
}

void TestTXTriggerEventWidgetSettings::dayBelongsToTheNewPeriod()
{
    Panel panel;
    panel.widget.load(settingsOf(EachWeek, 2, 0));

    // Not among the days of the week.
    panel.widget.load(settingsOf(EachMonth, 20, 0));
    QCOMPARE(panel.days->currentText(), "20");

    panel.widget.load(settingsOf(EachWeek, 5, 0));
    QCOMPARE(panel.days->count(), 7);
    QCOMPARE(panel.days->currentIndex(), 4);
}

void TestTXTriggerEventWidgetSettings::daysOutOfTheListLeaveTheSelection()
{
    Panel panel;
    panel.widget.load(settingsOf(EachMonth, 31, 0));
    QCOMPARE(panel.days->currentText(), "1");

    // The list is built anew, and its first entry stays.
    panel.widget.load(settingsOf(EachMonth, 12, 0));
    panel.widget.load(settingsOf(EachWeek, 12, 0));
    QCOMPARE(panel.days->currentIndex(), 0);
}

void TestTXTriggerEventWidgetSettings::dailyEventKeepsItsDay()
{
    Panel panel;
    panel.widget.load(settingsOf(EachMonth, 20, 3));

    panel.widget.load(settingsOf(EachDay, 25, 3));
    QCOMPARE(panel.widget.save(), settingsOf(EachDay, 25, 3));

    // The first after the list was built anew.
    panel.selectPeriod(EachWeek);
    panel.widget.load(settingsOf(EachDay, 25, 3));
    QCOMPARE(panel.widget.save(), settingsOf(EachDay, 1, 3));
}

void TestTXTriggerEventWidgetSettings::disabledListsAreSaved()
{
    Panel panel;
    panel.widget.addHourTriggerPeriod();
    panel.widget.load(settingsOf(EachWeek, 6, 7));

    panel.selectPeriod(EachHour);

    QVERIFY(!panel.days->isEnabled());
    QVERIFY(!panel.hours->isEnabled());
    QCOMPARE(panel.widget.save(), settingsOf(EachHour, 6, 7));
}

void TestTXTriggerEventWidgetSettings::savedWithoutDataIsOne()
{
    Panel panel;
    panel.days->clear();
    panel.hours->clear();
    QCOMPARE(panel.widget.save(), settingsOf(EachMonth, 1, 1));

    // A missing hour is 0 for load(), and 1 here.
    panel.hours->addItem("some time");
    panel.days->addItem("some day");
    QCOMPARE(panel.widget.save(), settingsOf(EachMonth, 1, 1));
    QCOMPARE(panel.widget.save().value("HourInDay").typeId(), int(QMetaType::Int));
}

void TestTXTriggerEventWidgetSettings::dataOfOtherTypesAreSavedAsTheyAre()
{
    Panel panel;
    panel.hours->addItem("whenever", QStringLiteral("whenever"));
    panel.hours->setCurrentIndex(24);
    QCOMPARE(panel.widget.save().value("HourInDay"), QVariant("whenever"));
}

int main(int argc, char **argv)
{
    return runTest<TestTXTriggerEventWidgetSettings>(argc, argv);
}

#include "tst_TXTriggerEventWidgetSettings.moc"
