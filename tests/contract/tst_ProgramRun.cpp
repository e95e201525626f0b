#include "ProgramRun.h"
#include "TestBase.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <csignal>
#include <functional>
#include <memory>
#include <sys/resource.h>

namespace {

constexpr int kPatienceMilliseconds = 30000;
constexpr int kSoonMilliseconds = 100;
/// What a call may take at most, on a machine that is busy with other things.
constexpr int kLongestCallMilliseconds = 1000;
constexpr qsizetype kMegabyte = 1'048'576;
/// By how much a flood of 100 MB may let memory grow.
#ifdef __SANITIZE_ADDRESS__
// The sanitizer keeps up to 256 MB of what was freed.
constexpr qint64 kAllowance = 320 * kMegabyte;
#else
constexpr qint64 kAllowance = 32 * kMegabyte;
#endif

/// One run and what was told of it.
struct Run
{
    Run() { QObject::connect(&run, &ProgramRun::finished, &run, keeper()); }

    std::function<void(const ProgramResult &)> keeper()
    {
        return [this](const ProgramResult &told) {
            result = told;
            ++count;
        };
    }

    void shell(const QString &script, const QByteArray &input = {},
               int timeoutMilliseconds = kPatienceMilliseconds)
    {
        run.start("sh", {"-c", script}, input, timeoutMilliseconds);
    }

    bool wait()
    {
        QSignalSpy spy(&run, &ProgramRun::finished);
        return count > 0 || spy.wait(kPatienceMilliseconds);
    }

    ProgramRun run;
    ProgramResult result;
    int count = 0;
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// The number that a script writes into a file when it is ready.
qint64 numberIn(const QString &path)
{
    return contents(path).trimmed().toLongLong();
}

/// 'S' and the like; nothing when there is no such process.
QByteArray stateOf(qint64 process)
{
    const QByteArray line = contents(QString("/proc/%1/stat").arg(process));
    return line.isEmpty() ? line : line.mid(line.lastIndexOf(')') + 2, 1);
}

bool isAlive(qint64 process)
{
    const QByteArray state = stateOf(process);
    return !state.isEmpty() && state != "Z";
}

/// Processes that this one has started and not buried.
int unburiedChildren()
{
    const QByteArray own = QByteArray::number(QCoreApplication::applicationPid());
    int found = 0;
    const QStringList processes = QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs);
    for (const QString &process : processes) {
        const QByteArray line = contents("/proc/" + process + "/stat");
        const QList<QByteArray> behindName = line.mid(line.lastIndexOf(')') + 2).split(' ');
        found += behindName.size() > 1 && behindName.at(1) == own ? 1 : 0;
    }
    return found;
}

qint64 memoryBytes()
{
    const QByteArray status = contents("/proc/self/status");
    const qsizetype at = status.indexOf("VmHWM:") + 6;
    return status.mid(at, status.indexOf("kB", at) - at).trimmed().toLongLong() * 1024;
}

} // namespace

class TestProgramRun : public TestBase
{
    Q_OBJECT

private slots:
    void programIsReadToItsEnd();
    void inputGoesInAndIsClosed();
    void programSpeaksEnglish();
    void programHasNoTerminal();
    void missingProgramIsTold_data();
    void missingProgramIsTold();
    void programThatCannotRunIsTold();
    void processThatCannotBeMadeIsTold();
    void killedProgramHasFailed();
    void timeoutIsTold_data();
    void timeoutIsTold();
    void childrenAreKilledToo();
    void childrenOfAProgramThatHasEndedAreLeftAlone();
    void inputThatNobodyReadsDoesNoHarm_data();
    void inputThatNobodyReadsDoesNoHarm();
    void floodIsKeptWithinBounds_data();
    void floodIsKeptWithinBounds();
    void cancelTellsNothing();
    void cancelForgetsAMissingProgram();
    void cancelWithoutAProgramDoesNothing();
    void finishedMayCancel();
    void finishedMayStartAnother();
    void finishedMayDelete();
    void startReplacesWhatRuns();
    void destructionKills();
    void nothingIsLeftUnburied();
};

void TestProgramRun::programIsReadToItsEnd()
{
    Run run;
    QVERIFY(!run.run.isRunning());
    run.shell("printf 'a\\nb'; printf 'größer' >&2; exit 3");
    QVERIFY(run.run.isRunning());
    QCOMPARE(run.count, 0);
    QVERIFY(run.wait());

    QVERIFY(!run.run.isRunning());
    QCOMPARE(run.count, 1);
    QCOMPARE(run.result.end, ProgramResult::End::Finished);
    QCOMPARE(run.result.exitCode, 3);
    QCOMPARE(run.result.output, "a\nb");
    QCOMPARE(run.result.error, "größer");
    QVERIFY(!run.result.isGood());
}

void TestProgramRun::inputGoesInAndIsClosed()
{
    const QByteArray input = QByteArray("s3cret\n\0x", 9) + QByteArray(300'000, 'y');
    Run run;
    run.run.start("cat", {}, input, kPatienceMilliseconds);
    QVERIFY(run.wait());
    QVERIFY(run.result.isGood());
    QCOMPARE(run.result.output, input);
}

void TestProgramRun::programSpeaksEnglish()
{
    qputenv("LANGUAGE", "de");
    Run run;
    run.shell("echo $LC_ALL,$LANGUAGE,$HOME");
    qunsetenv("LANGUAGE");
    QVERIFY(run.wait());
    QCOMPARE(run.result.output, "C.UTF-8,," + qgetenv("HOME") + '\n');
}

void TestProgramRun::programHasNoTerminal()
{
    Run run;
    run.shell("cut -d' ' -f6 /proc/$$/stat; echo $$; cat < /dev/tty");
    QVERIFY(run.wait());
    const QList<QByteArray> lines = run.result.output.split('\n');
    QCOMPARE(lines.at(0), lines.at(1));
    QVERIFY(!run.result.isGood());
}

void TestProgramRun::missingProgramIsTold_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("no such") << "no-such-program";
    QTest::newRow("no name") << "";
    QTest::newRow("a folder") << "/tmp";
    QTest::newRow("no program") << "/etc/passwd";
}

void TestProgramRun::missingProgramIsTold()
{
    QFETCH(QString, program);
    Run run;
    run.run.start(program, {}, "input", kPatienceMilliseconds);
    QVERIFY(run.run.isRunning());
    QCOMPARE(run.count, 0);
    QVERIFY(run.wait());
    QCOMPARE(run.result.end, ProgramResult::End::NotInstalled);
    QCOMPARE(run.result.exitCode, -1);
    QVERIFY(!run.run.isRunning());
}

void TestProgramRun::programThatCannotRunIsTold()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("program");
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("#!/no/such/interpreter\n");
    file.close();
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    Run run;
    run.run.start(path, {}, "input", kPatienceMilliseconds);
    QVERIFY(run.wait());
    QCOMPARE(run.result.end, ProgramResult::End::Failed);
    QCOMPARE(run.count, 1);
}

void TestProgramRun::processThatCannotBeMadeIsTold()
{
    rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
    Run run;
    const rlimit none = {0, before.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
    run.shell("true", "input");
    const int countInStart = run.count;
    ::setrlimit(RLIMIT_NOFILE, &before);

    QCOMPARE(countInStart, 0);
    QVERIFY(run.wait());
    QCOMPARE(run.result.end, ProgramResult::End::Failed);
    run.shell("echo again");
    QTRY_COMPARE(run.count, 2);
    QCOMPARE(run.result.output, "again\n");
}

void TestProgramRun::killedProgramHasFailed()
{
    Run run;
    run.shell("echo begun; kill -9 $$");
    QVERIFY(run.wait());
    QCOMPARE(run.result.end, ProgramResult::End::Failed);
    QCOMPARE(run.result.exitCode, -1);
    QCOMPARE(run.result.output, "begun\n");
}

void TestProgramRun::timeoutIsTold_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("sleeps") << "sleep 1000" << kSoonMilliseconds;
    QTest::newRow("ignores all signals")
        << "trap '' HUP INT TERM QUIT; while :; do sleep 1000; done" << kSoonMilliseconds;
    QTest::newRow("stops itself") << "kill -STOP $$" << kSoonMilliseconds;
    QTest::newRow("no time") << "sleep 1000" << 0;
    QTest::newRow("less than no time") << "sleep 1000" << -5;
}

void TestProgramRun::timeoutIsTold()
{
    QFETCH(QString, script);
    QFETCH(int, milliseconds);
    Run run;
    run.shell(script, {}, milliseconds);
    QVERIFY(run.wait());
    QCOMPARE(run.result.end, ProgramResult::End::TimedOut);
    QCOMPARE(run.result.exitCode, -1);
    QTRY_COMPARE(unburiedChildren(), 0);
}

void TestProgramRun::childrenAreKilledToo()
{
    const QTemporaryDir folder;
    const QString child = folder.filePath("child");
    Run run;
    run.shell("sh -c 'trap \"\" TERM HUP; sleep 1000 & echo $! > " + child + "; wait' & wait");
    QTRY_VERIFY_WITH_TIMEOUT(isAlive(numberIn(child)), kPatienceMilliseconds);

    run.run.cancel();

    QTRY_VERIFY_WITH_TIMEOUT(!isAlive(numberIn(child)), kPatienceMilliseconds);
    QCOMPARE(run.count, 0);
}

void TestProgramRun::childrenOfAProgramThatHasEndedAreLeftAlone()
{
    Run run;
    // It holds the output, which is not waited for.
    run.shell("sleep 1000 & echo $!");
    QVERIFY(run.wait());
    QVERIFY(run.result.isGood());
    const auto child = static_cast<pid_t>(run.result.output.trimmed().toInt());
    QVERIFY(isAlive(child));
    ::kill(child, SIGKILL);
}

void TestProgramRun::inputThatNobodyReadsDoesNoHarm_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("ends") << "true";
    QTest::newRow("closes it") << "exec <&-; echo here";
    QTest::newRow("reads a line") << "read line; echo $line >&2";
}

void TestProgramRun::inputThatNobodyReadsDoesNoHarm()
{
    QFETCH(QString, script);
    Run run;
    run.shell(script, QByteArray(8 * kMegabyte, '\n'));
    QVERIFY(run.wait());
    QVERIFY2(run.result.isGood(), qPrintable(run.result.error));
}

void TestProgramRun::floodIsKeptWithinBounds_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<qsizetype>("output");
    QTest::addColumn<qsizetype>("error");
    QTest::newRow("output") << "" << kMegabyte << qsizetype(0);
    QTest::newRow("error") << " >&2" << qsizetype(0) << qsizetype(65'536);
}

void TestProgramRun::floodIsKeptWithinBounds()
{
    QFETCH(QString, target);
    QFETCH(qsizetype, output);
    QFETCH(qsizetype, error);
    const qint64 before = memoryBytes();
    Run run;
    run.shell("head -c 100000000 /dev/zero | tr '\\0' x" + target);
    QVERIFY(run.wait());
    QVERIFY(run.result.isGood());
    QCOMPARE(run.result.output.size(), output);
    QCOMPARE(run.result.error.size(), error);
    QVERIFY(memoryBytes() - before < kAllowance);
}

void TestProgramRun::cancelTellsNothing()
{
    Run run;
    run.shell("sleep 1000", {}, kSoonMilliseconds);
    QElapsedTimer clock;
    clock.start();
    run.run.cancel();
    QVERIFY(clock.elapsed() < kLongestCallMilliseconds);
    QVERIFY(!run.run.isRunning());
    // A later run's end comes behind all that the earlier one could tell.
    run.shell("sleep 0.3");
    QVERIFY(run.wait());
    QCOMPARE(run.count, 1);
    QVERIFY(run.result.isGood());
}

void TestProgramRun::cancelForgetsAMissingProgram()
{
    Run run;
    run.run.start("no-such-program", {}, {}, kPatienceMilliseconds);
    run.run.cancel();
    run.shell("echo second");
    QVERIFY(run.wait());
    QCOMPARE(run.result.output, "second\n");
    QCOMPARE(run.count, 1);
}

void TestProgramRun::cancelWithoutAProgramDoesNothing()
{
    Run run;
    run.run.cancel();
    QCoreApplication::processEvents();
    QCOMPARE(run.count, 0);
}

void TestProgramRun::finishedMayCancel()
{
    Run run;
    QObject::connect(&run.run, &ProgramRun::finished, &run.run, [&run] { run.run.cancel(); });
    run.shell("sleep 1000", {}, 0);
    QVERIFY(run.wait());
    run.shell("true");
    QTRY_COMPARE(run.count, 2);
    QVERIFY(!run.run.isRunning());
}

void TestProgramRun::finishedMayStartAnother()
{
    Run run;
    QObject::connect(&run.run, &ProgramRun::finished, &run.run, [&run] {
        if (run.count < 3) {
            run.shell(QString("echo %1").arg(run.count));
        }
    });
    run.run.start("no-such-program", {}, {}, kPatienceMilliseconds);
    QTRY_COMPARE(run.count, 3);
    QCOMPARE(run.result.output, "2\n");
    QVERIFY(!run.run.isRunning());
}

void TestProgramRun::finishedMayDelete()
{
    for (const char *script : {"true", "sleep 1000"}) {
        auto run = std::make_unique<ProgramRun>();
        QObject::connect(run.get(), &ProgramRun::finished, qApp, [&run] { run.reset(); });
        run->start("sh", {"-c", script}, {}, kSoonMilliseconds);
        QTRY_VERIFY(!run);
    }
}

void TestProgramRun::startReplacesWhatRuns()
{
    Run run;
    run.shell("echo first; sleep 1000");
    run.shell("echo second");
    QVERIFY(run.wait());
    QCOMPARE(run.result.output, "second\n");
    QCOMPARE(run.count, 1);
}

void TestProgramRun::destructionKills()
{
    const QTemporaryDir folder;
    const QString number = folder.filePath("number");
    {
        Run run;
        run.shell("trap '' TERM HUP; echo $$ > " + number + "; while :; do sleep 1000; done");
        QTRY_VERIFY_WITH_TIMEOUT(isAlive(numberIn(number)), kPatienceMilliseconds);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!isAlive(numberIn(number)), kPatienceMilliseconds);
}

void TestProgramRun::nothingIsLeftUnburied()
{
    for (int i = 0; i < 20; ++i) {
        Run run;
        run.shell("sleep 1000");
        if (i % 2 == 0) {
            run.run.cancel();
        }
    }
    QTRY_COMPARE_WITH_TIMEOUT(unburiedChildren(), 0, kPatienceMilliseconds);
}

int main(int argc, char **argv)
{
    return runTest<TestProgramRun>(argc, argv);
}

#include "tst_ProgramRun.moc"
