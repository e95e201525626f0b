#include "ProgramRun.h"

#include "ProgramEnvironment.h"

#include <QProcess>
#include <QTimer>

#include <utility>

namespace {

constexpr qsizetype kLongestOutput = 1'048'576;

} // namespace

ProgramRun::ProgramRun(QObject *parent)
    : QObject(parent)
    , timer(new QTimer(this))
{
    timer->setSingleShot(true);
    connect(timer, SIGNAL(timeout()), this, SLOT(timeIsOver()));
}

ProgramRun::~ProgramRun()
{
    cancel();
}

void ProgramRun::start(const QString &program, const QStringList &arguments,
                       const QByteArray &input, int timeoutMilliseconds)
{
    cancel();
    running = true;
    output.clear();
    errorOutput.clear();
    const QString path = ProgramEnvironment::find(program);
    if (path.isEmpty()) {
        endSoon(ProgramResult::End::NotInstalled);
        return;
    }
    endByTimer = ProgramResult::End::TimedOut;
    timer->start(qMax(0, timeoutMilliseconds));
    launch(path, arguments, input);
}

void ProgramRun::cancel()
{
    running = false;
    timer->stop();
    abandonProcess();
}

void ProgramRun::launch(const QString &path, const QStringList &arguments, const QByteArray &input)
{
    process = std::make_unique<QProcess>();
    connect(process.get(), SIGNAL(readyReadStandardOutput()), this, SLOT(takeOutput()));
    connect(process.get(), SIGNAL(readyReadStandardError()), this, SLOT(takeError()));
    connect(process.get(), SIGNAL(finished(int, QProcess::ExitStatus)), this,
            SLOT(processFinished()));
    connect(process.get(), SIGNAL(errorOccurred(QProcess::ProcessError)), this,
            SLOT(processFailed()));
    ProgramEnvironment::start(process.get(), path, arguments, input);
}

void ProgramRun::takeOutput()
{
    // All that came is taken, so that what is not kept does not pile up elsewhere.
    ProgramEnvironment::keepBeginning(&output, process->readAllStandardOutput(), kLongestOutput);
}

void ProgramRun::takeError()
{
    ProgramEnvironment::keepBeginning(&errorOutput, process->readAllStandardError(),
                                      ProgramEnvironment::kLongestError);
}

void ProgramRun::processFinished()
{
    takeOutput();
    takeError();
    const bool isCrash = process->exitStatus() == QProcess::CrashExit;
    const int exitCode = isCrash ? -1 : process->exitCode();
    // This is called by its signal.
    process.release()->deleteLater();
    tell(isCrash ? ProgramResult::End::Failed : ProgramResult::End::Finished, exitCode);
}

void ProgramRun::processFailed()
{
    // The other errors come before finished(), or do no harm: a program that does not read all of
    // its input.
    if (process->error() == QProcess::FailedToStart) {
        // This may come in the middle of start().
        endSoon(ProgramResult::End::Failed);
    }
}

void ProgramRun::timeIsOver()
{
    abandonProcess();
    tell(endByTimer);
}

void ProgramRun::endSoon(ProgramResult::End end)
{
    endByTimer = end;
    timer->start(0);
}

void ProgramRun::abandonProcess()
{
    if (!process) {
        return;
    }
    process->disconnect(this);
    ProgramEnvironment::abandon(std::move(process));
}

void ProgramRun::tell(ProgramResult::End end, int exitCode)
{
    running = false;
    timer->stop();
    emit finished({end, exitCode, std::exchange(output, {}),
                   QString::fromUtf8(std::exchange(errorOutput, {}))});
}
