#pragma once

#include <QAbstractListModel>

class ColourPresetCollection;

/// The presets of a collection as the rows of a list: the name, the id under Qt::UserRole, and the
/// settings in one line under Qt::ToolTipRole. Read only; follows the collection.
class ColourPresetModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The collection is not owned and outlives the model.
    explicit ColourPresetModel(const ColourPresetCollection &collection, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

    /// Tells that the lines of settings are to be read again, in another language.
    void retranslate();

private slots:
    void beginLoading();
    void endLoading();
    void beginAdding(int row);
    void endAdding();
    void tellChange(int row);
    void beginRemoving(int row);
    void endRemoving();

private:
    const ColourPresetCollection &collection;
};
