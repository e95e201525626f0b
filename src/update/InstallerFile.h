#pragma once

#include "TXGUICommonExport.h"

#include <QDateTime>
#include <QString>

class QFile;
class QIODevice;

/// The file that one download is written to, piece by piece, opened and closed for each.
///
/// What always holds:
/// - The first piece makes the file. One that is there already is never written to, nor does it
///   become known as unfinished.
/// - The file is known to UnfinishedDownloads before it is made, and until finish() has found it
///   whole; also when the process is killed. Settings that cannot be written lose the download
///   before it makes a file.
/// - A later piece goes only into the file that the first one made, at its end as the last piece
///   left it. A file that was deleted, replaced, cut or lengthened meanwhile loses the download: no
///   file is made without its beginning.
/// - A piece that is not written whole, as on a full disk, loses the download. What is on disk
///   stays there, as unfinished.
/// - A lost download takes nothing more and never becomes whole.
///
/// The settings are written twice in the life of a file, not for each piece. Thread: that of the
/// object.
class TXGUICOMMON_PRIVATE_EXPORT InstallerFile
{
public:
    /// What became of a piece.
    enum class Result {
        Written,
        NotOpened, ///< nothing has been read from the source; another try may succeed
        Failed, ///< the download is lost, now or earlier
    };

    /// How many bytes append() moves at most; a bound for memory and for the time it blocks.
    static constexpr qint64 kLargestPiece = 1024 * 1024;

    /// A download to this path, of so many bytes; 0 or less for an unknown number. Touches nothing.
    /// An empty path makes a download that is lost from the start.
    InstallerFile(const QString &path, qint64 expectedSize);

    /// Moves so many bytes from the source to the end of the file, or what the source has of them,
    /// or kLargestPiece.
    [[nodiscard]] Result append(QIODevice &source, qint64 size);

    /// To be called after the last piece: whether the file on disk holds all that was appended, and
    /// not less than expected. A file that does is no longer known as unfinished; one that does not
    /// is lost. A download without any piece made no file, and is not whole.
    [[nodiscard]] bool finish();

private:
    [[nodiscard]] bool isReadyToBegin();
    [[nodiscard]] bool isOurs(const QFile &file) const;
    [[nodiscard]] bool write(QFile &file, const QByteArray &piece);
    [[nodiscard]] Result openFailed();
    Result lose();

    QString path;
    qint64 expectedSize;
    qint64 writtenSize = 0;
    /// When the file was made, which tells it from another of the same size; invalid where the file
    /// system does not know.
    QDateTime birth;
    bool isBegun = false;
    bool isRemembered = false;
    bool isLost = false;
};
