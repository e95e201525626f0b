#include "TriggerSchedule.h"

#include <QTimeZone>

namespace {

/// As TXTriggerEventWidget stores them.
enum Period {
    EachMonth = 0,
    EachWeek = 1,
    EachDay = 2,
    EachHour = 3,
    EachMinute = 4,
};

constexpr int kSecondsPerMinute = 60;
constexpr int kSecondsPerHour = 3600;
constexpr int kHoursPerDay = 24;
/// A day of every month lies within two months, the longest of which have 62 days.
constexpr int kMostDaysAhead = 62;

bool isDue(QDate date, int period, int day)
{
    switch (period) {
    case EachMonth:
        return date.day() == day;
    case EachWeek:
        return date.dayOfWeek() == day;
    default:
        return true;
    }
}

QDateTime momentOf(QDate date, int hour, const QTimeZone &zone)
{
    const QDateTime moment(date, QTime(hour, 0), zone);
    if (moment.isValid()) {
        return moment;
    }
    // Left out by summer time. The hour after it may be the first of the next day.
    const QDateTime later = QDateTime(date, QTime(hour, 0), Qt::UTC).addSecs(kSecondsPerHour);
    return {later.date(), later.time(), zone};
}

QDateTime nextOnADay(int period, int day, int hour, const QDateTime &after)
{
    if (hour < 0 || hour >= kHoursPerDay) {
        return {};
    }
    const QTimeZone zone = after.timeZone();
    for (int ahead = 0; ahead <= kMostDaysAhead; ++ahead) {
        const QDate date = after.date().addDays(ahead);
        if (!isDue(date, period, day)) {
            continue;
        }
        const QDateTime moment = momentOf(date, hour, zone);
        if (moment > after) {
            return moment;
        }
    }
    return {};
}

/// The next full hour, or whatever lasts so long; at most an hour.
QDateTime nextFull(int seconds, const QDateTime &after)
{
    const QTime time = after.time();
    const int passed = time.minute() * kSecondsPerMinute + time.second();
    return after.addMSecs(-time.msec()).addSecs(seconds - passed % seconds);
}

} // namespace

QDateTime nextEvent(const QHash<QString, QVariant> &settings, const QDateTime &after)
{
    const int period = settings.value(QStringLiteral("Period"), EachWeek).toInt();
    const int day = settings.value(QStringLiteral("DayNumber"), 1).toInt();
    const int hour = settings.value(QStringLiteral("HourInDay"), 0).toInt();
    switch (period) {
    case EachMonth:
    case EachWeek:
    case EachDay:
        return nextOnADay(period, day, hour, after);
    case EachHour:
        return nextFull(kSecondsPerHour, after);
    case EachMinute:
        return nextFull(kSecondsPerMinute, after);
    default:
        return {};
    }
}

QList<QDateTime> nextEvents(const QHash<QString, QVariant> &settings, const QDateTime &after,
                            int count)
{
    QList<QDateTime> events;
    QDateTime moment = nextEvent(settings, after);
    while (events.size() < count && moment.isValid()) {
        events.append(moment);
        moment = nextEvent(settings, moment);
    }
    return events;
}
