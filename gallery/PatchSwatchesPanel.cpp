#include "PatchSwatchesPanel.h"

#include "ChartPatches.h"
#include "PatchDifferenceCell.h"

#include <QGridLayout>
#include <QLabel>

PatchSwatchesPanel::PatchSwatchesPanel(QWidget *parent)
    : GalleryPanel(parent)
    , note(new QLabel(this))
{
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    auto *chart = new QGridLayout;
    chart->setSpacing(kGap);
    const QList<PatchPair> pairs = ChartComparison::samePatches();
    for (const PatchPair &pair : pairs) {
        auto *cell = new PatchDifferenceCell(pair, this);
        const auto place = int(cells.size());
        chart->addWidget(cell, place / kChartColumns, place % kChartColumns);
        cells.append(cell);
    }
    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(chart);
    rows->addWidget(note);
    retranslate();
}

void PatchSwatchesPanel::showDifferences(DifferenceFormula formula, double limit)
{
    shownFormula = formula;
    shownLimit = limit;
    for (PatchDifferenceCell *cell : qAsConst(cells)) {
        cell->showDifference(formula, limit);
    }
}

void PatchSwatchesPanel::retranslate()
{
    setTitle(tr("Patches of the chart"));
    note->setText(tr("On the left of each patch charts made before November 2014, on the right "
                     "those made since. A patch whose difference reaches the limit is framed."));
    for (PatchDifferenceCell *cell : qAsConst(cells)) {
        cell->retranslate();
    }
    showDifferences(shownFormula, shownLimit);
}
