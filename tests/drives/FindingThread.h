#pragma once

#include "ShareBrowserDiscoryThread.h"

#include <QUrl>

/// Tells finds as fast as it can, without a network, in the way in which a search does: "smb://nas"
/// with the paths "/0", "/1", …
class FindingThread : public ShareBrowserDiscoryThread
{
public:
    /// A negative count goes on until the thread is stopped.
    explicit FindingThread(int count = -1)
        : count(count)
    { }
    ~FindingThread() override { stop(); }

    FindingThread(const FindingThread &) = delete;
    FindingThread &operator=(const FindingThread &) = delete;
    FindingThread(FindingThread &&) = delete;
    FindingThread &operator=(FindingThread &&) = delete;

    using ShareBrowserDiscoryThread::found;
    using ShareBrowserDiscoryThread::isCancelled;

    static QUrl share(int number) { return {QStringLiteral("smb://nas/%1").arg(number)}; }

protected:
    void run() override
    {
        for (int i = 0; (count < 0 || i < count) && !isCancelled(this); ++i) {
            found(share(i), this);
        }
    }

private:
    const int count;
};
