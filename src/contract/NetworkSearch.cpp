#include "NetworkSearch.h"

#include "NetworkShare.h"

#include <chrono>
#include <system_error>
#include <utility>

namespace {

constexpr std::chrono::milliseconds kSlice{20};
/// More than anybody can look through; a network of hosts that list without end does not fill the
/// memory.
constexpr int kMostFinds = 100'000;

/// An address that could not be read is empty in all its parts, but not as a whole.
bool isWholeNetwork(const QUrl &url)
{
    const bool isNothing =
        url.authority().isEmpty() && (url.path().isEmpty() || url.path() == u"/");
    return url.isEmpty() || (url.isValid() && NetworkShare::isSpoken(url.scheme()) && isNothing);
}

} // namespace

QList<QUrl> NetworkSearch::run(const QUrl &url, const std::function<void(const QUrl &)> &found,
                               const std::function<bool()> &cancelled)
{
    QList<QUrl> finds;
    const auto isCancelled = [&cancelled] {
        return cancelled && cancelled();
    };
    if (isCancelled() || !begin(url)) {
        return finds;
    }
    for (bool isOver = false; !isOver && !isStopped();) {
        const QList<QUrl> more = waitForFinds(&isOver);
        stopped = isCancelled();
        for (auto find = more.cbegin(); find != more.cend() && !isStopped(); ++find) {
            finds.append(*find);
            if (found) {
                found(*find);
            }
            stopped = isCancelled();
        }
    }
    end();
    return finds;
}

bool NetworkSearch::begin(const QUrl &url)
{
    if (isWholeNetwork(url)) {
        hostsAreComing = true;
        if (!startThreads(&NetworkSearch::searchHosts, 1)) {
            return false;
        }
        // Hosts alone are worth something, too.
        startThreads(&NetworkSearch::searchShares, kHostsAtATime);
        return true;
    }
    if (!NetworkShare::isSpoken(url.scheme())) {
        warnings.warn(SearchWarnings::Kind::UnusableAddress,
                      QStringLiteral("Only addresses that begin with \"smb:\" can be searched for "
                                     "shares."));
        return false;
    }
    waitingHosts.push_back({{}, url, {}});
    return startThreads(&NetworkSearch::searchShares, 1);
}

bool NetworkSearch::startThreads(void (NetworkSearch::*work)(), int count)
{
    int started = 0;
    while (started < count && startThread(work)) {
        ++started;
    }
    if (started == 0) {
        warnings.warn(SearchWarnings::Kind::Failed,
                      QStringLiteral("The network cannot be searched: the system does not allow "
                                     "another thread."));
    }
    return started > 0;
}

bool NetworkSearch::startThread(void (NetworkSearch::*work)())
{
    const std::lock_guard lock(mutex);
    try {
        threads.emplace_back([this, work] {
            (this->*work)();
            const std::lock_guard endLock(mutex);
            --runningThreads;
            findsChanged.notify_one();
        });
    } catch (const std::system_error &) {
        return false;
    }
    ++runningThreads;
    return true;
}

void NetworkSearch::searchHosts()
{
    HostSearch::run([this](const HostSearch::Host &host) { addHost(host); },
                    [this] { return isEnough(); }, &warnings, timing.hosts);
    const std::lock_guard lock(mutex);
    hostsAreComing = false;
    hostsChanged.notify_all();
}

void NetworkSearch::searchShares()
{
    while (const std::optional<HostSearch::Host> host = nextHost()) {
        ShareSearch::run(
            host->url, [this](const QUrl &share) { addShare(share); },
            [this] { return isEnough(); }, &warnings, timing.shares, host->address);
    }
}

void NetworkSearch::addHost(const HostSearch::Host &host)
{
    const std::lock_guard lock(mutex);
    if (addFind(host.url)) {
        waitingHosts.push_back(host);
        hostsChanged.notify_one();
    }
}

void NetworkSearch::addShare(const QUrl &share)
{
    const std::lock_guard lock(mutex);
    addFind(share);
}

bool NetworkSearch::addFind(const QUrl &find)
{
    if (findCount == kMostFinds) {
        full = true;
        hostsChanged.notify_all();
        warnings.warn(SearchWarnings::Kind::TooMany,
                      QStringLiteral("Searching the network has found too much; the rest is left "
                                     "out."));
        return false;
    }
    ++findCount;
    newFinds.append(find);
    findsChanged.notify_one();
    return true;
}

std::optional<HostSearch::Host> NetworkSearch::nextHost()
{
    std::unique_lock lock(mutex);
    hostsChanged.wait(lock,
                      [this] { return isEnough() || !waitingHosts.empty() || !hostsAreComing; });
    if (isEnough() || waitingHosts.empty()) {
        return {};
    }
    HostSearch::Host host = waitingHosts.front();
    waitingHosts.pop_front();
    return host;
}

QList<QUrl> NetworkSearch::waitForFinds(bool *isOver)
{
    std::unique_lock lock(mutex);
    findsChanged.wait_for(lock, kSlice,
                          [this] { return !newFinds.isEmpty() || runningThreads == 0; });
    *isOver = runningThreads == 0;
    return std::exchange(newFinds, {});
}

void NetworkSearch::end()
{
    {
        // Those who wait for a host look at the flag only while they hold the mutex.
        const std::lock_guard lock(mutex);
        stopped = true;
        hostsChanged.notify_all();
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    threads.clear();
}
