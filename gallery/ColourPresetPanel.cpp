#include "ColourPresetPanel.h"

#include "ColourPresetCollection.h"
#include "ColourPresetForm.h"
#include "ColourPresetModel.h"
#include "LeftToRight.h"
#include "PlainQuestion.h"
#include "ShortText.h"

#include "TXDisplayErrorMessageBox.h"
#include "TXError.h"
#include "TXFileDialog.h"
#include "TXSelectionItemWidget.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QStandardPaths>

#include <algorithm>

namespace {

/// The value of the row that stands in the box while there are no presets.
constexpr int kNothingYet = -2;
constexpr int kMostFilesListed = 5;
/// The gallery's own presets can be read whole in the smallest window; longer names in the list.
constexpr int kLeastBoxWidth = 170;

const QString kFolderKey = QStringLiteral("Gallery/ColourPresetFolder");

} // namespace

ColourPresetPanel::ColourPresetPanel(TXSelectionItemWidget *bar, ColourPresetCollection &collection,
                                     ColourPresetModel &model, QWidget *parent)
    : GalleryPanel(parent)
    , collection(collection)
    , model(model)
    , bar(bar)
    , form(new ColourPresetForm(this))
    , cancelButton(new QPushButton(this))
    , stateLabel(new QLabel(this))
    , problemLabel(new QLabel(this))
{
    auto *escape = new QShortcut(Qt::Key_Escape, this, SLOT(cancelEdit()));
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    stateLabel->setWordWrap(true);
    stateLabel->setForegroundRole(QPalette::PlaceholderText);
    problemLabel->setWordWrap(true);
    problemLabel->setTextFormat(Qt::PlainText);
    cancelButton->setEnabled(false);
    setUpLayout();
    retranslate();
    connectBar();
    // What is typed is a name, not another preset.
    bar->itemComboBox()->setInsertPolicy(QComboBox::NoInsert);
    bar->itemComboBox()->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    bar->itemComboBox()->setMinimumWidth(kLeastBoxWidth);
    bar->setModel(&model, nullptr, nullptr);
    showButtons();
}

void ColourPresetPanel::setLoadError(const TXError &error)
{
    loadProblem = error.getCompletLocalizedDescription();
    showProblems();
}

void ColourPresetPanel::setImportInBox(bool isInBox)
{
    if (editing) {
        return;
    }
    const QString id = shownId;
    bar->activateChangedSignal(false);
    bar->setImportViaComboBox(isInBox);
    bar->activateChangedSignal(true);
    bar->setVisibleImportButton(!isInBox);
    bar->addNewItemButton()->setVisible(isInBox);
    bar->duplicateItemButton()->setVisible(isInBox);
    bar->importItemButton()->setVisible(isInBox);
    select(id);
}

void ColourPresetPanel::choose(const QString &id)
{
    if (!editing && id != shownId && collection.find(id)) {
        select(id);
    }
}

void ColourPresetPanel::createPreset()
{
    if (editing) {
        return;
    }
    ColourPreset preset;
    preset.name = collection.freeName(tr("New preset"));
    const QString before = shownId;
    TXError error;
    const QString id = collection.add(preset, &error);
    if (id.isEmpty()) {
        showError(error);
        return;
    }
    idBeforeNew = before;
    select(id);
    bar->forceStartItemEdition();
    beginEdit(true);
}

void ColourPresetPanel::duplicatePreset()
{
    if (editing || shownId.isEmpty()) {
        return;
    }
    TXError error;
    const QString id = collection.duplicate(shownId, &error);
    if (id.isEmpty()) {
        showError(error);
    } else {
        select(id);
    }
}

void ColourPresetPanel::importPreset()
{
    const QPointer<ColourPresetPanel> self(this);
    const bool stays = editing && leaveEdit() == Leaving::Stays;
    if (self && stays) {
        returnToEdit();
    }
    if (!self || stays) {
        return;
    }
    const QString path = askForImport();
    if (!self) {
        return;
    }
    TXError error;
    const QString id = path.isEmpty() ? QString() : collection.importFile(path, &error);
    if (!id.isEmpty()) {
        select(id);
    } else if (bar->getSelectedItemUserData() != shownId) {
        // The box rests on its own entry for the import.
        select(shownId);
    }
    showError(error);
}

void ColourPresetPanel::cancelEdit()
{
    if (!editing) {
        return;
    }
    const QPointer<ColourPresetPanel> self(this);
    const QString next = isNew ? idBeforeNew : shownId;
    dropEdit();
    if (self) {
        select(next);
        bar->editItemButton()->setFocus(Qt::OtherFocusReason);
    }
}

void ColourPresetPanel::retranslate()
{
    setTitle(tr("Colour presets"));
    bar->setLabelName(tr("Preset:"));
    bar->setItemBasedName(tr("No preset"));
    bar->setImportName(tr("Import..."));
    form->retranslate();
    setButtonText(cancelButton, tr("Ca&ncel Edit"));
    model.retranslate();
    showTypedName();
    showState();
    showProblems();
}

void ColourPresetPanel::takeSelection(const QVariant &value)
{
    const QString id = value.toString();
    if (!editing && !selecting) {
        showSelected(id);
    } else if (!selecting && id != shownId) {
        leaveEditFor(id);
    }
}

void ColourPresetPanel::takeName(const QString &name)
{
    typedName = name;
}

void ColourPresetPanel::editPreset()
{
    if (collection.find(shownId)) {
        beginEdit(false);
    } else {
        bar->endItemEdition();
        showButtons();
    }
}

void ColourPresetPanel::savePreset()
{
    if (editing && store()) {
        // Reads the tool tip of the box anew.
        select(shownId);
        bar->editItemButton()->setFocus(Qt::OtherFocusReason);
    }
}

void ColourPresetPanel::exportPreset()
{
    const ColourPreset *preset = collection.find(shownId);
    if (!preset) {
        return;
    }
    const QPointer<ColourPresetPanel> self(this);
    const QString id = shownId;
    const QString path = askForExport(*preset);
    if (self && !path.isEmpty()) {
        TXError error;
        collection.exportFile(id, path, &error);
        showError(error);
    }
}

void ColourPresetPanel::removePreset()
{
    const ColourPreset *preset = collection.find(shownId);
    if (!preset) {
        return;
    }
    const QPointer<ColourPresetPanel> self(this);
    const QString id = shownId;
    const int answer = askPlainly(this, tr("Delete Preset"),
                                  tr("Delete the preset \"%1\" for good?").arg(preset->name),
                                  QMessageBox::Yes | QMessageBox::No);
    if (!self || answer != QMessageBox::Yes) {
        return;
    }
    const int row = collection.rowOf(id);
    TXError error;
    collection.remove(id, &error);
    // The same one again when it stays.
    const QList<ColourPreset> &left = collection.presets();
    const int next = std::min(row, int(left.size()) - 1);
    select(next < 0 ? QString() : left.at(next).id);
    showError(error);
}

void ColourPresetPanel::setUpLayout()
{
    auto *lastRow = new QHBoxLayout;
    lastRow->setSpacing(kGap);
    lastRow->addWidget(cancelButton);
    lastRow->addWidget(stateLabel, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(bar);
    rows->addWidget(form);
    rows->addLayout(lastRow);
    rows->addWidget(problemLabel);
    rows->addStretch();
}

void ColourPresetPanel::connectBar()
{
    connect(cancelButton, SIGNAL(clicked()), this, SLOT(cancelEdit()));
    connect(bar, SIGNAL(addNewItemHasBeenRequest()), this, SLOT(createPreset()));
    connect(bar, SIGNAL(removeItemHasBeenRequest()), this, SLOT(removePreset()));
    connect(bar, SIGNAL(duplicateItemHasBeenRequest()), this, SLOT(duplicatePreset()));
    connect(bar, SIGNAL(importItemHasBeenRequest()), this, SLOT(importPreset()));
    connect(bar, SIGNAL(exportItemHasBeenRequest()), this, SLOT(exportPreset()));
    connect(bar, SIGNAL(editItemHasBeenRequest()), this, SLOT(editPreset()));
    connect(bar, SIGNAL(saveItemHasBeenRequest()), this, SLOT(savePreset()));
    connect(bar, SIGNAL(itemNameChanged(QString)), this, SLOT(takeName(QString)));
    connect(bar, SIGNAL(itemSelectionChanged(QVariant)), this, SLOT(takeSelection(QVariant)));
    connect(bar, SIGNAL(itemSelectionUpdated(QVariant)), this, SLOT(takeSelection(QVariant)));
}

/// Selects the first preset when there is none of this id. The bar tells of nothing selected first,
/// which would disable its buttons and take the focus from them.
void ColourPresetPanel::select(const QString &id)
{
    const QList<ColourPreset> &presets = collection.presets();
    QVariant value = id;
    if (presets.isEmpty()) {
        value = kNothingYet;
    } else if (!collection.find(id)) {
        value = presets.constFirst().id;
    }
    selecting = true;
    bar->selectItem(value);
    selecting = false;
    showSelected(value.toString());
}

/// The user has chosen something else in the box, and then not left the edit.
void ColourPresetPanel::returnToEdit()
{
    bar->activateChangedSignal(false);
    bar->selectItem(shownId);
    bar->activateChangedSignal(true);
    showTypedName();
    if (bar->itemComboBox()->isEditable()) {
        bar->itemNameHasBeenEdited(typedName);
    }
}

/// The box has put the stored name over it.
void ColourPresetPanel::showTypedName()
{
    if (editing) {
        bar->setCurrentItemName(typedName);
    }
}

void ColourPresetPanel::showSelected(const QString &id)
{
    const ColourPreset *preset = collection.find(id);
    shownId = preset ? id : QString();
    form->showPreset(preset);
    showButtons();
    showState();
    emit shownPresetChanged(shownId);
}

void ColourPresetPanel::showButtons()
{
    const bool isOneShown = !shownId.isEmpty();
    bar->enableEditionItemButton(isOneShown);
    bar->enableRemoveItemButton(isOneShown);
    bar->enableDuplicateItemButton(isOneShown);
    bar->enableExportItemButton(isOneShown);
    bar->enableSaveItemButton(false);
}

void ColourPresetPanel::showState()
{
    if (editing) {
        stateLabel->setText(tr("Change the name in the box and the settings, then save."));
    } else if (shownId.isEmpty()) {
        stateLabel->setText(tr("There is no preset. Make a new one, or import one."));
    } else {
        stateLabel->setText(tr("The settings can be changed once the preset is edited."));
    }
}

void ColourPresetPanel::showProblems()
{
    QStringList lines;
    if (!loadProblem.isEmpty()) {
        lines.append(loadProblem);
    }
    const auto &files = collection.damagedFiles();
    if (!files.isEmpty()) {
        lines.append(tr("Files in \"%1\" that are no presets, and are left as they are: %2")
                         .arg(pathInText(collection.folder()), locale().toString(files.size())));
    }
    for (const auto &file : files.mid(0, kMostFilesListed)) {
        lines.append(QStringLiteral("%1: %2").arg(shortText(file.name), file.reason.toString()));
    }
    problemLabel->setText(lines.join(u'\n'));
    problemLabel->setVisible(!lines.isEmpty());
}

void ColourPresetPanel::beginEdit(bool isOfNewPreset)
{
    editing = true;
    isNew = isOfNewPreset;
    typedName = collection.find(shownId)->name;
    form->setEditable(true);
    cancelButton->setEnabled(true);
    showState();
    emit editingChanged(true);
    if (QLineEdit *name = bar->itemComboBox()->lineEdit()) {
        name->setFocus(Qt::OtherFocusReason);
        name->selectAll();
    } else {
        form->focusFirstField();
    }
}

void ColourPresetPanel::endEdit()
{
    editing = false;
    isNew = false;
    bar->endItemEdition();
    showButtons();
    form->setEditable(false);
    cancelButton->setEnabled(false);
    showState();
    emit editingChanged(false);
}

void ColourPresetPanel::dropEdit()
{
    const QString dropped = isNew ? shownId : QString();
    endEdit();
    TXError error;
    collection.remove(dropped, &error);
    showError(error);
}

bool ColourPresetPanel::hasChanges() const
{
    const ColourPreset *stored = collection.find(shownId);
    return isNew || !stored || !stored->hasSameSettings(editedPreset());
}

ColourPreset ColourPresetPanel::editedPreset() const
{
    ColourPreset preset = form->preset();
    if (typedName != preset.name) {
        preset.name = typedName.trimmed();
    }
    return preset;
}

bool ColourPresetPanel::store()
{
    TXError error;
    if (collection.replace(editedPreset(), &error)) {
        endEdit();
        return true;
    }
    showTypedName();
    showError(error);
    return false;
}

/// While the question is open the panel may be destroyed.
ColourPresetPanel::Leaving ColourPresetPanel::leaveEdit()
{
    if (!hasChanges()) {
        dropEdit();
        return Leaving::Dropped;
    }
    const QPointer<ColourPresetPanel> self(this);
    const int answer =
        askPlainly(this, tr("Save Preset"),
                   tr("The preset \"%1\" has been edited. Save it?").arg(editedPreset().name),
                   QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (!self) {
        return Leaving::Stays;
    }
    if (answer == QMessageBox::Save) {
        return store() ? Leaving::Saved : Leaving::Stays;
    }
    if (answer == QMessageBox::Discard) {
        dropEdit();
        return Leaving::Dropped;
    }
    return Leaving::Stays;
}

void ColourPresetPanel::leaveEditFor(const QString &id)
{
    const QPointer<ColourPresetPanel> self(this);
    const Leaving leaving = leaveEdit();
    if (self && leaving == Leaving::Stays) {
        returnToEdit();
    } else if (self) {
        select(id);
    }
}

QString ColourPresetPanel::askForImport()
{
    return TXFileDialog::getOpenFileName(
        this, tr("Import Preset"),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
        tr("Colour presets (*.json)"), nullptr, {}, kFolderKey);
}

QString ColourPresetPanel::askForExport(const ColourPreset &preset)
{
    return TXFileDialog::getSaveFileName(
        this, tr("Export Preset"),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/'
            + preset.fileName(),
        tr("Colour presets (*.json)"), nullptr, {}, kFolderKey);
}

void ColourPresetPanel::showError(const TXError &error)
{
    TXDisplayErrorMessageBox(error, ErroMessageBoxCritical, this);
}
