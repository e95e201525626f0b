#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <memory>

class QComboBox;
class QGroupBox;
class QLabel;

namespace Ui {
class TXTriggerEventWidget;
}

/// The panel on which a user sets when an event comes back: each month on a day, each week on a day
/// of the week, each day, and there at an hour of the day.
///
/// The host takes a settings dictionary from its store, gives it to load(), and reads save() back
/// when it applies the settings; the keys stand there. It is the host that fires the event: the
/// panel holds no timer. Take a QDateTimeEdit for an event that happens once.
///
/// The value "MeasurementCleaningDebugging" of the application's QSettings (bool, false when
/// missing) helps to try a host out: where it is true, a new panel offers each hour and each minute
/// too.
///
/// The names of the days are those of the default QLocale at the moment when they are filled in.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXTriggerEventWidget : public QWidget
{
    Q_OBJECT
    /// See groupBoxTitle() and setGroupBoxTitle().
    Q_PROPERTY(QString groupBoxTitle READ groupBoxTitle WRITE setGroupBoxTitle)

public:
    /// A panel for each month, on day 1, at the hour 0, under the title "Trigger".
    explicit TXTriggerEventWidget(QWidget *parent = nullptr);
    ~TXTriggerEventWidget() override;

    /// Shows the settings. Reads three keys:
    /// - "Period": 0 each month, 1 each week, 2 each day, 3 each hour, 4 each minute; 1 when
    ///   missing. What the panel does not offer, or is no whole number, shows as each week.
    /// - "DayNumber": the day of the month from 1 to 28, or of the week from 1, Monday, to 7; 1
    ///   when missing, no number, or less.
    /// - "HourInDay": from 0 to 23; 0 when missing, no number, or less.
    ///
    /// A day or an hour that the lists do not have leaves the one that is selected, which for the
    /// day is the first when the period changes with it to months or weeks.
    void load(const QHash<QString, QVariant> &settings);

    /// The settings, with the three keys of load() at each call, each as int. What is disabled is
    /// saved too, so that a daily event still has a day. Where no day or no hour is selected that
    /// key is 1; where no period is, it is 0.
    QHash<QString, QVariant> save();

    /// The text above the panel; empty where a host has taken the box out.
    [[nodiscard]] QString groupBoxTitle() const;
    /// The text above the panel, "Trigger" at first.
    void setGroupBoxTitle(const QString &title);

    /// Offers each hour as the last of the periods, and changes nothing of what is selected. Each
    /// call adds one entry. Does nothing where the setting "MeasurementCleaningDebugging" is true,
    /// which offers it already.
    void addHourTriggerPeriod();

public slots:
    /// Fills in the days of the period at this place of the list, the first of them selected, and
    /// enables what the period needs; a period without days keeps those of the one before. The
    /// panel calls it itself. A place outside the list counts as each month, which is what save()
    /// gives where nothing is selected.
    void currentTriggerPeriodChanged(int index);

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    void setUpControls();
    void setUpPeriods();
    void addPeriod(int period);
    void setUpHours();
    [[nodiscard]] bool hasAllControls() const;
    void showDaysOf(int period);
    void fillWithDaysOfMonth();
    void fillWithDaysOfWeek();
    void enableDay(bool isEnabled);
    void enableHour(bool isEnabled);
    void retranslate();
    void retranslateForm();

    std::unique_ptr<Ui::TXTriggerEventWidget> ui;
    // Of the form, which a host may take apart.
    QPointer<QGroupBox> triggerBox;
    QPointer<QComboBox> periodComboBox;
    QPointer<QLabel> dayLabel;
    QPointer<QComboBox> dayComboBox;
    QPointer<QLabel> hourLabel;
    QPointer<QComboBox> hourComboBox;
    QPointer<QLabel> periodLabel;
    // Of the host; null until there is one.
    QString hostTitle;
};
