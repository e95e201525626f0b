#include "GapMeter.h"
#include "QuietPlatform.h"
#include "RatioReporter.h"
#include "ShareBrowser.h"
#include "ShareBrowserDiscoryThread.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QListView>
#include <QListWidget>
#include <QStringListModel>
#include <QThread>
#include <QUrl>

// Finds that a thread sends as fast as it can to a list on the screen: the share browser beside
// what comes to mind first. The counter tells the longest time that the event loop was in one turn.

namespace {

QUrl shareOf(int number)
{
    return {QStringLiteral("smb://nas-%1.local/folder %1").arg(number)};
}

/// What the dialog's own thread does, without a network.
class FindingThread : public ShareBrowserDiscoryThread
{
public:
    explicit FindingThread(int count)
        : count(count)
    { }
    ~FindingThread() override { stop(); }

    Q_DISABLE_COPY_MOVE(FindingThread)

protected:
    void run() override
    {
        for (int i = 0; i < count; ++i) {
            found(shareOf(i), this);
        }
    }

private:
    const int count;
};

/// The shortest thread that tells what it finds.
class PlainThread : public QThread
{
    Q_OBJECT

public:
    explicit PlainThread(int count)
        : count(count)
    { }
    ~PlainThread() override { wait(); }

    Q_DISABLE_COPY_MOVE(PlainThread)

signals:
    void newShare(QUrl);

protected:
    void run() override
    {
        for (int i = 0; i < count; ++i) {
            emit newShare(shareOf(i));
        }
    }

private:
    const int count;
};

QString textOf(const QUrl &share)
{
    return share.host(QUrl::FullyDecoded) + QStringLiteral(" - ") + share.path(QUrl::FullyDecoded);
}

/// A plain list, to which each find is added.
class PlainList : public QListWidget
{
    Q_OBJECT

public slots:
    void add(QUrl share) { addItem(textOf(share)); }
};

/// A list whose model gets all texts anew for each find.
class ResetList : public QListView
{
    Q_OBJECT

public:
    ResetList() { setModel(&texts); }

public slots:
    void add(QUrl share)
    {
        lines.append(textOf(share));
        texts.setStringList(lines);
    }

private:
    QStringListModel texts;
    QStringList lines;
};

/// Runs until the thread has ended, all that it sent has arrived, and the list is laid out.
template<class Thread>
double runGap(Thread &thread)
{
    const GapMeter gaps;
    QEventLoop loop;
    QObject::connect(&thread, SIGNAL(finished()), &loop, SLOT(quit()));
    thread.QThread::start();
    loop.exec();
    QCoreApplication::processEvents();
    return gaps.milliseconds();
}

struct Outcome
{
    double gap = 0;
    int rows = 0;
};

Outcome byBrowser(int count)
{
    // A search that ends at once; the finds come from a thread of this program.
    ShareBrowser browser(QUrl(QStringLiteral("none:")));
    FindingThread thread(count);
    QObject::connect(&thread, SIGNAL(newShare(QUrl)), &browser, SLOT(newShare(QUrl)));
    browser.show();
    QCoreApplication::processEvents();
    const double gap = runGap(thread);
    return {gap, browser.findChild<QListWidget *>()->count()};
}

template<class List>
Outcome byList(int count)
{
    List list;
    PlainThread thread(count);
    QObject::connect(&thread, SIGNAL(newShare(QUrl)), &list, SLOT(add(QUrl)));
    list.resize(400, 300);
    list.show();
    QCoreApplication::processEvents();
    const double gap = runGap(thread);
    return {gap, list.model()->rowCount()};
}

template<Outcome (*fill)(int)>
void measure(benchmark::State &state)
{
    const QuietPlatform quiet;
    const int count = static_cast<int>(state.range(0));
    double gap = 0;
    for (auto step : state) {
        const Outcome outcome = fill(count);
        gap = qMax(gap, outcome.gap);
        if (outcome.rows != count) {
            state.SkipWithError("there is not a row for each find");
            return;
        }
    }
    state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * count);
    state.counters["longest_turn_ms"] = gap;
}

} // namespace

BENCHMARK(measure<byBrowser>)
    ->Name("Finds/ours")
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(measure<byList<PlainList>>)
    ->Name("Finds/QListWidget::addItem")
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(measure<byList<ResetList>>)
    ->Name("Finds/QStringListModel reset")
    ->Arg(1'000)
    ->Arg(10'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

#include "bench_ShareBrowser.moc"
