#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>

/// Something worth telling about a folder.
struct FolderFinding
{
    enum Kind {
        EmptyFolder, ///< information: there is nothing in it
        BrokenLink, ///< warning: a link that leads nowhere
        LongName, ///< warning: longer than kLongNameBytes
        UnreadableFile, ///< error: the rights to read it are missing
        UnreadableFolder, ///< error: the rights to list it are missing
        MissingFolder, ///< error: it is not there, or is gone since it was found
        NotAFolder, ///< error: a file where a folder was named
    };

    Kind kind;
    /// Name of the entry in the folder; empty when the finding is about the folder itself.
    QString name;

    /// A TXLogItem::Level.
    [[nodiscard]] int level() const;
};

/// What is in one folder, without what is in its sub-folders.
struct FolderReport
{
    /// Names longer than this, in bytes of the file system's encoding, do not fit on systems that
    /// keep the names enciphered.
    static constexpr int kLongNameBytes = 143;

    /// How many findings of one folder are kept; those above it only count.
    static constexpr int kMaximumFindings = 200;

    /// Where it is.
    QString path;
    /// How it is called in messages.
    QString label;
    /// Number of files, links among them, folders not.
    qint64 fileCount = 0;
    /// Their size in bytes. A link counts as what it leads to.
    qint64 totalBytes = 0;
    /// Name and time of the file changed last; empty and invalid when there is no file.
    QString newestFile;
    QDateTime newestTime;
    /// Names of the sub-folders, sorted; links to folders are not among them, so that walking down
    /// the names always ends.
    QStringList folders;
    /// The first findings in the order of the names.
    QList<FolderFinding> findings;
    /// The number of all findings of level warning and error.
    qint64 warningCount = 0;
    qint64 errorCount = 0;

    /// The highest level among the findings; information when there are none.
    [[nodiscard]] int level() const;

    void addFinding(FolderFinding::Kind kind, const QString &name = QString());
};

/// Reads a folder. Any thread; touches nothing but the file system. Gives what it has so far when
/// `isCancelled` becomes true on the way. Costs a sort of the names.
[[nodiscard]] FolderReport inspectFolder(const QString &path, const QString &label,
                                         const std::atomic_bool &isCancelled);
