#include "GalleryCommandLine.h"

#include "GalleryLanguages.h"
#include "GalleryPages.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QStyleFactory>

#include <cstdio>
#include <vector>

namespace {

QStringList pageNames()
{
    QStringList names;
    for (const GalleryPageEntry &entry : galleryPages()) {
        names.append(entry.name());
    }
    return names;
}

QCommandLineOption valueOption(const QString &name, const QString &value, const QString &help)
{
    return {name, help, value};
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        GalleryCommandLine::tr("Shows what the TXGUICommon library has to offer."));
    // Qt's own options have one dash, as -platform, and are not spelt letter by letter.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    // Not Qt's own help option, which brings a second one for Qt's arguments along.
    parser.addOption(QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")},
                                        GalleryCommandLine::tr("Show this help and exit.")));
    parser.addVersionOption();
    parser.addOptions({
        valueOption(QStringLiteral("page"), GalleryCommandLine::tr("name"),
                    GalleryCommandLine::tr("Open at this page: %1.")
                        .arg(pageNames().join(QStringLiteral(", ")))),
        valueOption(QStringLiteral("grab"), GalleryCommandLine::tr("file|folder"),
                    GalleryCommandLine::tr(
                        "Save a picture of the named page as this PNG file, or of every page into "
                        "this folder, print the paths and exit.")),
        valueOption(QStringLiteral("style"), GalleryCommandLine::tr("name"),
                    GalleryCommandLine::tr("Widget style: %1.")
                        .arg(QStyleFactory::keys().join(QStringLiteral(", ")))),
        valueOption(QStringLiteral("palette"), QStringLiteral("light|dark|contrast"),
                    GalleryCommandLine::tr("Colours.")),
        valueOption(QStringLiteral("language"), GalleryCommandLine::tr("code"),
                    GalleryCommandLine::tr("Language of the texts, as en.")),
    });
    // Qt reads this one itself; here it is only let through.
    QCommandLineOption platform =
        valueOption(QStringLiteral("platform"), GalleryCommandLine::tr("name"), QString());
    platform.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(platform);
}

QString firstMistake(const QCommandLineParser &parser, const QStringList &arguments)
{
    for (const char *option : {"page", "grab", "style", "palette", "language"}) {
        const QString name = QString::fromLatin1(option);
        if (parser.isSet(name) && parser.value(name).isEmpty()) {
            return GalleryCommandLine::tr("--%1 needs a value.").arg(name);
        }
    }
    if (!arguments.isEmpty()) {
        return GalleryCommandLine::tr("Unexpected argument \"%1\".").arg(arguments.first());
    }
    return {};
}

void print(const QString &text)
{
    std::fputs(qUtf8Printable(text), stdout);
}

} // namespace

GalleryCommandLine::GalleryCommandLine(int argc, char **argv)
{
    // Copies, since the application object takes its own arguments out of what it is given.
    std::vector<char *> copies(argv, argv + argc);
    copies.push_back(nullptr);
    const QCoreApplication application(argc, copies.data());
    read(QCoreApplication::arguments());
}

QString GalleryCommandLine::translationsFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../Resources/translations"));
}

void GalleryCommandLine::printError(const QString &message)
{
    std::fputs(qUtf8Printable(QStringLiteral("TXGallery: %1\n").arg(message.simplified())), stderr);
}

void GalleryCommandLine::read(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments)) {
        fail(parser.errorText());
        return;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        print(parser.helpText());
        code = EXIT_SUCCESS;
        return;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        print(QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(),
                                            QCoreApplication::applicationVersion()));
        code = EXIT_SUCCESS;
        return;
    }
    const QString mistake = firstMistake(parser, parser.positionalArguments());
    if (!mistake.isEmpty()) {
        fail(mistake);
        return;
    }
    grabTarget = parser.value(QStringLiteral("grab"));
    readPage(parser.value(QStringLiteral("page")));
    readStyle(parser.value(QStringLiteral("style")));
    readColours(parser.value(QStringLiteral("palette")));
    readLanguage(parser.value(QStringLiteral("language")));
}

void GalleryCommandLine::readPage(const QString &value)
{
    page = value;
    if (!page.isEmpty() && galleryPageRow(page) < 0) {
        fail(tr("There is no page \"%1\". The pages are: %2.")
                 .arg(page, pageNames().join(QStringLiteral(", "))));
    }
}

void GalleryCommandLine::readStyle(const QString &value)
{
    style = galleryStyleKey(value);
    if (style.isEmpty() && !value.isEmpty()) {
        fail(tr("There is no style \"%1\". The styles are: %2.")
                 .arg(value, QStyleFactory::keys().join(QStringLiteral(", "))));
    }
}

void GalleryCommandLine::readColours(const QString &value)
{
    if (value.isEmpty()) {
        return;
    }
    const GalleryColours read = galleryColoursFromName(value, GalleryColours::System);
    if (read == GalleryColours::System) {
        fail(tr("There is no palette \"%1\". The palettes are: light, dark, contrast.").arg(value));
        return;
    }
    colours = read;
}

void GalleryCommandLine::readLanguage(const QString &value)
{
    const QStringList codes = GalleryLanguages(translationsFolder()).codes();
    language = value;
    if (!language.isEmpty() && !codes.contains(language)) {
        fail(tr("There is no language \"%1\". The languages are: %2.")
                 .arg(language, codes.join(QStringLiteral(", "))));
    }
}

void GalleryCommandLine::fail(const QString &message)
{
    // Only the first mistake is told: one line.
    if (!code) {
        printError(message);
        code = EXIT_FAILURE;
    }
}
