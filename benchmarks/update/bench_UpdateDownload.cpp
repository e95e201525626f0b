#include "GapMeter.h"
#include "LocalUpdateService.h"
#include "PeakMeter.h"
#include "QuietPlatform.h"
#include "RatioReporter.h"
#include "TXCheckForUpdateWidget.h"
#include "TXUpdateService.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTemporaryDir>
#include <QVariantHash>

#include <functional>
#include <memory>

// The download of an installer by the dialog beside the shortest program that saves a reply: one
// open file, one write for each piece. The service is a process of its own on loopback.

namespace {

constexpr qint64 kMegabyte = qint64(1024) * 1024;
constexpr qint64 kWarmUpBytes = 16 * kMegabyte;

const QString kFileName = QStringLiteral("installer.bin");

void run(QObject *object, const char *signal, const std::function<bool()> &isDone)
{
    QEventLoop loop;
    QObject::connect(object, signal, &loop, SLOT(quit()));
    while (!isDone()) {
        loop.exec();
    }
}

/// The service, and an empty folder for downloads.
class Place
{
public:
    [[nodiscard]] bool start()
    {
        if (!service.start()) {
            return false;
        }
        TXUpdateService::setAuthority(service.authority());
        const QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
        QDir().mkpath(config);
        QFile file(config + QStringLiteral("/user-dirs.dirs"));
        return file.open(QFile::WriteOnly)
            && file.write("XDG_DOWNLOAD_DIR=\"" + QFile::encodeName(folder.path()) + "\"\n") > 0;
    }

    void offer(qint64 size)
    {
        QFile::remove(path());
        LocalWebReply reply;
        reply.generatedSize = size;
        service.setDownloadReply(reply);
    }

    [[nodiscard]] QString path() const { return folder.filePath(kFileName); }

private:
    LocalUpdateService service;
    QTemporaryDir folder;
};

/// The dialog's way. Returns the longest gap in milliseconds, as the other does.
double downloadByDialog(Place & /*place*/, qint64 size)
{
    TXCheckForUpdateWidget dialog(nullptr, false);
    const QVariantHash record = {{QStringLiteral("Revision"), 99999},
                                 {QStringLiteral("Filename"), kFileName},
                                 {QStringLiteral("Filesize"), size}};
    dialog.updateInfoReceived(record, record);
    const GapMeter gaps;
    dialog.updateState(TXCheckForUpdateWidget::DownloadStarting);
    run(&dialog, SIGNAL(stateChanged(State)),
        [&dialog] { return dialog.state() != TXCheckForUpdateWidget::Downloading; });
    return gaps.milliseconds();
}

/// The bare loop.
double downloadByLoop(Place &place, qint64 /*size*/)
{
    QFile file(place.path());
    if (!file.open(QFile::WriteOnly)) {
        return 0;
    }
    const GapMeter gaps;
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(
        manager.get(QNetworkRequest(TXUpdateService::url(QStringLiteral("/download")))));
    reply->ignoreSslErrors();
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &file,
                     [&] { file.write(reply->readAll()); });
    run(reply.get(), SIGNAL(finished()), [&reply] { return reply->isFinished(); });
    file.write(reply->readAll());
    return gaps.milliseconds();
}

template<double (*download)(Place &, qint64)>
void measure(benchmark::State &state)
{
    const QuietPlatform quiet;
    const qint64 size = state.range(0) * kMegabyte;
    Place place;
    if (!place.start()) {
        state.SkipWithError("the service does not start");
        return;
    }
    place.offer(kWarmUpBytes);
    download(place, kWarmUpBytes);
    qint64 peak = 0;
    double gap = 0;
    for (auto step : state) {
        state.PauseTiming();
        place.offer(size);
        const PeakMeter meter;
        state.ResumeTiming();
        gap = qMax(gap, download(place, size));
        peak = qMax(peak, meter.bytes());
        if (QFileInfo(place.path()).size() != size) {
            state.SkipWithError("the file is not whole");
            return;
        }
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * size);
    state.counters["peak_MB"] = static_cast<double>(peak) / static_cast<double>(kMegabyte);
    state.counters["longest_gap_ms"] = gap;
}

} // namespace

BENCHMARK(measure<downloadByDialog>)
    ->Name("Download/ours")
    ->Arg(64)
    ->Arg(1024)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(measure<downloadByLoop>)
    ->Name("Download/bare loop")
    ->Arg(64)
    ->Arg(1024)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
