#pragma once

#include <QtGlobal>

/// A TCP socket of 127.0.0.1, closed with the object. Serves the servers of this folder that do
/// nothing but be there; the system takes their connections without any code running.
class LoopbackSocket
{
public:
    /// A socket that never blocks. Nothing is said about errors but port() 0.
    LoopbackSocket();
    ~LoopbackSocket();
    Q_DISABLE_COPY_MOVE(LoopbackSocket)

    /// Takes a free port, and so keeps others from taking it.
    [[nodiscard]] bool bindToFreePort() const;

    /// Takes connections; the backlog is how many more than one may wait to be accepted.
    [[nodiscard]] bool listen(int backlog) const;

    /// Starts to connect to the port.
    void connectTo(quint16 port) const;

    /// Whether the connection that connectTo() started is there within the time.
    [[nodiscard]] bool waitForConnected(int milliseconds) const;

    /// Whether a connection waits to be accepted within the time.
    [[nodiscard]] bool waitForClient(int milliseconds) const;

    /// The socket's own port; 0 when it has none.
    [[nodiscard]] quint16 port() const;

private:
    int handle = -1;
};
