#include "TXSelectionItemWidget.h"

#include "OwnTitle.h"
#include "ui_TXSelectionItemWidget.h"

#include "ComboBoxSearch.h"
#include "ExtraItemProxyComboModel.h"
#include "TXComboSeparatorDrawDelegate.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractProxyModel>
#include <QAction>
#include <QEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMetaObject>

namespace {

constexpr int kImportValue = -1;
constexpr int kTextValue = -2;
constexpr int kLineInTheMiddle = 0;
constexpr QSize kSeparatorSize(10, 10);

/// Whether the model is the other one or a proxy over it.
bool standsOn(const QAbstractItemModel *model, const QAbstractItemModel *other)
{
    while (model && model != other) {
        const auto *proxy = qobject_cast<const QAbstractProxyModel *>(model);
        model = proxy ? proxy->sourceModel() : nullptr;
    }
    return model != nullptr;
}

} // namespace

/// Counts the calls of the box that have not come back yet, for the destructor.
class TXSelectionItemWidget::ComboBoxCall
{
public:
    explicit ComboBoxCall(TXSelectionItemWidget *bar)
        : bar(bar)
    {
        ++bar->comboBoxCalls;
    }
    ~ComboBoxCall()
    {
        if (bar) {
            --bar->comboBoxCalls;
        }
    }
    Q_DISABLE_COPY_MOVE(ComboBoxCall)

private:
    QPointer<TXSelectionItemWidget> bar;
};

TXSelectionItemWidget::TXSelectionItemWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXSelectionItemWidget>())
    , itemBasedName(QStringLiteral("Item"))
    , extraItemModel(new ExtraItemProxyComboModel({tr("Load")}, {kImportValue}, itemBasedName, true,
                                                  kTextValue, this))
    , importName(tr("Load"))
    , loadName(importName)
{
    ui->setupUi(this);
    OwnTitle::remember(*this);
    ui->importButton->setVisible(!importViaComboBox);
    ui->itemComboBox->installEventFilter(this);
    installDefaultMenu();
    nameButtonsForStyleSheets();
    connectControls();
    nameComboBox();
    baseToolTip = ui->itemComboBox->toolTip();
    squareButtons();
}

// A slot of the host may destroy the bar within a call of the box or of the menu, which go on with
// their own work after that, as may the model of the entries. So they end later than the bar.
TXSelectionItemWidget::~TXSelectionItemWidget()
{
    if (comboBoxCalls > 0) {
        releaseComboBox();
    }
    QMenu *menu = ui->importButton->menu();
    if (menuCall && menu && menu->parent() == this) {
        menu->setParent(nullptr);
        menu->deleteLater();
    }
}

void TXSelectionItemWidget::releaseComboBox()
{
    QComboBox *box = ui->itemComboBox;
    box->removeEventFilter(this);
    box->disconnect(this);
    if (box->lineEdit()) {
        box->lineEdit()->disconnect(this);
    }
    box->setParent(nullptr);
    box->deleteLater();
    extraItemModel->setParent(nullptr);
    extraItemModel->deleteLater();
}

void TXSelectionItemWidget::nameButtonsForStyleSheets()
{
    ui->importItemButton->setObjectName(QStringLiteral("ImportButton"));
    ui->addItemButton->setObjectName(QStringLiteral("AddButton"));
    ui->duplicateItemButton->setObjectName(QStringLiteral("CopyButton"));
    ui->editItemButton->setObjectName(QStringLiteral("EditButton"));
    ui->removeItemButton->setObjectName(QStringLiteral("RemoveButton"));
    ui->exportItemButton->setObjectName(QStringLiteral("ExportButton"));
    ui->saveItemButton->setObjectName(QStringLiteral("SaveButton"));
}

void TXSelectionItemWidget::connectControls()
{
    connect(ui->addItemButton, SIGNAL(clicked()), this, SIGNAL(addNewItemHasBeenRequest()));
    connect(ui->removeItemButton, SIGNAL(clicked()), this, SIGNAL(removeItemHasBeenRequest()));
    connect(ui->duplicateItemButton, SIGNAL(clicked()), this,
            SIGNAL(duplicateItemHasBeenRequest()));
    connect(ui->exportItemButton, SIGNAL(clicked()), this, SIGNAL(exportItemHasBeenRequest()));
    connect(ui->importItemButton, SIGNAL(clicked()), this, SIGNAL(importItemHasBeenRequest()));
    connect(ui->saveItemButton, SIGNAL(clicked()), this, SIGNAL(saveItemHasBeenRequest()));
    connect(ui->editItemButton, SIGNAL(clicked()), this, SLOT(startItemEdition()));
    connect(this, SIGNAL(importItemHasBeenRequest(QAction *)), this,
            SLOT(addNewItemAction(QAction *)));
    activateChangedSignal(true);
}

void TXSelectionItemWidget::squareButtons()
{
    const int side = ui->itemComboBox->sizeHint().height();
    const auto buttons = findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QAbstractButton *button : buttons) {
        button->setFixedSize(side, side);
    }
}

void TXSelectionItemWidget::setModel(QAbstractItemModel *newModel, QAbstractProxyModel *newProxy,
                                     QAbstractItemDelegate *newDelegate)
{
    model = newModel;
    proxy = newProxy;
    delegate = newDelegate;
    const QPointer<TXSelectionItemWidget> alive(this);
    updateComboBoxModel();
    if (alive) {
        squareButtons();
    }
}

void TXSelectionItemWidget::setModelColumn(int column)
{
    ui->itemComboBox->setModelColumn(column);
}

bool TXSelectionItemWidget::isImportViaComboBox() const
{
    return importViaComboBox;
}

void TXSelectionItemWidget::setImportViaComboBox(bool isOffered)
{
    importViaComboBox = isOffered;
    updateComboBoxModel();
}

void TXSelectionItemWidget::setItemBasedName(const QString &name)
{
    if (name.isEmpty()) {
        return;
    }
    itemBasedName = name;
    nameComboBox();
    extraItemModel->setItemText(name);
}

// Each step may select another row, and a slot of the host may then destroy the bar or the model,
// or set another one, which has been connected when the step comes back.
void TXSelectionItemWidget::updateComboBoxModel()
{
    if (!model) {
        return;
    }
    const QPointer<TXSelectionItemWidget> alive(this);
    const int update = ++modelUpdates;
    const auto isOver = [&alive, update] {
        return !alive || alive->modelUpdates != update || !alive->model;
    };
    if (importViaComboBox) {
        extraItemModel->setSourceModel(model);
    }
    if (isOver()) {
        return;
    }
    QAbstractItemModel *shown = importViaComboBox ? extraItemModel : model.data();
    // A proxy that would become its own source is left out: its rows could be counted forever.
    if (proxy && !standsOn(shown, proxy)) {
        const QPointer<QAbstractProxyModel> above = proxy;
        above->setSourceModel(shown);
        if (isOver()) {
            return;
        }
        shown = above ? above.data() : shown;
    }
    ui->itemComboBox->setModel(shown);
    if (!isOver()) {
        setItemDelegate();
    }
}

void TXSelectionItemWidget::setItemDelegate()
{
    QAbstractItemDelegate *wanted = delegate;
    if (!wanted && importViaComboBox) {
        wanted = new TXComboSeparatorDrawDelegate(kLineInTheMiddle, kSeparatorSize, this);
    }
    if (wanted && wanted != ui->itemComboBox->itemDelegate()) {
        ui->itemComboBox->setItemDelegate(wanted);
    }
}

void TXSelectionItemWidget::selectItem(const QVariant &value)
{
    // The slots that hear of "nothing selected" may change what the reference refers to, the rows
    // and the bar.
    const QVariant wanted = value; // NOLINT(performance-unnecessary-copy-initialization)
    const QPointer<TXSelectionItemWidget> alive(this);
    ui->itemComboBox->setCurrentIndex(-1);
    const int row = alive ? ComboBoxSearch::rowOf(wanted, *ui->itemComboBox) : -1;
    if (row >= 0) {
        ui->itemComboBox->setCurrentIndex(row);
    }
}

bool TXSelectionItemWidget::existWithItemUserData(const QVariant &value) const
{
    return ComboBoxSearch::rowOf(value, *ui->itemComboBox) >= 0;
}

QVariant TXSelectionItemWidget::getSelectedItemUserData() const
{
    return ui->itemComboBox->currentData();
}

QString TXSelectionItemWidget::getSelectedItemName() const
{
    return ui->itemComboBox->currentText();
}

void TXSelectionItemWidget::setCurrentItemName(const QString &name) const
{
    if (ui->itemComboBox->lineEdit()) {
        ui->itemComboBox->lineEdit()->setText(name);
    }
}

void TXSelectionItemWidget::activateChangedSignal(bool isActive)
{
    if (isActive) {
        connect(ui->itemComboBox, SIGNAL(currentIndexChanged(int)), this,
                SLOT(currentItemChanged(int)), Qt::UniqueConnection);
    } else {
        disconnect(ui->itemComboBox, SIGNAL(currentIndexChanged(int)), this,
                   SLOT(currentItemChanged(int)));
    }
}

void TXSelectionItemWidget::setItemComboBoxEditable(bool isEditable)
{
    QComboBox *box = ui->itemComboBox;
    if (isEditable && !box->isEditable()) {
        box->setEditable(true);
        // Else the rest of another item's name would be put behind what is typed, and once a name
        // is that of another item, a click on "Save" would select that one first and save over it.
        box->setCompleter(nullptr);
        disconnect(box->lineEdit(), SIGNAL(editingFinished()), box, nullptr);
        box->lineEdit()->setAccessibleName(tr("Name"));
    }
    QLineEdit *edit = box->lineEdit();
    if (isEditable) {
        connect(edit, SIGNAL(textEdited(QString)), this, SLOT(itemNameHasBeenEdited(QString)),
                Qt::UniqueConnection);
        connect(edit, SIGNAL(returnPressed()), this, SLOT(enterPressed()), Qt::UniqueConnection);
    } else if (edit) {
        disconnect(edit, SIGNAL(textEdited(QString)), this, SLOT(itemNameHasBeenEdited(QString)));
        disconnect(edit, SIGNAL(returnPressed()), this, SLOT(enterPressed()));
        box->setEditable(false);
    }
}

void TXSelectionItemWidget::forceStartItemEdition()
{
    startItemEdition(false);
}

void TXSelectionItemWidget::startItemEdition(bool emitSignal)
{
    setItemComboBoxEditable(comboNameEditionAllowed);
    enableAllButSave(false);
    ui->saveItemButton->setEnabled(true);
    if (emitSignal) {
        emit editItemHasBeenRequest();
    }
}

void TXSelectionItemWidget::endItemEdition()
{
    setItemComboBoxEditable(false);
    enableAllButSave(true);
    ui->saveItemButton->setEnabled(false);
}

void TXSelectionItemWidget::enableAllButSave(bool isEnabled)
{
    ui->addItemButton->setEnabled(isEnabled);
    ui->importButton->setEnabled(isEnabled);
    ui->editItemButton->setEnabled(isEnabled);
    ui->removeItemButton->setEnabled(isEnabled);
    ui->duplicateItemButton->setEnabled(isEnabled);
    ui->importItemButton->setEnabled(isEnabled);
    ui->exportItemButton->setEnabled(isEnabled);
}

void TXSelectionItemWidget::currentItemChanged(int index)
{
    const ComboBoxCall call(this);
    if (index == -1) {
        itemName.clear();
        currentUserData.clear();
        emit itemSelectionChanged(QVariant());
        return;
    }
    const QVariant data = ui->itemComboBox->itemData(index);
    const QString name = ui->itemComboBox->itemText(index);
    if (name == itemName && data == currentUserData) {
        emit itemSelectionUpdated(data);
        return;
    }
    currentUserData = data;
    itemName = name;
    showToolTipOf(index);
    if (importViaComboBox && data.toInt() == kImportValue) {
        emit importItemHasBeenRequest();
        return;
    }
    emit itemSelectionChanged(data);
}

void TXSelectionItemWidget::showToolTipOf(int row)
{
    QComboBox *box = ui->itemComboBox;
    const QModelIndex item =
        box->model() ? box->model()->index(row, 0, box->rootModelIndex()) : QModelIndex();
    if (item.isValid()) {
        const QString toolTip = item.data(Qt::ToolTipRole).toString();
        box->setToolTip(toolTip.isEmpty() ? baseToolTip : toolTip);
    }
}

void TXSelectionItemWidget::enterPressed()
{
    setCurrentItemName(itemName);
}

void TXSelectionItemWidget::itemNameHasBeenEdited(const QString &text)
{
    const ComboBoxCall call(this);
    itemName = text;
    emit itemNameChanged(text);
}

bool TXSelectionItemWidget::eventFilter(QObject *object, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Wheel) {
        return true;
    }
    if ((type == QEvent::FontChange || type == QEvent::StyleChange) && object == ui->itemComboBox) {
        // The box has its new height only when it has got the event itself.
        QMetaObject::invokeMethod(
            this, [this] { squareButtons(); }, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(object, event);
}

void TXSelectionItemWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        squareButtons();
    } else if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}
