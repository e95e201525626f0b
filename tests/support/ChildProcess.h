#pragma once

#include <QStringList>

#include <csignal>

class QProcess;

/// Lets a program that a test starts end with the thread that starts it, however that ends. Call it
/// before the start. The signal is what the program gets then: SIGTERM for one that must tidy up
/// and can be trusted to end.
void endWithThisThread(QProcess &process, int signal = SIGKILL);

/// The ids of the processes that have the folder in their environment.
[[nodiscard]] QStringList processesOf(const QString &folder);
