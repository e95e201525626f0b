#pragma once

#include "ColourPreset.h"
#include "GalleryPanel.h"

#include <QVariant>

class ColourPresetCollection;
class ColourPresetForm;
class ColourPresetModel;
class QLabel;
class QPushButton;
class TXError;
class TXSelectionItemWidget;

/// A selection bar over the user's colour presets, with everything that it requests done, and the
/// settings of the selected preset below.
///
/// A preset is edited from the button "Edit", or the making of a new one, until "Save" or "Cancel
/// Edit". Nothing half edited is dropped without a question: not by choosing another preset, not by
/// an import. What fails is told in a box, and the edit goes on.
class ColourPresetPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Takes the bar in. The collection, already loaded, and its model outlive the panel.
    ColourPresetPanel(TXSelectionItemWidget *bar, ColourPresetCollection &collection,
                      ColourPresetModel &model, QWidget *parent = nullptr);

    /// The preset whose settings are shown; empty without one.
    [[nodiscard]] QString shownPreset() const { return shownId; }

    [[nodiscard]] bool isEditing() const { return editing; }

    /// Tells the user below the form why the presets could not be loaded.
    void setLoadError(const TXError &error);

public slots:
    /// Offers the import in the box, or else in the menu of a button, which then takes the place of
    /// three others. Not while a preset is edited.
    void setImportInBox(bool isInBox);

    /// Selects the preset of this id, if there is one. Not while a preset is edited.
    void choose(const QString &id);

    void createPreset(); ///< makes a new preset and starts to edit it
    void duplicatePreset(); ///< makes a copy of the shown preset and selects it
    void importPreset(); ///< asks for a file, adds its preset and selects that
    void cancelEdit(); ///< drops what was edited, a new preset as a whole

signals:
    /// Another preset is shown, or with an empty id none.
    void shownPresetChanged(const QString &id);

    /// An edit has begun or ended.
    void editingChanged(bool isEditing);

protected:
    void retranslate() override;

private slots:
    void takeSelection(const QVariant &value);
    void takeName(const QString &name);
    void editPreset();
    void savePreset();
    void exportPreset();
    void removePreset();

private:
    /// What becomes of an edit that the user leaves.
    enum class Leaving { Saved, Dropped, Stays };

    void setUpLayout();
    void connectBar();
    void select(const QString &id);
    void returnToEdit();
    void showTypedName();
    void showSelected(const QString &id);
    void showButtons();
    void showState();
    void showProblems();
    void beginEdit(bool isOfNewPreset);
    void endEdit();
    void dropEdit();
    [[nodiscard]] bool hasChanges() const;
    [[nodiscard]] ColourPreset editedPreset() const;
    [[nodiscard]] bool store();
    [[nodiscard]] Leaving leaveEdit();
    void leaveEditFor(const QString &id);
    [[nodiscard]] QString askForImport();
    [[nodiscard]] QString askForExport(const ColourPreset &preset);
    void showError(const TXError &error);

    ColourPresetCollection &collection;
    ColourPresetModel &model;
    TXSelectionItemWidget *bar;
    ColourPresetForm *form;
    QPushButton *cancelButton;
    QLabel *stateLabel;
    QLabel *problemLabel;
    QString loadProblem;
    QString shownId;
    /// To go back to when a new preset is dropped.
    QString idBeforeNew;
    QString typedName;
    bool selecting = false;
    bool editing = false;
    bool isNew = false;
};
