#include "ChartTreePanel.h"

#include "ChartPatches.h"

#include "TreeViewGridDelegate.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLocale>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int kViewHeight = 260;
constexpr int kDecimals = 1;
constexpr int kColumns = 4;
constexpr int kNumberWidth = 60;
constexpr int kRowMargins = 8;

/// The cells of a row of the tree; all branches and patches are equally high.
QList<QStandardItem *> makeCells(int height)
{
    QList<QStandardItem *> cells;
    for (int column = 0; column < kColumns; ++column) {
        auto *cell = new QStandardItem;
        cell->setSizeHint({0, height});
        if (column > 0) {
            cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
        cells.append(cell);
    }
    return cells;
}

} // namespace

ChartTreePanel::ChartTreePanel(QWidget *parent)
    : GalleryPanel(parent)
    , model(new QStandardItemModel(this))
    , view(new QTreeView(this))
    , gridBox(new QCheckBox(this))
    , grid(new TreeViewGridDelegate(this))
    , plain(new QStyledItemDelegate(this))
{
    auto *column = new QVBoxLayout(this);
    setGaps(column);
    column->addWidget(view);
    column->addWidget(gridBox);
    model->setColumnCount(kColumns);
    fillModel();
    setUpView();
    retranslate();
    connect(gridBox, SIGNAL(toggled(bool)), this, SLOT(showGrid(bool)));
    gridBox->setChecked(true);
}

void ChartTreePanel::retranslate()
{
    setTitle(tr("Tree with a grid"));
    view->setAccessibleName(tr("Colour chart"));
    gridBox->setText(tr("&Grid lines"));
    model->setHorizontalHeaderLabels(
        {tr("Patch"), QStringLiteral("L*"), QStringLiteral("a*"), QStringLiteral("b*")});
    for (int row = 0; row < kChartRows; ++row) {
        showTexts(row);
    }
}

void ChartTreePanel::showGrid(bool isShown)
{
    view->setItemDelegate(isShown ? grid : plain);
}

void ChartTreePanel::fillModel()
{
    const int height = fontMetrics().height() + kRowMargins;
    for (int row = 0; row < kChartRows; ++row) {
        // The cells beside the name too, so that the grid has no holes.
        model->appendRow(makeCells(height));
        for (int i = 0; i < kChartColumns; ++i) {
            const ChartPatch &patch = chartPatches().at(size_t(row) * kChartColumns + size_t(i));
            const QList<QStandardItem *> cells = makeCells(height);
            cells.first()->setData(patch.newer.toScreen(), Qt::DecorationRole);
            model->item(row)->appendRow(cells);
        }
    }
}

void ChartTreePanel::showTexts(int row)
{
    QStandardItem *branch = model->item(row);
    branch->setText(chartRowName(row));
    for (int i = 0; i < kChartColumns; ++i) {
        const ChartPatch &patch = chartPatches().at(size_t(row) * kChartColumns + size_t(i));
        branch->child(i)->setText(patch.translatedName());
        const std::array<double, 3> numbers = {patch.newer.lightness, patch.newer.a, patch.newer.b};
        for (int column = 1; column < kColumns; ++column) {
            branch->child(i, column)->setText(
                locale().toString(numbers.at(size_t(column - 1)), 'f', kDecimals));
        }
    }
}

void ChartTreePanel::setUpView()
{
    view->setModel(model);
    view->setMinimumHeight(kViewHeight);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setAllColumnsShowFocus(true);
    view->header()->setStretchLastSection(false);
    view->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    for (int column = 1; column < kColumns; ++column) {
        view->header()->resizeSection(column, kNumberWidth);
    }
    view->expand(model->index(0, 0));
    view->setCurrentIndex(model->index(0, 0));
}
