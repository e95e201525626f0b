#include "ProgramLines.h"

#include "ProgramEnvironment.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <memory>
#include <utility>

namespace {

constexpr int kSliceMilliseconds = 20;
constexpr qsizetype kLongestLine = 65'536;

using Line = std::function<void(const QByteArray &)>;
using Cancelled = std::function<bool()>;

/// One run of a program. Bytes are looked at once, and no more than a line of them is kept.
class LineReading
{
public:
    LineReading(QEventLoop *events, const Line &receiver, const Cancelled &question)
        : events(events)
        , receiver(receiver)
        , question(question)
    { }

    /// Until the process has ended by itself, or is not to go on.
    [[nodiscard]] ProgramLines::End follow(QProcess *process, QDeadlineTimer deadline);

    QByteArray error;

private:
    [[nodiscard]] bool isCancelled() const { return question && question(); }
    [[nodiscard]] bool takeAll(QProcess *process);
    [[nodiscard]] bool takeOutput(const QByteArray &bytes);
    void keep(const char *begin, qsizetype size);
    [[nodiscard]] bool deliver();

    QEventLoop *events;
    const Line &receiver;
    const Cancelled &question;
    QByteArray rest;
    bool isTooLong = false;
};

ProgramLines::End endOf(const QProcess &process)
{
    const bool isGood =
        process.error() != QProcess::FailedToStart && process.exitStatus() == QProcess::NormalExit;
    return isGood ? ProgramLines::End::Finished : ProgramLines::End::Failed;
}

ProgramLines::End LineReading::follow(QProcess *process, QDeadlineTimer deadline)
{
    // Waiting for one channel by QProcess itself takes as long as the other one is written to.
    QTimer slice;
    slice.start(kSliceMilliseconds);
    while (process->state() != QProcess::NotRunning) {
        if (isCancelled()) {
            return ProgramLines::End::Cancelled;
        }
        if (deadline.hasExpired()) {
            return ProgramLines::End::TimedOut;
        }
        events->processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
        if (!takeAll(process)) {
            return ProgramLines::End::Cancelled;
        }
    }
    const bool isWanted = takeAll(process) && (rest.isEmpty() || deliver());
    return isWanted ? endOf(*process) : ProgramLines::End::Cancelled;
}

bool LineReading::takeAll(QProcess *process)
{
    // Always emptied, so that what nobody keeps does not pile up.
    ProgramEnvironment::keepBeginning(&error, process->readAllStandardError(),
                                      ProgramEnvironment::kLongestError);
    return takeOutput(process->readAllStandardOutput());
}

bool LineReading::takeOutput(const QByteArray &bytes)
{
    qsizetype begin = 0;
    for (qsizetype end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n', begin)) {
        keep(bytes.constData() + begin, end - begin);
        begin = end + 1;
        if (!deliver()) {
            return false;
        }
    }
    keep(bytes.constData() + begin, bytes.size() - begin);
    return true;
}

void LineReading::keep(const char *begin, qsizetype size)
{
    isTooLong = isTooLong || rest.size() + size > kLongestLine;
    if (isTooLong) {
        rest.clear();
    } else {
        rest.append(begin, size);
    }
}

bool LineReading::deliver()
{
    if (isCancelled()) {
        return false;
    }
    if (receiver && !isTooLong) {
        receiver(rest);
    }
    rest.clear();
    isTooLong = false;
    return true;
}

} // namespace

ProgramLines::End ProgramLines::read(const Line &line, const Cancelled &cancelled)
{
    exitCode = -1;
    error.clear();
    if (cancelled && cancelled()) {
        return End::Cancelled;
    }
    const QString path = ProgramEnvironment::find(program);
    if (path.isEmpty()) {
        return End::NotInstalled;
    }
    // Without the loop, a thread that has none would not hear of the process.
    QEventLoop events;
    const QDeadlineTimer deadline(qMax(0, timeoutMilliseconds));
    auto process = std::make_unique<QProcess>();
    ProgramEnvironment::start(process.get(), path, arguments, input);
    LineReading reading(&events, line, cancelled);
    const End end = reading.follow(process.get(), deadline);
    exitCode = end == End::Finished ? process->exitCode() : -1;
    error = QString::fromUtf8(reading.error);
    ProgramEnvironment::abandon(std::move(process));
    return end;
}
