#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>

/// @file
/// When an event comes, by the settings that TXTriggerEventWidget saves: what a host makes of them.

/// The first moment after the given one, in its time zone. A time of the day that summer time
/// leaves out comes an hour later. Invalid for a period that is none, and for an hour or a day that
/// no day or month has.
[[nodiscard]] QDateTime nextEvent(const QHash<QString, QVariant> &settings, const QDateTime &after);

/// So many moments one after the other; fewer where there is none.
[[nodiscard]] QList<QDateTime> nextEvents(const QHash<QString, QVariant> &settings,
                                          const QDateTime &after, int count);
