#include "ObservedProgress.h"

#include "ProgressBarCompletionDelegate.h"
#include "TXProgressBar.h"

#include <QEvent>
#include <QLabel>
#include <QProgressBar>

namespace {

constexpr int kMessageWidthPixels = 230;

} // namespace

ObservedProgress::ObservedProgress(TXProgressBar *bar, QObject *parent)
    : QObject(parent)
    , bar(bar)
    , paintedBar(bar->findChild<QProgressBar *>(QStringLiteral("progressBar")))
{
    QSizePolicy policy = bar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    bar->setSizePolicy(policy);
    auto *message = bar->findChild<QLabel *>(QStringLiteral("progressMessage"));
    message->setFixedWidth(kMessageWidthPixels);
    paintedBar->installEventFilter(this);
    makeDelegate();
}

ObservedProgress::~ObservedProgress() = default;

void ObservedProgress::startTask()
{
    reportCount = 0;
    paintingCount = 0;
    hasTask = true;
    emit changed();
}

void ObservedProgress::endTask()
{
    hasTask = false;
    emit changed();
}

void ObservedProgress::stopTimer()
{
    delegate->stopTimer();
    hasTimer = false;
    emit changed();
}

void ObservedProgress::renew()
{
    if (!hasTask) {
        makeDelegate();
        emit renewed();
        emit changed();
    }
}

void ObservedProgress::onProgressionUpdated(QList<QString> path, float progress)
{
    ++reportCount;
    delegate->onProgressionUpdated(path, progress);
}

void ObservedProgress::onMessageUpdated(QList<QString> path, const TXStringI18n &message)
{
    ++reportCount;
    delegate->onMessageUpdated(path, message);
}

void ObservedProgress::onLogAppended(QList<QString> path, const TXError &error)
{
    delegate->onLogAppended(path, error);
}

void ObservedProgress::onMetadataEdited(QList<QString> path, QString key, QVariant value)
{
    delegate->onMetadataEdited(path, key, value);
}

bool ObservedProgress::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Paint && object == paintedBar && hasTask) {
        ++paintingCount;
    }
    return QObject::eventFilter(object, event);
}

void ObservedProgress::countFinish()
{
    ++finishCount;
    emit changed();
}

void ObservedProgress::makeDelegate()
{
    // The old one first: its bar is the new one's.
    delegate.reset();
    delegate = std::make_unique<ProgressBarCompletionDelegate>(bar);
    finishCount = 0;
    hasTimer = true;
    connect(delegate.get(), SIGNAL(taskFinished()), this, SLOT(countFinish()));
}
