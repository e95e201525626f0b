#include "TXDisplayAppManual.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

namespace {

QString pathOf(const QString &fileName)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../Resources/Manual/") + fileName);
}

void warn(QWidget *parent, const QString &text)
{
    const QString title = QCoreApplication::translate("QObject", "Warning: Cannot open PDF File");
    QMessageBox::warning(parent, title, text, QMessageBox::Ok);
}

} // namespace

void TXDisplayAppManual(const QString &fileName, QWidget *parent)
{
    const QString path = pathOf(fileName);
    if (!QFileInfo(path).isFile()) {
        warn(parent,
             QCoreApplication::translate("QObject",
                                         "Impossible to open the following PDF : %1\n\nPlease "
                                         "check if the file exist at the following path : %2")
                 .arg(fileName, path));
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        warn(parent,
             QCoreApplication::translate("QObject",
                                         "Impossible to open the following PDF : %1\n\nPlease "
                                         "check if a pdf reader has been installed on your "
                                         "computer")
                 .arg(fileName));
    }
}
