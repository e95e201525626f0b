#include "ProgressBarCompletionDelegate.h"

#include "TXProgressBar.h"
#include "WholeNumber.h"

#include <QMutexLocker>
#include <QTimer>

#include <cmath>
#include <utility>

namespace {

constexpr int kLookMilliseconds = 200;
constexpr int kFinishedPercent = 100;

} // namespace

ProgressBarCompletionDelegate::ProgressBarCompletionDelegate(TXProgressBar *progressBar)
    : progressBar(progressBar)
    , timer(new QTimer(this))
{
    if (progressBar) {
        progressBar->setRange(0, kFinishedPercent);
        progressBar->setValue(kFinishedPercent);
        progressBar->setTextVisible(true);
        progressBar->hide();
    }
    connect(timer, SIGNAL(timeout()), this, SLOT(updateProgressBar()));
    timer->setInterval(kLookMilliseconds);
    timer->start();
}

ProgressBarCompletionDelegate::~ProgressBarCompletionDelegate()
{
    stopTimer();
    // Deleted by a slot on taskFinished(): the looks below it can no longer give back their locks.
    for (; looks > 0; --looks) {
        mutex.unlock();
    }
}

void ProgressBarCompletionDelegate::stopTimer()
{
    const QMutexLocker locker(&mutex);
    if (timer) {
        timer->stop();
        delete timer;
        timer = nullptr;
    }
}

void ProgressBarCompletionDelegate::onProgressionUpdated(QList<QString>, float progress)
{
    const QMutexLocker locker(&mutex);
    this->progress = progress;
}

void ProgressBarCompletionDelegate::onMessageUpdated(QList<QString>, const TXStringI18n &message)
{
    // The former message, too, is freed without the lock.
    TXStringI18n exchanged = message;
    const QMutexLocker locker(&mutex);
    std::swap(this->message, exchanged);
}

void ProgressBarCompletionDelegate::onLogAppended(QList<QString>, const TXError &) { }

void ProgressBarCompletionDelegate::onMetadataEdited(QList<QString>, QString, QVariant) { }

void ProgressBarCompletionDelegate::updateProgressBar()
{
    const QPointer<ProgressBarCompletionDelegate> self(this);
    mutex.lock();
    ++looks;
    showProgress();
    if (self) {
        --looks;
        mutex.unlock();
    }
}

void ProgressBarCompletionDelegate::showProgress()
{
    if (!progressBar) {
        return;
    }
    if (progress == float(progressBar->maximum())) {
        progressBar->hide();
        emit taskFinished();
        return;
    }
    // Not-a-number has no whole part; the bar itself refuses what is outside its range.
    if (!std::isnan(progress)) {
        progressBar->setValue(WholeNumber::truncated(double(progress)));
    }
    progressBar->setMessage(message.toString(nullptr));
    progressBar->show();
}
