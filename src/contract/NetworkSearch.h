#pragma once

#include "HostSearch.h"
#include "SearchWarnings.h"
#include "ShareSearch.h"
#include "TXCoreCommonExport.h"

#include <QList>
#include <QUrl>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

/// How long the parts of a search may take; milliseconds.
struct NetworkSearchTiming
{
    /// Finding the hosts.
    int hosts = HostSearch::kDefaultMilliseconds;
    /// Listing the shares of one host.
    int shares = ShareSearch::kDefaultMilliseconds;
};

/// One search of the network for hosts and their shares, or of one host for its shares: what stands
/// behind AutoMountNetworkDrive::findHostsOrShareFolders().
///
/// The programs are read by threads of the search's own, which end with it; whoever runs it gets
/// all calls on the thread that runs it. Thread: each object is used once, on any thread.
class TXCORECOMMON_PRIVATE_EXPORT NetworkSearch
{
public:
    /// How many hosts are asked for their shares at a time, so that one that does not answer holds
    /// nobody up.
    static constexpr int kHostsAtATime = 6;

    explicit NetworkSearch(const NetworkSearchTiming &timing = {})
        : timing(timing)
    { }

    /// Searches and blocks until everything has been asked.
    ///
    /// An empty URL, or one of nothing but the scheme, searches the network: each host is found,
    /// and after it the shares that it lists without a password. A URL with a host finds the shares
    /// of that host for the URL's user; its path does not count. The schemes are "smb", "afp" which
    /// means the same here, and none. Any other URL finds nothing and becomes a warning.
    ///
    /// What comes after 100,000 finds is left out, and so is what a system without another thread
    /// cannot search; both become a warning.
    ///
    /// `found` gets each find as it comes. `cancelled` is asked first of all, before each find and
    /// at least each 50 ms unless `found` takes longer; once it was true nothing is called any
    /// more, all programs are killed, and this returns. Both may be null. Returns what `found` has
    /// got, or would have.
    [[nodiscard]] QList<QUrl> run(const QUrl &url, const std::function<void(const QUrl &)> &found,
                                  const std::function<bool()> &cancelled);

private:
    [[nodiscard]] bool begin(const QUrl &url);
    bool startThreads(void (NetworkSearch::*work)(), int count);
    [[nodiscard]] bool startThread(void (NetworkSearch::*work)());
    void searchHosts();
    void searchShares();
    void addHost(const HostSearch::Host &host);
    void addShare(const QUrl &share);
    bool addFind(const QUrl &find);
    [[nodiscard]] std::optional<HostSearch::Host> nextHost();
    [[nodiscard]] QList<QUrl> waitForFinds(bool *isOver);
    [[nodiscard]] bool isStopped() const { return stopped; }
    [[nodiscard]] bool isEnough() const { return stopped || full; }
    void end();

    const NetworkSearchTiming timing;
    SearchWarnings warnings;
    std::vector<std::thread> threads;
    std::atomic_bool stopped = false;
    std::atomic_bool full = false;

    // Of all that follows.
    std::mutex mutex;
    std::condition_variable hostsChanged;
    std::condition_variable findsChanged;
    std::deque<HostSearch::Host> waitingHosts;
    QList<QUrl> newFinds;
    bool hostsAreComing = false;
    int findCount = 0;
    int runningThreads = 0;
};
