#include "FullServer.h"

namespace {

constexpr int kMostFillers = 8;
constexpr int kConnectMilliseconds = 100;

} // namespace

FullServer::FullServer()
{
    if (listener.bindToFreePort() && listener.listen(0)) {
        fill();
    }
}

// A connection over the loopback is there at once or has to wait for room in the queue.
void FullServer::fill()
{
    while (!full && fillers.size() < kMostFillers) {
        fillers.push_back(std::make_unique<LoopbackSocket>());
        fillers.back()->connectTo(listener.port());
        full = !fillers.back()->waitForConnected(kConnectMilliseconds);
    }
}
