#include "WidgetStatePanel.h"

#include "PatchWindow.h"
#include "TabOrder.h"
#include "WidgetStateTree.h"

#include "TXWidgetUtilities.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kLabelGap = 7;

} // namespace

WidgetStatePanel::WidgetStatePanel(QWidget *parent)
    : GalleryPanel(parent)
    , patchWindow(new PatchWindow(this))
    , text(new QLabel(this))
    , openButton(new QPushButton(this))
    , saveButton(new QPushButton(this))
    , disarrangeButton(new QPushButton(this))
    , restoreButton(new QPushButton(this))
    , treeLabel(new QLabel(this))
    , tree(new WidgetStateTree(this))
{
    text->setWordWrap(true);
    text->setForegroundRole(QPalette::PlaceholderText);
    treeLabel->setBuddy(tree);
    restoreButton->setEnabled(false);
    setUpLayout();
    setTabOrderOfParts({openButton, disarrangeButton, saveButton, restoreButton, tree});
    retranslate();
    connect(openButton, SIGNAL(clicked()), this, SLOT(openWindow()));
    connect(saveButton, SIGNAL(clicked()), this, SLOT(saveState()));
    connect(disarrangeButton, SIGNAL(clicked()), this, SLOT(disarrange()));
    connect(restoreButton, SIGNAL(clicked()), this, SLOT(restoreState()));
}

void WidgetStatePanel::openWindow()
{
    patchWindow->show();
    patchWindow->raise();
    patchWindow->activateWindow();
}

void WidgetStatePanel::saveState()
{
    state.clear();
    TXWidgetUtilities::saveWidgetStateInHash(patchWindow, state);
    tree->showState(state);
    restoreButton->setEnabled(true);
}

void WidgetStatePanel::disarrange()
{
    patchWindow->show();
    patchWindow->disarrange();
}

void WidgetStatePanel::restoreState()
{
    patchWindow->show();
    TXWidgetUtilities::restoreWidgetStateInHash(patchWindow, state);
}

void WidgetStatePanel::retranslate()
{
    setTitle(tr("Widget state"));
    text->setText(tr("One call keeps the place and size of a window, its splitters and the columns "
                     "of its views, in one nested dictionary for the program's settings. Another "
                     "gives them back."));
    setButtonText(openButton, tr("&Open Window"));
    setButtonText(saveButton, tr("&Keep State"));
    setButtonText(disarrangeButton, tr("&Disarrange"));
    setButtonText(restoreButton, tr("&Restore State"));
    treeLabel->setText(tr("K&ept state:"));
    tree->setAccessibleName(tr("Kept state"));
    tree->retranslate();
}

void WidgetStatePanel::setUpLayout()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(kGap);
    column->addWidget(text);
    auto *buttons = new QGridLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(openButton, 0, 0);
    buttons->addWidget(disarrangeButton, 0, 1);
    buttons->addWidget(saveButton, 1, 0);
    buttons->addWidget(restoreButton, 1, 1);
    column->addLayout(buttons);
    column->addStretch();

    auto *treeColumn = new QVBoxLayout;
    treeColumn->setSpacing(kLabelGap);
    treeColumn->addWidget(treeLabel);
    treeColumn->addWidget(tree, 1);

    auto *columns = new QHBoxLayout(this);
    setGaps(columns);
    columns->setSpacing(2 * kGap);
    columns->addLayout(column, 1);
    columns->addLayout(treeColumn, 1);
}
