#pragma once

#include <curl/curl.h>

/// @file
/// The few calls on sockets that libcurl leaves to us. One source for each platform.

/// Keeps programs that are started from inheriting the socket.
void keepFromChildren(curl_socket_t socket);

/// Nothing more arrives; what waits for data sees the end. Sending still works.
void endReading(curl_socket_t socket);

/// Nothing more arrives or goes out; whatever waits on the socket returns. It stays to be closed.
void endBothWays(curl_socket_t socket);

/// 0 when it went well.
int closeSocket(curl_socket_t socket);
