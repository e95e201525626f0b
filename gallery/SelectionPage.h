#pragma once

#include "GalleryPage.h"

#include <memory>

class ColourPresetCollection;
class ColourPresetModel;
class ColourPresetPanel;
class SelectionBarOptions;
class SortedPresetBar;
class TXSelectionItemWidget;

/// TXSelectionItemWidget over the user's own colour presets: pick, create, duplicate, rename,
/// import, export and delete, with its signals as they come.
class SelectionPage final : public GalleryPage
{
    Q_OBJECT

public:
    /// Works in ColourPresetCollection::usualFolder().
    explicit SelectionPage(QWidget *parent = nullptr);
    ~SelectionPage() override;

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;

protected:
    void retranslate() override { }

private slots:
    void followEditing(bool isEditing);

private:
    void connectPanels();

    std::unique_ptr<ColourPresetCollection> collection;
    std::unique_ptr<ColourPresetModel> model;
    TXSelectionItemWidget *bar;
    SelectionBarOptions *options;
    SortedPresetBar *sortedBar;
    ColourPresetPanel *presets = nullptr;
};
