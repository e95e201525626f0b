#pragma once

#include "TXGUICommonExport.h"

#include <QThread>
#include <QUrl>

#include <memory>

class FindsUnderWay;

/// Searches the network for hosts and shared folders beside the GUI thread, by
/// AutoMountNetworkDrive::findHostsOrShareFolders(). Used by ShareBrowser.
///
/// A search that finds faster than the owner's event loop takes is held back, so that the owner has
/// turns for other work. An owner that runs no event loop gets all finds later.
///
/// Thread: start() and stop() by the thread that owns the object.
class TXGUICOMMON_EXPORT ShareBrowserDiscoryThread : public QThread
{
    Q_OBJECT

public:
    ShareBrowserDiscoryThread();
    /// Stops the search and waits for its end.
    ~ShareBrowserDiscoryThread() override;

    /// Searches below the URL; an empty one searches the network at large. False, and nothing
    /// changed, while a search runs.
    bool start(QUrl url);

    /// Ends the search and waits for its end without a limit, which takes a fraction of a second.
    /// Finds that are under way still arrive. Without a search it does nothing.
    void stop();

signals:
    /// Something was found. Emitted by the searching thread; connections with the automatic type
    /// are queued.
    void newShare(QUrl share);

protected:
    /// Runs the search.
    void run() override;

    /// What the search calls for each find: emits newShare() of the thread that the context is.
    /// Null does nothing.
    static void found(QUrl share, void *context);
    /// What the search asks: whether the thread that the context is has been stopped. False for
    /// null.
    static bool isCancelled(void *context);

private slots:
    void takeShare();

private:
    // Read by the searching thread too, by std::atomic_ref.
    bool stopped = false;
    QUrl url;
    std::unique_ptr<FindsUnderWay> underWay;
};
