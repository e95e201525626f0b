#include "LoopbackSocket.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

sockaddr_in loopbackAddress(quint16 port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    return address;
}

bool waitFor(int handle, short events, int milliseconds)
{
    pollfd descriptor = {handle, events, 0};
    return poll(&descriptor, 1, milliseconds) == 1 && (descriptor.revents & events) != 0;
}

} // namespace

LoopbackSocket::LoopbackSocket()
    : handle(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0))
{ }

LoopbackSocket::~LoopbackSocket()
{
    close(handle);
}

bool LoopbackSocket::bindToFreePort() const
{
    const sockaddr_in address = loopbackAddress(0);
    return bind(handle, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
}

bool LoopbackSocket::listen(int backlog) const
{
    return ::listen(handle, backlog) == 0;
}

void LoopbackSocket::connectTo(quint16 port) const
{
    const sockaddr_in address = loopbackAddress(port);
    // How it went is told by waitForConnected(): a socket that never blocks is never done here.
    (void)connect(handle, reinterpret_cast<const sockaddr *>(&address), sizeof(address));
}

bool LoopbackSocket::waitForConnected(int milliseconds) const
{
    int error = 0;
    socklen_t size = sizeof(error);
    return waitFor(handle, POLLOUT, milliseconds)
        && getsockopt(handle, SOL_SOCKET, SO_ERROR, &error, &size) == 0 && error == 0;
}

bool LoopbackSocket::waitForClient(int milliseconds) const
{
    return waitFor(handle, POLLIN, milliseconds);
}

quint16 LoopbackSocket::port() const
{
    sockaddr_in address = {};
    socklen_t size = sizeof(address);
    const bool known = getsockname(handle, reinterpret_cast<sockaddr *>(&address), &size) == 0;
    return known ? ntohs(address.sin_port) : quint16(0);
}
