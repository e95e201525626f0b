#include "ScanPanel.h"

#include "FolderLogEntry.h"
#include "LogGate.h"

#include "TXLogManager.h"
#include "TXResources.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kCountsIntervalMilliseconds = 100;
constexpr int kValuePointsAboveNormal = 6;
constexpr int kPictureGap = 7;

} // namespace

ScanPanel::ScanPanel(const QSharedPointer<TXLogManager> &log, QWidget *parent)
    : GalleryPanel(parent)
    , log(log)
    , gate(new LogGate(log, this))
    , countsTimer(new QTimer(this))
    , folderLabel(new QLabel(this))
    , folderEdit(new QLineEdit(QDir::toNativeSeparators(QDir::homePath()), this))
    , browseButton(new QPushButton(this))
    , startButton(new QPushButton(this))
    , cancelButton(new QPushButton(this))
    , entries(makeTile(TXDisplayLittleInformationBulletStaticImage()))
    , warnings(makeTile(TXDisplayLittleWarningBulletStaticImage()))
    , errors(makeTile(TXDisplayLittleErrorBulletStaticImage()))
    , rate(makeTile())
{
    scan = new FolderScan(
        [gate = gate](const FolderReport &report) { gate->append(makeFolderLogEntry(report)); },
        this);
    folderLabel->setBuddy(folderEdit);
    countsTimer->setInterval(kCountsIntervalMilliseconds);
    setUpLayout();
    retranslate();
    updateButtons();
    connect(browseButton, SIGNAL(clicked()), this, SLOT(browse()));
    connect(startButton, SIGNAL(clicked()), this, SLOT(start()));
    connect(folderEdit, SIGNAL(returnPressed()), this, SLOT(start()));
    connect(cancelButton, SIGNAL(clicked()), this, SLOT(cancel()));
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
    folderEdit->setText(text);
    folderEdit->setCursorPosition(0);
}

void ScanPanel::start()
{
    if (scan->isRunning()) {
        return;
    }
    gate->close();
    if (!scan->start(paths())) {
        return;
    }
    sinceStart.start();
    countsTimer->start();
    updateButtons();
    cancelButton->setFocus();
    showCounts();
}

void ScanPanel::cancel()
{
    scan->cancel();
    gate->open();
}

void ScanPanel::browse()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Scan a Folder"), paths().value(0));
    if (!folder.isEmpty()) {
        setFolders(QDir::toNativeSeparators(folder));
    }
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
    const bool hadFocus = cancelButton->hasFocus();
    updateButtons();
    if (hadFocus) {
        startButton->setFocus();
    }
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
    auto *folderRow = new QHBoxLayout;
    folderRow->addWidget(folderLabel);
    folderRow->addWidget(folderEdit, 1);
    folderRow->addWidget(browseButton);
    folderRow->addSpacing(kGap);
    folderRow->addWidget(startButton);
    folderRow->addWidget(cancelButton);

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

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(folderRow);
    rows->addLayout(tileRow);
}

void ScanPanel::updateButtons()
{
    startButton->setEnabled(!scan->isRunning());
    folderEdit->setEnabled(!scan->isRunning());
    browseButton->setEnabled(!scan->isRunning());
    cancelButton->setEnabled(scan->isRunning());
}

void ScanPanel::retranslate()
{
    setTitle(tr("Scan a folder"));
    folderLabel->setText(tr("&Folder:"));
    folderEdit->setToolTip(tr("Relative paths start at the program's folder; several paths are "
                              "separated by \"%1\".")
                               .arg(QDir::listSeparator()));
    browseButton->setText(tr("&Browse..."));
    startButton->setText(tr("S&tart Scan"));
    cancelButton->setText(tr("&Cancel"));
    entries.caption->setText(tr("Entries"));
    warnings.caption->setText(tr("Warnings"));
    errors.caption->setText(tr("Errors"));
    rate.caption->setText(tr("Entries a second"));
    showCounts();
}

QStringList ScanPanel::paths() const
{
    const QDir programFolder(QCoreApplication::applicationDirPath());
    QStringList result;
    const QStringList texts = folderEdit->text().split(QDir::listSeparator(), Qt::SkipEmptyParts);
    for (const QString &text : texts) {
        const QString path = QDir::fromNativeSeparators(text.trimmed());
        if (!path.isEmpty()) {
            result.append(QDir::cleanPath(programFolder.absoluteFilePath(path)));
        }
    }
    return result;
}
