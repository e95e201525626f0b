#pragma once

#include <QString>

/// Starts a program on a screen of its own, waits until its window "Hello" is there to be seen,
/// closes it like a user with the keyboard, and waits for the end of the program.
///
/// Returns what went wrong, in words; empty when all went well.
[[nodiscard]] QString showAndCloseHello(const QString &program);
