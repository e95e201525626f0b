#pragma once

#include "LoopbackSocket.h"

/// A server on a free port of 127.0.0.1 that takes connections and never writes a byte, from its
/// construction to its destruction. It needs no event loop and no process. Thread: any.
class SilentServer
{
public:
    SilentServer();

    /// Where it listens; 0 when the system gave it no port.
    [[nodiscard]] quint16 port() const { return listener.port(); }

    /// Blocks until somebody has connected, at most for the time. False when nobody has. A client
    /// counts even when it has gone again.
    [[nodiscard]] bool waitForClient(int milliseconds) const;

private:
    LoopbackSocket listener;
};
