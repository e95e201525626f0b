#include "TriggerSchedule.h"

#include "TestBase.h"

#include <QTimeZone>

namespace {

QHash<QString, QVariant> settingsOf(int period, int day, int hour)
{
    return {{"Period", period}, {"DayNumber", day}, {"HourInDay", hour}};
}

QDateTime utc(const QString &text)
{
    QDateTime moment = QDateTime::fromString(text, Qt::ISODateWithMs);
    moment.setTimeSpec(Qt::UTC);
    return moment;
}

} // namespace

class TestTriggerSchedule : public TestBase
{
    Q_OBJECT

private slots:
    void nextIsTheFirstAfterTheMoment_data();
    void nextIsTheFirstAfterTheMoment();
    void severalFollowOneAnother();
    void oddSettingsHaveNone_data();
    void oddSettingsHaveNone();
    void missingSettingsAreMondayAtMidnight();
    void hourIsThatOfTheZone();
    void hourThatSummerTimeLeavesOutComesLater();
    void hourLeftOutAtTheEndOfADayComesOnTheNext();
    void hourThatComesTwiceCountsOnce();
    void fullHourIsThatOfTheZone();
};

void TestTriggerSchedule::nextIsTheFirstAfterTheMoment_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<int>("day");
    QTest::addColumn<int>("hour");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("expected");
    // 23 November 2026 is a Monday.
    const QString monday = "2026-11-23T09:30:15.250";
    QTest::newRow("later this month") << 0 << 28 << 7 << monday << "2026-11-28T07:00:00";
    QTest::newRow("next month") << 0 << 1 << 7 << monday << "2026-12-01T07:00:00";
    QTest::newRow("today of the month") << 0 << 23 << 10 << monday << "2026-11-23T10:00:00";
    QTest::newRow("today is over") << 0 << 23 << 9 << monday << "2026-12-23T09:00:00";
    QTest::newRow("next year") << 0 << 23 << 9 << "2026-12-23T09:00:00"
                               << "2027-01-23T09:00:00";
    QTest::newRow("february") << 0 << 28 << 0 << "2027-01-28T00:00:00"
                              << "2027-02-28T00:00:00";
    QTest::newRow("two long months") << 0 << 1 << 0 << "2026-07-01T00:00:00"
                                     << "2026-08-01T00:00:00";
    QTest::newRow("leap day") << 0 << 28 << 23 << "2028-02-28T23:00:00"
                              << "2028-03-28T23:00:00";
    QTest::newRow("later this week") << 1 << 5 << 0 << monday << "2026-11-27T00:00:00";
    QTest::newRow("monday now over") << 1 << 1 << 9 << monday << "2026-11-30T09:00:00";
    QTest::newRow("monday to come") << 1 << 1 << 23 << monday << "2026-11-23T23:00:00";
    QTest::newRow("sunday") << 1 << 7 << 12 << monday << "2026-11-29T12:00:00";
    QTest::newRow("today") << 2 << 1 << 10 << monday << "2026-11-23T10:00:00";
    QTest::newRow("tomorrow") << 2 << 1 << 9 << monday << "2026-11-24T09:00:00";
    QTest::newRow("the moment itself is over") << 2 << 1 << 9 << "2026-11-23T09:00:00"
                                               << "2026-11-24T09:00:00";
    QTest::newRow("just before") << 2 << 1 << 9 << "2026-11-23T08:59:59.999"
                                 << "2026-11-23T09:00:00";
    QTest::newRow("hour") << 3 << 1 << 0 << monday << "2026-11-23T10:00:00";
    QTest::newRow("full hour") << 3 << 1 << 0 << "2026-11-23T10:00:00"
                               << "2026-11-23T11:00:00";
    QTest::newRow("minute") << 4 << 1 << 0 << monday << "2026-11-23T09:31:00";
    QTest::newRow("full minute") << 4 << 1 << 0 << "2026-12-31T23:59:00"
                                 << "2027-01-01T00:00:00";
}

void TestTriggerSchedule::nextIsTheFirstAfterTheMoment()
{
    QFETCH(int, period);
    QFETCH(int, day);
    QFETCH(int, hour);
    QFETCH(QString, after);
    QFETCH(QString, expected);

    QCOMPARE(nextEvent(settingsOf(period, day, hour), utc(after)), utc(expected));
}

void TestTriggerSchedule::severalFollowOneAnother()
{
    const QList<QDateTime> expected = {utc("2026-11-24T06:00:00"), utc("2026-12-01T06:00:00"),
                                       utc("2026-12-08T06:00:00")};
    QCOMPARE(nextEvents(settingsOf(1, 2, 6), utc("2026-11-23T00:00:00"), 3), expected);
    QCOMPARE(nextEvents(settingsOf(1, 2, 6), utc("2026-11-23T00:00:00"), 0), QList<QDateTime>());
}

void TestTriggerSchedule::oddSettingsHaveNone_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<int>("day");
    QTest::addColumn<int>("hour");
    QTest::newRow("period") << 9 << 1 << 0;
    QTest::newRow("negative period") << -1 << 1 << 0;
    QTest::newRow("day of the month") << 0 << 32 << 0;
    QTest::newRow("day of the week") << 1 << 8 << 0;
    QTest::newRow("no day") << 1 << 0 << 0;
    QTest::newRow("hour") << 2 << 1 << 24;
    QTest::newRow("negative hour") << 2 << 1 << -1;
}

void TestTriggerSchedule::oddSettingsHaveNone()
{
    QFETCH(int, period);
    QFETCH(int, day);
    QFETCH(int, hour);
    const QDateTime now = utc("2026-11-23T09:30:00");

    QVERIFY(!nextEvent(settingsOf(period, day, hour), now).isValid());
    QCOMPARE(nextEvents(settingsOf(period, day, hour), now, 3), QList<QDateTime>());
    QVERIFY(!nextEvent(settingsOf(2, 1, 9), QDateTime()).isValid());
}

void TestTriggerSchedule::missingSettingsAreMondayAtMidnight()
{
    QCOMPARE(nextEvent({}, utc("2026-11-23T09:30:00")), utc("2026-11-30T00:00:00"));
}

void TestTriggerSchedule::hourIsThatOfTheZone()
{
    const QTimeZone tokyo("Asia/Tokyo");
    QVERIFY(tokyo.isValid());
    const QDateTime after(QDate(2026, 11, 23), QTime(8, 0), tokyo);

    const QDateTime next = nextEvent(settingsOf(2, 1, 9), after);

    QCOMPARE(next, QDateTime(QDate(2026, 11, 23), QTime(9, 0), tokyo));
    QCOMPARE(next.timeZone(), tokyo);
}

void TestTriggerSchedule::hourThatSummerTimeLeavesOutComesLater()
{
    // At 2 in the morning of 29 March 2026 it becomes 3.
    const QTimeZone berlin("Europe/Berlin");
    QVERIFY(berlin.isValid());
    const QDateTime after(QDate(2026, 3, 28), QTime(2, 0), berlin);

    const QList<QDateTime> events = nextEvents(settingsOf(2, 1, 2), after, 2);

    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(0), QDateTime(QDate(2026, 3, 29), QTime(3, 0), berlin));
    QCOMPARE(events.at(1), QDateTime(QDate(2026, 3, 30), QTime(2, 0), berlin));
}

void TestTriggerSchedule::hourLeftOutAtTheEndOfADayComesOnTheNext()
{
    // At 23 on 28 March 2026 it becomes midnight.
    const QTimeZone nuuk("America/Nuuk");
    QVERIFY(nuuk.isValid());
    const QDateTime after(QDate(2026, 3, 28), QTime(12, 0), nuuk);

    const QList<QDateTime> events = nextEvents(settingsOf(2, 1, 23), after, 2);

    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(0), QDateTime(QDate(2026, 3, 29), QTime(0, 0), nuuk));
    QCOMPARE(events.at(1), QDateTime(QDate(2026, 3, 29), QTime(23, 0), nuuk));
}

void TestTriggerSchedule::hourThatComesTwiceCountsOnce()
{
    // At 3 in the morning of 25 October 2026 it becomes 2 again.
    const QTimeZone berlin("Europe/Berlin");
    const QDateTime after(QDate(2026, 10, 25), QTime(0, 0), berlin);

    const QList<QDateTime> events = nextEvents(settingsOf(2, 1, 2), after, 2);

    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(0).date(), QDate(2026, 10, 25));
    QCOMPARE(events.at(1).date(), QDate(2026, 10, 26));
}

void TestTriggerSchedule::fullHourIsThatOfTheZone()
{
    // Five hours and three quarters before Greenwich.
    const QTimeZone kathmandu("Asia/Kathmandu");
    QVERIFY(kathmandu.isValid());
    const QDateTime after(QDate(2026, 11, 23), QTime(9, 50), kathmandu);

    QCOMPARE(nextEvent(settingsOf(3, 1, 0), after),
             QDateTime(QDate(2026, 11, 23), QTime(10, 0), kathmandu));
}

int main(int argc, char **argv)
{
    return runTest<TestTriggerSchedule>(argc, argv);
}

#include "tst_TriggerSchedule.moc"
