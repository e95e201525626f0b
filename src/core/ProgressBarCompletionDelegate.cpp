#include "ProgressBarCompletionDelegate.h"

#include "TXStringI18n.h"

ProgressBarCompletionDelegate::ProgressBarCompletionDelegate(TXProgressBar *) { }

void ProgressBarCompletionDelegate::stopTimer() { }

void ProgressBarCompletionDelegate::onProgressionUpdated(QList<QString>, float) { }

void ProgressBarCompletionDelegate::onMessageUpdated(QList<QString>, const TXStringI18n &) { }

void ProgressBarCompletionDelegate::onLogAppended(QList<QString>, const TXError &) { }

void ProgressBarCompletionDelegate::onMetadataEdited(QList<QString>, QString, QVariant) { }
