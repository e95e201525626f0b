#include "RegularFile.h"

#include <QFileInfo>

bool isNoRegularFile(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile();
}
