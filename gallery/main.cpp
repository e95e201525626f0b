#include "GalleryCommandLine.h"
#include "GalleryGrabber.h"
#include "GalleryLanguages.h"
#include "GalleryPage.h"
#include "GallerySettings.h"
#include "GallerySplash.h"
#include "GalleryWindow.h"
#include "StyleSheets.h"

#include <QApplication>
#include <QFile>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>

namespace {

/// Lets the command line have the last word on what was remembered.
GallerySettings combine(GallerySettings settings, const GalleryCommandLine &commandLine)
{
    settings.colours = commandLine.colours.value_or(settings.colours);
    if (!commandLine.page.isEmpty()) {
        settings.page = commandLine.page;
    }
    if (!commandLine.style.isEmpty()) {
        settings.style = commandLine.style;
    }
    if (!commandLine.language.isEmpty()) {
        settings.language = commandLine.language;
    }
    return settings;
}

/// The same on every machine, whatever the user and the system prefer.
GallerySettings pictureSettings()
{
    GallerySettings settings;
    settings.colours = GalleryColours::Light;
    settings.style = QStringLiteral("Fusion");
    settings.language = QStringLiteral("en");
    return settings;
}

/// Turns all settings of the process, those of the library's windows too, to an empty folder.
void useSettingsIn(const QString &folder)
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    for (const auto scope : {QSettings::UserScope, QSettings::SystemScope}) {
        QSettings::setPath(QSettings::IniFormat, scope, folder);
    }
    // There the library keeps the key of passwords. Only some systems have a variable for it.
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
    // There the pages keep what the user makes with them.
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder));
}

int takePictures(const GalleryCommandLine &commandLine)
{
    StyleSheets::loadFonts();
    const QTemporaryDir settingsFolder;
    useSettingsIn(settingsFolder.path());
    QApplication::setCursorFlashTime(0);

    GalleryLanguages languages(GalleryCommandLine::translationsFolder(),
                               GalleryLanguages::Formats::OfLanguage);
    GalleryWindow window(languages, combine(pictureSettings(), commandLine));
    GalleryGrabber grabber(window, commandLine.grabTarget);
    if (!grabber.grab(commandLine.page)) {
        GalleryCommandLine::printError(grabber.error());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

int runGallery(const GalleryCommandLine &commandLine)
{
    GalleryLanguages languages(GalleryCommandLine::translationsFolder());
    GallerySettings settings = GallerySettings::load();
    if (settings.language.isEmpty()) {
        settings.language = languages.systemCode();
    }
    settings = combine(settings, commandLine);
    // The splash speaks it already.
    languages.use(settings.language);
    GallerySplash splash;
    splash.open();
    splash.tell(GallerySplash::tr("Loading the fonts..."));
    StyleSheets::loadFonts();
    splash.tell(GallerySplash::tr("Loading the pages..."));
    GalleryWindow window(languages, settings);
    if (settings.geometry.isEmpty()) {
        window.resize(window.size().boundedTo(window.screen()->availableSize()));
    }
    window.show();
    splash.finish(&window);
    window.currentPage()->startByItself();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setOrganizationName(QStringLiteral("TXGUICommon"));
    QCoreApplication::setApplicationName(QStringLiteral("Gallery"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TXGALLERY_VERSION));

    const GalleryCommandLine commandLine(argc, argv);
    if (commandLine.exitCode()) {
        return *commandLine.exitCode();
    }
    const bool isForPictures = !commandLine.grabTarget.isEmpty();
    if (isForPictures && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        // Nothing flashes up, and a machine without a screen will do.
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    return isForPictures ? takePictures(commandLine) : runGallery(commandLine);
}
