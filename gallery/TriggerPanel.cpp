#include "TriggerPanel.h"

#include "DictionaryView.h"
#include "TriggerSchedule.h"
#include "WidgetReplacement.h"

#include "TXTriggerEventWidget.h"

#include <QCheckBox>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kShownEvents = 3;
/// What a timer takes is limited, and the clock may be set meanwhile.
constexpr qint64 kLongestWaitMilliseconds = qint64(60) * 60 * 1000;

} // namespace

TriggerPanel::TriggerPanel(QWidget *parent)
    : GalleryPanel(parent)
    , widget(new TXTriggerEventWidget(this))
    , hoursBox(new QCheckBox(this))
    , saveButton(new QPushButton(this))
    , loadButton(new QPushButton(this))
    , view(new DictionaryView(this))
    , eventsLabel(new QLabel(this))
    , timer(new QTimer(this))
    , kept(widget->save())
{
    timer->setSingleShot(true);
    eventsLabel->setTextFormat(Qt::PlainText);
    eventsLabel->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    eventsLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setUpLayout();
    setTexts();
    nameEvent();
    showSettings();
    connect(hoursBox, SIGNAL(toggled(bool)), this, SLOT(renew()));
    connect(saveButton, SIGNAL(clicked()), this, SLOT(save()));
    connect(loadButton, SIGNAL(clicked()), this, SLOT(load()));
    connect(timer, SIGNAL(timeout()), this, SLOT(showEvents()));
}

void TriggerPanel::retranslate()
{
    setTexts();
    renew();
    showEvents();
}

void TriggerPanel::save()
{
    kept = widget->save();
    showSettings();
}

void TriggerPanel::load()
{
    widget->load(kept);
}

void TriggerPanel::showSettings()
{
    view->setDictionary(kept);
    showEvents();
}

void TriggerPanel::showEvents()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QList<QDateTime> events = nextEvents(kept, now, kShownEvents);
    eventsLabel->setText(eventsText(events));
    // What is over must not stand there as what is to come.
    const qint64 wait = events.isEmpty() ? kLongestWaitMilliseconds : now.msecsTo(events.first());
    timer->start(int(std::clamp(wait, qint64(1), kLongestWaitMilliseconds)));
}

/// Makes the widget anew as it stands, with its texts in the language of the moment.
void TriggerPanel::renew()
{
    const QHash<QString, QVariant> shown = widget->save();
    auto *renewed = new TXTriggerEventWidget(this);
    if (hoursBox->isChecked()) {
        renewed->addHourTriggerPeriod();
    }
    renewed->load(shown);
    replaceWidget(widget, renewed, hoursBox);
    widget = renewed;
    nameEvent();
}

QString TriggerPanel::eventsText(const QList<QDateTime> &events) const
{
    if (events.isEmpty()) {
        return tr("The event never comes.");
    }
    const QLocale locale;
    QStringList lines = {tr("By the settings that are kept, the event comes next on:")};
    for (const QDateTime &event : events) {
        lines.append(
            QStringLiteral("%1, %2").arg(locale.toString(event.date(), QLocale::LongFormat),
                                         locale.toString(event.time(), QLocale::ShortFormat)));
    }
    return lines.join(u'\n');
}

void TriggerPanel::setTexts()
{
    setTitle(tr("Trigger event"));
    hoursBox->setText(tr("Offer &hours"));
    setButtonText(saveButton, tr("Sa&ve"));
    setButtonText(loadButton, tr("L&oad"));
}

void TriggerPanel::nameEvent()
{
    widget->setGroupBoxTitle(tr("Calibration of the instrument"));
}

void TriggerPanel::setUpLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(hoursBox);
    buttons->addStretch();
    buttons->addWidget(saveButton);
    buttons->addWidget(loadButton);

    auto *outcome = new QHBoxLayout;
    outcome->setSpacing(kGap);
    outcome->addWidget(view, 1);
    outcome->addWidget(eventsLabel, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(widget);
    rows->addLayout(buttons);
    rows->addLayout(outcome);
}
