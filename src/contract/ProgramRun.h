#pragma once

#include "TXCoreCommonExport.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class QProcess;
class QTimer;

/// How a run of another program ended.
struct ProgramResult
{
    /// How it came to its end.
    enum class End {
        Finished, ///< by itself; exitCode tells more
        NotInstalled, ///< there is no such program
        TimedOut, ///< it was killed, since it took too long
        Failed, ///< it could not be started or was killed by somebody else
    };

    End end = End::Failed;
    /// What the program ended with; -1 when it did not end by itself.
    int exitCode = -1;
    /// What it wrote to its standard output: the first 1,048,576 bytes, the rest is lost.
    QByteArray output;
    /// What it wrote to its standard error, as text: the first 65,536 bytes, the rest is lost.
    QString error;

    /// Whether it did what it was asked for.
    [[nodiscard]] bool isGood() const { return end == End::Finished && exitCode == 0; }
};

/// One run of another program, without waiting for it: secrets go in by its standard input, and it
/// is killed when it takes too long, together with the programs that it has started.
///
/// The program is looked for in the PATH. It speaks English ("C.UTF-8"), so that its messages can
/// be told apart, and it has no terminal to ask at. What a program that ends by itself leaves
/// running is left alone: it may be a service that others use too. Each object runs one program at
/// a time. See ProgramLines for threads without an event loop.
///
/// Thread: that of the object, which needs an event loop. No call holds it up for more than 50 ms,
/// also when the program cannot be killed: it is then buried when it ends.
class TXCORECOMMON_PRIVATE_EXPORT ProgramRun : public QObject
{
    Q_OBJECT

public:
    explicit ProgramRun(QObject *parent = nullptr);

    /// Kills a program that runs still; finished() is not emitted then.
    ~ProgramRun() override;

    /// Starts the program, writes the input and closes it; a program that does not read it does no
    /// harm. finished() follows in each case, from the event loop and soon after the time is over
    /// at the latest; a time of 0 and less is over at once. A program that runs still is cancelled
    /// before.
    void start(const QString &program, const QStringList &arguments, const QByteArray &input,
               int timeoutMilliseconds);

    /// Whether a program was started and finished() has not come yet.
    [[nodiscard]] bool isRunning() const { return running; }

    /// Kills the program; finished() is not emitted. Does nothing when none runs, as in a slot of
    /// finished().
    void cancel();

signals:
    /// The program has ended or could not be started. From here a new one may be started, and the
    /// object may be deleted.
    void finished(const ProgramResult &result);

private slots:
    void takeOutput();
    void takeError();
    void processFinished();
    void processFailed();
    void timeIsOver();

private:
    void launch(const QString &path, const QStringList &arguments, const QByteArray &input);
    void endSoon(ProgramResult::End end);
    void abandonProcess();
    void tell(ProgramResult::End end, int exitCode = -1);

    std::unique_ptr<QProcess> process;
    QTimer *timer;
    QByteArray output;
    QByteArray errorOutput;
    ProgramResult::End endByTimer = ProgramResult::End::TimedOut;
    bool running = false;
};
