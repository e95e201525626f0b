#include "WorkersPanel.h"

#include "FolderJobBar.h"
#include "ObservedProgress.h"
#include "ProgressBarSwitches.h"
#include "WheelGuard.h"

#include "TXProgressBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSpinBox>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kCountsIntervalMilliseconds = 100;
constexpr int kThreadsChosenFirst = 4;
constexpr int kValuePointsAboveNormal = 6;
constexpr int kMessageWidthPixels = 230;
constexpr qint64 kMillisecondsPerSecond = 1000;

} // namespace

WorkersPanel::WorkersPanel(QWidget *parent)
    : GalleryPanel(parent)
    , jobBar(new FolderJobBar(this))
    , threadsLabel(new QLabel(this))
    , threadsBox(new QSpinBox(this))
    , bar(new TXProgressBar(this))
    , switches(new ProgressBarSwitches(bar, this))
    , reports(makeTile())
    , paintings(makeTile())
    , files(makeTile())
    , rate(makeTile())
    , endingLabel(new QLabel(this))
    , countsTimer(new QTimer(this))
    , observed(std::make_unique<ObservedProgress>(bar))
    , digests(std::make_unique<FileDigests>(observed.get()))
{
    threadsBox->setRange(1, FileDigests::kMaximumThreads);
    threadsBox->setValue(kThreadsChosenFirst);
    threadsLabel->setBuddy(threadsBox);
    WheelGuard::protect(threadsBox);
    countsTimer->setInterval(kCountsIntervalMilliseconds);
    keepRoomForTheBar();
    setUpLayout();
    retranslate();
    connect(jobBar, SIGNAL(startWanted()), this, SLOT(start()));
    connect(jobBar, SIGNAL(cancelWanted()), this, SLOT(cancel()));
    connect(countsTimer, SIGNAL(timeout()), this, SLOT(showCounts()));
    connect(digests.get(), SIGNAL(finished(bool)), this, SLOT(jobFinished(bool)));
}

WorkersPanel::~WorkersPanel() = default;

void WorkersPanel::setFolders(const QString &text)
{
    jobBar->setFolders(text);
}

bool WorkersPanel::isBarUnderWay() const
{
    // In a huge folder the first percent may take long.
    constexpr qint64 kFilesEnough = 500;
    const bool isProgressSeen =
        bar->value() > bar->minimum() || digests->sums().files > kFilesEnough;
    return !bar->isHidden() && isProgressSeen;
}

void WorkersPanel::start()
{
    if (digests->isRunning() || jobBar->paths().isEmpty()) {
        return;
    }
    ending = Ending::None;
    observed->startCounting();
    sinceStart.start();
    digests->start(jobBar->paths(), threadsBox->value());
    jobBar->setRunning(true);
    threadsBox->setEnabled(false);
    countsTimer->start();
    showCounts();
}

void WorkersPanel::cancel()
{
    digests->cancel();
}

void WorkersPanel::showCounts()
{
    if (digests->isRunning()) {
        milliseconds = sinceStart.elapsed();
    }
    const QLocale shown = locale();
    const FileDigestSums sums = digests->sums();
    const double bytesASecond = double(sums.bytes) * double(kMillisecondsPerSecond)
        / double(std::max(milliseconds, qint64(1)));
    reports.value->setText(shown.toString(observed->reports()));
    paintings.value->setText(shown.toString(observed->paintings()));
    files.value->setText(shown.toString(sums.files));
    rate.value->setText(shown.formattedDataSize(qint64(bytesASecond), 1));
    endingLabel->setText(endingText());
    emit countsShown();
}

void WorkersPanel::jobFinished(bool isComplete)
{
    milliseconds = sinceStart.elapsed();
    ending = isComplete ? Ending::Complete : Ending::Cancelled;
    countsTimer->stop();
    jobBar->setRunning(false);
    threadsBox->setEnabled(true);
    showCounts();
}

void WorkersPanel::retranslate()
{
    setTitle(tr("Several workers, one delegate"));
    jobBar->retranslate({tr("Files &in:"), tr("Bro&wse..."), tr("&Read Files"), tr("Canc&el"),
                         tr("Read the Files of a Folder")});
    threadsLabel->setText(tr("T&hreads:"));
    bar->setAccessibleName(tr("Progress of the workers"));
    reports.caption->setText(tr("Reports of the workers"));
    paintings.caption->setText(tr("Paintings of the bar"));
    files.caption->setText(tr("Files read"));
    rate.caption->setText(tr("Read in a second"));
    showCounts();
}

QString WorkersPanel::endingText() const
{
    if (ending == Ending::None) {
        return {};
    }
    const QLocale shown = locale();
    const FileDigestSums sums = digests->sums();
    const QString text = ending == Ending::Complete
        ? tr("%1 in %2 s; copies of other files: %3, not readable: %4.")
        : tr("Cancelled after %1 in %2 s; copies of other files: %3, not readable: %4.");
    constexpr int kDecimals = 2;
    const double seconds = double(milliseconds) / double(kMillisecondsPerSecond);
    return text.arg(shown.formattedDataSize(sums.bytes), shown.toString(seconds, 'f', kDecimals),
                    shown.toString(sums.copies), shown.toString(sums.unreadable));
}

WorkersPanel::Tile WorkersPanel::makeTile()
{
    const Tile tile = {new QLabel(this), new QLabel(this)};
    QFont valueFont = font();
    valueFont.setPointSizeF(valueFont.pointSizeF() + kValuePointsAboveNormal);
    tile.value->setFont(valueFont);
    tile.caption->setForegroundRole(QPalette::PlaceholderText);
    return tile;
}

/// The page stays as it is while the bar comes and goes, and the bar while messages do.
void WorkersPanel::keepRoomForTheBar()
{
    QSizePolicy policy = bar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    bar->setSizePolicy(policy);
    auto *message = bar->findChild<QLabel *>(QStringLiteral("progressMessage"));
    message->setFixedWidth(kMessageWidthPixels);
}

void WorkersPanel::setUpLayout()
{
    auto *barRow = new QHBoxLayout;
    barRow->addWidget(threadsLabel);
    barRow->addWidget(threadsBox);
    barRow->addSpacing(kGap);
    barRow->addWidget(bar, 1);

    auto *tileRow = new QHBoxLayout;
    for (const Tile &tile : {reports, paintings, files, rate}) {
        auto *column = new QVBoxLayout;
        column->setSpacing(0);
        column->addWidget(tile.value);
        column->addWidget(tile.caption);
        tileRow->addLayout(column, 1);
    }

    auto *rows = new QVBoxLayout(this);
    setMargins(rows);
    rows->addWidget(jobBar);
    rows->addLayout(barRow);
    rows->addWidget(switches);
    rows->addLayout(tileRow);
    rows->addWidget(endingLabel);
}
