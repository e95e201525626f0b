#pragma once

#include "TXGUICommonExport.h"

#include <QString>
#include <QUrl>

/// What one call of TXFileDialog recalls before its dialog and stores after it, in the
/// application's QSettings.
///
/// A folder without a key, and a filter without a key or without a place for it, are neither
/// recalled nor stored. Other values than texts read as what QVariant makes of them. A stored
/// filter is taken as it is; a stored place ends at a NUL, and one that is no place at all is
/// harmless: Qt's dialog opens elsewhere.
///
/// Thread: the GUI thread.
class TXGUICOMMON_PRIVATE_EXPORT FileDialogMemory
{
public:
    /// Remembers under these keys; empty for not at all. The filter belongs to the caller, must
    /// live as long as the memory, and may be null.
    explicit FileDialogMemory(const QString &directoryKey, const QString &filterKey = {},
                              QString *selectedFilter = nullptr);

    /// Puts the stored filter in place of the selected one. Without a stored filter that stays.
    void recallFilter() const;

    /// Where the dialog starts: at `dir` as long as nothing is remembered, then in the remembered
    /// folder, with the file name of `dir` unless that is an existing folder.
    [[nodiscard]] QString start(const QString &dir) const;

    /// The same for a URL, without user name, password and port even when nothing is remembered.
    /// The text of a URL with a scheme names no folder on the disk, so its last component always
    /// counts as a file name. Empty when what is remembered is no URL with a scheme; Qt's dialog
    /// then opens where the last one ended.
    [[nodiscard]] QUrl start(const QUrl &dir) const;

    /// Stores the folder as it is. An empty one, from a cancelled dialog, changes nothing.
    void storeFolder(const QString &folder) const;

    /// Stores the absolute path of the file's folder. An empty name changes nothing.
    void storeFolderOf(const QString &file) const;

    /// Stores the URL itself, fully encoded, without user name, password and port. An empty one
    /// changes nothing.
    void storeUrl(const QUrl &url) const;

    /// Stores the selected filter unless it is empty. To be called after a cancelled dialog too.
    void storeFilter() const;

private:
    [[nodiscard]] bool hasFilter() const;

    QString directoryKey;
    QString filterKey;
    QString *selectedFilter;
};
