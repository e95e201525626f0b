#include "SilentServer.h"

namespace {

constexpr int kMostClients = 50;

} // namespace

SilentServer::SilentServer()
{
    // Nobody calls accept(): the system shakes hands with those who wait in the queue.
    (void)(listener.bindToFreePort() && listener.listen(kMostClients));
}

bool SilentServer::waitForClient(int milliseconds) const
{
    return listener.waitForClient(milliseconds);
}
