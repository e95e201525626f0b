#include "FolderScanPanel.h"

#include "ColumnTitles.h"
#include "FolderJobBar.h"
#include "LeftToRight.h"
#include "WheelGuard.h"
#include "WorkVeil.h"

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>

namespace {

constexpr int kResultIntervalMilliseconds = 250;
constexpr int kListHeightPixels = 176;
constexpr int kSpinnerPixels[] = {24, 48, 96, 160};
constexpr int kSpinnerChosenFirst = 2;

enum Column { FolderColumn, SizeColumn, FilesColumn, NewestColumn, ColumnCount };

} // namespace

FolderScanPanel::FolderScanPanel(QWidget *parent)
    : GalleryPanel(parent)
    , scan(
          std::make_unique<FolderScan>([this](const FolderReport &report) { largest.add(report); }))
    , resultTimer(new QTimer(this))
    , bar(new FolderJobBar(this))
    , sizeLabel(new QLabel(this))
    , sizeBox(new QComboBox(this))
    , sums(new QLabel(this))
    , list(new QTreeWidget(this))
    , veil(new WorkVeil(list))
{
    resultTimer->setInterval(kResultIntervalMilliseconds);
    for (const int pixels : kSpinnerPixels) {
        sizeBox->addItem(QString(), pixels);
    }
    sizeBox->setCurrentIndex(kSpinnerChosenFirst);
    sizeLabel->setBuddy(sizeBox);
    WheelGuard::protect(sizeBox);
    setUpLayout();
    retranslate();
    connect(bar, SIGNAL(startWanted()), this, SLOT(start()));
    connect(bar, SIGNAL(cancelWanted()), this, SLOT(cancel()));
    connect(sizeBox, SIGNAL(currentIndexChanged(int)), this, SLOT(chooseSpinner()));
    connect(resultTimer, SIGNAL(timeout()), this, SLOT(showResult()));
    connect(scan.get(), SIGNAL(finished(bool)), this, SLOT(scanFinished(bool)));
}

FolderScanPanel::~FolderScanPanel() = default;

void FolderScanPanel::setFolders(const QString &text)
{
    bar->setFolders(text);
}

bool FolderScanPanel::hasResult() const
{
    return list->topLevelItemCount() > 0;
}

void FolderScanPanel::start()
{
    if (scan->isRunning()) {
        return;
    }
    largest.clear();
    if (!scan->start(bar->paths())) {
        return;
    }
    ending = Ending::None;
    bar->setRunning(true);
    resultTimer->start();
    chooseSpinner();
    showResult();
}

void FolderScanPanel::cancel()
{
    scan->cancel();
}

void FolderScanPanel::showResult()
{
    showList();
    showSums();
    emit resultShown();
}

void FolderScanPanel::scanFinished(bool isComplete)
{
    ending = isComplete ? Ending::Complete : Ending::Cancelled;
    resultTimer->stop();
    veil->end();
    bar->setRunning(false);
    showResult();
}

/// A change during a scan shows at once.
void FolderScanPanel::chooseSpinner()
{
    if (scan->isRunning()) {
        veil->begin(sizeBox->currentData().toInt());
    }
}

void FolderScanPanel::retranslate()
{
    setTitle(tr("Folder scan with a spinner"));
    bar->retranslate(
        {tr("&Folder:"), tr("&Browse..."), tr("S&tart Scan"), tr("&Cancel"), tr("Scan a Folder")});
    sizeLabel->setText(tr("Spinner si&ze:"));
    for (int i = 0; i < sizeBox->count(); ++i) {
        sizeBox->setItemText(i,
                             tr("%1 pixels").arg(locale().toString(sizeBox->itemData(i).toInt())));
    }
    list->setHeaderLabels({tr("Folder"), tr("Size"), tr("Files"), tr("Changed last")});
    giveColumnTitlesRoom(list->header());
    list->setAccessibleName(tr("Largest folders"));
    showList();
    showSums();
}

/// The rows are kept, so that the chosen one and the place of the scroll bar stay.
void FolderScanPanel::showList()
{
    const QLocale shown = locale();
    const QList<FolderReport> reports = largest.list();
    while (list->topLevelItemCount() > reports.size()) {
        delete list->topLevelItem(list->topLevelItemCount() - 1);
    }
    for (int row = 0; row < reports.size(); ++row) {
        const FolderReport &report = reports.at(row);
        QTreeWidgetItem *item =
            row < list->topLevelItemCount() ? list->topLevelItem(row) : new QTreeWidgetItem(list);
        const QString path = QDir::toNativeSeparators(report.path);
        item->setText(FolderColumn, leftToRight(path));
        item->setToolTip(FolderColumn, path.toHtmlEscaped());
        item->setText(SizeColumn, shown.formattedDataSize(report.totalBytes));
        item->setText(FilesColumn, shown.toString(report.fileCount));
        item->setText(NewestColumn, report.newestFile);
        for (const int column : {SizeColumn, FilesColumn}) {
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        }
    }
}

void FolderScanPanel::showSums()
{
    const QLocale shown = locale();
    const FolderScanCounts counts = scan->counts();
    const QString text = scan->isRunning() ? tr("%1 folders, %2 files, %3 so far")
        : ending == Ending::Complete       ? tr("%1 folders, %2 files, %3")
        : ending == Ending::Cancelled      ? tr("%1 folders, %2 files, %3; cancelled")
                                           : QString();
    sums->setText(text.isEmpty()
                      ? text
                      : text.arg(shown.toString(counts.folders), shown.toString(counts.files),
                                 shown.formattedDataSize(counts.bytes)));
}

void FolderScanPanel::setUpLayout()
{
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setFixedHeight(kListHeightPixels);
    for (const int column : {SizeColumn, FilesColumn}) {
        list->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(FolderColumn, QHeaderView::Stretch);
    list->setTextElideMode(Qt::ElideMiddle);

    auto *sizeRow = new QHBoxLayout;
    sizeRow->addWidget(sizeLabel);
    sizeRow->addWidget(sizeBox);
    sizeRow->addSpacing(kGap);
    sizeRow->addWidget(sums, 1);

    auto *rows = new QVBoxLayout(this);
    setMargins(rows);
    rows->addWidget(bar);
    rows->addLayout(sizeRow);
    rows->addWidget(list);
}
