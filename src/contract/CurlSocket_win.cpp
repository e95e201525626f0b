#include "CurlSocket.h"

#include <winsock2.h>

#include <windows.h>

void keepFromChildren(curl_socket_t socket)
{
    ::SetHandleInformation(reinterpret_cast<HANDLE>(socket), HANDLE_FLAG_INHERIT, 0);
}

void endReading(curl_socket_t socket)
{
    ::shutdown(socket, SD_RECEIVE);
}

void endBothWays(curl_socket_t socket)
{
    ::shutdown(socket, SD_BOTH);
}

int closeSocket(curl_socket_t socket)
{
    return ::closesocket(socket);
}
