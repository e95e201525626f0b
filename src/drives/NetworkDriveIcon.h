#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QIcon>
#include <QString>

/// The icon of the windows about network drives. The application ships it beside its program.
namespace NetworkDriveIcon {

/// The icon as it lies there now: "../Resources/Images/remote_folder.png", seen from the folder of
/// the program. One without a picture when it is missing. Needs the application object; GUI thread.
[[nodiscard]] inline QIcon load()
{
    const QString path =
        QStringLiteral("%1/%2").arg(QCoreApplication::applicationDirPath(),
                                    QStringLiteral("../Resources/Images/remote_folder.png"));
    return QIcon(QDir::cleanPath(path));
}

} // namespace NetworkDriveIcon
