#include "ScanPanel.h"

#include "FolderJobBar.h"
#include "FolderLogEntry.h"
#include "LogGate.h"
#include "WorkVeil.h"

#include "TXLogManager.h"
#include "TXResources.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kCountsIntervalMilliseconds = 100;
constexpr int kValuePointsAboveNormal = 6;
constexpr int kPictureGap = 7;
constexpr int kSpinnerPixels = 36;
constexpr int kSpinnerPlacePixels = 48;

} // namespace

ScanPanel::ScanPanel(const QSharedPointer<TXLogManager> &log, QWidget *parent)
    : GalleryPanel(parent)
    , log(log)
    , gate(new LogGate(log, this))
    , countsTimer(new QTimer(this))
    , bar(new FolderJobBar(this))
    , entries(makeTile(TXDisplayLittleInformationBulletStaticImage()))
    , warnings(makeTile(TXDisplayLittleWarningBulletStaticImage()))
    , errors(makeTile(TXDisplayLittleErrorBulletStaticImage()))
    , rate(makeTile())
    , veil(new WorkVeil(new QWidget(this)))
{
    scan = new FolderScan(
        [gate = gate](const FolderReport &report) { gate->append(makeFolderLogEntry(report)); },
        this);
    countsTimer->setInterval(kCountsIntervalMilliseconds);
    setUpLayout();
    retranslate();
    connect(bar, SIGNAL(startWanted()), this, SLOT(start()));
    connect(bar, SIGNAL(cancelWanted()), this, SLOT(cancel()));
    connect(countsTimer, SIGNAL(timeout()), this, SLOT(showCounts()));
    connect(scan, SIGNAL(finished(bool)), this, SLOT(scanFinished(bool)));
}

ScanPanel::~ScanPanel()
{
    // Not left to the parent: the scan's threads may be waiting at the gate.
    gate->open();
    delete scan;
}

void ScanPanel::setFolders(const QString &text)
{
    bar->setFolders(text);
}

void ScanPanel::start()
{
    if (scan->isRunning()) {
        return;
    }
    gate->close();
    if (!scan->start(bar->paths())) {
        return;
    }
    sinceStart.start();
    countsTimer->start();
    bar->setRunning(true);
    veil->begin(kSpinnerPixels);
    showCounts();
}

void ScanPanel::cancel()
{
    scan->cancel();
    gate->open();
}

void ScanPanel::showCounts()
{
    if (scan->isRunning()) {
        milliseconds = sinceStart.elapsed();
    }
    const QLocale shown = locale();
    const FolderScanCounts counts = scan->counts();
    entries.value->setText(shown.toString(counts.folders));
    warnings.value->setText(shown.toString(counts.warnings));
    errors.value->setText(shown.toString(counts.errors));
    rate.value->setText(shown.toString(counts.folders * 1000 / std::max(milliseconds, qint64(1))));
}

void ScanPanel::scanFinished(bool isComplete)
{
    milliseconds = sinceStart.elapsed();
    countsTimer->stop();
    showCounts();
    bar->setRunning(false);
    veil->end();
    const QSharedPointer<TXLogItem> entry =
        makeScanLogEntry(scan->counts(), milliseconds, isComplete);
    log->append(entry);
    emit scanLogged(entry);
}

ScanPanel::Tile ScanPanel::makeTile(const QPixmap &picture)
{
    const Tile tile = {new QLabel(this), new QLabel(this), new QLabel(this)};
    tile.picture->setPixmap(picture);
    tile.picture->setHidden(picture.isNull());
    QFont valueFont = font();
    valueFont.setPointSizeF(valueFont.pointSizeF() + kValuePointsAboveNormal);
    tile.value->setFont(valueFont);
    tile.value->setText(locale().toString(0));
    tile.caption->setForegroundRole(QPalette::PlaceholderText);
    return tile;
}

void ScanPanel::setUpLayout()
{
    auto *tileRow = new QHBoxLayout;
    for (const Tile &tile : {entries, warnings, errors, rate}) {
        auto *valueRow = new QHBoxLayout;
        valueRow->setSpacing(kPictureGap);
        valueRow->addWidget(tile.picture);
        valueRow->addWidget(tile.value, 1);
        auto *column = new QVBoxLayout;
        column->setSpacing(0);
        column->addLayout(valueRow);
        column->addWidget(tile.caption);
        tileRow->addLayout(column, 1);
    }
    QWidget *spinnerPlace = veil->parentWidget();
    spinnerPlace->setFixedSize(kSpinnerPlacePixels, kSpinnerPlacePixels);
    tileRow->addWidget(spinnerPlace);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(bar);
    rows->addLayout(tileRow);
}

void ScanPanel::retranslate()
{
    setTitle(tr("Scan a folder"));
    bar->retranslate(
        {tr("&Folder:"), tr("&Browse..."), tr("S&tart Scan"), tr("&Cancel"), tr("Scan a Folder")});
    entries.caption->setText(tr("Entries"));
    warnings.caption->setText(tr("Warnings"));
    errors.caption->setText(tr("Errors"));
    rate.caption->setText(tr("Entries a second"));
    showCounts();
}
