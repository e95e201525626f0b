#include "PictureWork.h"

#include "ChartPicture.h"
#include "DifferencePicture.h"
#include "PrintSimulation.h"

#include <QMutex>
#include <QMutexLocker>

namespace {

/// Enough for an overview, twice over for fine screens.
constexpr QSize kOverviewSize(480, 320);

QImage overviewOf(const QImage &picture)
{
    const bool isLarger =
        picture.width() > kOverviewSize.width() || picture.height() > kOverviewSize.height();
    return isLarger ? picture.scaled(kOverviewSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                    : picture;
}

PictureSet makeChartSet(const std::atomic_bool &isCancelled)
{
    const QImage original = ChartPicture::make();
    const QImage print = PrintSimulation::make(original);
    const QImage difference = DifferencePicture::make(original, print, isCancelled);
    return {true, {{{}, original}, {{}, print}, {{}, difference}}, overviewOf(original)};
}

/// Always the same: made once for all, by whoever asks first. What was cancelled is not kept.
PictureSet chartSet(const std::atomic_bool &isCancelled)
{
    static QMutex mutex;
    static PictureSet kept;
    const QMutexLocker locker(&mutex);
    if (kept.pictures.isEmpty()) {
        const PictureSet made = makeChartSet(isCancelled);
        if (isCancelled) {
            return {};
        }
        kept = made;
    }
    return kept;
}

} // namespace

PictureWork::PictureWork(QObject *parent)
    : QObject(parent)
{
    pool.setMaxThreadCount(1);
}

PictureWork::~PictureWork()
{
    isCancelled = true;
    pool.waitForDone();
}

void PictureWork::makeChart()
{
    start([this] { runChart(); });
}

void PictureWork::readFiles(const QStringList &paths)
{
    if (!paths.isEmpty()) {
        start([this, paths] {
            runFiles(paths.first(qMin(paths.size(), PictureSet::kLargestCount)));
        });
    }
}

void PictureWork::endRun()
{
    running = false;
    emit finished();
}

void PictureWork::start(const std::function<void()> &work)
{
    if (running) {
        return;
    }
    running = true;
    set = {};
    failed.clear();
    pool.start([this, work] {
        work();
        QMetaObject::invokeMethod(this, "endRun", Qt::QueuedConnection);
    });
}

void PictureWork::runChart()
{
    set = chartSet(isCancelled);
}

void PictureWork::runFiles(const QStringList &paths)
{
    PictureSet read;
    for (const QString &path : paths) {
        if (isCancelled) {
            return;
        }
        const PictureFile file = PictureFile::read(path);
        if (file.problem == PictureFile::Problem::None) {
            read.pictures.append({file.shortName(), file.image});
        } else {
            failed.append(file);
        }
    }
    if (failed.isEmpty()) {
        read.overview = overviewOf(read.pictures.constFirst().image);
        set = read;
    }
}
