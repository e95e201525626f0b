#include "HostRecording.h"
#include "HostSearch.h"
#include "Promptness.h"
#include "SearchLog.h"
#include "SearchWarnings.h"
#include "StandInPrograms.h"
#include "TestBase.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

namespace {

constexpr int kLongMilliseconds = 50'000;
/// Stopping takes a few milliseconds; this is for a machine that does ten other things.
constexpr int kPromptMilliseconds = 5000;

const QString kName = QStringLiteral("avahi-browse");

QStringList texts(const QList<QUrl> &urls)
{
    QStringList list;
    for (const QUrl &url : urls) {
        list.append(url.toString(QUrl::FullyEncoded));
    }
    return list;
}

bool never()
{
    return false;
}

} // namespace

class TestHostSearch : public TestBase
{
    Q_OBJECT

protected:
    void prepare() override;
    void finish() override;

private slots:
    void recordingGivesEachHostOnce();
    void hostsComeAsTheyAreResolved();
    void searchAsksForResolvedRecordsOfShares();
    void damagedLinesAmongOthersAreSkipped();
    void whatGoesWrongIsTold_data();
    void whatGoesWrongIsTold();
    void missingProgramIsTold();
    void searchWithoutEndIsEnded();
    void cancellingEndsASearchWithoutEnd();
    void cancelledSearchTellsNothing();
    void callbacksMayBeMissing();
    void tooManyHostsAreCutOff();
    void asManyHostsAsMayBeAreNotTooMany();
    void twoNamesOfOneAddressAreOneHost();
    void whatTheProgramSaysIsToldInAShortLine();
    void cancelledIsAskedOftenEnough();
    void cancellingEndsSoonEnough();

private:
    QStringList search(int milliseconds = kLongMilliseconds);

    std::unique_ptr<StandInPrograms> programs;
};

void TestHostSearch::prepare()
{
    TXLogManager::applicationLog()->reset();
    programs = std::make_unique<StandInPrograms>();
}

void TestHostSearch::finish()
{
    programs.reset();
}

QStringList TestHostSearch::search(int milliseconds)
{
    SearchWarnings warnings;
    QList<QUrl> urls;
    HostSearch::run([&urls](const HostSearch::Host &host) { urls.append(host.url); }, never,
                    &warnings, milliseconds);
    return texts(urls);
}

void TestHostSearch::recordingGivesEachHostOnce()
{
    programs->write("recording", kRecording);
    QVERIFY(programs->add(kName, "/bin/cat \"$here/recording\"\n"));
    QCOMPARE(search(),
             QStringList({"smb://attic.local", "smb://two.local:1445", "smb://192.168.7.14"}));
    QCOMPARE(warningsInTheLog(), QStringList());
}

void TestHostSearch::hostsComeAsTheyAreResolved()
{
    // Each line is written only when what the one before it tells has arrived.
    programs->write("recording", kRecording);
    QVERIFY(programs->add(kName,
                          "n=0; while read -r line; do echo \"$line\"; case \"$line\" in\n"
                          "*attic*::12*|*two*|*office*.14*) n=$((n+1)); await \"heard$n\";;\n"
                          "esac; done < \"$here/recording\"\n"));
    SearchWarnings warnings;
    QList<QUrl> urls;
    const auto hear = [&](const HostSearch::Host &host) {
        urls.append(host.url);
        programs->write(QStringLiteral("heard%1").arg(urls.size()));
    };
    HostSearch::run(hear, never, &warnings, kLongMilliseconds);
    QCOMPARE(texts(urls),
             QStringList({"smb://attic.local", "smb://two.local:1445", "smb://192.168.7.14"}));
    QCOMPARE(warningsInTheLog(), QStringList());
}

void TestHostSearch::searchAsksForResolvedRecordsOfShares()
{
    QVERIFY(programs->add(kName, "echo \"$@\" | tell arguments\n"));
    QCOMPARE(search(), QStringList());
    QCOMPARE(programs->contentsOf("arguments"),
             "--parsable --resolve --terminate --no-db-lookup _smb._tcp\n");
}

void TestHostSearch::damagedLinesAmongOthersAreSkipped()
{
    programs->write("recording",
                    QByteArray(200'000, 'x')
                        + "\n=;;\n\n=;e;IPv4;n;t;l;nas.local;10.0.0.1;445;\n"
                          "=;e;IPv4;n;t;l;sun.local;10.0.0.2;44");
    QVERIFY(programs->add(kName, "/bin/cat \"$here/recording\"\n"));
    // A line that is cut within its port cannot be told from a whole one.
    QCOMPARE(search(), QStringList({"smb://nas.local", "smb://sun.local:44"}));
}

void TestHostSearch::whatGoesWrongIsTold_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("words");
    QTest::newRow("no daemon") << QByteArray(
        "echo 'Failed to create client object: Daemon not running' >&2; exit 1\n")
                               << "daemon does not run";
    QTest::newRow("no message bus")
        << QByteArray("echo 'Failed to create client object: An unexpected D-Bus error occurred' "
                      ">&2; exit 1\n")
        << "daemon does not run";
    QTest::newRow("something else")
        << QByteArray("echo 'avahi_domain_browser_new() failed: Not permitted' >&2; exit 1\n")
        << "Not permitted";
    QTest::newRow("without words") << QByteArray("exit 3\n") << "cannot be searched";
    QTest::newRow("crash") << QByteArray("kill -SEGV $$\n") << "avahi-browse has failed";
}

void TestHostSearch::whatGoesWrongIsTold()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, words);
    QVERIFY(programs->add(kName, script));
    QCOMPARE(search(), QStringList());
    const QStringList lines = warningsInTheLog();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains(words), qPrintable(lines.first()));
}

void TestHostSearch::missingProgramIsTold()
{
    programs->hideOthers();
    QCOMPARE(search(), QStringList());
    const QStringList lines = warningsInTheLog();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains("avahi-browse is not installed"), qPrintable(lines.first()));
}

void TestHostSearch::searchWithoutEndIsEnded()
{
    QVERIFY(programs->add(kName, "await never\n"));
    QCOMPARE(search(100), QStringList());
    const QStringList lines = warningsInTheLog();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains("too long"), qPrintable(lines.first()));
}

void TestHostSearch::cancellingEndsASearchWithoutEnd()
{
    QVERIFY(programs->add(kName,
                          "echo $$ | tell pid\n"
                          "echo '=;e;IPv4;n;t;l;nas.local;10.0.0.1;445;'; await never\n"));
    SearchWarnings warnings;
    QList<QUrl> urls;
    QElapsedTimer timer;
    const auto hear = [&](const HostSearch::Host &host) {
        urls.append(host.url);
        timer.start();
    };
    HostSearch::run(
        hear, [&] { return timer.isValid(); }, &warnings, kLongMilliseconds);
    QVERIFY(timer.elapsed() < kPromptMilliseconds);
    QCOMPARE(texts(urls), QStringList{"smb://nas.local"});
    QTRY_VERIFY(!isRunning(programs->contentsOf("pid")));
}

void TestHostSearch::cancelledSearchTellsNothing()
{
    programs->hideOthers();
    SearchWarnings warnings;
    HostSearch::run(
        {}, [] { return true; }, &warnings);
    QCOMPARE(warningsInTheLog(), QStringList());
}

void TestHostSearch::callbacksMayBeMissing()
{
    programs->write("recording", kRecording);
    QVERIFY(programs->add(kName, "/bin/cat \"$here/recording\"\n"));
    SearchWarnings warnings;
    HostSearch::run({}, {}, &warnings);
    QCOMPARE(warningsInTheLog(), QStringList());
}

void TestHostSearch::tooManyHostsAreCutOff()
{
    QVERIFY(programs->add(kName,
                          "/usr/bin/seq -f '=;e;IPv4;n;t;l;h%.0f.local;10.0.0.1;445;' 10005\n"
                          "await never\n"));
    const QStringList hosts = search();
    QCOMPARE(hosts.size(), 10'000);
    QCOMPARE(hosts.last(), "smb://h10000.local");
    const QStringList lines = warningsInTheLog();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains("too many"), qPrintable(lines.first()));
}

void TestHostSearch::asManyHostsAsMayBeAreNotTooMany()
{
    QVERIFY(
        programs->add(kName, "/usr/bin/seq -f '=;e;IPv4;n;t;l;h%.0f.local;10.0.0.1;445;' 10000\n"));
    QCOMPARE(search().size(), 10'000);
    QCOMPARE(warningsInTheLog(), QStringList());
}

void TestHostSearch::twoNamesOfOneAddressAreOneHost()
{
    QVERIFY(programs->add(kName,
                          "echo '=;e;IPv4;n;t;l;a b;10.9.8.7;445;'\n"
                          "echo '=;e;IPv4;n;t;l;c d;10.9.8.7;445;'\n"
                          "echo '=;e;IPv4;n;t;l;c d;10.9.8.7;446;'\n"));
    QCOMPARE(search(), QStringList({"smb://10.9.8.7", "smb://10.9.8.7:446"}));
}

void TestHostSearch::whatTheProgramSaysIsToldInAShortLine()
{
    QVERIFY(programs->add(kName,
                          "printf 'No\\033[31m luck\\000\\177 \\302\\233today\\r ' >&2\n"
                          "/usr/bin/yes x | /usr/bin/head -c 5000 | /usr/bin/tr '\\n' x >&2\n"
                          "exit 1\n"));
    QCOMPARE(search(), QStringList());
    const QStringList lines = warningsInTheLog();
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains(": No[31m luck today xxx"), qPrintable(lines.first()));
    QVERIFY2(lines.first().size() < 300, qPrintable(lines.first()));
}

void TestHostSearch::cancelledIsAskedOftenEnough()
{
    QVERIFY(programs->add(kName, "await never\n"));
    SearchWarnings warnings;
    Questions questions;
    HostSearch::run({}, std::ref(questions), &warnings, kLongMilliseconds);
    QVERIFY2(questions.medianGap() <= kLongestGapMilliseconds,
             qPrintable(QString::number(questions.medianGap())));
}

void TestHostSearch::cancellingEndsSoonEnough()
{
    QVERIFY(programs->add(kName, "trap '' TERM; await never\n"));
    SearchWarnings warnings;
    const qint64 milliseconds = bestStop([&](const std::function<bool()> &cancelled) {
        HostSearch::run({}, cancelled, &warnings, kLongMilliseconds);
    });
    QVERIFY2(milliseconds < kLongestStopMilliseconds, qPrintable(QString::number(milliseconds)));
}

int main(int argc, char **argv)
{
    return runTest<TestHostSearch>(argc, argv);
}

#include "tst_HostSearch.moc"
