#include "ExplorerProcess.h"
#include "GraphicalShell.h"

#include <QDir>
#include <QFileInfo>

bool GraphicalShell::show(const QString &path)
{
    const bool isFolder = QFileInfo(path).isDir();
    return startExplorer(QDir::toNativeSeparators(path).toStdWString(), isFolder);
}
