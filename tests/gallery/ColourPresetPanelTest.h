#pragma once

#include "ColourPresetCollection.h"
#include "ColourPresetModel.h"
#include "ColourPresetPanel.h"
#include "DialogDriver.h"
#include "PresetFiles.h"
#include "TestBase.h"

#include "TXSelectionItemWidget.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>

#include <memory>
#include <utility>

/// The panel in an active window, over a folder with the presets "Alpha", "Beta" and "Gamma", whose
/// ink limits are 100, 200 and 300 %.
class ColourPresetPanelTest : public TestBase
{
protected:
    void prepare() override
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        place = std::make_unique<QTemporaryDir>();
        collection = std::make_unique<ColourPresetCollection>(place->filePath("presets"));
        QVERIFY(QDir(place->path()).mkdir("presets"));
        for (const auto &[name, ink] : {std::pair{"Alpha", 100}, {"Beta", 200}, {"Gamma", 300}}) {
            ColourPreset preset = presetCalled(name);
            preset.inkLimitPercent = ink;
            QVERIFY(!collection->add(preset, nullptr).isEmpty());
        }
        showPanel();
    }

    void finish() override
    {
        panel.reset();
        model.reset();
        collection.reset();
        place.reset();
    }

    void showPanel()
    {
        panel.reset();
        model = std::make_unique<ColourPresetModel>(*collection);
        auto newBar = std::make_unique<TXSelectionItemWidget>();
        bar = newBar.get();
        panel = std::make_unique<ColourPresetPanel>(newBar.release(), *collection, *model);
        panel->show();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    }

    /// Chooses the entry of this text in the box, as a user does.
    void chooseInBox(const QString &name) const
    {
        const int row = bar->itemComboBox()->findText(name);
        QVERIFY2(row >= 0, qPrintable(name));
        bar->itemComboBox()->setCurrentIndex(row);
    }

    void startEdit() const
    {
        DialogDriver::click(bar->editItemButton());
        QVERIFY(panel->isEditing());
    }

    /// Types over what is selected in the box.
    void typeName(const QString &name) const
    {
        QLineEdit *line = bar->itemComboBox()->lineEdit();
        QVERIFY(line);
        line->selectAll();
        QTest::keyClicks(line, name);
    }

    [[nodiscard]] QSpinBox *inkBox() const { return panel->findChild<QSpinBox *>(); }

    /// What the user reads in the box.
    [[nodiscard]] QString shownName() const { return bar->itemComboBox()->currentText(); }

    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (const ColourPreset &preset : collection->presets()) {
            result.append(preset.name);
        }
        return result;
    }

    [[nodiscard]] QString fileOf(const QString &id) const
    {
        return collection->folder() + '/' + id;
    }

    /// The preset at this row as its file has it.
    [[nodiscard]] ColourPreset stored(int row) const
    {
        const QString id = collection->presets().at(row).id;
        const ColourPresetReading reading = ColourPreset::fromFile(fileOf(id));
        return reading.preset.value_or(ColourPreset());
    }

    /// Answers the next file dialog with this file.
    static void chooseFile(DialogDriver &driver, const QString &path)
    {
        driver.expect([path](QDialog &dialog) {
            auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
            QVERIFY(name);
            name->setText(path);
            dialog.accept();
        });
    }

    std::unique_ptr<QTemporaryDir> place;
    std::unique_ptr<ColourPresetCollection> collection;
    std::unique_ptr<ColourPresetModel> model;
    std::unique_ptr<ColourPresetPanel> panel;
    TXSelectionItemWidget *bar = nullptr;
};
