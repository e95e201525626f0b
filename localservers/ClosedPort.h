#pragma once

#include <QtGlobal>

/// A port of 127.0.0.1 that refuses connections at once, the same one at every call. It is held
/// without listening until the program ends, so that nobody else can open a server there. 0 when
/// the system gave none. Thread: any.
[[nodiscard]] quint16 closedPort();
