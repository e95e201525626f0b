#pragma once

#include "TXGUICommonExport.h"

#include <QObject>
#include <QRunnable>
#include <QVariantHash>

class QUrl;

/// One question to the update service, whether there is a newer release; to be started on a thread
/// pool, which also deletes it.
///
/// Thread: made on any thread; run() works on a thread of the pool, shares nothing with others and
/// needs none of them, so that the GUI thread may wait for it.
class TXGUICOMMON_PRIVATE_EXPORT UpdateRunnable : public QObject, public QRunnable
{
    Q_OBJECT

public:
    /// Asks for the product of this number; -1 stands for an unknown one. Auto-delete is on.
    explicit UpdateRunnable(int productType);

    /// Asks the service and blocks until it has answered, however long it takes; then emits
    /// updateReceived().
    void run() override;

    /// The address of the question: path "/checkUpdate" with platform, product and revision, and
    /// with the status when the application's settings hold the key "UpdateStatus", be it empty.
    /// Reads the settings; any thread.
    [[nodiscard]] static QUrl checkUrl(int productType);

signals:
    /// Emitted once, on the thread of run(), with the same release record twice: as the service
    /// sent it; with the key "empty" alone, of the value "nodata", when it answered nothing usable
    /// (an empty body, one that is no JSON, JSON that is no object, an empty object); and empty
    /// when the exchange failed, be it by the network, TLS, HTTP or a body beyond
    /// WebExchange::kLargestBody.
    void updateReceived(QVariantHash update, QVariantHash lastUpdate);

private:
    int productType;
};
