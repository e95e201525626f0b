#include "LineEditDrapAndDrop.h"

#include <QDropEvent>
#include <QMimeData>

namespace {

QList<QUrl> urlsOf(const QMimeData *data)
{
    return data && data->hasUrls() ? data->urls() : QList<QUrl>();
}

} // namespace

LineEditDrapAndDrop::LineEditDrapAndDrop(QWidget *parent)
    : QLineEdit(parent)
{
    setAcceptDrops(true);
}

void LineEditDrapAndDrop::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = urlsOf(event->mimeData());
    if (!urls.isEmpty() && !urls.first().toLocalFile().isEmpty()) {
        event->acceptProposedAction();
    }
}

void LineEditDrapAndDrop::dropEvent(QDropEvent *event)
{
    if (event->mimeData() && event->mimeData()->hasUrls()) {
        emit urlFileListHaveBeenDropped(event->mimeData()->urls());
        event->acceptProposedAction();
    }
}
