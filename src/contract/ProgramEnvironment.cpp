#include "ProgramEnvironment.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr int kEndMilliseconds = 50;

/// To delete a process waits for its end.
void buryLater(QProcess *process)
{
    QObject::connect(process, SIGNAL(finished(int, QProcess::ExitStatus)), process,
                     SLOT(deleteLater()));
    // This thread may be over before.
    if (const QCoreApplication *application = QCoreApplication::instance()) {
        process->moveToThread(application->thread());
    }
}

} // namespace

QString ProgramEnvironment::find(const QString &program)
{
    return QStandardPaths::findExecutable(program);
}

QProcessEnvironment ProgramEnvironment::plainEnglish()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.remove(QStringLiteral("LANGUAGE"));
    return environment;
}

void ProgramEnvironment::start(QProcess *process, const QString &path, const QStringList &arguments,
                               const QByteArray &input)
{
    process->setProcessEnvironment(plainEnglish());
    setOwnGroup(process);
    process->start(path, arguments);
    if (process->state() != QProcess::NotRunning) {
        process->write(input);
        process->closeWriteChannel();
    }
}

void ProgramEnvironment::abandon(std::unique_ptr<QProcess> process)
{
    if (process->state() != QProcess::NotRunning) {
        const qint64 processId = process->processId();
        killGroup(processId);
        // It may not have come to have a group yet, or have come to it just now.
        process->kill();
        killGroup(processId);
        process->waitForFinished(kEndMilliseconds);
    }
    if (process->state() != QProcess::NotRunning) {
        buryLater(process.release());
    }
}

void ProgramEnvironment::keepBeginning(QByteArray *kept, const QByteArray &bytes, qsizetype limit)
{
    *kept += bytes.left(limit - kept->size());
}
