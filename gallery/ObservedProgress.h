#pragma once

#include "ICompletionDelegate.h"

#include <QObject>

#include <atomic>
#include <memory>

class ProgressBarCompletionDelegate;
class QProgressBar;
class TXProgressBar;

/// A ProgressBarCompletionDelegate over a TXProgressBar, with counts of what goes in and what comes
/// out: reports of workers, paintings of the bar, and taskFinished().
///
/// Workers report to this object, which passes all on. It has to outlive its workers and must be
/// destroyed before its bar. Made on the GUI thread; the operations of ICompletionDelegate may be
/// called from any.
class ObservedProgress final : public QObject, public ICompletionDelegate
{
    Q_OBJECT

public:
    /// The bar stays the caller's. It keeps its room while it is hidden, and shows messages in a
    /// field that does not move with their length.
    explicit ObservedProgress(TXProgressBar *bar, QObject *parent = nullptr);
    ~ObservedProgress() override;

    /// Reports of progress and messages since the last startTask(). Any thread.
    [[nodiscard]] qint64 reports() const { return reportCount; }
    /// How often the bar was painted while a task ran, since the last startTask().
    [[nodiscard]] qint64 paintings() const { return paintingCount; }
    /// How often the delegate has emitted taskFinished() since it was made.
    [[nodiscard]] qint64 finishes() const { return finishCount; }
    /// False once stopTimer() was called.
    [[nodiscard]] bool isTimerRunning() const { return hasTimer; }
    /// Whether startTask() was called and not endTask() after it.
    [[nodiscard]] bool isTaskRunning() const { return hasTask; }

    /// A task begins, ends: counts the paintings between.
    void startTask();
    void endTask();

    /// Stops the delegate's timer for good: what is reported is stored and no longer shown.
    void stopTimer();

    /// Takes a new delegate in the place of the old one, with a timer that runs. Does nothing
    /// while a task runs, since its workers report to the delegate.
    void renew();

    void onProgressionUpdated(QList<QString> path, float progress) override;
    void onMessageUpdated(QList<QString> path, const TXStringI18n &message) override;
    void onLogAppended(QList<QString> path, const TXError &error) override;
    void onMetadataEdited(QList<QString> path, QString key, QVariant value) override;

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /// A count other than those of the reports and paintings, or a state, has changed.
    void changed();
    /// There is a new delegate. It has set the bar to show its text.
    void renewed();

private slots:
    void countFinish();

private:
    void makeDelegate();

    TXProgressBar *bar;
    QProgressBar *paintedBar;
    std::unique_ptr<ProgressBarCompletionDelegate> delegate;
    std::atomic<qint64> reportCount = 0;
    qint64 paintingCount = 0;
    qint64 finishCount = 0;
    bool hasTimer = false;
    bool hasTask = false;
};
