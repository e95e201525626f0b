#include "ObservedProgress.h"

#include "TXProgressBar.h"

#include <QEvent>
#include <QProgressBar>

ObservedProgress::ObservedProgress(TXProgressBar *bar, QObject *parent)
    : QObject(parent)
    , delegate(bar)
    , paintedBar(bar->findChild<QProgressBar *>(QStringLiteral("progressBar")))
{
    paintedBar->installEventFilter(this);
}

void ObservedProgress::startCounting()
{
    reportCount = 0;
    paintingCount = 0;
}

void ObservedProgress::onProgressionUpdated(QList<QString> path, float progress)
{
    ++reportCount;
    delegate.onProgressionUpdated(path, progress);
}

void ObservedProgress::onMessageUpdated(QList<QString> path, const TXStringI18n &message)
{
    ++reportCount;
    delegate.onMessageUpdated(path, message);
}

void ObservedProgress::onLogAppended(QList<QString> path, const TXError &error)
{
    delegate.onLogAppended(path, error);
}

void ObservedProgress::onMetadataEdited(QList<QString> path, QString key, QVariant value)
{
    delegate.onMetadataEdited(path, key, value);
}

bool ObservedProgress::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Paint && object == paintedBar) {
        ++paintingCount;
    }
    return QObject::eventFilter(object, event);
}
