#pragma once

#include "TXGUICommonExport.h"

#include "ICompletionDelegate.h"

#include <QObject>

class TXProgressBar;

class TXGUICOMMON_EXPORT ProgressBarCompletionDelegate : public QObject, public ICompletionDelegate
{
    Q_OBJECT

public:
    explicit ProgressBarCompletionDelegate(TXProgressBar *progressBar);
    void stopTimer();
    void onProgressionUpdated(QList<QString> path, float progress) override;
    void onMessageUpdated(QList<QString> path, const TXStringI18n &message) override;
    void onLogAppended(QList<QString> path, const TXError &error) override;
    void onMetadataEdited(QList<QString> path, QString key, QVariant value) override;

signals:
    void taskFinished();
};
