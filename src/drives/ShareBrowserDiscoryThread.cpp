#include "ShareBrowserDiscoryThread.h"

#include "AutoMountNetworkDrive.h"
#include "FindsUnderWay.h"

#include <atomic>

// The flag is a plain one.
static_assert(std::atomic_ref<bool>::required_alignment <= alignof(bool));

ShareBrowserDiscoryThread::ShareBrowserDiscoryThread()
    : underWay(std::make_unique<FindsUnderWay>())
{
    connect(this, SIGNAL(newShare(QUrl)), this, SLOT(takeShare()));
}

ShareBrowserDiscoryThread::~ShareBrowserDiscoryThread()
{
    stop();
}

bool ShareBrowserDiscoryThread::start(QUrl url)
{
    if (isRunning()) {
        return false;
    }
    std::atomic_ref(stopped).store(false);
    underWay->hold();
    this->url = url;
    QThread::start(QThread::InheritPriority);
    return true;
}

void ShareBrowserDiscoryThread::stop()
{
    std::atomic_ref(stopped).store(true);
    underWay->release();
    wait();
}

void ShareBrowserDiscoryThread::takeShare()
{
    underWay->take();
}

void ShareBrowserDiscoryThread::run()
{
    AutoMountNetworkDrive::findHostsOrShareFolders(url, found, isCancelled, this);
}

void ShareBrowserDiscoryThread::found(QUrl share, void *context)
{
    if (auto *thread = static_cast<ShareBrowserDiscoryThread *>(context)) {
        thread->underWay->send();
        emit thread->newShare(share);
    }
}

bool ShareBrowserDiscoryThread::isCancelled(void *context)
{
    return context
        && std::atomic_ref(static_cast<ShareBrowserDiscoryThread *>(context)->stopped).load();
}
