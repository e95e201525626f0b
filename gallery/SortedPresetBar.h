#pragma once

#include "GalleryPanel.h"

#include <QVariant>

class QLabel;
class QSortFilterProxyModel;
class ColourPresetModel;
class TXSelectionItemWidget;

/// A small selection bar over the same presets: through a proxy that sorts them by name, and with
/// one button, whose menu makes, copies and imports.
class SortedPresetBar final : public GalleryPanel
{
    Q_OBJECT

public:
    /// The model outlives the panel.
    explicit SortedPresetBar(ColourPresetModel &model, QWidget *parent = nullptr);

public slots:
    /// Selects a preset, or with an unknown id none, without a signal.
    void showChosen(const QString &id);

signals:
    void chosen(const QString &id); ///< the user has chosen this preset
    void newWanted(); ///< the user wants a new preset
    void copyWanted(); ///< the user wants a copy of the selected preset
    void importWanted(); ///< the user wants to import a preset

protected:
    void retranslate() override;

private slots:
    void takeSelection(const QVariant &value);

private:
    void hideButtons();

    QSortFilterProxyModel *sorted;
    TXSelectionItemWidget *bar;
    QLabel *note;
};
