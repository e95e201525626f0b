#include "PatchListPanel.h"

#include "ChartPatches.h"

#include "TXSeparatorListDelegate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QLocale>
#include <QPushButton>
#include <QStandardItemModel>

namespace {

constexpr int kSeparatorHeight = 11;
constexpr int kMiddle = 0;
constexpr int kNoRow = -1;
constexpr int kFirstLine = 2;

/// Rows that the delegate draws as a line, and that cannot be chosen.
QStandardItem *makeSeparator()
{
    auto *item = new QStandardItem;
    item->setData(QStringLiteral("separator"), Qt::AccessibleDescriptionRole);
    item->setFlags(Qt::NoItemFlags);
    return item;
}

} // namespace

PatchListPanel::PatchListPanel(QWidget *parent)
    : GalleryPanel(parent)
    , model(new QStandardItemModel(this))
    , view(new QListView(this))
    , delegate(new TXSeparatorListDelegate(kNoRow, kMiddle, {0, kSeparatorHeight}, this))
    , lineButton(new QPushButton(this))
    , result(new QLabel(this))
{
    delegate->addSeparatorAtRowIndex(kFirstLine);
    fillModel();
    setUpView();
    setUpLayout();
    retranslate();
    view->setCurrentIndex(model->index(0, 0));
    connect(lineButton, SIGNAL(clicked()), this, SLOT(toggleLine()));
}

void PatchListPanel::retranslate()
{
    setTitle(tr("List with separators"));
    view->setAccessibleName(tr("Patches"));
    setButtonText(lineButton, tr("Line &Below"));
    int row = 0;
    for (const ChartPatch &patch : chartPatches()) {
        if (model->item(row)->data(Qt::AccessibleDescriptionRole).isValid()) {
            ++row;
        }
        model->item(row)->setText(patch.translatedName());
        ++row;
    }
    showResult();
}

void PatchListPanel::toggleLine()
{
    lastRow = view->currentIndex().row();
    if (lastRow < 0) {
        return;
    }
    lastChange = Change::Removed;
    if (!delegate->removeSeparatorAtRowIndex(lastRow)) {
        delegate->addSeparatorAtRowIndex(lastRow);
        lastChange = Change::Added;
    }
    view->viewport()->update();
    showResult();
}

void PatchListPanel::showResult()
{
    const QString row = locale().toString(lastRow + 1);
    switch (lastChange) {
    case Change::None:
        result->setText(tr("Choose a row, and switch its line."));
        break;
    case Change::Added:
        result->setText(tr("Row %1: line drawn").arg(row));
        break;
    case Change::Removed:
        result->setText(tr("Row %1: line removed").arg(row));
        break;
    }
}

void PatchListPanel::fillModel()
{
    int count = 0;
    for (const ChartPatch &patch : chartPatches()) {
        if (count > 0 && count % kChartColumns == 0) {
            model->appendRow(makeSeparator());
        }
        auto *item = new QStandardItem;
        item->setData(patch.newer.toScreen(), Qt::DecorationRole);
        model->appendRow(item);
        ++count;
    }
}

void PatchListPanel::setUpView()
{
    view->setModel(model);
    view->setItemDelegate(delegate);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void PatchListPanel::setUpLayout()
{
    result->setForegroundRole(QPalette::PlaceholderText);
    // Else a long text would take the room of the tree beside this panel.
    result->setWordWrap(true);
    auto *buttonRow = new QHBoxLayout;
    buttonRow->addWidget(lineButton);
    buttonRow->addWidget(result, 1);
    auto *column = new QVBoxLayout(this);
    setGaps(column);
    column->addWidget(view, 1);
    column->addLayout(buttonRow);
}
