#include "TXTriggerEventWidget.h"

#include "ChoiceRoom.h"
#include "OwnTitle.h"
#include "ui_TXTriggerEventWidget.h"

#include <QEvent>
#include <QLocale>
#include <QSettings>
#include <QTime>

#include <algorithm>

namespace {

const QLatin1String kPeriodKey("Period");
const QLatin1String kHourKey("HourInDay");
const QLatin1String kDayKey("DayNumber");

const QLatin1String kDebuggingSetting("MeasurementCleaningDebugging");

/// As they are stored.
enum Period : int {
    EachMonth = 0,
    EachWeek = 1,
    EachDay = 2,
    EachHour = 3,
    EachMinute = 4,
};

/// Every month has this one, so that the event comes in every month.
constexpr int kLastDayOfMonth = 28;
constexpr int kDaysOfWeek = 7;
constexpr int kHoursOfDay = 24;

constexpr int kFirstDay = 1;
constexpr int kFirstHour = 0;
/// Stands for an hour that is missing too.
constexpr int kSavedWithoutData = 1;

QString periodName(int period)
{
    switch (period) {
    case EachMonth:
        return TXTriggerEventWidget::tr("Each Month");
    case EachWeek:
        return TXTriggerEventWidget::tr("Each Week");
    case EachDay:
        return TXTriggerEventWidget::tr("Each Day");
    case EachHour:
        return TXTriggerEventWidget::tr("Each Hour");
    case EachMinute:
        return TXTriggerEventWidget::tr("Each Minute");
    default:
        return {};
    }
}

bool isDebugging()
{
    return QSettings().value(kDebuggingSetting, false).toBool();
}

/// The number as it stands, also one that is not whole or beyond int: the lists have no such entry,
/// where a conversion to int would find another one.
double numberIn(const QVariant &value, int otherwise)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? number : otherwise;
}

int placeOf(double number, const QComboBox &list)
{
    return list.findData(number, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

void selectIfThere(double number, QComboBox &list)
{
    const int place = placeOf(number, list);
    if (place >= 0) {
        list.setCurrentIndex(place);
    }
}

QVariant selectedIn(const QComboBox *list)
{
    const QVariant selected = list ? list->currentData() : QVariant();
    return selected.isValid() ? selected : QVariant(kSavedWithoutData);
}

} // namespace

TXTriggerEventWidget::TXTriggerEventWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXTriggerEventWidget>())
{
    setUpControls();
    setUpPeriods();
    setUpHours();
    periodComboBox->setCurrentIndex(0);
    currentTriggerPeriodChanged(0);
    connect(periodComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(currentTriggerPeriodChanged(int)));
}

TXTriggerEventWidget::~TXTriggerEventWidget() = default;

void TXTriggerEventWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void TXTriggerEventWidget::load(const QHash<QString, QVariant> &settings)
{
    if (!hasAllControls()) {
        return;
    }
    const int place = placeOf(numberIn(settings.value(kPeriodKey), EachWeek), *periodComboBox);
    periodComboBox->setCurrentIndex(place < 0 ? placeOf(EachWeek, *periodComboBox) : place);
    // The days are those of the new period by now. Not-a-number reads as the first.
    const double day = numberIn(settings.value(kDayKey), kFirstDay);
    selectIfThere(std::max<double>(kFirstDay, day), *dayComboBox);
    const double hour = numberIn(settings.value(kHourKey), kFirstHour);
    selectIfThere(std::max<double>(kFirstHour, hour), *hourComboBox);
}

QHash<QString, QVariant> TXTriggerEventWidget::save()
{
    QHash<QString, QVariant> settings;
    settings.insert(kPeriodKey, periodComboBox ? periodComboBox->currentData().toInt() : EachMonth);
    settings.insert(kHourKey, selectedIn(hourComboBox));
    settings.insert(kDayKey, selectedIn(dayComboBox));
    return settings;
}

QString TXTriggerEventWidget::groupBoxTitle() const
{
    return triggerBox ? triggerBox->title() : QString();
}

void TXTriggerEventWidget::setGroupBoxTitle(const QString &title)
{
    hostTitle = title.isNull() ? QLatin1String("") : title;
    if (triggerBox) {
        triggerBox->setTitle(title);
    }
}

void TXTriggerEventWidget::addHourTriggerPeriod()
{
    if (isDebugging() || !periodComboBox) {
        return;
    }
    disconnect(periodComboBox, SIGNAL(currentIndexChanged(int)), this,
               SLOT(currentTriggerPeriodChanged(int)));
    addPeriod(EachHour);
    connect(periodComboBox, SIGNAL(currentIndexChanged(int)), this,
            SLOT(currentTriggerPeriodChanged(int)));
}

void TXTriggerEventWidget::currentTriggerPeriodChanged(int index)
{
    if (!hasAllControls()) {
        return;
    }
    const int period = periodComboBox->itemData(index).toInt();
    showDaysOf(period);
    enableDay(period == EachMonth || period == EachWeek);
    enableHour(period != EachHour && !(period == EachMinute && isDebugging()));
}

void TXTriggerEventWidget::setUpControls()
{
    ui->setupUi(this);
    OwnTitle::remember(*this);
    triggerBox = ui->triggerBox;
    periodComboBox = ui->triggerPeriodComboBox;
    periodLabel = ui->periodLabel;
    dayLabel = ui->dayLabel;
    dayComboBox = ui->dayComboBox;
    hourLabel = ui->hourLabel;
    hourComboBox = ui->hourComboBox;
}

void TXTriggerEventWidget::setUpPeriods()
{
    addPeriod(EachMonth);
    addPeriod(EachWeek);
    addPeriod(EachDay);
    if (isDebugging()) {
        addPeriod(EachHour);
        addPeriod(EachMinute);
    }
}

void TXTriggerEventWidget::addPeriod(int period)
{
    periodComboBox->addItem(periodName(period), period);
}

void TXTriggerEventWidget::setUpHours()
{
    for (int hour = 0; hour < kHoursOfDay; ++hour) {
        hourComboBox->addItem(QTime(hour, 0, 0, 0).toString(QStringLiteral("hh:mm ap")), hour);
    }
}

bool TXTriggerEventWidget::hasAllControls() const
{
    return periodComboBox && dayLabel && dayComboBox && hourLabel && hourComboBox;
}

void TXTriggerEventWidget::showDaysOf(int period)
{
    if (period == EachMonth) {
        fillWithDaysOfMonth();
    } else if (period == EachWeek) {
        fillWithDaysOfWeek();
    }
}

void TXTriggerEventWidget::fillWithDaysOfMonth()
{
    dayComboBox->clear();
    for (int day = 1; day <= kLastDayOfMonth; ++day) {
        dayComboBox->addItem(QString::number(day), day);
    }
    dayComboBox->setCurrentIndex(0);
}

void TXTriggerEventWidget::fillWithDaysOfWeek()
{
    dayComboBox->clear();
    for (int day = 1; day <= kDaysOfWeek; ++day) {
        dayComboBox->addItem(QLocale().dayName(day, QLocale::LongFormat), day);
    }
    dayComboBox->setCurrentIndex(0);
}

void TXTriggerEventWidget::enableDay(bool isEnabled)
{
    dayComboBox->setEnabled(isEnabled);
    dayLabel->setEnabled(isEnabled);
}

void TXTriggerEventWidget::enableHour(bool isEnabled)
{
    hourComboBox->setEnabled(isEnabled);
    hourLabel->setEnabled(isEnabled);
}

void TXTriggerEventWidget::retranslate()
{
    retranslateForm();
    for (int row = 0; periodComboBox && row < periodComboBox->count(); ++row) {
        const QVariant period = periodComboBox->itemData(row);
        const QString name = period.isValid() ? periodName(period.toInt()) : QString();
        // A host may have added entries of its own.
        periodComboBox->setItemText(row, name.isEmpty() ? periodComboBox->itemText(row) : name);
    }
    const bool isWeek = periodComboBox && periodComboBox->currentData().toInt() == EachWeek;
    for (int row = 0; isWeek && dayComboBox && row < dayComboBox->count(); ++row) {
        dayComboBox->setItemText(
            row, QLocale().dayName(dayComboBox->itemData(row).toInt(), QLocale::LongFormat));
    }
    for (QComboBox *box : {periodComboBox.data(), dayComboBox.data()}) {
        if (box) {
            ChoiceRoom::measureAnew(*box);
        }
    }
}

void TXTriggerEventWidget::retranslateForm()
{
    // The form sets the texts of all its widgets, so none of them may be missing.
    const bool isWhole = triggerBox && periodLabel && hasAllControls();
    if (!isWhole) {
        return;
    }
    OwnTitle::retranslate(*ui, *this);
    if (!hostTitle.isNull()) {
        triggerBox->setTitle(hostTitle);
    }
}
