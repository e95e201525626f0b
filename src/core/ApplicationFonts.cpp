#include "ApplicationFonts.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>

ApplicationFonts::ApplicationFonts(QObject *application)
    : QObject(application)
{ }

ApplicationFonts *ApplicationFonts::ofApplication(QObject *application)
{
    auto *fonts = application->findChild<ApplicationFonts *>(QString(), Qt::FindDirectChildrenOnly);
    return fonts ? fonts : new ApplicationFonts(application);
}

void ApplicationFonts::load(const QString &folder)
{
    // The font database of a program without a GUI cannot be used.
    auto *application = qobject_cast<QGuiApplication *>(QCoreApplication::instance());
    if (!application) {
        return;
    }
    ApplicationFonts *fonts = ofApplication(application);
    const QFileInfoList files =
        QDir(folder).entryInfoList({QStringLiteral("*.ttf")}, QDir::NoFilter, QDir::NoSort);
    for (const QFileInfo &file : files) {
        if (file.isFile() && !fonts->isThere(file)) {
            fonts->add(file);
        }
    }
}

bool ApplicationFonts::isThere(const QFileInfo &file) const
{
    const Added added = addedFiles.value(file.absoluteFilePath());
    // A host may have removed the font, and its number may be that of another one by now.
    return added.id >= 0 && added.modified == file.lastModified() && added.bytes == file.size()
        && added.families == QFontDatabase::applicationFontFamilies(added.id);
}

void ApplicationFonts::add(const QFileInfo &file)
{
    const QString path = file.absoluteFilePath();
    const int id = QFontDatabase::addApplicationFont(path);
    addedFiles.insert(path,
                      {file.lastModified(), file.size(), id,
                       id < 0 ? QStringList() : QFontDatabase::applicationFontFamilies(id)});
}
