#include "Pages.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

QString Pages::sourceFolder()
{
    return QStringLiteral(TX_SOURCE_FOLDER);
}

QString Pages::readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList Pages::filesBelow(const QString &folder, const QStringList &patterns)
{
    QStringList paths;
    QDirIterator files(sourceFolder() + u'/' + folder, patterns, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    paths.sort();
    return paths;
}

QStringList Pages::tree()
{
    const QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    const QStringList foreign = {QStringLiteral(".git"), QStringLiteral(".cache"),
                                 QStringLiteral("build")};
    const QDir top(sourceFolder());
    QStringList paths;
    const QFileInfoList entries = top.entryInfoList(everything);
    for (const QFileInfo &entry : entries) {
        if (foreign.contains(entry.fileName())) {
            continue;
        }
        paths.append(entry.fileName() + (entry.isDir() ? "/" : ""));
        QDirIterator below(entry.filePath(), everything, QDirIterator::Subdirectories);
        while (below.hasNext()) {
            const QString path = top.relativeFilePath(below.next());
            paths.append(path + (below.fileInfo().isDir() ? "/" : ""));
        }
    }
    paths.sort();
    return paths;
}

QStringList Pages::all()
{
    QStringList paths = tree().filter(QRegularExpression(QStringLiteral("\\.md$")));
    for (QString &path : paths) {
        path.prepend(sourceFolder() + u'/');
    }
    return paths;
}

QString Pages::prose(const QString &page)
{
    static const QRegularExpression blocks(QStringLiteral("^```.*?^```$"),
                                           QRegularExpression::MultilineOption
                                               | QRegularExpression::DotMatchesEverythingOption);
    return QString(page).remove(blocks);
}

QList<Pages::Block> Pages::blocksOf(const QString &page)
{
    QList<Block> blocks;
    const QStringList lines = page.split(u'\n');
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (!lines[line].startsWith(QLatin1String("```"))) {
            continue;
        }
        Block block{lines.value(line - 1), lines[line].mid(3), {}};
        for (++line; line < lines.size() && lines[line] != QLatin1String("```"); ++line) {
            block.text += lines[line] + u'\n';
        }
        blocks.append(block);
    }
    return blocks;
}
