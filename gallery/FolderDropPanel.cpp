#include "FolderDropPanel.h"

#include "DropRule.h"
#include "FolderMoves.h"
#include "ShortText.h"
#include "WheelGuard.h"

#include "FolderModel.h"
#include "TreeViewDragAndDrop.h"

#include <QComboBox>
#include <QGridLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSortFilterProxyModel>

namespace {

constexpr int kViewHeight = 220;
constexpr int kRules = 4;
/// Behind three columns of buttons and one that is free.
constexpr int kRuleColumn = 4;
constexpr int kButtonGap = 6;

} // namespace

FolderDropPanel::FolderDropPanel(QWidget *parent)
    : GalleryPanel(parent)
    , folders(new FolderModel(this))
    , proxy(new QSortFilterProxyModel(this))
    , orderedLabel(new QLabel(this))
    , ordered(new TreeViewDragAndDrop(this))
    , sortedLabel(new QLabel(this))
    , sorted(new TreeViewDragAndDrop(this))
    , ruleLabel(new QLabel(this))
    , ruleBox(new QComboBox(this))
    , addButton(new QPushButton(this))
    , removeButton(new QPushButton(this))
    , upButton(new QPushButton(this))
    , downButton(new QPushButton(this))
    , inButton(new QPushButton(this))
    , outButton(new QPushButton(this))
    , outcome(new QLabel(this))
{
    fillFolders();
    proxy->setSourceModel(folders);
    proxy->setSortCaseSensitivity(Qt::CaseInsensitive);
    proxy->setSortLocaleAware(true);
    proxy->sort(0);
    ordered->setModel(folders);
    sorted->setModel(proxy);
    setUpView(ordered, orderedLabel);
    setUpView(sorted, sortedLabel);
    ruleLabel->setBuddy(ruleBox);
    WheelGuard::protect(ruleBox);
    for (int rule = 0; rule < kRules; ++rule) {
        ruleBox->addItem(QString());
    }
    outcome->setTextFormat(Qt::PlainText);
    ordered->setObjectName(QStringLiteral("ordered"));
    sorted->setObjectName(QStringLiteral("sorted"));
    setUpLayout();
    retranslate();
    connectParts();
    ordered->setCurrentIndex(folders->index(0, 0));
}

void FolderDropPanel::connectParts()
{
    keepInStep(ordered, sorted);
    keepInStep(sorted, ordered);
    connect(ordered->selectionModel(), SIGNAL(currentChanged(QModelIndex, QModelIndex)), this,
            SLOT(chooseInSorted(QModelIndex)));
    connect(sorted->selectionModel(), SIGNAL(currentChanged(QModelIndex, QModelIndex)), this,
            SLOT(chooseInOrdered(QModelIndex)));
    connect(ruleBox, SIGNAL(currentIndexChanged(int)), this, SLOT(setRule(int)));
    connect(addButton, SIGNAL(clicked()), this, SLOT(addFolder()));
    connect(removeButton, SIGNAL(clicked()), this, SLOT(removeFolder()));
    for (QPushButton *button : {upButton, downButton, inButton, outButton}) {
        connect(button, SIGNAL(clicked()), this, SLOT(moveFolder()));
    }
}

void FolderDropPanel::retranslate()
{
    setTitle(tr("Folders"));
    orderedLabel->setText(tr("In your own &order:"));
    sortedLabel->setText(tr("In alphab&etical order:"));
    ordered->setAccessibleName(tr("Folders in your own order"));
    sorted->setAccessibleName(tr("Folders in alphabetical order"));
    ruleLabel->setText(tr("&May be dropped:"));
    ruleBox->setItemText(DropRule::Everything, tr("Onto folders and between them"));
    ruleBox->setItemText(DropRule::OntoFoldersOnly, tr("Onto folders only"));
    ruleBox->setItemText(DropRule::BetweenFoldersOnly, tr("Between folders only"));
    ruleBox->setItemText(DropRule::Nothing, tr("Nothing"));
    setButtonText(addButton, tr("&New Folder"));
    setButtonText(removeButton, tr("&Remove"));
    setButtonText(upButton, tr("Move &Up"));
    setButtonText(downButton, tr("Move Do&wn"));
    setButtonText(inButton, tr("Move &In"));
    setButtonText(outButton, tr("Move Ou&t"));
    // What was told in the other language is of the past.
    outcome->clear();
}

/// As the last one in the chosen folder, or at the top level.
void FolderDropPanel::addFolder()
{
    const QModelIndex parent = ordered->currentIndex();
    QModelIndex added = folders->addFolder(tr("New folder"), parent);
    for (int number = 2; !added.isValid(); ++number) {
        added = folders->addFolder(tr("New folder %1").arg(locale().toString(number)), parent);
    }
    ordered->setCurrentIndex(added);
    ordered->setFocus();
    ordered->edit(added);
}

void FolderDropPanel::removeFolder()
{
    const QString name = ordered->currentIndex().data().toString();
    if (folders->remove(ordered->currentIndex())) {
        outcome->setText(tr("“%1” is removed").arg(shortText(name)));
    }
}

void FolderDropPanel::moveFolder()
{
    const QPersistentModelIndex folder = ordered->currentIndex();
    const QString name = shortText(folder.data().toString());
    const bool isMoved = sender() == upButton ? FolderMoves::moveUp(*folders, folder)
        : sender() == downButton              ? FolderMoves::moveDown(*folders, folder)
        : sender() == inButton                ? FolderMoves::moveIn(*folders, folder)
                                              : FolderMoves::moveOut(*folders, folder);
    outcome->setText(isMoved ? tr("“%1” is moved").arg(name)
                             : tr("“%1” cannot move there").arg(name));
    ordered->scrollTo(folder);
    sorted->scrollTo(sorted->toProxyIndex(folder));
}

void FolderDropPanel::setRule(int kind)
{
    const auto rule = QSharedPointer<DropRule>::create(DropRule::Kind(kind));
    ordered->setDropStrategy(rule);
    sorted->setDropStrategy(rule);
}

void FolderDropPanel::chooseInSorted(const QModelIndex &current)
{
    sorted->setCurrentIndex(sorted->toProxyIndex(current));
}

void FolderDropPanel::chooseInOrdered(const QModelIndex &current)
{
    ordered->setCurrentIndex(sorted->fromProxyIndex(current));
}

void FolderDropPanel::fillFolders()
{
    const QModelIndex printing = folders->addFolder(tr("Printing"));
    const QModelIndex paper = folders->addFolder(tr("Papers"), printing);
    folders->addFolder(tr("Uncoated"), paper);
    folders->addFolder(tr("Coated, glossy"), paper);
    folders->addFolder(tr("Coated, matt"), paper);
    folders->addFolder(tr("Proofs"), printing);
    const QModelIndex screens = folders->addFolder(tr("Screens"));
    folders->addFolder(tr("Studio"), screens);
    folders->addFolder(tr("Laptops"), screens);
    const QModelIndex charts = folders->addFolder(tr("Charts"));
    folders->addFolder(tr("24 colours"), charts);
    folders->addFolder(tr("Grey steps"), charts);
}

void FolderDropPanel::setUpView(TreeViewDragAndDrop *view, QLabel *label)
{
    label->setBuddy(view);
    view->setHeaderHidden(true);
    view->setMinimumHeight(kViewHeight);
    view->setDragDropMode(QAbstractItemView::DragDrop);
    view->setDefaultDropAction(Qt::MoveAction);
}

/// The other view is asked to do what this one has done, in the way a folder model asks.
void FolderDropPanel::keepInStep(TreeViewDragAndDrop *view, TreeViewDragAndDrop *other)
{
    connect(view, SIGNAL(hasBeenCollapsed(QModelIndex)), other,
            SLOT(itemHasToBeCollapsed(QModelIndex)));
    connect(view, SIGNAL(hasBeenExpanded(QModelIndex)), other,
            SLOT(itemHasToBeExpanded(QModelIndex)));
}

void FolderDropPanel::setUpLayout()
{
    auto *views = new QGridLayout;
    views->addWidget(orderedLabel, 0, 0);
    views->addWidget(sortedLabel, 0, 1);
    views->addWidget(ordered, 1, 0);
    views->addWidget(sorted, 1, 1);

    auto *works = new QGridLayout;
    works->setSpacing(kButtonGap);
    works->addWidget(addButton, 0, 0);
    works->addWidget(upButton, 0, 1);
    works->addWidget(inButton, 0, 2);
    works->addWidget(removeButton, 1, 0);
    works->addWidget(downButton, 1, 1);
    works->addWidget(outButton, 1, 2);
    works->addWidget(ruleLabel, 0, kRuleColumn);
    works->addWidget(ruleBox, 1, kRuleColumn);
    works->setColumnMinimumWidth(kRuleColumn - 1, kButtonGap);
    works->setColumnStretch(kRuleColumn + 1, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(views, 1);
    rows->addLayout(works);
    rows->addWidget(outcome);
}
