#pragma once

#include "TXGUICommonExport.h"

#include <QSharedPointer>
#include <QString>

class QTranslator;
class QWidget;
class TXError;

/// Language and style of a whole application: installs a translation, takes in translation files of
/// the user's, and applies the style sheet and the fonts that lie beside the program.
///
/// An error pointer may be null, then nothing is told beyond the result; it is written only by what
/// fails. Holds no state. Thread: the GUI thread.
class TXGUICOMMON_EXPORT LocalisationUpdater
{
public:
    LocalisationUpdater() = delete;

    /// Asks the user for a translation file and copies it into a folder, in place of a file of that
    /// name. The file that was chosen is remembered in the settings under
    /// "ImportLocalisationFilePath", also when the copy fails, and the next dialog opens in its
    /// folder. Nothing is installed, and nothing is looked at but the name.
    ///
    /// Gives 0 when the file was copied, 1 with an error of the domain "LocalisationDomainError"
    /// when that failed, 2 when the user cancelled, or cannot be asked as there is no QApplication;
    /// then nothing has happened. The folder is not made. The file in the folder is removed before
    /// the copy and stays so when the copy fails. It is left alone, and the copy fails, when the
    /// choice is that file itself, also by way of a link, or no regular file (a pipe, a device),
    /// and when the name of the folder is empty or holds a NUL.
    static int updateLocalisationFile(const QString &localisationFolder, TXError *error,
                                      QWidget *parent);

    /// Installs the translation "<module>_<language>.qm"; TXLocalisationUtility tells where it is
    /// looked for. It stays installed until the last copy of the result goes, or the application.
    /// It is a child of the application, and outlives it while there is a copy.
    ///
    /// Null without such a file and without an application, which is no error, and, with an error
    /// of the domain "LocalisationErrorDomain", when the file, or one that it names as its
    /// dependency, cannot be loaded or would make Qt read outside of it, and when there are more
    /// than 100 of them, as where a file depends on itself.
    static QSharedPointer<QTranslator> updateLocalisationOfApp(const QString &module,
                                                               QString language, TXError *error);

    /// Applies a style sheet in UTF-8 to the application, `styleFile` being its place as seen from
    /// the application's folder, or when it is empty "../Resources/Templates/TovraStyle.css". An
    /// absolute path is appended to that folder as well. Quoted places in the sheet, as in
    /// url('../Images/a.png'), are taken from the application's folder; unquoted ones are left as
    /// they are. Then, in any case, adds the fonts "*.ttf" of "../Resources/Fonts/", unusable ones
    /// silently; one that is there already from an earlier call is not added again. Without a
    /// QGuiApplication there are no fonts to add to.
    ///
    /// True when a sheet was applied, also when Qt cannot make sense of all of it: it then warns
    /// through its logging and shows the rules up to there. False, with an error of the domain
    /// "CSSFileLoading" and the present style kept, when there is no QApplication or no such file
    /// that can be read; one above 32 MiB is not read. Costs time in proportion to the sheet, and
    /// Qt's for each widget in proportion to the rules that match it.
    ///
    /// As long as a sheet is applied, Qt leaves the widgets there are in the palette they have. To
    /// change the application's palette, take the sheet away and set it again afterwards.
    static bool updateCSSFileOfApp(TXError *error, const QString &styleFile);
};
