#include "FolderProgram.h"

#include <QFileInfo>
#include <QProcess>

bool FolderProgram::open(const QString &absolutePath)
{
    const QFileInfo file(absolutePath);
    return QProcess::startDetached(QStringLiteral("xdg-open"),
                                   {file.isDir() ? absolutePath : file.absolutePath()});
}
