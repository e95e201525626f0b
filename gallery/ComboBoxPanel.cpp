#include "ComboBoxPanel.h"

#include "WheelGuard.h"

#include "TXComboBox.h"
#include "TXComboBoxEditable.h"
#include "TXComboSeparatorDrawDelegate.h"
#include "TXTreeComboBox.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeView>

namespace {

constexpr int kSeparatorHeight = 9;
constexpr int kMiddle = 0;
constexpr int kSmallestBoxWidth = 150;

} // namespace

ComboBoxPanel::ComboBoxPanel(QWidget *parent)
    : GalleryPanel(parent)
    , folders(new QFileSystemModel(this))
    , enabledHeading(new QLabel(this))
    , disabledHeading(new QLabel(this))
    , conditionLabel(new QLabel(this))
    , conditionBox(new TXComboBox(this))
    , conditionDisabled(new TXComboBox(this))
    , conditionText(new QLabel(this))
    , paperLabel(new QLabel(this))
    , paperBox(new TXComboBoxEditable(this))
    , paperDisabled(new TXComboBoxEditable(this))
    , renameButton(new QPushButton(this))
    , paperText(new QLabel(this))
    , folderLabel(new QLabel(this))
    , folderBox(new TXTreeComboBox(this))
    , folderDisabled(new TXTreeComboBox(this))
    , folderText(new QLabel(this))
{
    for (TXComboBoxEditable *box : {paperBox, paperDisabled}) {
        // Names of the printing conditions that ISO 12647-2 describes.
        box->addItems({QStringLiteral("PS1"), QStringLiteral("PS2"), QStringLiteral("PS5"),
                       QStringLiteral("PS8")});
        box->setInsertPolicy(QComboBox::NoInsert);
    }
    setUpFolders();
    setUpLayout();
    retranslate();
    connect(conditionBox, SIGNAL(currentIndexChanged(int)), this, SLOT(showTooltip()));
    connect(renameButton, SIGNAL(clicked()), this, SLOT(startRenaming()));
    connect(paperBox, SIGNAL(focusHasBeenLost()), this, SLOT(noteFocusLost()));
    connect(folderBox, SIGNAL(currentIndexChanged(int)), this, SLOT(showFolder()));
}

void ComboBoxPanel::retranslate()
{
    setTitle(tr("Combo boxes"));
    enabledHeading->setText(tr("Enabled"));
    disabledHeading->setText(tr("Disabled"));
    conditionLabel->setText(tr("&Measured under:"));
    paperLabel->setText(tr("Pa&per:"));
    folderLabel->setText(tr("&Folder:"));
    setButtonText(renameButton, tr("&Rename"));
    fillConditions(conditionBox);
    fillConditions(conditionDisabled);
    nameAll();
    showTooltip();
    showFocusLosses();
    showFolder();
}

void ComboBoxPanel::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && paperBox->isEditable()) {
        takeName();
        return;
    }
    GalleryPanel::keyPressEvent(event);
}

void ComboBoxPanel::startRenaming()
{
    paperBox->setEditable(true);
    // A new name may begin like another one, and must not be made that.
    paperBox->setCompleter(nullptr);
    paperBox->setFocus();
    paperBox->lineEdit()->selectAll();
}

void ComboBoxPanel::takeName()
{
    if (!paperBox->isEditable()) {
        return;
    }
    const QString name = paperBox->lineEdit()->text().trimmed();
    if (!name.isEmpty()) {
        paperBox->setItemText(paperBox->currentIndex(), name);
    }
    paperBox->setEditable(false);
}

void ComboBoxPanel::noteFocusLost()
{
    ++focusLosses;
    showFocusLosses();
    // The box's own list takes the focus too, while the name is still being typed.
    if (!paperBox->view()->isVisible()) {
        takeName();
    }
}

void ComboBoxPanel::showTooltip()
{
    conditionText->setText(conditionBox->toolTip());
}

void ComboBoxPanel::showFolder()
{
    // Not by the current item of the tree: keys and the wheel on the closed box leave that behind.
    const QString path = folderBox->currentData(QFileSystemModel::FilePathRole).toString();
    folderText->setText(QDir::toNativeSeparators(path));
}

/// The conditions M0 to M3 of ISO 13655, those with a filter apart from the others.
void ComboBoxPanel::fillConditions(TXComboBox *box) const
{
    const int row = box->currentIndex();
    const QSignalBlocker blocker(box);
    box->clear();
    const QStringList tooltips = {
        tr("Light of a tungsten lamp, the ultraviolet undefined"),
        tr("Daylight D50, the ultraviolet as in D50"),
        tr("Without ultraviolet"),
        tr("Without ultraviolet, with polarising filters"),
    };
    for (int i = 0; i < tooltips.size(); ++i) {
        box->addItem(QStringLiteral("M%1").arg(i));
        box->setItemData(i, tooltips[i], Qt::ToolTipRole);
    }
    box->insertSeparator(2);
    box->setCurrentIndex(qMax(row, 0));
    box->currentIndexHasBeenChanged(box->currentIndex());
}

void ComboBoxPanel::setUpFolders()
{
    folders->setOption(QFileSystemModel::DontWatchForChanges);
    folders->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    folders->setRootPath(QDir::rootPath());
    const QModelIndex own = folders->index(QCoreApplication::applicationDirPath());
    for (TXTreeComboBox *box : {folderBox, folderDisabled}) {
        box->setModel(folders);
        QTreeView *tree = box->treeView();
        tree->setHeaderHidden(true);
        for (int column = 1; column < folders->columnCount(); ++column) {
            tree->hideColumn(column);
        }
        box->setCurrentModelIndex(own);
    }
}

void ComboBoxPanel::setUpLayout()
{
    for (QLabel *label : {enabledHeading, disabledHeading, conditionText, paperText, folderText}) {
        label->setForegroundRole(QPalette::PlaceholderText);
    }
    for (QLabel *label : {conditionText, folderText}) {
        label->setWordWrap(true);
    }
    // The name of a folder may look like markup.
    folderText->setTextFormat(Qt::PlainText);
    for (TXComboBox *box : {conditionBox, conditionDisabled}) {
        box->setItemDelegate(new TXComboSeparatorDrawDelegate(kMiddle, {0, kSeparatorHeight}, box));
    }
    auto *grid = new QGridLayout(this);
    setGaps(grid);
    grid->addWidget(enabledHeading, 0, 1);
    grid->addWidget(disabledHeading, 0, 2);
    addRow(grid, conditionLabel, conditionBox, conditionDisabled);
    grid->addWidget(conditionText, grid->rowCount() - 1, 3);
    addRow(grid, paperLabel, paperBox, paperDisabled);
    auto *renaming = new QHBoxLayout;
    renaming->addWidget(renameButton);
    renaming->addWidget(paperText, 1);
    grid->addLayout(renaming, grid->rowCount() - 1, 3);
    addRow(grid, folderLabel, folderBox, folderDisabled);
    grid->addWidget(folderText, grid->rowCount() - 1, 3);
    grid->setColumnStretch(3, 1);
}

void ComboBoxPanel::addRow(QGridLayout *grid, QLabel *caption, QComboBox *box, QComboBox *disabled)
{
    const int row = grid->rowCount();
    caption->setBuddy(box);
    disabled->setEnabled(false);
    for (QComboBox *each : {box, disabled}) {
        each->setFixedWidth(kSmallestBoxWidth);
        WheelGuard::protect(each);
    }
    grid->addWidget(caption, row, 0);
    grid->addWidget(box, row, 1);
    grid->addWidget(disabled, row, 2);
}

void ComboBoxPanel::showFocusLosses()
{
    paperText->setText(tr("Focus lost: %1").arg(locale().toString(focusLosses)));
}

void ComboBoxPanel::nameAll()
{
    conditionBox->setAccessibleName(tr("Measured under"));
    conditionDisabled->setAccessibleName(tr("Measured under, disabled"));
    paperBox->setAccessibleName(tr("Paper"));
    paperDisabled->setAccessibleName(tr("Paper, disabled"));
    folderBox->setAccessibleName(tr("Folder"));
    folderDisabled->setAccessibleName(tr("Folder, disabled"));
}
