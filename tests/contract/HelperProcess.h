#pragma once

#include <QCoreApplication>
#include <QProcess>
#include <QString>

/// The executable that answers commands in another process, see contracthelper.cpp.
inline QString helperProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/contracthelper");
}

/// What the helper answers to one line. Whatever it prints as an error comes first, so that a
/// warning cannot go unseen.
inline QByteArray
askHelper(const QByteArray &line, const QStringList &arguments = {},
          const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment(),
          const QString &program = helperProgram())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.write(line + '\n');
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0) {
        return "failed: " + process.errorString().toUtf8() + process.readAllStandardError();
    }
    return process.readAllStandardError() + process.readAllStandardOutput().trimmed();
}
