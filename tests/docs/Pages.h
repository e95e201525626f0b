#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The pages of the repository that people read, and what stands in them.
namespace Pages {

/// The top of the repository.
QString sourceFolder();

/// The text of a file; empty when it cannot be read.
QString readFile(const QString &path);

/// The files in a folder of the repository and all folders below, with their whole paths, sorted.
/// Without patterns all of them.
QStringList filesBelow(const QString &folder, const QStringList &patterns);

/// What the repository holds, as sorted paths from its top; those of folders end with a slash. What
/// builds write is not among it.
QStringList tree();

/// The whole paths of all pages.
QStringList all();

/// The page without its fenced blocks.
QString prose(const QString &page);

/// A fenced block of a page, with the line above it.
struct Block
{
    QString heading;
    QString language;
    QString text;
};

QList<Block> blocksOf(const QString &page);

} // namespace Pages
