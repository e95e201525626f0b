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

namespace {

constexpr int kReadyLimitMilliseconds = 30000;
const QString kSuffix = QStringLiteral(".png");

QString tr(const char *text)
{
    return QCoreApplication::translate("GalleryGrabber", text);
}

QString withoutSuffix(const QString &path)
{
    return path.endsWith(kSuffix, Qt::CaseInsensitive) ? path.chopped(kSuffix.size()) : path;
}

} // namespace

GalleryGrabber::GalleryGrabber(GalleryWindow &window, const QString &target)
    : window(window)
    , target(target)
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
    return fail(tr("The folder \"%1\" cannot be made.").arg(QDir::toNativeSeparators(folder)));
}

bool GalleryGrabber::grabPage(const QString &pageName, const QString &basePath)
{
    window.showPage(galleryPageRow(pageName));
    window.show();
    GalleryPage &page = *window.currentPage();
    page.fillForPicture();
    if (!waitUntilReady(page, pageName)) {
        return false;
    }
    window.growToPage();
    if (!save(window, basePath + kSuffix)) {
        return false;
    }
    const QList<GalleryFurtherWindow> furtherWindows = page.furtherWindows();
    for (const GalleryFurtherWindow &further : furtherWindows) {
        if (!save(*further.window, basePath + QLatin1Char('-') + further.name + kSuffix)) {
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
        QTimer::singleShot(kReadyLimitMilliseconds, &loop, SLOT(quit()));
        loop.exec();
    }
    if (page.isReady()) {
        return true;
    }
    return fail(tr("The page \"%1\" was not ready after %2 seconds.")
                    .arg(pageName)
                    .arg(kReadyLimitMilliseconds / 1000));
}

bool GalleryGrabber::save(QWidget &widget, const QString &path)
{
    QSaveFile file(path);
    const QString shownPath = QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath());
    // What layouts and views have put off is done before the picture is taken.
    QApplication::processEvents();
    if (!file.open(QIODevice::WriteOnly) || !widget.grab().save(&file, "PNG") || !file.commit()) {
        return fail(
            tr("The picture \"%1\" cannot be written: %2.").arg(shownPath, file.errorString()));
    }
    std::puts(qUtf8Printable(shownPath));
    std::fflush(stdout);
    return true;
}

bool GalleryGrabber::fail(const QString &message)
{
    reason = message;
    return false;
}
