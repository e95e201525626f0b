#include "ProgramLines.h"
#include "Promptness.h"
#include "StandInPrograms.h"
#include "TestBase.h"

#include <QElapsedTimer>

#include <atomic>
#include <csignal>
#include <dlfcn.h>
#include <functional>
#include <memory>
#include <thread>

namespace {

/// Ends a run that would hang; no test comes near it.
constexpr int kLongMilliseconds = 50'000;
/// Takes 50 ms; this is for a machine that does ten other things.
constexpr int kPromptMilliseconds = 2000;

const QString kName = QStringLiteral("standin");

/// How often anybody here has killed a process.
std::atomic_int killCount = 0;
/// Whether nobody can, as when a process hangs within the system.
std::atomic_bool isKillingInVain = false;

int killReally(pid_t process, int number)
{
    using Kill = int (*)(pid_t, int);
    static const auto function = reinterpret_cast<Kill>(dlsym(RTLD_NEXT, "kill"));
    return function(process, number);
}

ProgramLines::End read(const std::function<bool()> &cancelled)
{
    ProgramLines program;
    program.program = kName;
    program.timeoutMilliseconds = kLongMilliseconds;
    return program.read([](const QByteArray &) {}, cancelled);
}

} // namespace

/// Comes before the system's own one, also for the libraries.
extern "C" __attribute__((visibility("default"))) int countKill(pid_t process, int number) noexcept
    __asm__("kill");

int countKill(pid_t process, int number) noexcept
{
    ++killCount;
    return isKillingInVain ? 0 : killReally(process, number);
}

class TestProgramLinesEnding : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { programs = std::make_unique<StandInPrograms>(); }
    void finish() override { programs.reset(); }

private slots:
    void cancelledIsAskedOftenEnough_data();
    void cancelledIsAskedOftenEnough();
    void cancellingEndsSoonEnough_data();
    void cancellingEndsSoonEnough();
    void programThatEndedIsNotKilled();
    void whatAProgramLeavesBehindIsLeftAlone();
    void processThatCannotBeKilledIsBuriedLater_data();
    void processThatCannotBeKilledIsBuriedLater();

private:
    std::unique_ptr<StandInPrograms> programs;
};

void TestProgramLinesEnding::cancelledIsAskedOftenEnough_data()
{
    QTest::addColumn<QByteArray>("script");
    const auto flood = [](const QByteArray &program) {
        return (program + " &\n").repeated(8) + "wait\n";
    };
    const QByteArray lines = "/usr/bin/yes";
    const QByteArray errors = "/usr/bin/yes >&2";
    QTest::newRow("mute") << QByteArray("await never\n");
    QTest::newRow("flood of lines") << flood(lines);
    QTest::newRow("flood of errors") << flood(errors);
    QTest::newRow("flood of both") << flood(lines + " &\n" + errors);
}

void TestProgramLinesEnding::cancelledIsAskedOftenEnough()
{
    QFETCH(QByteArray, script);
    QVERIFY(programs->add(kName, "echo | tell started\n" + script));
    Questions questions;
    QCOMPARE(read([&] { return programs->has("started") && questions(); }),
             ProgramLines::End::Cancelled);
    QVERIFY2(questions.medianGap() <= kLongestGapMilliseconds,
             qPrintable(QString::number(questions.medianGap())));
}

void TestProgramLinesEnding::cancellingEndsSoonEnough_data()
{
    cancelledIsAskedOftenEnough_data();
}

void TestProgramLinesEnding::cancellingEndsSoonEnough()
{
    QFETCH(QByteArray, script);
    QVERIFY(programs->add(kName, script));
    const qint64 milliseconds = bestStop([](const std::function<bool()> &cancelled) {
        QCOMPARE(read(cancelled), ProgramLines::End::Cancelled);
    });
    QVERIFY2(milliseconds < kLongestStopMilliseconds, qPrintable(QString::number(milliseconds)));
}

void TestProgramLinesEnding::programThatEndedIsNotKilled()
{
    // Its number may be that of somebody else by then.
    QVERIFY(programs->add(kName, "echo end\n"));
    killCount = 0;
    QCOMPARE(read({}), ProgramLines::End::Finished);
    QCOMPARE(killCount.load(), 0);

    QVERIFY(programs->add(kName, "await never\n"));
    QCOMPARE(read([asked = 0]() mutable { return ++asked > 3; }), ProgramLines::End::Cancelled);
    QVERIFY(killCount > 0);
}

void TestProgramLinesEnding::whatAProgramLeavesBehindIsLeftAlone()
{
    QVERIFY(
        programs->add(kName, "/bin/sleep 1000 >/dev/null 2>&1 & echo $! | tell child; echo end\n"));
    QCOMPARE(read({}), ProgramLines::End::Finished);
    const QByteArray child = programs->contentsOf("child");
    QVERIFY(child.trimmed().toInt() > 1);
    QVERIFY(isRunning(child));
    killReally(child.trimmed().toInt(), SIGKILL);
}

void TestProgramLinesEnding::processThatCannotBeKilledIsBuriedLater_data()
{
    QTest::addColumn<bool>("isOnAThread");
    QTest::newRow("application's thread") << false;
    QTest::newRow("thread that ends before") << true;
}

void TestProgramLinesEnding::processThatCannotBeKilledIsBuriedLater()
{
    QFETCH(bool, isOnAThread);
    QVERIFY(programs->add(kName, "echo $$ | tell pid; await go\n"));
    qint64 milliseconds = -1;
    const auto run = [&] {
        isKillingInVain = true;
        QElapsedTimer timer;
        QCOMPARE(read([&] {
                     if (!timer.isValid() && programs->has("pid")) {
                         timer.start();
                     }
                     return timer.isValid();
                 }),
                 ProgramLines::End::Cancelled);
        milliseconds = timer.elapsed();
        isKillingInVain = false;
    };
    if (isOnAThread) {
        std::thread(run).join();
    } else {
        run();
    }
    QVERIFY2(milliseconds >= 0 && milliseconds < kPromptMilliseconds,
             qPrintable(QString::number(milliseconds)));
    const QByteArray processId = programs->contentsOf("pid").trimmed();
    QVERIFY(isRunning(processId));
    programs->write("go");
    QTRY_VERIFY(!QFile::exists("/proc/" + processId));
}

int main(int argc, char **argv)
{
    return runTest<TestProgramLinesEnding>(argc, argv);
}

#include "tst_ProgramLinesEnding.moc"
