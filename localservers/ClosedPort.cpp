#include "ClosedPort.h"

#include "LoopbackSocket.h"

namespace {

/// A socket that is bound and does not listen.
class HeldPort
{
public:
    HeldPort() { (void)socket.bindToFreePort(); }

    [[nodiscard]] quint16 port() const { return socket.port(); }

private:
    LoopbackSocket socket;
};

} // namespace

quint16 closedPort()
{
    static const HeldPort held;
    return held.port();
}
