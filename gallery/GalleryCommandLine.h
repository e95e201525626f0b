#pragma once

#include "GalleryAppearance.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <optional>

/// What the user asked for on the command line, checked.
///
/// Made before the application object proper, so that help and mistakes are answered on a machine
/// without a screen too.
class GalleryCommandLine
{
    Q_DECLARE_TR_FUNCTIONS(GalleryCommandLine)

public:
    /// Reads and checks the arguments. Makes a QCoreApplication for the time of the call: no
    /// application object may exist yet. Help, version and mistakes are answered at once, on
    /// standard output or as one line on standard error; see exitCode().
    GalleryCommandLine(int argc, char **argv);

    /// Set when there is nothing left to do: 0 after help and version, 1 after a mistake.
    [[nodiscard]] std::optional<int> exitCode() const { return code; }

    /// Name of a page that exists, or empty when none was named.
    QString page;
    /// Where pictures go, or empty when none are wanted.
    QString grabTarget;
    /// Key of QStyleFactory, or empty when none was named.
    QString style;
    /// The palette, when one was named.
    std::optional<GalleryColours> colours;
    /// Code that GalleryLanguages knows, or empty when none was named.
    QString language;

    /// Where the gallery's translations lie. Needs an application object.
    [[nodiscard]] static QString translationsFolder();

    /// Writes "TXGallery: <message>" as one line to standard error.
    static void printError(const QString &message);

private:
    void read(const QStringList &arguments);
    void readPage(const QString &value);
    void readStyle(const QString &value);
    void readColours(const QString &value);
    void readLanguage(const QString &value);
    void fail(const QString &message);

    std::optional<int> code;
};
