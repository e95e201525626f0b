#include "PatchRunsPanel.h"

#include "ChartPatches.h"
#include "ColourDifference.h"

#include "TXCenteredPixmapDelegate.h"
#include "TXDateTimeDelegate.h"
#include "TXResources.h"

#include <QDateTime>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>

namespace {

constexpr int kViewHeight = 220;
constexpr int kRowHeight = 36;
constexpr int kDateWidth = 220;
constexpr int kDecimals = 2;
constexpr int kMiddleLightness = 128;
constexpr int kShadePercent = 250;
/// What is hardly seen, and what is seen at once.
constexpr double kGoodDifference = 1;
constexpr double kFairDifference = 2;

enum Column {
    PatchColumn,
    DifferenceColumn,
    ResultColumn,
    TimeColumn,
    ColumnCount,
};

QPixmap bulletFor(double difference)
{
    if (difference <= kGoodDifference) {
        return TXDisplayFixBulletStaticImage();
    }
    return difference <= kFairDifference ? TXDisplayWarningBulletStaticImage()
                                         : TXDisplayErrorBulletStaticImage();
}

/// The delegate draws as many points as the picture has pixels, so on a fine screen the stock
/// picture would not fit its row.
QPixmap pointForPixel(const QPixmap &picture)
{
    QPixmap plain = picture.scaled(picture.deviceIndependentSize().toSize(), Qt::KeepAspectRatio,
                                   Qt::SmoothTransformation);
    plain.setDevicePixelRatio(1);
    return plain;
}

} // namespace

PatchRunsPanel::PatchRunsPanel(QWidget *parent)
    : GalleryPanel(parent)
    , model(new QStandardItemModel(kChartPatches, ColumnCount, this))
    , view(new QTableView(this))
    , compareButton(new QPushButton(this))
    , hint(new QLabel(this))
{
    setUpView();
    setUpLayout();
    chooseSelection();
    for (int row = 0; row < kChartPatches; ++row) {
        compare(row);
    }
    retranslate();
    view->setCurrentIndex(model->index(0, 0));
    connect(compareButton, SIGNAL(clicked()), this, SLOT(compareAgain()));
}

void PatchRunsPanel::changeEvent(QEvent *event)
{
    GalleryPanel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        chooseSelection();
    }
}

/// TXDateTimeDelegate writes white on what is selected. Where the palette has dark text there, the
/// selection of this table is a dark shade of its colour, with white text in all columns.
void PatchRunsPanel::chooseSelection()
{
    QPalette own;
    const QColor text = palette().color(QPalette::Active, QPalette::HighlightedText);
    if (text.lightness() < kMiddleLightness) {
        own.setColor(QPalette::Highlight,
                     palette().color(QPalette::Active, QPalette::Highlight).darker(kShadePercent));
        own.setColor(QPalette::HighlightedText, Qt::white);
    }
    view->setPalette(own);
}

void PatchRunsPanel::retranslate()
{
    setTitle(tr("Table with pictures and times"));
    view->setAccessibleName(tr("Comparisons"));
    setButtonText(compareButton, tr("&Compare Again"));
    hint->setText(tr("Compares the chosen rows. Make the last column narrow: first the time goes, "
                     "then the end of the date."));
    model->setHorizontalHeaderLabels(
        {tr("Patch"), QStringLiteral("ΔE00"), tr("Result"), tr("Compared")});
    for (int row = 0; row < kChartPatches; ++row) {
        const ChartPatch &patch = chartPatches().at(size_t(row));
        const double difference = ColourDifference::ciede2000(patch.older, patch.newer);
        model->setData(model->index(row, PatchColumn), patch.translatedName());
        model->setData(model->index(row, DifferenceColumn),
                       locale().toString(difference, 'f', kDecimals));
        const QString words = difference <= kGoodDifference ? tr("Good")
            : difference <= kFairDifference                 ? tr("Fair")
                                                            : tr("Poor");
        model->setData(model->index(row, ResultColumn), words, Qt::AccessibleTextRole);
        model->setData(model->index(row, ResultColumn), words, Qt::ToolTipRole);
    }
}

void PatchRunsPanel::compareAgain()
{
    const QModelIndexList rows = view->selectionModel()->selectedRows();
    for (const QModelIndex &index : rows) {
        compare(index.row());
    }
}

void PatchRunsPanel::compare(int row)
{
    const ChartPatch &patch = chartPatches().at(size_t(row));
    const double difference = ColourDifference::ciede2000(patch.older, patch.newer);
    model->setData(model->index(row, ResultColumn), pointForPixel(bulletFor(difference)),
                   Qt::DecorationRole);
    model->setData(model->index(row, TimeColumn), QDateTime::currentDateTime());
}

void PatchRunsPanel::setUpView()
{
    view->setModel(model);
    view->setItemDelegateForColumn(ResultColumn, new TXCenteredPixmapDelegate(view));
    view->setItemDelegateForColumn(TimeColumn, new TXDateTimeDelegate(view));
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setTabKeyNavigation(false);
    view->setMinimumHeight(kViewHeight);
    view->verticalHeader()->hide();
    view->verticalHeader()->setDefaultSectionSize(kRowHeight);
    view->horizontalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setSectionResizeMode(PatchColumn, QHeaderView::Stretch);
    view->horizontalHeader()->resizeSection(TimeColumn, kDateWidth);
    for (int row = 0; row < kChartPatches; ++row) {
        auto *item = new QStandardItem;
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        model->setItem(row, DifferenceColumn, item);
    }
}

void PatchRunsPanel::setUpLayout()
{
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setWordWrap(true);
    auto *buttonRow = new QHBoxLayout;
    buttonRow->addWidget(compareButton);
    buttonRow->addWidget(hint, 1);
    auto *column = new QVBoxLayout(this);
    setGaps(column);
    column->addWidget(view);
    column->addLayout(buttonRow);
}
