// The controls of the bar one by one, and the menu of the button that adds items.

#include "ExtraItemProxyComboModel.h"
#include "OwnTitle.h"
#include "TXSelectionItemWidget.h"

#include "ui_TXSelectionItemWidget.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>

namespace {

constexpr char kEntryProperty[] = "id";

enum Entry { CreateNew = 1, Duplicate, Import };

void addEntry(QMenu *menu, Entry entry, const QString &text)
{
    auto *action = new QAction(text, menu);
    action->setProperty(kEntryProperty, int(entry));
    menu->addAction(action);
}

int possibleWidth(int width)
{
    return std::clamp(width, 0, QWIDGETSIZE_MAX);
}

} // namespace

QComboBox *TXSelectionItemWidget::itemComboBox()
{
    return ui->itemComboBox;
}

QPushButton *TXSelectionItemWidget::addNewItemButton()
{
    return ui->addItemButton;
}

QPushButton *TXSelectionItemWidget::duplicateItemButton()
{
    return ui->duplicateItemButton;
}

QPushButton *TXSelectionItemWidget::saveItemButton()
{
    return ui->saveItemButton;
}

QPushButton *TXSelectionItemWidget::editItemButton()
{
    return ui->editItemButton;
}

QPushButton *TXSelectionItemWidget::importItemButton()
{
    return ui->importItemButton;
}

QPushButton *TXSelectionItemWidget::exportItemButton()
{
    return ui->exportItemButton;
}

QPushButton *TXSelectionItemWidget::removeItemButton()
{
    return ui->removeItemButton;
}

void TXSelectionItemWidget::setLabelName(const QString &name)
{
    ui->itemLabel->setText(name);
    nameComboBox();
}

QString TXSelectionItemWidget::labelName() const
{
    return ui->itemLabel->text();
}

QFont TXSelectionItemWidget::labelFont() const
{
    return ui->itemLabel->font();
}

int TXSelectionItemWidget::labelMinimumWidth() const
{
    return ui->itemLabel->minimumWidth();
}

void TXSelectionItemWidget::setLabelMinimumWidth(int width)
{
    ui->itemLabel->setMinimumWidth(possibleWidth(width));
}

bool TXSelectionItemWidget::isItemLabelVisible() const
{
    return !ui->itemLabel->isHidden();
}

void TXSelectionItemWidget::setVisibleItemLabel(bool isVisible)
{
    ui->itemLabel->setVisible(isVisible);
}

// Without a label nothing would tell a screen reader what the box is for. A name that the host has
// given is left alone.
void TXSelectionItemWidget::nameComboBox()
{
    if (ui->itemComboBox->accessibleName() != comboBoxName) {
        return;
    }
    comboBoxName = labelName().isEmpty() ? itemBasedName : QString();
    ui->itemComboBox->setAccessibleName(comboBoxName);
}

void TXSelectionItemWidget::enableItemComboBox(bool isEnabled)
{
    ui->itemComboBox->setEnabled(isEnabled);
}

void TXSelectionItemWidget::enableRemoveItemButton(bool isEnabled)
{
    ui->removeItemButton->setEnabled(isEnabled);
}

void TXSelectionItemWidget::enableExportItemButton(bool isEnabled)
{
    ui->exportItemButton->setEnabled(isEnabled);
}

void TXSelectionItemWidget::enableDuplicateItemButton(bool isEnabled)
{
    ui->duplicateItemButton->setEnabled(isEnabled);
}

void TXSelectionItemWidget::enableEditionItemButton(bool isEnabled)
{
    ui->editItemButton->setEnabled(isEnabled);
}

void TXSelectionItemWidget::enableSaveItemButton(bool isEnabled)
{
    ui->saveItemButton->setEnabled(isEnabled);
}

bool TXSelectionItemWidget::isItemComboBoxEnabled() const
{
    return ui->itemComboBox->isEnabledTo(this);
}

bool TXSelectionItemWidget::isRemoveItemButtonEnabled() const
{
    return ui->removeItemButton->isEnabledTo(this);
}

bool TXSelectionItemWidget::isExportItemButtonEnabled() const
{
    return ui->exportItemButton->isEnabledTo(this);
}

bool TXSelectionItemWidget::isDuplicateItemButtonEnabled() const
{
    return ui->duplicateItemButton->isEnabledTo(this);
}

bool TXSelectionItemWidget::isEditionItemButtonEnabled() const
{
    return ui->editItemButton->isEnabledTo(this);
}

bool TXSelectionItemWidget::isSaveItemButtonEnabled() const
{
    return ui->saveItemButton->isEnabledTo(this);
}

void TXSelectionItemWidget::hideAddNewItemButton()
{
    ui->addItemButton->setVisible(false);
}

void TXSelectionItemWidget::hideRemoveButton()
{
    ui->removeItemButton->setVisible(false);
}

void TXSelectionItemWidget::hideExportButton()
{
    ui->exportItemButton->setVisible(false);
}

void TXSelectionItemWidget::hideDuplicateItemButton()
{
    ui->duplicateItemButton->setVisible(false);
}

void TXSelectionItemWidget::hideSaveItemButton()
{
    ui->saveItemButton->setVisible(false);
}

void TXSelectionItemWidget::hideEditionItemButton()
{
    ui->editItemButton->setVisible(false);
}

void TXSelectionItemWidget::hideImportItemButton()
{
    ui->importItemButton->setVisible(false);
}

bool TXSelectionItemWidget::isImportButtonVisible() const
{
    return !ui->importButton->isHidden();
}

void TXSelectionItemWidget::setVisibleImportButton(bool isVisible)
{
    ui->importButton->setVisible(isVisible);
}

void TXSelectionItemWidget::setImportToolButtonMenu(QMenu *menu)
{
    QToolButton *button = ui->importButton;
    disconnect(button, SIGNAL(clicked()), this, SIGNAL(importItemHasBeenRequest()));
    disconnect(button, SIGNAL(triggered(QAction *)), this,
               SIGNAL(importItemHasBeenRequest(QAction *)));
    // The menu that stays must not be deleted.
    if (button->menu() && button->menu() != menu) {
        button->menu()->deleteLater();
    }
    button->setMenu(menu);
    if (menu) {
        connect(button, SIGNAL(triggered(QAction *)), this,
                SIGNAL(importItemHasBeenRequest(QAction *)));
    } else {
        connect(button, SIGNAL(clicked()), this, SIGNAL(importItemHasBeenRequest()));
    }
}

QMenu *TXSelectionItemWidget::fillDefaultAddItemMenu()
{
    auto *menu = new QMenu(this);
    if (createNewMenuEnabled) {
        addEntry(menu, CreateNew, tr("Create New"));
    }
    if (duplicateMenuEnabled) {
        addEntry(menu, Duplicate, tr("Duplicate"));
    }
    if (importMenuEnabled) {
        addEntry(menu, Import, importName);
    }
    return menu;
}

void TXSelectionItemWidget::installDefaultMenu()
{
    setImportToolButtonMenu(fillDefaultAddItemMenu());
}

void TXSelectionItemWidget::addNewItemAction(QAction *action)
{
    // The menu is at work until the event loop is back where it is now. The bar is the first to
    // hear of the action, so the slots of the host come within that time.
    if (action && !menuCall) {
        menuCall = new QObject(this);
        menuCall->deleteLater();
    }
    const int entry = action ? action->property(kEntryProperty).toInt() : 0;
    if (entry == CreateNew) {
        emit addNewItemHasBeenRequest();
    } else if (entry == Duplicate) {
        emit duplicateItemHasBeenRequest();
    } else if (entry == Import) {
        emit importItemHasBeenRequest();
    }
}

bool TXSelectionItemWidget::isCreateNewItemMenuEnabled() const
{
    return createNewMenuEnabled;
}

void TXSelectionItemWidget::enableCreateNewItemMenu(bool isEnabled)
{
    createNewMenuEnabled = isEnabled;
    installDefaultMenu();
}

bool TXSelectionItemWidget::isDuplicateItemMenuEnabled() const
{
    return duplicateMenuEnabled;
}

void TXSelectionItemWidget::enableDuplicateItemMenu(bool isEnabled)
{
    duplicateMenuEnabled = isEnabled;
    installDefaultMenu();
}

bool TXSelectionItemWidget::isImportItemMenuEnabled() const
{
    return importMenuEnabled;
}

void TXSelectionItemWidget::enableImportItemMenu(bool isEnabled)
{
    importMenuEnabled = isEnabled;
    installDefaultMenu();
}

void TXSelectionItemWidget::setImportName(const QString &name)
{
    importName = name;
    installDefaultMenu();
}

QString TXSelectionItemWidget::exportButtonToolTip() const
{
    return ui->exportItemButton->toolTip();
}

void TXSelectionItemWidget::setExportButtonToolTip(const QString &toolTip)
{
    ui->exportItemButton->setToolTip(toolTip);
}

QComboBox::SizeAdjustPolicy TXSelectionItemWidget::itemComboBoxSizeAdjustPolicy() const
{
    return ui->itemComboBox->sizeAdjustPolicy();
}

void TXSelectionItemWidget::setItemComboBoxSizeAdjustPolicy(QComboBox::SizeAdjustPolicy policy)
{
    ui->itemComboBox->setSizeAdjustPolicy(policy);
}

int TXSelectionItemWidget::itemComboBoxMaximumWidth() const
{
    return ui->itemComboBox->maximumWidth();
}

void TXSelectionItemWidget::setItemComboBoxMaximumWidth(int width)
{
    ui->itemComboBox->setMaximumWidth(possibleWidth(width));
}

bool TXSelectionItemWidget::isComboboxNameEditionAllowed() const
{
    return comboNameEditionAllowed;
}

void TXSelectionItemWidget::allowComboboxNameEdition(bool isAllowed)
{
    comboNameEditionAllowed = isAllowed;
}

void TXSelectionItemWidget::retranslate()
{
    // A host's own tooltip says something else than the button's name.
    const QString tip = ui->exportItemButton->toolTip();
    const bool isHostsTip = tip != ui->exportItemButton->accessibleName();
    OwnTitle::retranslate(*ui, *this);
    if (isHostsTip) {
        ui->exportItemButton->setToolTip(tip);
    }
    if (importName == loadName) {
        importName = tr("Load");
    }
    loadName = tr("Load");
    extraItemModel->setLabels({loadName});
    if (ui->itemComboBox->lineEdit()) {
        ui->itemComboBox->lineEdit()->setAccessibleName(tr("Name"));
    }
    nameMenuEntries();
}

/// The menu stays, which may be open; one of the host keeps its texts.
void TXSelectionItemWidget::nameMenuEntries()
{
    const QMenu *menu = ui->importButton->menu();
    const bool isOurs = menu && menu->parent() == this;
    const auto entries = isOurs ? menu->actions() : QList<QAction *>();
    for (QAction *action : entries) {
        const int entry = action->property(kEntryProperty).toInt();
        if (entry == CreateNew) {
            action->setText(tr("Create New"));
        } else if (entry == Duplicate) {
            action->setText(tr("Duplicate"));
        } else if (entry == Import) {
            action->setText(importName);
        }
    }
}
