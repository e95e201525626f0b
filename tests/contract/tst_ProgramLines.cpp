#include "ProcessResources.h"
#include "ProgramLines.h"
#include "StandInPrograms.h"
#include "TestBase.h"

#include <QElapsedTimer>

#include <memory>
#include <thread>

namespace {

/// Ends a run that would hang; no test comes near it.
constexpr int kLongMilliseconds = 50'000;
/// Killing takes a few milliseconds; this is for a machine that does ten other things.
constexpr int kPromptMilliseconds = 5000;

const QString kName = QStringLiteral("standin");

ProgramLines programOf(const QStringList &arguments = {}, const QByteArray &input = {})
{
    ProgramLines program;
    program.program = kName;
    program.arguments = arguments;
    program.input = input;
    program.timeoutMilliseconds = kLongMilliseconds;
    return program;
}

bool never()
{
    return false;
}

} // namespace

class TestProgramLines : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override { programs = std::make_unique<StandInPrograms>(); }
    void finish() override { programs.reset(); }

private slots:
    void linesComeAsTheyAreWritten();
    void outputIsTakenApartAtLineEnds_data();
    void outputIsTakenApartAtLineEnds();
    void lineInTwoPiecesIsOneLine();
    void longestLineComesAndLongerOnesAreLeftOut();
    void argumentsAndInputArriveAsTheyAre();
    void speaksEnglishInASessionOfItsOwn();
    void exitCodeAndErrorAreTold();
    void errorIsCut();
    void missingProgramIsToldAsSuch_data();
    void missingProgramIsToldAsSuch();
    void programThatCannotRunHasFailed();
    void programThatIsKilledHasFailed();
    void objectMayBeUsedAgain();
    void slowProgramIsKilled();
    void noTimeKillsAtOnce();
    void cancelledFirstStartsNothing();
    void cancelledIsAskedWhileTheProgramIsMute();
    void noLineComesAfterCancelling();
    void cancellingLeavesNoProcess_data();
    void cancellingLeavesNoProcess();
    void inputThatNobodyReadsDoesNoHarm();
    void callbacksMayBeMissing();
    void readsOnAThreadWithoutEventLoop();
    void runsLeaveNoFileOpen();

private:
    /// All lines of the stand-in, which has to end by itself.
    QList<QByteArray> linesOf(const QByteArray &script);

    std::unique_ptr<StandInPrograms> programs;
};

QList<QByteArray> TestProgramLines::linesOf(const QByteArray &script)
{
    QList<QByteArray> lines;
    ProgramLines program = programOf();
    const bool isGood = programs->add(kName, script)
        && program.read([&](const QByteArray &line) { lines.append(line); }, never)
            == ProgramLines::End::Finished;
    return isGood ? lines : QList<QByteArray>{"failed"};
}

void TestProgramLines::linesComeAsTheyAreWritten()
{
    QVERIFY(programs->add(kName, "echo one; await go; echo two\n"));
    QList<QByteArray> lines;
    ProgramLines program = programOf();
    const auto take = [&](const QByteArray &line) {
        lines.append(line);
        programs->write("go");
    };
    QCOMPARE(program.read(take, never), ProgramLines::End::Finished);
    QCOMPARE(lines, QList<QByteArray>({"one", "two"}));
}

void TestProgramLines::outputIsTakenApartAtLineEnds_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QList<QByteArray>>("lines");
    QTest::newRow("nothing") << QByteArray(":\n") << QList<QByteArray>();
    QTest::newRow("empty lines") << QByteArray("printf '\\n\\na\\n'\n")
                                 << QList<QByteArray>{"", "", "a"};
    QTest::newRow("last line without an end")
        << QByteArray("printf 'a\\nb'\n") << QList<QByteArray>{"a", "b"};
    QTest::newRow("carriage return")
        << QByteArray("printf 'a\\r\\nb\\rc\\n'\n") << QList<QByteArray>{"a\r", "b\rc"};
    QTest::newRow("null byte and no UTF-8")
        << QByteArray("printf '\\000\\377\\n'\n") << QList<QByteArray>{QByteArray("\0\xff", 2)};
}

void TestProgramLines::outputIsTakenApartAtLineEnds()
{
    QFETCH(QByteArray, script);
    QFETCH(QList<QByteArray>, lines);
    QCOMPARE(linesOf(script), lines);
}

void TestProgramLines::lineInTwoPiecesIsOneLine()
{
    // The mark is seen before the second piece is written, so that the first one comes alone.
    QVERIFY(programs->add(kName, "printf 'mark\\nfir'; await go; echo st\n"));
    QList<QByteArray> lines;
    ProgramLines program = programOf();
    const auto take = [&](const QByteArray &line) {
        lines.append(line);
        programs->write("go");
    };
    QCOMPARE(program.read(take, never), ProgramLines::End::Finished);
    QCOMPARE(lines, QList<QByteArray>({"mark", "first"}));
}

void TestProgramLines::longestLineComesAndLongerOnesAreLeftOut()
{
    const QList<QByteArray> lines = linesOf("line() { /usr/bin/head -c $1 /dev/zero; echo; }\n"
                                            "line 65536; line 65537; line 1000000; echo end\n"
                                            "/usr/bin/head -c 65537 /dev/zero\n");
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0), QByteArray(65'536, '\0'));
    QCOMPARE(lines.at(1), "end");
}

void TestProgramLines::argumentsAndInputArriveAsTheyAre()
{
    QVERIFY(programs->add(kName, "printf '[%s]\\n' \"$@\"; /bin/cat\n"));
    const QStringList arguments = {"--list=-x", "a b", "\"';$(id)`id`", "", "größe", "*", "%"};
    QList<QByteArray> lines;
    ProgramLines program = programOf(arguments, "user\n  pass\n");
    QCOMPARE(program.read([&](const QByteArray &line) { lines.append(line); }, never),
             ProgramLines::End::Finished);
    QCOMPARE(lines.size(), arguments.size() + 2);
    for (qsizetype at = 0; at < arguments.size(); ++at) {
        QCOMPARE(lines.at(at), '[' + arguments.at(at).toUtf8() + ']');
    }
    QCOMPARE(lines.mid(arguments.size()), QList<QByteArray>({"user", "  pass"}));
}

void TestProgramLines::speaksEnglishInASessionOfItsOwn()
{
    qputenv("LANGUAGE", "de");
    const QList<QByteArray> lines =
        linesOf("echo \"$LC_ALL,$LANGUAGE\"; echo $$; /usr/bin/cut -d' ' -f6 /proc/$$/stat\n");
    qunsetenv("LANGUAGE");
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), "C.UTF-8,");
    QCOMPARE(lines.at(2), lines.at(1));
}

void TestProgramLines::exitCodeAndErrorAreTold()
{
    QVERIFY(programs->add(kName, "echo größe >&2; exit 7\n"));
    ProgramLines program = programOf();
    QCOMPARE(program.read({}, never), ProgramLines::End::Finished);
    QCOMPARE(program.exitCode, 7);
    QCOMPARE(program.error, "größe\n");
}

void TestProgramLines::errorIsCut()
{
    QVERIFY(programs->add(kName, "/usr/bin/yes | /usr/bin/head -c 3000000 >&2; echo end\n"));
    QList<QByteArray> lines;
    ProgramLines program = programOf();
    QCOMPARE(program.read([&](const QByteArray &line) { lines.append(line); }, never),
             ProgramLines::End::Finished);
    QCOMPARE(program.error, QString("y\n").repeated(32'768));
    QCOMPARE(lines, QList<QByteArray>{"end"});
}

void TestProgramLines::missingProgramIsToldAsSuch_data()
{
    QTest::addColumn<bool>("exists");
    QTest::newRow("not there") << false;
    QTest::newRow("not to be run") << true;
}

void TestProgramLines::missingProgramIsToldAsSuch()
{
    QFETCH(bool, exists);
    if (exists) {
        programs->write(kName, "#!/bin/sh\n");
    }
    ProgramLines program = programOf();
    QCOMPARE(program.read({}, never), ProgramLines::End::NotInstalled);
    QCOMPARE(program.exitCode, -1);
    QVERIFY(program.error.isEmpty());
}

void TestProgramLines::programThatCannotRunHasFailed()
{
    QVERIFY(programs->addFile(kName, "#!/no/such/interpreter\n"));
    ProgramLines program = programOf();
    QCOMPARE(program.read({}, never), ProgramLines::End::Failed);
    QCOMPARE(program.exitCode, -1);
}

void TestProgramLines::programThatIsKilledHasFailed()
{
    QVERIFY(programs->add(kName, "kill -KILL $$\n"));
    ProgramLines program = programOf();
    QCOMPARE(program.read({}, never), ProgramLines::End::Failed);
    QCOMPARE(program.exitCode, -1);
}

void TestProgramLines::objectMayBeUsedAgain()
{
    QVERIFY(programs->add(kName, "echo bad >&2; exit 3\n"));
    ProgramLines program = programOf();
    QCOMPARE(program.read({}, never), ProgramLines::End::Finished);
    program.program = "no such program";
    QCOMPARE(program.read({}, never), ProgramLines::End::NotInstalled);
    QCOMPARE(program.exitCode, -1);
    QVERIFY(program.error.isEmpty());
}

void TestProgramLines::slowProgramIsKilled()
{
    QVERIFY(programs->add(kName, "trap '' TERM; echo $$ | tell pid; await never\n"));
    // On a busy machine the time is over before the script is under way.
    for (int milliseconds = 500; milliseconds < kLongMilliseconds && !programs->has("pid");
         milliseconds *= 2) {
        ProgramLines program = programOf();
        program.timeoutMilliseconds = milliseconds;
        QCOMPARE(program.read({}, never), ProgramLines::End::TimedOut);
        QCOMPARE(program.exitCode, -1);
    }
    QVERIFY(programs->contentsOf("pid").trimmed().toInt() > 1);
    QTRY_VERIFY(!isRunning(programs->contentsOf("pid")));
}

void TestProgramLines::noTimeKillsAtOnce()
{
    QVERIFY(programs->add(kName, "await never\n"));
    for (const int milliseconds : {0, -1, -1000}) {
        ProgramLines program = programOf();
        program.timeoutMilliseconds = milliseconds;
        QCOMPARE(program.read({}, never), ProgramLines::End::TimedOut);
    }
}

void TestProgramLines::cancelledFirstStartsNothing()
{
    QVERIFY(programs->add(kName, "echo | tell started\n"));
    ProgramLines program = programOf();
    QCOMPARE(program.read({}, [] { return true; }), ProgramLines::End::Cancelled);
    QVERIFY(!programs->has("started"));
    program.program = "no such program";
    QCOMPARE(program.read({}, [] { return true; }), ProgramLines::End::Cancelled);
}

void TestProgramLines::cancelledIsAskedWhileTheProgramIsMute()
{
    QVERIFY(programs->add(kName, "await never\n"));
    ProgramLines program = programOf();
    constexpr int kQuestions = 40;
    int asked = 0;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(program.read({}, [&] { return ++asked == kQuestions; }), ProgramLines::End::Cancelled);
    QCOMPARE(asked, kQuestions);
    QVERIFY(timer.elapsed() < kQuestions * 50 + kPromptMilliseconds);
}

void TestProgramLines::noLineComesAfterCancelling()
{
    QVERIFY(programs->add(kName, "/usr/bin/seq 100000\n"));
    ProgramLines program = programOf();
    QList<QByteArray> lines;
    QCOMPARE(program.read([&](const QByteArray &line) { lines.append(line); },
                          [&] { return lines.size() == 3; }),
             ProgramLines::End::Cancelled);
    QCOMPARE(lines, QList<QByteArray>({"1", "2", "3"}));
}

void TestProgramLines::cancellingLeavesNoProcess_data()
{
    QTest::addColumn<QByteArray>("script");
    const QByteArray ready = "echo $$ | tell pid\n";
    QTest::newRow("mute") << "/bin/sleep 1000 & echo $! | tell child;" + ready + "wait\n";
    QTest::newRow("ignores to be ended")
        << "trap '' TERM INT HUP; /bin/sleep 1000 & echo $! | tell child;" + ready
            + "while :; do wait; done\n";
    QTest::newRow("stopped") << "/bin/sleep 1000 & echo $! | tell child;" + ready
            + "kill -STOP $$\n";
    QTest::newRow("writes lines for ever")
        << "/usr/bin/yes line & echo $! | tell child;" + ready + "wait\n";
    QTest::newRow("writes without line ends")
        << "/bin/cat /dev/zero & echo $! | tell child;" + ready + "wait\n";
    QTest::newRow("writes errors for ever")
        << "/usr/bin/yes error >&2 & echo $! | tell child;" + ready + "wait\n";
    QTest::newRow("has closed its output")
        << "exec >&- 2>&-; /bin/sleep 1000 & echo $! | tell child;" + ready + "wait\n";
    QTest::newRow("child of a child")
        << "/bin/sh -c '/bin/sleep 1000 & echo $!; wait' | { read line; echo $line | tell child;"
            + ready + "await never; }\n";
}

void TestProgramLines::cancellingLeavesNoProcess()
{
    QFETCH(QByteArray, script);
    QVERIFY(programs->add(kName, script));
    ProgramLines program = programOf();
    QElapsedTimer timer;
    const auto isReady = [&] {
        const bool isOver = programs->has("pid");
        if (isOver && !timer.isValid()) {
            timer.start();
        }
        return isOver;
    };
    QCOMPARE(program.read([](const QByteArray &) {}, isReady), ProgramLines::End::Cancelled);
    QVERIFY2(timer.elapsed() < kPromptMilliseconds, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(programs->contentsOf("child").trimmed().toInt() > 1);
    QVERIFY(programs->contentsOf("pid").trimmed().toInt() > 1);
    QTRY_VERIFY(!isRunning(programs->contentsOf("pid")));
    QTRY_VERIFY(!isRunning(programs->contentsOf("child")));
}

void TestProgramLines::inputThatNobodyReadsDoesNoHarm()
{
    QVERIFY(programs->add(kName, "exec <&-; echo end\n"));
    QList<QByteArray> lines;
    ProgramLines program = programOf({}, QByteArray(3'000'000, 'x'));
    QCOMPARE(program.read([&](const QByteArray &line) { lines.append(line); }, never),
             ProgramLines::End::Finished);
    QCOMPARE(lines, QList<QByteArray>{"end"});
}

void TestProgramLines::callbacksMayBeMissing()
{
    QVERIFY(programs->add(kName, "echo one; echo two\n"));
    ProgramLines program = programOf();
    QCOMPARE(program.read({}, {}), ProgramLines::End::Finished);
    QCOMPARE(program.exitCode, 0);
}

void TestProgramLines::readsOnAThreadWithoutEventLoop()
{
    QList<QByteArray> lines;
    std::thread worker([&] { lines = linesOf("echo one; /bin/sleep 0.05; echo two\n"); });
    worker.join();
    QCOMPARE(lines, QList<QByteArray>({"one", "two"}));
}

void TestProgramLines::runsLeaveNoFileOpen()
{
    QVERIFY(programs->add(kName, "echo $$ | tell pid; await never\n"));
    const auto runOnce = [](const QString &name) {
        ProgramLines program = programOf();
        program.program = name;
        int asked = 0;
        return program.read({}, [&] { return ++asked > 3; });
    };
    QCOMPARE(runOnce(kName), ProgramLines::End::Cancelled);
    const int files = openFileCount();
    for (int round = 0; round < 20; ++round) {
        QCOMPARE(runOnce(kName), ProgramLines::End::Cancelled);
        QCOMPARE(runOnce("no such program"), ProgramLines::End::NotInstalled);
    }
    // On a busy machine some are buried later.
    QTRY_COMPARE(openFileCount(), files);
}

int main(int argc, char **argv)
{
    return runTest<TestProgramLines>(argc, argv);
}

#include "tst_ProgramLines.moc"
