#include "ChildProcess.h"
#include "LocalDisplay.h"
#include "TestBase.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>

#include <functional>
#include <memory>

namespace {

constexpr int kPatienceMilliseconds = 60000;
constexpr int kNudgeMilliseconds = 100;
/// A second event over a place comes only when the program that drags has heard the answer to the
/// first.
constexpr int kAnswersHeard = 2;
/// More than the way that makes a press into a drag.
constexpr int kNudgePixels = 25;

/// The program with the windows of one test.
class WindowProcess
{
public:
    WindowProcess() = default;
    WindowProcess(const WindowProcess &) = delete;
    WindowProcess &operator=(const WindowProcess &) = delete;
    WindowProcess(WindowProcess &&) = delete;
    WindowProcess &operator=(WindowProcess &&) = delete;
    ~WindowProcess()
    {
        process.closeWriteChannel();
        if (!process.waitForFinished(kPatienceMilliseconds)) {
            process.kill();
            process.waitForFinished(kPatienceMilliseconds);
        }
    }

    [[nodiscard]] bool start(const LocalDisplay &display, const QStringList &windows)
    {
        endWithThisThread(process);
        process.setProcessEnvironment(display.environment());
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationDirPath() + "/dragWindows", windows);
        return waitFor("ready");
    }

    /// What it has written since forget(), a line for each thing.
    QStringList lines()
    {
        while (process.canReadLine()) {
            read.append(QString::fromUtf8(process.readLine()).trimmed());
        }
        return read;
    }

    void forget() { read.clear(); }

    [[nodiscard]] qsizetype count(const QString &line) { return lines().count(line); }

    [[nodiscard]] bool waitFor(const QString &line)
    {
        return QTest::qWaitFor([this, &line] { return count(line) > 0; }, kPatienceMilliseconds);
    }

    /// Its answer to a question, without the first word. All it has written before is read then.
    QString answerTo(const QString &question)
    {
        const QString word = question.section(' ', 0, 0) + ' ';
        process.write(question.toUtf8() + '\n');
        QStringList answers;
        const bool came = QTest::qWaitFor(
            [this, &word, &answers] {
                answers = lines().filter(QRegularExpression('^' + word));
                return !answers.isEmpty();
            },
            kPatienceMilliseconds);
        read.removeAll(answers.value(0));
        return came ? answers.first().mid(word.size()) : QString();
    }

    QPoint placeOf(const QString &item)
    {
        const QString answer = answerTo("place " + item);
        return {answer.section(' ', 0, 0).toInt(), answer.section(' ', 1, 1).toInt()};
    }

private:
    QProcess process;
    QStringList read;
};

} // namespace

/// Real drags with the mouse, on a screen of their own, between windows of one program and between
/// two programs.
class TestDragBetweenWindows : public TestBase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void dropArrives_data();
    void dropArrives();
    void dropIsRefused_data();
    void dropIsRefused();
    void dropBesideAllItemsComesToNothing();
    void folderMovesFromOneViewToTheOther();
    void mouseIsToldWhenItComesAndGoes();
    void cleanupTestCase();

protected:
    void finish() override;

private:
    bool openWindows(const QString &from, const QString &to, int programs);
    bool nudgeUntil(const QPoint &place, const std::function<bool()> &isDone);
    bool dragOver(const QString &from, const QString &to, const QString &answer,
                  int answers = kAnswersHeard);
    bool drop();

    std::unique_ptr<LocalDisplay> display;
    std::unique_ptr<WindowProcess> source;
    std::unique_ptr<WindowProcess> secondProgram;
    WindowProcess *target = nullptr;
};

void TestDragBetweenWindows::initTestCase()
{
    display = std::make_unique<LocalDisplay>();
    QVERIFY2(display->start(), "needs the programs Xvfb, openbox and xdotool");
}

void TestDragBetweenWindows::cleanupTestCase()
{
    display.reset();
}

void TestDragBetweenWindows::finish()
{
    // A drag that has gone wrong must not go on into the next test.
    QVERIFY(display && display->releaseMouse());
    target = nullptr;
    secondProgram.reset();
    source.reset();
}

/// The second window stands beside the first, also when it belongs to another program.
bool TestDragBetweenWindows::openWindows(const QString &from, const QString &to, int programs)
{
    source = std::make_unique<WindowProcess>();
    if (programs == 1) {
        target = source.get();
        return source->start(*display, {from, to});
    }
    secondProgram = std::make_unique<WindowProcess>();
    target = secondProgram.get();
    return source->start(*display, {from}) && target->start(*display, {"-", to});
}

/// Moves the mouse to and fro at the place: what a drag has missed it gets with the next movement.
bool TestDragBetweenWindows::nudgeUntil(const QPoint &place, const std::function<bool()> &isDone)
{
    QElapsedTimer watch;
    watch.start();
    bool isRight = false;
    while (watch.elapsed() < kPatienceMilliseconds) {
        isRight = !isRight;
        if (!display->moveMouse(place + QPoint(isRight ? kNudgePixels : 0, 0))) {
            return false;
        }
        if (QTest::qWaitFor(isDone, kNudgeMilliseconds)) {
            return true;
        }
    }
    return false;
}

/// Takes the item and holds it over another until that window has answered, and has been heard.
bool TestDragBetweenWindows::dragOver(const QString &from, const QString &to, const QString &answer,
                                      int answers)
{
    const QPoint start = source->placeOf(from);
    if (!display->moveMouse(start) || !display->pressMouse()) {
        return false;
    }
    const auto isDragging = [this] {
        return source->count("dragging") > 0;
    };
    if (!nudgeUntil(start, isDragging)) {
        return false;
    }
    const QPoint place = target->placeOf(to);
    const QString report = "over " + to.section(' ', 0, 0) + ' ' + answer;
    target->forget();
    return display->moveMouse(place)
        && nudgeUntil(place, [this, &report, answers] { return target->count(report) >= answers; });
}

bool TestDragBetweenWindows::drop()
{
    return display->releaseMouse() && source->waitFor("finished");
}

void TestDragBetweenWindows::dropArrives_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<int>("programs");
    QTest::addColumn<QString>("report");

    const QString files = "files file:///tmp/a.icc";
    const QString urls = "file:///tmp/a.icc http://example.org/b.icc";
    QTest::newRow("files to the line edit") << files << "field -" << 1 << "urls " + urls;
    QTest::newRow("files to another program's") << files << "field -" << 2 << "urls " + urls;
    QTest::newRow("files to a tree") << files << "taker Out" << 1 << "data text/uri-list " + urls;
    QTest::newRow("files to another program's tree")
        << files << "taker Out" << 2 << "data text/uri-list " + urls;
    QTest::newRow("files where the strategy allows it")
        << files << "picky In" << 2 << "data text/uri-list " + urls;
}

void TestDragBetweenWindows::dropArrives()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    QFETCH(const int, programs);
    QFETCH(const QString, report);
    QVERIFY(openWindows(from.section(' ', 0, 0), to.section(' ', 0, 0), programs));

    QVERIFY(dragOver(from, to, "yes"));
    QCOMPARE(target->count(report), 0);
    QVERIFY(drop());

    QVERIFY2(target->waitFor(report), qPrintable(target->lines().join('\n')));
}

void TestDragBetweenWindows::dropIsRefused_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<int>("programs");
    QTest::addColumn<int>("answers");

    const QString files = "files file:///tmp/a.icc";
    QTest::newRow("by the strategy") << files << "picky Out" << 1 << kAnswersHeard;
    QTest::newRow("by another program's strategy") << files << "picky Out" << 2 << kAnswersHeard;
    // Refused as it comes in, so that the view hears no more of it.
    QTest::newRow("by folders, of files") << files << "folders Coated" << 2 << 1;
    QTest::newRow("by a folder, of itself") << "folders Printing"
                                            << "sorted Coated" << 1 << kAnswersHeard;
    QTest::newRow("by folders of another program") << "folders Coated"
                                                   << "sorted Screens" << 2 << kAnswersHeard;
}

void TestDragBetweenWindows::dropIsRefused()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    QFETCH(const int, programs);
    QFETCH(const int, answers);
    QVERIFY(openWindows(from.section(' ', 0, 0), to.section(' ', 0, 0), programs));

    QVERIFY(dragOver(from, to, "no", answers));
    QVERIFY(drop());

    QCOMPARE(target->answerTo("outline"), QString("Printing(Coated,Uncoated),Screens"));
    QCOMPARE(target->lines().filter(QRegularExpression("^(data|urls|dropped)")), QStringList());
}

void TestDragBetweenWindows::dropBesideAllItemsComesToNothing()
{
    QVERIFY(openWindows("files", "taker", 2));

    QVERIFY(dragOver("files file:///tmp/a.icc", "taker -", "yes"));
    QVERIFY(drop());

    // The other program may come to the drop later than this one to its end.
    QVERIFY(target->waitFor("dropped taker"));
    QCOMPARE(target->lines().filter(QRegularExpression("^data")), QStringList());
}

void TestDragBetweenWindows::folderMovesFromOneViewToTheOther()
{
    QVERIFY(openWindows("folders", "sorted", 1));

    QVERIFY(dragOver("folders Coated", "sorted Screens", "yes"));
    QVERIFY(drop());

    QCOMPARE(target->answerTo("outline"), QString("Printing(Uncoated),Screens(Coated)"));
    QCOMPARE(target->lines().filter(QRegularExpression("^data application/x-txfolders ")).size(),
             1);
}

void TestDragBetweenWindows::mouseIsToldWhenItComesAndGoes()
{
    QVERIFY(openWindows("folders", "sorted", 1));
    const QPoint first = source->placeOf("folders -");
    const QPoint second = source->placeOf("sorted -");

    QVERIFY(nudgeUntil(first, [this] { return source->count("mouse folders in") > 0; }));
    source->forget();
    QVERIFY(nudgeUntil(second, [this] { return source->count("mouse sorted in") > 0; }));

    QCOMPARE(source->lines().filter("mouse"),
             (QStringList{"mouse folders out", "mouse sorted in"}));
}

int main(int argc, char **argv)
{
    return runTest<TestDragBetweenWindows>(argc, argv);
}

#include "tst_DragBetweenWindows.moc"
