#pragma once

#include "ColourPreset.h"

#include <QDir>
#include <QList>
#include <QObject>
#include <QString>

class TXError;

/// The colour presets of the user: a folder with a JSON file for each, named by its id, so that a
/// preset may have any name.
///
/// Each change is written before it is told: a file is replaced as a whole or not at all, and where
/// that fails the collection stays as it is. Files that are no preset are listed with the reason,
/// and are never written to. A file that another program has changed since it was read is neither
/// replaced nor deleted at the first attempt: that fails, and the collection takes over what the
/// file holds. Names that the user gives are told apart without regard to case; only
/// files that came into the folder by themselves may share one.
///
/// The operations that can fail take an error, which may be null.
class ColourPresetCollection final : public QObject
{
    Q_OBJECT

public:
    /// A file of the folder that holds no preset.
    struct DamagedFile
    {
        /// Without the folder.
        QString name;
        /// A sentence for the user.
        TXStringI18n reason;
    };

    /// Where the gallery keeps them for the user who runs it.
    [[nodiscard]] static QString usualFolder();

    /// The folder need not exist. Nothing is read before load().
    explicit ColourPresetCollection(const QString &folder, QObject *parent = nullptr);

    [[nodiscard]] QString folder() const { return place.path(); }

    /// Reads all files of the folder anew; without a folder there are none. A folder that was never
    /// there is made, with the presets for a first start in it. Returns false when that fails, or
    /// when there is a folder that cannot be read.
    bool load(TXError *error);

    /// In the order in which they were made.
    [[nodiscard]] const QList<ColourPreset> &presets() const { return all; }
    /// The files that load() found damaged, in the order of their names.
    [[nodiscard]] const QList<DamagedFile> &damagedFiles() const { return damaged; }
    /// The row of a preset in presets(), or -1. A walk over all.
    [[nodiscard]] int rowOf(const QString &id) const;
    /// The preset, or null. Valid until the next change.
    [[nodiscard]] const ColourPreset *find(const QString &id) const;
    /// The name, or when another preset has it, the name with the first free number behind it.
    [[nodiscard]] QString freeName(const QString &name) const;

    /// Adds a preset at the end, under a new id, which is returned; empty when it fails. Refuses a
    /// bad name and one in use.
    QString add(const ColourPreset &preset, TXError *error);
    /// Adds a copy of a preset under a free name and returns its id; empty when it fails.
    QString duplicate(const QString &id, TXError *error);
    /// Adds the preset of a file, if need be under a free name, and returns its id; empty when it
    /// fails. The file stays as it is.
    QString importFile(const QString &path, TXError *error);
    /// Replaces the settings and the name of the preset that has the id of this one. Refuses a bad
    /// name and one that another preset has; a name that stays is never refused.
    bool replace(const ColourPreset &preset, TXError *error);
    /// Gives a preset another name, as replace() does.
    bool rename(const QString &id, const QString &name, TXError *error);
    /// Writes a preset into a file outside the folder of the collection, in place of what is there.
    /// Refuses what is no file, such as a folder or a pipe.
    bool exportFile(const QString &id, const QString &path, TXError *error) const;
    /// Deletes a preset and its file. A file that is gone already is no error.
    bool remove(const QString &id, TXError *error);

signals:
    void aboutToLoad(); ///< all rows are about to change
    void loaded(); ///< all rows have changed
    void aboutToAdd(int row); ///< a preset comes before this row
    void added(); ///< the announced preset is there
    void changed(int row); ///< settings or name of a preset are others
    void aboutToRemove(int row); ///< a preset goes
    void removed(); ///< the announced preset is gone

private:
    bool makeFirstPresets(TXError *error);
    bool append(const ColourPreset &preset, TXError *error);
    void readFiles();
    [[nodiscard]] ColourPresetReading readFile(const QString &fileName) const;
    [[nodiscard]] bool isAsKnown(int row, const TXStringI18n &summary, TXError *error);
    [[nodiscard]] QString newId() const;
    [[nodiscard]] QString pathOf(const QString &id) const;
    [[nodiscard]] bool isInFolder(const QString &path) const;
    [[nodiscard]] TXStringI18n nameProblem(const QString &name, const QString &ownId) const;
    bool write(const ColourPreset &preset, TXError *error) const;

    QDir place;
    QList<ColourPreset> all;
    QList<DamagedFile> damaged;
};
