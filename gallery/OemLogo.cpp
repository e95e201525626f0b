#include "OemLogo.h"

#include "PictureFile.h"

#include "TXApplicationInformation.h"
#include "TXSplashScreen.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSaveFile>

namespace {

QString native(const QString &path)
{
    return QDir::toNativeSeparators(QDir::cleanPath(path));
}

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

/// With its transparent places, unlike what PictureFile reads.
QImage readWhole(const QString &path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QImage image = reader.read();
    const QSize largest(OemLogo::kLargestWidth, OemLogo::kLargestHeight);
    const bool fits = image.size().boundedTo(largest) == image.size();
    return fits ? image : image.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QString OemLogo::installedPath()
{
    return TXSplashScreen::installedLogoPath();
}

QString OemLogo::cachedPath()
{
    return TXSplashScreen::cachedLogoPath(baseProd());
}

QString OemLogo::put(const QString &path)
{
    const PictureFile picture = PictureFile::read(path);
    const QImage image = picture.problem == PictureFile::Problem::None ? readWhole(path) : QImage();
    if (image.isNull()) {
        return picture.problemText();
    }
    const QString target = installedPath();
    // A link would be followed to a place that is not meant.
    const QString obstacle = QFileInfo(target).isSymLink() ? remove(target) : QString();
    if (!obstacle.isEmpty()) {
        return obstacle;
    }
    QSaveFile file(QDir::cleanPath(target));
    if (!file.open(QIODevice::WriteOnly) || !image.save(&file, "PNG") || !file.commit()) {
        return tr("The logo \"%1\" cannot be written: %2.").arg(native(target), file.errorString());
    }
    return {};
}

QString OemLogo::removeInstalled()
{
    return remove(installedPath());
}

QString OemLogo::removeCached()
{
    return remove(cachedPath());
}

QString OemLogo::reasonForNoCopy()
{
    const QFileInfo folder(QFileInfo(cachedPath()).path());
    const QString path = native(folder.filePath());
    return folder.isDir() ? tr("No copy is kept: the folder \"%1\" cannot be written.").arg(path)
                          : tr("No copy is kept: there is no folder \"%1\".").arg(path);
}

QString OemLogo::remove(const QString &path)
{
    QFile file(path);
    if (!isThere(path) || file.remove()) {
        return {};
    }
    return tr("The logo \"%1\" cannot be removed: %2.").arg(native(path), file.errorString());
}
