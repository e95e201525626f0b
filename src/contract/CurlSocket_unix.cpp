#include "CurlSocket.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

void keepFromChildren(curl_socket_t socket)
{
    ::fcntl(socket, F_SETFD, FD_CLOEXEC);
}

void endReading(curl_socket_t socket)
{
    ::shutdown(socket, SHUT_RD);
}

void endBothWays(curl_socket_t socket)
{
    ::shutdown(socket, SHUT_RDWR);
}

int closeSocket(curl_socket_t socket)
{
    return ::close(socket);
}
