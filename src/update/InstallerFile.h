#pragma once

#include "TXGUICommonExport.h"

#include <QString>

class QIODevice;

/// The file that one download is written to, piece by piece, opened and closed for each. The file
/// is made by the first piece.
///
/// A file that is not as the last piece left it (deleted or changed meanwhile) takes no further
/// piece: its beginning would be missing. Thread: that of the object.
class TXGUICOMMON_PRIVATE_EXPORT InstallerFile
{
public:
    /// What became of a piece.
    enum class Result {
        Written,
        NotOpened, ///< nothing has been read from the source; another try may succeed
        Failed, ///< the disk is full or the file is another one; the download is lost
    };

    /// A download to no file, which takes nothing.
    InstallerFile() = default;

    /// A download to this path, where no file is yet, of so many bytes; 0 or less for an unknown
    /// number.
    InstallerFile(const QString &path, qint64 expectedSize);

    /// Moves so many bytes from the source to the end of the file.
    [[nodiscard]] Result append(QIODevice &source, qint64 size);

    /// Whether the file holds all that was appended, and not less than expected.
    [[nodiscard]] bool isComplete() const;

private:
    QString path;
    qint64 expectedSize = 0;
    qint64 writtenSize = 0;
};
