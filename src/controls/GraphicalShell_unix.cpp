#include "FileManagerRequest.h"
#include "FolderProgram.h"
#include "GraphicalShell.h"

#include <QFileInfo>

bool GraphicalShell::show(const QString &path)
{
    // No file can have such a name, and Qt warns of it.
    if (path.isEmpty() || path.contains(QChar::Null)) {
        return false;
    }
    const QString absolutePath = QFileInfo(path).absoluteFilePath();
    return FileManagerRequest::send(absolutePath) || FolderProgram::open(absolutePath);
}
