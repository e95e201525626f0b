#pragma once

#include "LoopbackSocket.h"

#include <memory>
#include <vector>

/// A port of 127.0.0.1 to which a connection is never completed nor refused, as that of a computer
/// behind a firewall, from the object's construction to its destruction. Thread: any.
class FullServer
{
public:
    /// Opens the port and fills its queue. Blocks for some 100 milliseconds.
    FullServer();

    /// Where nobody gets through; 0 when the queue could not be filled.
    [[nodiscard]] quint16 port() const { return full ? listener.port() : quint16(0); }

private:
    void fill();

    LoopbackSocket listener;
    std::vector<std::unique_ptr<LoopbackSocket>> fillers;
    bool full = false;
};
