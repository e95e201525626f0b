#include "PatchWindow.h"

#include <QEvent>
#include <QHeaderView>
#include <QLocale>
#include <QSplitter>
#include <QTableWidget>
#include <QTreeWidget>

#include <array>
#include <cmath>

namespace {

constexpr QSize kFirstSize(720, 300);
constexpr QSize kOtherSize(560, 380);
constexpr int kNumberWidth = 62;
constexpr int kGroups = 2;
constexpr int kPatchColumns = 5;
constexpr int kInkColumns = 2;

struct Lab
{
    double lightness;
    double a;
    double b;
};

struct Patch
{
    const char *name;
    int group;
    Lab aim;
    Lab measured;
};

/// Solids on coated paper: the aims of the offset standard, and a sheet from a proofing press.
constexpr std::array kPatches = {
    Patch{QT_TRANSLATE_NOOP("PatchWindow", "Cyan"), 0, {55, -37, -50}, {55.8, -36.1, -49.2}},
    Patch{QT_TRANSLATE_NOOP("PatchWindow", "Magenta"), 0, {48, 74, -3}, {47.1, 75.3, -1.6}},
    Patch{QT_TRANSLATE_NOOP("PatchWindow", "Yellow"), 0, {89, -5, 93}, {88.4, -4.2, 95.9}},
    Patch{QT_TRANSLATE_NOOP("PatchWindow", "Black"), 0, {16, 0, 0}, {15.2, 0.4, 0.9}},
    Patch{QT_TRANSLATE_NOOP("PatchWindow", "Red"), 1, {47, 68, 48}, {46.6, 69.1, 46.2}},
    Patch{QT_TRANSLATE_NOOP("PatchWindow", "Green"), 1, {50, -68, 25}, {49.7, -65.8, 26.4}},
    Patch{QT_TRANSLATE_NOOP("PatchWindow", "Blue"), 1, {24, 22, -46}, {23.1, 20.7, -44.8}},
};

struct Ink
{
    const char *name;
    double density;
};

constexpr std::array kInks = {
    Ink{QT_TRANSLATE_NOOP("PatchWindow", "Cyan"), 1.42},
    Ink{QT_TRANSLATE_NOOP("PatchWindow", "Magenta"), 1.51},
    Ink{QT_TRANSLATE_NOOP("PatchWindow", "Yellow"), 1.06},
    Ink{QT_TRANSLATE_NOOP("PatchWindow", "Black"), 1.74},
};

/// The plain distance of the two colours.
double deltaE(const Lab &aim, const Lab &measured)
{
    return std::hypot(measured.lightness - aim.lightness, measured.a - aim.a, measured.b - aim.b);
}

void showPatch(const Patch &patch, QTreeWidgetItem &item)
{
    item.setText(0, PatchWindow::tr(patch.name));
    const std::array numbers = {patch.measured.lightness, patch.measured.a, patch.measured.b,
                                deltaE(patch.aim, patch.measured)};
    for (size_t i = 0; i < numbers.size(); ++i) {
        item.setText(int(i) + 1, QLocale().toString(numbers[i], 'f', 1));
    }
}

} // namespace

PatchWindow::PatchWindow(QWidget *parent)
    : QMainWindow(parent)
    , splitter(new QSplitter(this))
    , patches(new QTreeWidget(splitter))
    , inks(new QTableWidget(int(kInks.size()), kInkColumns, splitter))
{
    setObjectName(QStringLiteral("patchWindow"));
    splitter->setObjectName(QStringLiteral("patchSplitter"));
    patches->setObjectName(QStringLiteral("patchTree"));
    inks->setObjectName(QStringLiteral("inkTable"));
    fillPatches();
    fillInks();
    retranslate();
    splitter->setStretchFactor(0, 1);
    setCentralWidget(splitter);
    resize(kFirstSize);
    splitter->setSizes({kFirstSize.width() * 2 / 3, kFirstSize.width() / 3});
}

void PatchWindow::disarrange()
{
    resize(kOtherSize);
    splitter->setSizes({kOtherSize.width() / 4, kOtherSize.width() * 3 / 4});
    QHeaderView *header = patches->header();
    header->moveSection(header->visualIndex(header->count() - 1), 0);
    for (int column = 0; column < header->count(); ++column) {
        header->resizeSection(column, header->minimumSectionSize());
    }
}

void PatchWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void PatchWindow::fillPatches()
{
    patches->setColumnCount(kPatchColumns);
    for (int group = 0; group < kGroups; ++group) {
        new QTreeWidgetItem(patches);
    }
    for (const Patch &patch : kPatches) {
        auto *item = new QTreeWidgetItem(patches->topLevelItem(patch.group));
        for (int column = 1; column < kPatchColumns; ++column) {
            item->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
        }
    }
    patches->expandAll();
    patches->header()->setStretchLastSection(false);
    for (int column = 1; column < patches->columnCount(); ++column) {
        patches->header()->resizeSection(column, kNumberWidth);
        patches->headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
    patches->header()->resizeSection(0, 2 * kNumberWidth);
}

void PatchWindow::fillInks()
{
    inks->verticalHeader()->hide();
    inks->horizontalHeader()->setStretchLastSection(true);
    inks->setEditTriggers(QAbstractItemView::NoEditTriggers);
    inks->setTabKeyNavigation(false);
    for (int row = 0; row < inks->rowCount(); ++row) {
        inks->setItem(row, 0, new QTableWidgetItem);
        inks->setItem(row, 1, new QTableWidgetItem);
    }
}

void PatchWindow::retranslate()
{
    setWindowTitle(tr("Solid Colours"));
    patches->setAccessibleName(tr("Patches"));
    patches->setHeaderLabels({tr("Patch"), tr("L*"), tr("a*"), tr("b*"), tr("Delta E")});
    const QStringList groups = {tr("Primaries"), tr("Overprints")};
    std::array<int, kGroups> rowsOfGroup = {};
    for (const Patch &patch : kPatches) {
        QTreeWidgetItem *group = patches->topLevelItem(patch.group);
        group->setText(0, groups[patch.group]);
        showPatch(patch, *group->child(rowsOfGroup[size_t(patch.group)]++));
    }
    inks->setAccessibleName(tr("Inks"));
    inks->setHorizontalHeaderLabels({tr("Ink"), tr("Density")});
    for (int row = 0; row < inks->rowCount(); ++row) {
        const Ink &ink = kInks[size_t(row)];
        inks->item(row, 0)->setText(tr(ink.name));
        inks->item(row, 1)->setText(QLocale().toString(ink.density, 'f', 2));
    }
}
