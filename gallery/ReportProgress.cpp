#include "ReportProgress.h"

#include "TXProgressBar.h"

#include <QCoreApplication>

ReportProgress::ReportProgress(TXProgressBar *bar)
    : bar(bar)
{ }

void ReportProgress::onProgressionUpdated(QList<QString> /*path*/, float progress)
{
    if (bar) {
        bar->setValue(qRound(progress));
    }
    QCoreApplication::processEvents();
}

// The error also comes with the result of the work, and there is nothing else to show.
void ReportProgress::onMessageUpdated(QList<QString> /*path*/, const TXStringI18n & /*message*/) { }

void ReportProgress::onLogAppended(QList<QString> /*path*/, const TXError & /*error*/) { }

void ReportProgress::onMetadataEdited(QList<QString> /*path*/, QString /*key*/, QVariant /*value*/)
{ }
