#pragma once

#include "TXGUICommonExport.h"

#include <QObject>
#include <QRunnable>
#include <QVariantHash>

class QUrl;

/// One question to the update service, whether there is a newer release; to be started on a thread
/// pool, which also deletes it.
///
/// Thread: made on any thread; run() works on a thread of the pool and shares nothing.
class TXGUICOMMON_PRIVATE_EXPORT UpdateRunnable : public QObject, public QRunnable
{
    Q_OBJECT

public:
    /// Asks for the product of this number; -1 stands for an unknown one.
    explicit UpdateRunnable(int productType);

    /// Asks the service and blocks until it has answered, however long it takes; then emits
    /// updateReceived().
    void run() override;

    /// The address of the question: path "/checkUpdate" with platform, product and revision, and
    /// with the status when the application's settings hold the key "UpdateStatus". Reads the
    /// settings; any thread.
    [[nodiscard]] static QUrl checkUrl(int productType);

signals:
    /// Emitted once, on the thread of run(), with the same release record twice: as the service
    /// sent it, with the key "empty" alone when it answered nothing usable, and empty when the
    /// exchange failed.
    void updateReceived(QVariantHash update, QVariantHash lastUpdate);

private:
    int productType;
};
