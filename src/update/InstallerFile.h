#pragma once

#include "TXGUICommonExport.h"

#include <QDateTime>
#include <QString>

class QFile;
class QIODevice;

/// The file that one download is written to, piece by piece, opened and closed for each.
///
/// What always holds for a file that is to be a new one:
/// - The first piece makes the file. One that is there already is never written to, nor does it
///   become known as unfinished.
/// - The file is known to UnfinishedDownloads before it is made, and until finish() has found it
///   whole; also when the process is killed, as far as the settings can be written.
///
/// What always holds:
/// - A later piece goes only into the file that took the first one, at its end as the last piece
///   left it. A file that was deleted, replaced, cut or lengthened meanwhile loses the download: no
///   file is made without its beginning.
/// - A piece that is not written whole, as on a full disk, loses the download. What is on disk
///   stays there, as unfinished.
/// - A lost download takes nothing more and never becomes whole.
///
/// The settings are written for each try to make the file and when it is whole, not for each piece.
/// Thread: that of the object.
class TXGUICOMMON_PRIVATE_EXPORT InstallerFile
{
public:
    /// Where the first piece goes.
    enum class Beginning {
        NewFile, ///< into a file that it makes
        AnyFile, ///< to the end of the file that is there; into a new one without any
    };

    /// What became of a piece.
    enum class Result {
        Written,
        NotOpened, ///< nothing has been read from the source; another try may succeed
        NothingRead, ///< the source gave nothing of what it was asked for; it may do so later
        Failed, ///< the download is lost, now or earlier
    };

    /// How many bytes append() moves at most; a bound for memory and for the time it blocks.
    static constexpr qint64 kLargestPiece = qint64(1024) * 1024;

    /// A download to this path, of so many bytes; 0 or less for an unknown number. Touches nothing.
    /// To an empty path nothing can be appended.
    InstallerFile(const QString &path, qint64 expectedSize,
                  Beginning beginning = Beginning::NewFile);

    /// Moves so many bytes from the source to the end of the file, or what the source has of them,
    /// or kLargestPiece.
    [[nodiscard]] Result append(QIODevice &source, qint64 size);

    /// To be called after the last piece: whether the file on disk holds all that was appended, and
    /// not less than expected. A file that does is no longer known as unfinished; one that does not
    /// is lost. A download to which no piece was offered has made no file, and is whole unless a
    /// size was expected.
    [[nodiscard]] bool finish();

private:
    [[nodiscard]] bool isReadyToBegin();
    [[nodiscard]] bool open(QFile &file);
    [[nodiscard]] bool isOurs(const QFile &file) const;
    [[nodiscard]] bool write(QFile &file, const QByteArray &piece);
    [[nodiscard]] Result move(QIODevice &source, qint64 size, QFile &file);
    [[nodiscard]] Result openFailed();
    Result lose();

    QString path;
    qint64 expectedSize;
    Beginning beginning;
    /// How long the file is when nobody else has touched it.
    qint64 fileSize = 0;
    /// When the file was made, which tells it from another of the same size; invalid where the file
    /// system does not know.
    QDateTime birth;
    bool isOffered = false;
    bool isBegun = false;
    bool isRemembered = false;
    bool isLost = false;
};
