#pragma once

#include "TXGUICommonExport.h"

#include <QList>
#include <QString>
#include <QVariant>

class TXError;
class TXStringI18n;

/// What a worker tells about its progress to whoever shows it.
///
/// The worker does not own the delegate. `path` names the task within larger ones, outermost first,
/// and may be empty. A worker ends its task by reporting a progress of 100, also when the task
/// failed or was cancelled.
///
/// Thread: any, that on which the worker works: an implementation guards what it stores and touches
/// no widget.
class TXGUICOMMON_EXPORT ICompletionDelegate
{
public:
    virtual ~ICompletionDelegate();

    /// The task has come so far, from 0 to 100.
    virtual void onProgressionUpdated(QList<QString> path, float progress) = 0;

    /// What the task is doing now, to be translated when it is shown.
    virtual void onMessageUpdated(QList<QString> path, const TXStringI18n &message) = 0;

    /// Something failed; the task may go on or not.
    virtual void onLogAppended(QList<QString> path, const TXError &error) = 0;

    /// A fact about the task, under a key that worker and host agree on.
    virtual void onMetadataEdited(QList<QString> path, QString key, QVariant value) = 0;
};
