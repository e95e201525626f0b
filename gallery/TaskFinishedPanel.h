#pragma once

#include "GalleryPanel.h"

#include <QList>
#include <QPointer>
#include <QStringList>

class ObservedProgress;
class QLabel;
class QPushButton;
class QTreeWidget;

/// What ProgressBarCompletionDelegate::taskFinished() tells and when: a row for each delegate, with
/// the count that goes on while no task runs, until the timer is stopped.
class TaskFinishedPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Tells of these, a row each. They stay the caller's; one that is destroyed leaves its row as
    /// it was.
    explicit TaskFinishedPanel(const QList<ObservedProgress *> &delegates,
                               QWidget *parent = nullptr);

    /// What the rows are called, in the order of the delegates.
    void setNames(const QStringList &names);

protected:
    void retranslate() override;

private slots:
    void showStates();
    void stopTimer();
    void renew();

private:
    [[nodiscard]] ObservedProgress *chosen() const;
    void updateButtons();
    void setUpLayout();

    QList<QPointer<ObservedProgress>> delegates;
    QTreeWidget *table;
    QLabel *hint;
    QPushButton *stopButton;
    QPushButton *renewButton;
};
