#include "AutoMountManagerMainWindow.h"

#include "AddressText.h"
#include "AutoMountNetworkDrive.h"
#include "AutoMountNetworkDriveEditor.h"
#include "AutoMountNetworkDriveModel.h"
#include "ElidingHeader.h"
#include "NetworkDriveIcon.h"
#include "PlainMessageBox.h"
#include "TXAutoMountManager.h"
#include "TXLogPrint.h"
#include "ui_AutoMountManagerMainWindow.h"

#include <QColor>
#include <QEvent>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPalette>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyleOptionViewItem>
#include <QStyledItemDelegate>

namespace {

constexpr int kActiveColumn = 1;
constexpr int kNarrowColumns[] = {0, 1, 2};
constexpr int kNarrowColumnWidth = 50;
constexpr int kWideColumns[] = {4, 5};
constexpr int kWideColumnWidth = 100;

/// TXLogPrint() then takes its own.
constexpr unsigned int kDefaultLevel = 0;

AutoMountNetworkDrive driveAt(const QModelIndex &index)
{
    return index.data(Qt::EditRole).value<AutoMountNetworkDrive>();
}

/// Invalid when nothing is selected.
QModelIndex firstSelected(const QItemSelectionModel &selection)
{
    return selection.selectedIndexes().value(0);
}

/// The drive of the first selected row, if any, to be found again after a dialog: in the meantime
/// the list can change through the model, and also behind its back, in the manager.
class SelectedDrive
{
public:
    explicit SelectedDrive(const QItemSelectionModel &selection)
        : place(firstSelected(selection))
        , value(driveAt(place))
    { }

    [[nodiscard]] bool isNone() const { return !place.isValid(); }
    [[nodiscard]] QModelIndex index() const { return place; }
    [[nodiscard]] const AutoMountNetworkDrive &drive() const { return value; }

    /// Whether the drive still stands in its row.
    [[nodiscard]] bool isStillThere() const
    {
        return place.data(Qt::EditRole).isValid() && driveAt(place) == value;
    }

private:
    QPersistentModelIndex place;
    AutoMountNetworkDrive value;
};

void logDriveHasChanged()
{
    TXLogPrint(QStringLiteral("The network drive has changed in the meantime."), kDefaultLevel);
}

void logSelectionHasChanged()
{
    TXLogPrint(QStringLiteral("The selection has changed in the meantime."), kDefaultLevel);
}

/// In the middle between both.
QColor mixed(const QColor &one, const QColor &other)
{
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

/// Draws mount points and addresses, which read from left to right in all languages, and check
/// boxes that are seen in dark colours too.
class DriveDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        return AddressText::drawn(QStyledItemDelegate::displayText(value, locale));
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const QColor text = option->palette.color(QPalette::Text);
        const QColor base = option->palette.color(QPalette::Base);
        // The edge of an empty box is drawn darker than the window, which in dark colours is as
        // good as nothing.
        if (text.lightness() > base.lightness()) {
            option->palette.setColor(QPalette::Window, mixed(text, base));
        }
    }
};

bool isPlainSpace(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Space && key.modifiers() == Qt::NoModifier;
}

void switchDrive(QAbstractItemModel &model, const QModelIndex &row)
{
    const QModelIndex active = row.siblingAtColumn(kActiveColumn);
    const bool isOn = active.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model.setData(active, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void append(QAbstractItemModel &model, AutoMountNetworkDrive drive)
{
    drive.setActivated(true);
    model.insertRows(model.rowCount(), 1);
    model.setData(model.index(model.rowCount() - 1, 0), QVariant::fromValue(drive), Qt::EditRole);
}

void replace(QAbstractItemModel &model, const SelectedDrive &selected, AutoMountNetworkDrive drive)
{
    AutoMountNetworkDrive before = selected.drive();
    if (drive != before) {
        before.disconnectExplicitlyNetworkDrive();
    }
    drive.setActivated(before.isActivated());
    model.setData(selected.index(), QVariant::fromValue(drive), Qt::EditRole);
    TXAutoMountManager::getInstance()->saveDriveList();
}

} // namespace

AutoMountManagerMainWindow::AutoMountManagerMainWindow(QWidget *parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui::AutoMountManagerMainWindow>())
{
    ui->setupUi(this);
    setWindowIcon(NetworkDriveIcon::load());
    setUpModel();
    if (TXAutoMountManager::getInstance()->isRunning()) {
        activate();
    } else {
        deactivate();
    }
    setUpColumns();
    connect(ui->treeView->selectionModel(),
            SIGNAL(selectionChanged(QItemSelection, QItemSelection)), this,
            SLOT(updateButtonState()));
    updateButtonState();
    connect(TXAutoMountManager::getInstance(), SIGNAL(started()), this, SLOT(activate()));
    connect(TXAutoMountManager::getInstance(), SIGNAL(stopped()), this, SLOT(deactivate()));
    connect(ui->buttonAddNetworkDrive, SIGNAL(clicked()), this, SLOT(addAutomountNetworkDrive()));
    connect(ui->buttonRemoveNetworkDrive, SIGNAL(clicked()), this,
            SLOT(removeAutomountNetworkDrive()));
    connect(ui->buttonEditNetworkDrive, SIGNAL(clicked()), this, SLOT(editAutomountNetworkDrive()));
}

AutoMountManagerMainWindow::~AutoMountManagerMainWindow() = default;

void AutoMountManagerMainWindow::messageNoMoreNetworkDriveLetterAvailable()
{
    TXLogPrint(QStringLiteral("There is no Network Drive letter available."), kDefaultLevel);
    PlainMessageBox::warning(this, tr("Warning"),
                             tr("There is no Network Drive letter available.\n"
                                "Please disconnect a network Network Drive and retry."));
}

void AutoMountManagerMainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
    }
    QMainWindow::changeEvent(event);
}

// With whole rows selected, the keyboard does not reach the column of the check box.
bool AutoMountManagerMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != ui->treeView || event->type() != QEvent::KeyPress) {
        return QMainWindow::eventFilter(watched, event);
    }
    const auto &key = *static_cast<const QKeyEvent *>(event);
    const QModelIndex current = ui->treeView->currentIndex();
    const bool isSwitch = isPlainSpace(key) && ui->treeView->selectionModel()->isSelected(current);
    // A key that is held down switches once.
    if (isSwitch && !key.isAutoRepeat()) {
        switchDrive(*ui->treeView->model(), current);
    }
    return isSwitch || QMainWindow::eventFilter(watched, event);
}

void AutoMountManagerMainWindow::activate()
{
    ui->checkBoxEnabled->setChecked(true);
    setControlsEnabled(true);
}

void AutoMountManagerMainWindow::deactivate()
{
    ui->checkBoxEnabled->setChecked(false);
    setControlsEnabled(false);
}

void AutoMountManagerMainWindow::addAutomountNetworkDrive()
{
    // Not on the stack, as the window deletes it when it goes first.
    const QPointer<AutoMountNetworkDriveEditor> editor =
        new AutoMountNetworkDriveEditor(AutoMountNetworkDrive(QHash<QString, QVariant>()), this);
    TXLogPrint(QStringLiteral("Add an automount Network drive"), kDefaultLevel);
    if (run(*editor, tr("Add Network Drive")) != QDialog::Rejected) {
        append(*ui->treeView->model(), editor->networkDrive());
    }
    delete editor;
}

void AutoMountManagerMainWindow::removeAutomountNetworkDrive()
{
    const SelectedDrive selected(*ui->treeView->selectionModel());
    if (!confirmsRemoval()) {
        return;
    }
    TXLogPrint(QStringLiteral("Remove an automount Network Drive"), kDefaultLevel);
    if (selected.isNone()) {
        return;
    }
    if (!selected.isStillThere()) {
        logDriveHasChanged();
        return;
    }
    // Nobody was asked about another one that may be selected by now.
    if (firstSelected(*ui->treeView->selectionModel()) != selected.index()) {
        logSelectionHasChanged();
        return;
    }
    AutoMountNetworkDrive drive = selected.drive();
    drive.disconnectExplicitlyNetworkDrive();
    ui->treeView->model()->removeRows(selected.index().row(), 1);
    TXAutoMountManager::getInstance()->saveDriveList();
}

void AutoMountManagerMainWindow::editAutomountNetworkDrive()
{
    TXLogPrint(QStringLiteral("Edit an automount network drive"), kDefaultLevel);
    const SelectedDrive selected(*ui->treeView->selectionModel());
    if (selected.isNone()) {
        return;
    }
    // Not on the stack, as the window deletes it when it goes first.
    const QPointer<AutoMountNetworkDriveEditor> editor =
        new AutoMountNetworkDriveEditor(selected.drive(), this);
    const int result = run(*editor, tr("Edit Network Drive Parameters"));
    if (result == QDialog::Accepted && selected.isStillThere()) {
        replace(*ui->treeView->model(), selected, editor->networkDrive());
    } else if (result == QDialog::Accepted) {
        logDriveHasChanged();
    }
    delete editor;
}

void AutoMountManagerMainWindow::updateButtonState()
{
    const bool isAnySelected = !ui->treeView->selectionModel()->selectedIndexes().isEmpty();
    ui->buttonRemoveNetworkDrive->setEnabled(isAnySelected);
    ui->buttonEditNetworkDrive->setEnabled(isAnySelected);
}

void AutoMountManagerMainWindow::on_checkBoxEnabled_clicked(bool checked)
{
    if (checked) {
        TXAutoMountManager::getInstance()->start();
    } else {
        TXAutoMountManager::getInstance()->stop();
    }
}

void AutoMountManagerMainWindow::onEdition([[maybe_unused]] const QModelIndex &topLeft,
                                           const QModelIndex &bottomRight,
                                           [[maybe_unused]] const QList<int> &roles)
{
    if (bottomRight.column() != 0) {
        TXAutoMountManager::getInstance()->saveDriveList();
    }
}

void AutoMountManagerMainWindow::setUpModel()
{
    auto *model = new AutoMountNetworkDriveModel(this);
    // A double click would open a line edit over a whole drive. The check box needs no trigger.
    ui->treeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ui->treeView->setItemDelegate(new DriveDelegate(ui->treeView));
    auto *header = new ElidingHeader(ui->treeView);
    header->setMinimumSectionSize(ui->treeView->header()->minimumSectionSize());
    ui->treeView->setHeader(header);
    ui->treeView->setModel(model);
    ui->treeView->installEventFilter(this);
    connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QList<int>)), this,
            SLOT(onEdition(QModelIndex, QModelIndex, QList<int>)));
}

void AutoMountManagerMainWindow::setUpColumns()
{
    for (const int column : kNarrowColumns) {
        ui->treeView->setColumnWidth(column, kNarrowColumnWidth);
    }
    for (const int column : kWideColumns) {
        ui->treeView->setColumnWidth(column, kWideColumnWidth);
    }
}

void AutoMountManagerMainWindow::setControlsEnabled(bool on)
{
    ui->treeView->setEnabled(on);
    ui->buttonAddNetworkDrive->setEnabled(on);
    ui->buttonEditNetworkDrive->setEnabled(on);
    ui->buttonRemoveNetworkDrive->setEnabled(on);
}

bool AutoMountManagerMainWindow::confirmsRemoval()
{
    // Not on the stack, as the window deletes it when it goes first.
    const QPointer<QMessageBox> box = new QMessageBox(
        QMessageBox::Warning, tr("Warning: Network Drive Delete?"),
        tr("Do you want to remove selected Network Drive?"), QMessageBox::Yes | QMessageBox::Cancel,
        this, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    // QMessageBox's own function of this name would make the box a sheet, without these flags.
    box->QWidget::setWindowModality(Qt::WindowModal);
    const int answer = box->exec();
    delete box;
    return answer == QMessageBox::Yes;
}

int AutoMountManagerMainWindow::run(AutoMountNetworkDriveEditor &editor, const QString &title)
{
    if (!editor.hasAvailableLetter()) {
        messageNoMoreNetworkDriveLetterAvailable();
        return QDialog::Rejected;
    }
    editor.setWindowTitle(title);
    return editor.exec();
}
