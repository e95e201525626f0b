#pragma once

class QProcess;

/// Lets a program that a test starts end with the thread that starts it, however that ends. Call it
/// before the start.
void endWithThisThread(QProcess &process);
