#pragma once

#include "TXGUICommonExport.h"

#include "ICompletionDelegate.h"
#include "TXStringI18n.h"

#include <QObject>
#include <QPointer>
#include <QRecursiveMutex>

class QTimer;
class TXProgressBar;

/// Shows on a TXProgressBar what workers report from other threads.
///
/// Hand it to the workers as an ICompletionDelegate. They write their progress and their message
/// into it, and five times a second the bar is brought up to date: a task is on while the progress
/// differs from the bar's maximum, and the bar is shown meanwhile. A task begins with its first
/// progress that a look finds other than 100, and ends with a report of 100. What is overwritten
/// between two looks is never shown.
///
/// There is no count of tasks: workers that share a delegate write over one another.
///
/// Not owned by the bar and not owning it. The bar may go first: the delegate then only stores what
/// it is told. Before the delegate is deleted each worker must have returned from its last call,
/// as it would call into what is no more: join the workers, or wait for their threads, and then
/// delete. Neither can be done from inside the workers' calls.
///
/// Thread: it is made, stopped and deleted on the GUI thread; the four operations of
/// ICompletionDelegate may be called from any thread.
class TXGUICOMMON_EXPORT ProgressBarCompletionDelegate : public QObject, public ICompletionDelegate
{
    Q_OBJECT

public:
    /// Sets the bar to a range of 0 to 100, a value of 100 and a visible text, hides it, and begins
    /// to look every 200 ms. With null it is a sink. The delegate has no parent: the host deletes
    /// it.
    explicit ProgressBarCompletionDelegate(TXProgressBar *progressBar);

    /// Ends as stopTimer() does; the bar stays as it is. A slot on taskFinished() may delete the
    /// delegate.
    ~ProgressBarCompletionDelegate() override;

    /// Ends looking, for good: the bar stays as it is and taskFinished() is emitted no more.
    /// Reports are still stored. Without effect a second time; a slot on taskFinished() may call
    /// it.
    void stopTimer();

    /// Stores the progress, on a scale from 0 to the bar's maximum; the path is not read. On the
    /// bar the fraction is dropped; a value outside its range moves it not, nor does not-a-number,
    /// but all of them keep the task going.
    ///
    /// Costs a lock and a store. Waits while a look is going on, slots on taskFinished() included.
    void onProgressionUpdated(QList<QString> path, float progress) override;

    /// Stores the message, which is translated when it is shown; the path is not read. Copied
    /// before the lock is taken.
    void onMessageUpdated(QList<QString> path, const TXStringI18n &message) override;

    /// Does nothing.
    void onLogAppended(QList<QString> path, const TXError &error) override;

    /// Does nothing.
    void onMetadataEdited(QList<QString> path, QString key, QVariant value) override;

signals:
    /// No task is going on. Emitted at every look that finds it so, not only at the first: five
    /// times a second until the next task or stopTimer(), and also before any task has begun. Not
    /// emitted without a bar.
    ///
    /// The lock is held: a slot that is called directly keeps workers waiting, and may itself
    /// report.
    void taskFinished();

private slots:
    void updateProgressBar();

private:
    void showProgress();

    QRecursiveMutex mutex;
    QPointer<TXProgressBar> progressBar;
    QTimer *timer = nullptr;
    float progress = 100.0F;
    TXStringI18n message;
    /// How many looks are going on, each with one lock: more than one when a slot on taskFinished()
    /// runs an event loop.
    int looks = 0;
};
