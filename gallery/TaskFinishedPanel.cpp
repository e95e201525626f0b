#include "TaskFinishedPanel.h"

#include "ObservedProgress.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>

namespace {

enum Column { NameColumn, TaskColumn, TimerColumn, CountColumn };

} // namespace

TaskFinishedPanel::TaskFinishedPanel(const QList<ObservedProgress *> &delegates, QWidget *parent)
    : GalleryPanel(parent)
    , delegates(delegates.cbegin(), delegates.cend())
    , table(new QTreeWidget(this))
    , hint(new QLabel(this))
    , stopButton(new QPushButton(this))
    , renewButton(new QPushButton(this))
{
    setUpLayout();
    for (const ObservedProgress *delegate : delegates) {
        auto *item = new QTreeWidgetItem(table);
        item->setTextAlignment(CountColumn, Qt::AlignRight | Qt::AlignVCenter);
        connect(delegate, SIGNAL(changed()), this, SLOT(showStates()));
    }
    table->setCurrentItem(table->topLevelItem(0));
    retranslate();
    connect(table, SIGNAL(itemSelectionChanged()), this, SLOT(showStates()));
    connect(stopButton, SIGNAL(clicked()), this, SLOT(stopTimer()));
    connect(renewButton, SIGNAL(clicked()), this, SLOT(renew()));
}

void TaskFinishedPanel::setNames(const QStringList &names)
{
    for (int row = 0; row < table->topLevelItemCount(); ++row) {
        table->topLevelItem(row)->setText(NameColumn, names.value(row));
    }
}

void TaskFinishedPanel::showStates()
{
    for (int row = 0; row < delegates.size(); ++row) {
        const ObservedProgress *delegate = delegates.at(row);
        if (!delegate) {
            continue;
        }
        QTreeWidgetItem *item = table->topLevelItem(row);
        item->setText(TaskColumn, delegate->isTaskRunning() ? tr("runs") : tr("none"));
        item->setText(TimerColumn, delegate->isTimerRunning() ? tr("runs") : tr("stopped"));
        item->setText(CountColumn, locale().toString(delegate->finishes()));
    }
    updateButtons();
}

void TaskFinishedPanel::stopTimer()
{
    if (ObservedProgress *delegate = chosen()) {
        delegate->stopTimer();
        renewButton->setFocus();
    }
}

void TaskFinishedPanel::renew()
{
    if (ObservedProgress *delegate = chosen()) {
        delegate->renew();
    }
}

void TaskFinishedPanel::retranslate()
{
    setTitle(tr("taskFinished() comes again and again"));
    table->setHeaderLabels({tr("Delegate"), tr("Task"), tr("Timer"), tr("taskFinished()")});
    table->setAccessibleName(tr("Delegates"));
    hint->setText(tr("A delegate tells it five times a second while no task runs, until its timer "
                     "is stopped."));
    setButtonText(stopButton, tr("St&op Timer"));
    setButtonText(renewButton, tr("New Dele&gate"));
    showStates();
}

/// Null when no row is chosen.
ObservedProgress *TaskFinishedPanel::chosen() const
{
    QTreeWidgetItem *item = table->currentItem();
    return item ? delegates.at(table->indexOfTopLevelItem(item)) : nullptr;
}

void TaskFinishedPanel::updateButtons()
{
    const ObservedProgress *delegate = chosen();
    stopButton->setEnabled(delegate && delegate->isTimerRunning());
    renewButton->setEnabled(delegate && !delegate->isTaskRunning());
}

void TaskFinishedPanel::setUpLayout()
{
    constexpr int kTableHeightPixels = 64;
    table->setRootIsDecorated(false);
    table->setFixedHeight(kTableHeightPixels);
    table->header()->setStretchLastSection(false);
    table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    hint->setWordWrap(true);

    auto *buttonRow = new QHBoxLayout;
    buttonRow->addWidget(stopButton);
    buttonRow->addWidget(renewButton);
    buttonRow->addStretch();

    auto *rows = new QVBoxLayout(this);
    setMargins(rows);
    rows->addWidget(hint);
    rows->addWidget(table);
    rows->addLayout(buttonRow);
    rows->addStretch();
}
