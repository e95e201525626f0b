#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QProcess;
class QProcessEnvironment;

/// What a test does with a program while its window is there to be seen. Returns what went wrong,
/// in words; empty when all went well.
using WhileShown = std::function<QString(QProcess &program, const QProcessEnvironment &screen)>;

/// Starts a program on a screen of its own, waits until its window of this title is there to be
/// seen, lets the test do what it wants, closes the window like a user with the keyboard, and waits
/// for the end of the program.
///
/// Returns what went wrong, in words; empty when all went well.
[[nodiscard]] QString showAndClose(const QString &program, const QStringList &arguments,
                                   const QString &title, const WhileShown &whileShown);

/// The same for a window "Hello", which is only looked at.
[[nodiscard]] QString showAndCloseHello(const QString &program);

/// Presses keys, named as xdotool does, in the window that has the keyboard. False when that has
/// failed.
[[nodiscard]] bool pressKeys(const QString &keys, const QProcessEnvironment &screen);
