#pragma once

#include "TXError.h"

#include <QList>
#include <QLocale>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

class QTranslator;

/// The languages in which the gallery can speak: English, in which it is written, and each language
/// for which the translations folder holds a file named <anything>_<code>.qm, as txgallery_fr.qm or
/// txgallery_pt_BR.qm.
///
/// The texts are installed by LocalisationUpdater, for the library ("txguicommon"), the gallery
/// ("txgallery") and every other <anything> of the language.
///
/// There is one object, on the GUI thread; it owns the translators it has installed and takes them
/// away when it goes, and with them the direction of the windows.
class GalleryLanguages : public QObject
{
    Q_OBJECT

public:
    /// How dates and numbers are written.
    enum class Formats {
        OfSystem, ///< as the user's system does it, where its language is the one in use
        OfLanguage, ///< as the language's first country does it, the same on every machine
    };

    /// The folder tells which languages there are; one that does not exist leaves English alone.
    /// Texts come from "../Resources/translations" beside the program, wherever the folder is.
    explicit GalleryLanguages(QString folder, Formats formats = Formats::OfSystem,
                              QObject *parent = nullptr);
    ~GalleryLanguages() override;

    /// The object there is, or null: for pages, which are made without knowing of it.
    [[nodiscard]] static GalleryLanguages *instance();

    /// The folder in which languages are found.
    [[nodiscard]] QString translationsFolder() const { return folder; }

    /// The names of the files from which codes() are read, sorted.
    [[nodiscard]] QStringList files() const;

    /// The codes to choose from: "en" first, the others sorted.
    [[nodiscard]] QStringList codes() const;

    /// The language's own name for itself, with its first letter in upper case and no country that
    /// the code does not say; the code where the language is not known.
    [[nodiscard]] static QString displayName(const QString &code);

    /// The code that fits the user's system best, "en" when none does.
    [[nodiscard]] QString systemCode() const;

    /// The code in use, "en" at first.
    [[nodiscard]] QString current() const { return code; }

    /// Takes the locale's dates and numbers and the language's texts, Qt's own among them where Qt
    /// is installed with its translations, and lays all windows out in the direction in which the
    /// language is written. All windows get QEvent::LanguageChange. A code that is
    /// not among codes() gives false and changes nothing. A file that cannot be loaded is told by
    /// errors() and left out; the others are installed all the same.
    bool use(const QString &newCode);

    /// What went wrong in the last use(), an error for each file; empty when all was well.
    [[nodiscard]] QList<TXError> errors() const { return failures; }

    /// Takes note of files that have come, changed or gone: installs the language in use again, or
    /// English when it is no longer there.
    void lookAgain();

signals:
    /// Emitted at the end of each use() that gave true, and so by lookAgain(): the language in use
    /// or those to choose from may have changed.
    void changed();

private:
    [[nodiscard]] QLocale locale() const;
    void removeTranslators();
    void installQtTexts();
    void installModules();
    [[nodiscard]] QStringList modules() const;

    QString folder;
    Formats formats;
    QString code;
    QList<QSharedPointer<QTranslator>> translators;
    QList<TXError> failures;
};
