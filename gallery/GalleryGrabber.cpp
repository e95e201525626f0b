#include "GalleryGrabber.h"

#include "GalleryPage.h"
#include "GalleryPages.h"
#include "GalleryWindow.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QPixmap>
#include <QSaveFile>
#include <QTimer>

#include <cstdio>
#include <utility>

namespace {

const QString kSuffix = QStringLiteral(".png");

QString nativePath(const QString &path)
{
    return QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
}

QString withoutSuffix(const QString &path)
{
    return path.endsWith(kSuffix, Qt::CaseInsensitive) ? path.chopped(kSuffix.size()) : path;
}

} // namespace

GalleryGrabber::GalleryGrabber(GalleryWindow &window, QString target, int readyLimitMilliseconds)
    : window(window)
    , target(std::move(target))
    , readyLimitMilliseconds(readyLimitMilliseconds)
{ }

bool GalleryGrabber::grab(const QString &pageName)
{
    if (!pageName.isEmpty() && !QFileInfo(target).isDir()) {
        return makeFolder(QFileInfo(target).path()) && grabPage(pageName, withoutSuffix(target));
    }
    if (!makeFolder(target)) {
        return false;
    }
    for (const GalleryPageEntry &entry : galleryPages()) {
        const bool isWanted = pageName.isEmpty() || pageName == entry.name();
        if (isWanted && !grabPage(entry.name(), target + QLatin1Char('/') + entry.name())) {
            return false;
        }
    }
    return true;
}

bool GalleryGrabber::makeFolder(const QString &folder)
{
    if (QDir().mkpath(folder)) {
        return true;
    }
    return fail(tr("The folder \"%1\" cannot be made.").arg(nativePath(folder)));
}

bool GalleryGrabber::grabPage(const QString &pageName, const QString &basePath)
{
    // Opened first: a mistake in the path is told before any work is done.
    QSaveFile file(basePath + kSuffix);
    if (!open(file)) {
        return false;
    }
    window.showPage(galleryPageRow(pageName));
    window.show();
    GalleryPage &page = *window.currentPage();
    page.fillForPicture();
    if (!waitUntilReady(page, pageName)) {
        return false;
    }
    window.growToPage();
    if (!save(window, file)) {
        return false;
    }
    const QList<GalleryFurtherWindow> furtherWindows = page.furtherWindows();
    for (const GalleryFurtherWindow &further : furtherWindows) {
        QSaveFile furtherFile(basePath + QLatin1Char('-') + further.name + kSuffix);
        if (!open(furtherFile) || !save(*further.window, furtherFile)) {
            return false;
        }
    }
    return true;
}

bool GalleryGrabber::waitUntilReady(GalleryPage &page, const QString &pageName)
{
    if (!page.isReady()) {
        QEventLoop loop;
        QObject::connect(&page, SIGNAL(becameReady()), &loop, SLOT(quit()));
        QTimer::singleShot(readyLimitMilliseconds, &loop, SLOT(quit()));
        loop.exec();
    }
    if (page.isReady()) {
        return true;
    }
    return fail(tr("The page \"%1\" was not ready after %2 seconds.")
                    .arg(pageName)
                    .arg(readyLimitMilliseconds / 1000));
}

bool GalleryGrabber::open(QSaveFile &file)
{
    return file.open(QIODevice::WriteOnly) || failToWrite(file);
}

bool GalleryGrabber::save(QWidget &widget, QSaveFile &file)
{
    // What layouts and views have put off is done before the picture is taken.
    QApplication::processEvents();
    // And what has been put off meanwhile, as the new sizes of texts in another language.
    QApplication::sendPostedEvents();
    if (!widget.grab().save(&file, "PNG") || !file.commit()) {
        return failToWrite(file);
    }
    std::puts(qUtf8Printable(nativePath(file.fileName())));
    std::fflush(stdout);
    return true;
}

bool GalleryGrabber::failToWrite(const QSaveFile &file)
{
    return fail(tr("The picture \"%1\" cannot be written: %2.")
                    .arg(nativePath(file.fileName()), file.errorString()));
}

bool GalleryGrabber::fail(const QString &message)
{
    reason = message;
    return false;
}
