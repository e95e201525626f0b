#pragma once

#include "TXGUICommonExport.h"

#include <QComboBox>
#include <QFont>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <memory>

class ExtraItemProxyComboModel;
class QAbstractItemDelegate;
class QAbstractItemModel;
class QAbstractProxyModel;
class QAction;
class QMenu;
class QPushButton;

namespace Ui {
class TXSelectionItemWidget;
}

/// The bar with which a user picks, creates, duplicates, imports, exports, renames, saves and
/// removes the items of a collection: presets, profiles, sets of settings.
///
/// The bar owns no items. The host gives it a model, whose rows it shows in a combo box, each item
/// known by its value under Qt::UserRole, and reacts to the requests that the bar emits. An item is
/// edited in between startItemEdition() and endItemEdition(): all buttons but "Save" are disabled
/// then, and its name can be typed over.
///
/// Below the items the box shows the entry "Load", which requests an import when it is chosen; see
/// setImportViaComboBox(). Its value is the number -1, so an item with that value, or with one that
/// converts to it, requests an import as well.
///
/// The signs on the buttons come from the font "la-solid-900"; where it is not installed, tooltips
/// and accessible names tell what they do.
///
/// Its own texts follow the language; those that a host has set are the host's to translate. The
/// mouse wheel never changes the selection. Return, in the box and on the buttons, goes on to the
/// parent, so in a dialog it presses the default button, and none of the bar.
///
/// A slot may destroy the bar, and set or change its model, in answer to each of its signals.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXSelectionItemWidget : public QWidget
{
    Q_OBJECT
    /// See labelName() and setLabelName().
    Q_PROPERTY(QString labelName READ labelName WRITE setLabelName)
    /// See isItemLabelVisible() and setVisibleItemLabel().
    Q_PROPERTY(bool itemLabelVisible READ isItemLabelVisible WRITE setVisibleItemLabel)
    /// See labelMinimumWidth() and setLabelMinimumWidth().
    Q_PROPERTY(int labelMinimumWidth READ labelMinimumWidth WRITE setLabelMinimumWidth)
    /// See setItemBasedName().
    Q_PROPERTY(QString itemBasedName MEMBER itemBasedName WRITE setItemBasedName)
    /// See isImportViaComboBox() and setImportViaComboBox().
    Q_PROPERTY(bool importViaComboBox READ isImportViaComboBox WRITE setImportViaComboBox)
    /// See isImportButtonVisible() and setVisibleImportButton().
    Q_PROPERTY(bool importButtonVisible READ isImportButtonVisible WRITE setVisibleImportButton)
    /// See isComboboxNameEditionAllowed() and allowComboboxNameEdition().
    Q_PROPERTY(bool comboboxNameEditionAllowed READ isComboboxNameEditionAllowed WRITE
                   allowComboboxNameEdition)
    /// See itemComboBoxSizeAdjustPolicy() and setItemComboBoxSizeAdjustPolicy().
    Q_PROPERTY(QComboBox::SizeAdjustPolicy itemComboBoxSizeAdjustPolicy READ
                   itemComboBoxSizeAdjustPolicy WRITE setItemComboBoxSizeAdjustPolicy)
    /// See itemComboBoxMaximumWidth() and setItemComboBoxMaximumWidth().
    Q_PROPERTY(int itemComboBoxMaximumWidth READ itemComboBoxMaximumWidth WRITE
                   setItemComboBoxMaximumWidth)
    /// See isItemComboBoxEnabled() and enableItemComboBox().
    Q_PROPERTY(bool itemComboBoxEnabled READ isItemComboBoxEnabled WRITE enableItemComboBox)
    /// See isRemoveItemButtonEnabled() and enableRemoveItemButton().
    Q_PROPERTY(
        bool removeItemButtonEnabled READ isRemoveItemButtonEnabled WRITE enableRemoveItemButton)
    /// See isExportItemButtonEnabled() and enableExportItemButton().
    Q_PROPERTY(
        bool exportItemButtonEnabled READ isExportItemButtonEnabled WRITE enableExportItemButton)
    /// See isDuplicateItemButtonEnabled() and enableDuplicateItemButton().
    Q_PROPERTY(bool duplicateItemButtonEnabled READ isDuplicateItemButtonEnabled WRITE
                   enableDuplicateItemButton)
    /// See isEditionItemButtonEnabled() and enableEditionItemButton().
    Q_PROPERTY(
        bool editionItemButtonEnabled READ isEditionItemButtonEnabled WRITE enableEditionItemButton)
    /// See isSaveItemButtonEnabled() and enableSaveItemButton().
    Q_PROPERTY(bool saveItemButtonEnabled READ isSaveItemButtonEnabled WRITE enableSaveItemButton)
    /// See isCreateNewItemMenuEnabled() and enableCreateNewItemMenu().
    Q_PROPERTY(
        bool createNewItemMenuEnabled READ isCreateNewItemMenuEnabled WRITE enableCreateNewItemMenu)
    /// See isDuplicateItemMenuEnabled() and enableDuplicateItemMenu().
    Q_PROPERTY(
        bool duplicateItemMenuEnabled READ isDuplicateItemMenuEnabled WRITE enableDuplicateItemMenu)
    /// See isImportItemMenuEnabled() and enableImportItemMenu().
    Q_PROPERTY(bool importItemMenuEnabled READ isImportItemMenuEnabled WRITE enableImportItemMenu)
    /// See setImportName(). A form sets its texts anew when the language changes: give the button
    /// a menu of the host's own after that.
    Q_PROPERTY(QString importName MEMBER importName WRITE setImportName)
    /// See exportButtonToolTip() and setExportButtonToolTip().
    Q_PROPERTY(QString exportButtonToolTip READ exportButtonToolTip WRITE setExportButtonToolTip)

public:
    /// The box is empty until setModel() has been called.
    explicit TXSelectionItemWidget(QWidget *parent = nullptr);
    ~TXSelectionItemWidget() override;

    /// Shows the rows of a model, through the proxy and drawn by the delegate, each unless it is
    /// null, and makes the buttons as high as the box again. The first row that is enabled is
    /// selected; where no item is, that is "Load", which requests an import. The proxy gets its
    /// source from the bar; one on which the model stands is left out. "Load" passes it too: a
    /// proxy that sorts should keep the rows without a source of their own at the end, or the box
    /// may come to rest on "Load" by itself. All three stay the caller's and may be destroyed at
    /// any time. A null model leaves what is shown as it is.
    void setModel(QAbstractItemModel *model, QAbstractProxyModel *proxy,
                  QAbstractItemDelegate *delegate);
    /// The column of the model that holds the names. 0 by default. With a column that the model
    /// does not have nothing is selected, and nothing can be.
    void setModelColumn(int column);
    /// Whether the box offers "Load".
    [[nodiscard]] bool isImportViaComboBox() const;
    /// Whether the box offers "Load" below the items. True by default. With false the host shows
    /// the button that opens a menu, by setVisibleImportButton(). Connects model and box anew.
    void setImportViaComboBox(bool isOffered);
    /// The text that stands in the box while the model is empty, already translated; "Item" by
    /// default. Screen readers also take it for the name of the box while the label is empty. An
    /// empty name is ignored.
    void setItemBasedName(const QString &name);
    /// Connects model, proxy, delegate and box anew. Does nothing without a model. Each call with
    /// "Load" and without a delegate makes a new delegate, which lives as long as the bar. A slot
    /// that sets another model on the way has the last word.
    void updateComboBoxModel();

    /// Selects the first item with this value, compared exactly, or none. Goes through "nothing
    /// selected" in any case: unless nothing was selected before, itemSelectionChanged() comes
    /// first with an invalid value; then, if there is such an item, with its value, also for the
    /// item that was selected. Separators are no items, so an invalid value finds only an item
    /// without a value. Costs a walk over the items.
    void selectItem(const QVariant &value);
    /// Whether there is an item with this value; a walk over the items.
    [[nodiscard]] bool existWithItemUserData(const QVariant &value) const;
    /// The value of the selected row, invalid when there is none.
    [[nodiscard]] QVariant getSelectedItemUserData() const;
    /// The text in the box, which while an item is edited may have been typed over.
    [[nodiscard]] QString getSelectedItemName() const;
    /// Writes into the box while its name can be edited, else does nothing. Emits nothing, and does
    /// not count as typed: enterPressed() writes what was typed, or the name of the item, over it.
    void setCurrentItemName(const QString &name) const;
    /// With false nothing is emitted for a change of the selection, so that a host can fill its
    /// model anew in silence; with true again. True by default.
    void activateChangedSignal(bool isActive);

    /// The controls of the bar, for what it has no operation for. Owned by the bar, never null.
    [[nodiscard]] QComboBox *itemComboBox();
    [[nodiscard]] QPushButton *addNewItemButton(); ///< requests a new item
    [[nodiscard]] QPushButton *duplicateItemButton(); ///< requests a copy
    [[nodiscard]] QPushButton *saveItemButton(); ///< requests saving
    [[nodiscard]] QPushButton *editItemButton(); ///< starts editing
    [[nodiscard]] QPushButton *importItemButton(); ///< requests an import
    [[nodiscard]] QPushButton *exportItemButton(); ///< requests an export
    [[nodiscard]] QPushButton *removeItemButton(); ///< requests removal

    /// The label before the box; empty by default. A letter behind "&" takes the focus to the box.
    void setLabelName(const QString &name);
    [[nodiscard]] QString labelName() const; ///< the label's text
    [[nodiscard]] QFont labelFont() const; ///< the label's font, for hosts that align several bars
    [[nodiscard]] int labelMinimumWidth() const; ///< in device-independent pixels, 0 by default
    void setLabelMinimumWidth(int width); ///< in device-independent pixels, below 0 counts as 0
    /// Whether the label is to be shown, also while the bar itself is hidden.
    [[nodiscard]] bool isItemLabelVisible() const;
    void setVisibleItemLabel(bool isVisible); ///< visible by default

    void enableItemComboBox(bool isEnabled); ///< enabled by default
    void enableRemoveItemButton(bool isEnabled); ///< enabled by default
    void enableExportItemButton(bool isEnabled); ///< enabled by default
    void enableDuplicateItemButton(bool isEnabled); ///< enabled by default
    void enableEditionItemButton(bool isEnabled); ///< enabled by default
    void enableSaveItemButton(bool isEnabled); ///< enabled by default, until endItemEdition()
    /// Whether the control is enabled as it is now, while an item is edited too; a bar that is
    /// disabled itself does not count.
    [[nodiscard]] bool isItemComboBoxEnabled() const;
    [[nodiscard]] bool isRemoveItemButtonEnabled() const; ///< like isItemComboBoxEnabled()
    [[nodiscard]] bool isExportItemButtonEnabled() const; ///< like isItemComboBoxEnabled()
    [[nodiscard]] bool isDuplicateItemButtonEnabled() const; ///< like isItemComboBoxEnabled()
    [[nodiscard]] bool isEditionItemButtonEnabled() const; ///< like isItemComboBoxEnabled()
    [[nodiscard]] bool isSaveItemButtonEnabled() const; ///< like isItemComboBoxEnabled()

    void hideAddNewItemButton(); ///< for good, but for what addNewItemButton() gives
    void hideRemoveButton(); ///< for good, but for what removeItemButton() gives
    void hideExportButton(); ///< for good, but for what exportItemButton() gives
    void hideDuplicateItemButton(); ///< for good, but for what duplicateItemButton() gives
    void hideSaveItemButton(); ///< for good, but for what saveItemButton() gives
    void hideEditionItemButton(); ///< for good, but for what editItemButton() gives
    void hideImportItemButton(); ///< for good, but for what importItemButton() gives
    /// Whether the button that opens the menu is to be shown, also while the bar itself is hidden.
    [[nodiscard]] bool isImportButtonVisible() const;
    /// Shows or hides the button that opens the menu of setImportToolButtonMenu(). Hidden by
    /// default.
    void setVisibleImportButton(bool isVisible);

    /// Replaces the menu of the button that adds items, and deletes the present one later, whoever
    /// its parent is, unless it is the same. The new one stays its parent's: the bar that goes
    /// deletes it only when it is a child of the bar. A chosen entry is told by
    /// importItemHasBeenRequest(QAction *). With null the button has no menu, and a click emits
    /// importItemHasBeenRequest().
    void setImportToolButtonMenu(QMenu *menu);
    /// A new menu, child of the bar, of the entries that are enabled: "Create New", "Duplicate" and
    /// the import, with the numbers 1 to 3 as their property "id". May be empty. It is not yet the
    /// button's; if it never becomes that, it lives as long as the bar.
    [[nodiscard]] QMenu *fillDefaultAddItemMenu();
    /// Whether the default menu has "Create New".
    [[nodiscard]] bool isCreateNewItemMenuEnabled() const;
    /// Whether the default menu has "Create New"; true by default. Installs a new default menu, in
    /// place of the host's own, if it had set one.
    void enableCreateNewItemMenu(bool isEnabled);
    /// Whether the default menu has "Duplicate".
    [[nodiscard]] bool isDuplicateItemMenuEnabled() const;
    /// Whether the default menu has "Duplicate"; else like enableCreateNewItemMenu().
    void enableDuplicateItemMenu(bool isEnabled);
    /// Whether the default menu has the import.
    [[nodiscard]] bool isImportItemMenuEnabled() const;
    /// Whether the default menu has the import; else like enableCreateNewItemMenu().
    void enableImportItemMenu(bool isEnabled);
    /// The text of the import in the default menu, already translated; "Load" by default. Else like
    /// enableCreateNewItemMenu().
    void setImportName(const QString &name);

    [[nodiscard]] QString exportButtonToolTip() const; ///< in the language of the moment
    void setExportButtonToolTip(const QString &toolTip); ///< "Export" by default
    /// How the width of the box follows its items.
    [[nodiscard]] QComboBox::SizeAdjustPolicy itemComboBoxSizeAdjustPolicy() const;
    /// AdjustToMinimumContentsLengthWithIcon by default.
    void setItemComboBoxSizeAdjustPolicy(QComboBox::SizeAdjustPolicy policy);
    /// In device-independent pixels; QWIDGETSIZE_MAX by default.
    [[nodiscard]] int itemComboBoxMaximumWidth() const;
    /// In device-independent pixels; below 0 counts as 0.
    void setItemComboBoxMaximumWidth(int width);
    /// Whether the next startItemEdition() lets the name be typed over.
    [[nodiscard]] bool isComboboxNameEditionAllowed() const;
    /// Whether the name can be typed over while an item is edited. True by default. Counts from the
    /// next startItemEdition() on.
    void allowComboboxNameEdition(bool isAllowed);
    /// Lets the user type over the name, or ends that, without changing the buttons. Names are
    /// typed without completion, unless the host gives the box a completer each time, and no row is
    /// added, unless the host gives it another insert policy. Other than in a plain QComboBox, a
    /// name that another item has selects nothing, so that the edited item stays the selected one.
    void setItemComboBoxEditable(bool isEditable);

    /// Swallows the wheel over the box.
    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /// The user wants a new item.
    void addNewItemHasBeenRequest();
    /// The user wants the selected item removed.
    void removeItemHasBeenRequest();
    /// The user wants a copy of the selected item.
    void duplicateItemHasBeenRequest();
    /// The user wants to import items: by the button, by the menu, or by "Load" in the box, which
    /// stays selected until the host selects something else.
    void importItemHasBeenRequest();
    /// An entry of the button's menu was chosen. Emitted first; then, for an entry of the default
    /// menu, the request that it stands for. The bar emits that one in answer to this signal, as
    /// the first to hear of it: so slots of the request are called before other slots of this one.
    void importItemHasBeenRequest(QAction *action);
    /// The user wants to export the selected item.
    void exportItemHasBeenRequest();
    /// Editing has begun. Not emitted by forceStartItemEdition().
    void editItemHasBeenRequest();
    /// The user wants the edited item saved. The bar goes on editing until endItemEdition().
    void saveItemHasBeenRequest();
    /// The user has typed over the name; once for each change.
    void itemNameChanged(const QString &name);
    /// Another item is selected, with its value, or none, with an invalid one. Not emitted for
    /// "Load".
    void itemSelectionChanged(const QVariant &value);
    /// The selected row has changed, but name and value are those of the row before.
    void itemSelectionUpdated(const QVariant &value);

public slots:
    /// Starts editing without editItemHasBeenRequest(), for a host that starts it by itself.
    void forceStartItemEdition();
    /// Ends editing: the name can no longer be typed over, all buttons are enabled, and "Save" is
    /// disabled.
    void endItemEdition();
    /// Takes a row of the box as selected, as if the box had told of it.
    void currentItemChanged(int index);
    /// Writes the name as it was typed back into the box.
    void enterPressed();
    /// Takes the text as typed over the name.
    void itemNameHasBeenEdited(const QString &text);
    /// Emits the request for which an entry of the default menu stands, by its property "id". Null
    /// and other numbers do nothing.
    void addNewItemAction(QAction *action);
    /// Starts editing; see the class.
    void startItemEdition(bool emitSignal = true);

protected:
    /// Makes the buttons as high as the box again when font or style have changed, and follows a
    /// change of the language.
    void changeEvent(QEvent *event) override;

private:
    class ComboBoxCall;

    void nameButtonsForStyleSheets();
    void connectControls();
    void nameComboBox();
    void squareButtons();
    void installDefaultMenu();
    void nameMenuEntries();
    void retranslate();
    void setItemDelegate();
    void showToolTipOf(int row);
    void enableAllButSave(bool isEnabled);
    void releaseComboBox();

    std::unique_ptr<Ui::TXSelectionItemWidget> ui;
    QPointer<QAbstractItemModel> model;
    QPointer<QAbstractProxyModel> proxy;
    QPointer<QAbstractItemDelegate> delegate;
    QString itemBasedName;
    QString comboBoxName;
    ExtraItemProxyComboModel *extraItemModel;
    bool importViaComboBox = true;
    QString itemName;
    QString baseToolTip;
    bool createNewMenuEnabled = true;
    bool duplicateMenuEnabled = true;
    bool importMenuEnabled = true;
    QString importName;
    // As the entry "Load" is called in the language of the moment.
    QString loadName;
    bool comboNameEditionAllowed = true;
    QVariant currentUserData;
    int modelUpdates = 0;
    int comboBoxCalls = 0;
    QPointer<QObject> menuCall;
};
