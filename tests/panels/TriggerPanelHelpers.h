#pragma once

#include "TXTriggerEventWidget.h"

#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QSettings>
#include <QString>
#include <QVariant>

/// What the tests of the trigger panel share.
namespace TriggerTest {

using Settings = QHash<QString, QVariant>;

/// As they are stored.
enum Period {
    EachMonth = 0,
    EachWeek = 1,
    EachDay = 2,
    EachHour = 3,
    EachMinute = 4,
};

inline void setDebugging(const QVariant &value)
{
    QSettings().setValue(QStringLiteral("MeasurementCleaningDebugging"), value);
}

/// A panel with its parts at hand.
struct Panel
{
    template<class Child>
    [[nodiscard]] Child *part(const char *name) const
    {
        return widget.findChild<Child *>(QString::fromLatin1(name));
    }

    void selectPeriod(int value) const { periods->setCurrentIndex(periods->findData(value)); }

    TXTriggerEventWidget widget;
    QComboBox *periods = part<QComboBox>("triggerPeriodComboBox");
    QComboBox *days = part<QComboBox>("dayComboBox");
    QComboBox *hours = part<QComboBox>("hourComboBox");
    QLabel *dayLabel = part<QLabel>("dayLabel");
    QLabel *hourLabel = part<QLabel>("hourLabel");
};

/// What a list offers: the stored values in their order.
inline QList<int> valuesOf(const QComboBox &list)
{
    QList<int> values;
    for (int place = 0; place < list.count(); ++place) {
        values.append(list.itemData(place).typeId() == QMetaType::Int ? list.itemData(place).toInt()
                                                                      : -1);
    }
    return values;
}

inline QStringList textsOf(const QComboBox &list)
{
    QStringList texts;
    for (int place = 0; place < list.count(); ++place) {
        texts.append(list.itemText(place));
    }
    return texts;
}

} // namespace TriggerTest
