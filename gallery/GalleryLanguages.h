#pragma once

#include <QLocale>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

/// The languages in which the gallery can speak: English, in which it is written, and each language
/// for which the translations folder holds a file named <anything>_<code>.qm, as txgallery_fr.qm or
/// txgallery_pt_BR.qm.
///
/// There is one object, on the GUI thread; it owns the translators it has installed and takes them
/// away when it goes.
class GalleryLanguages : public QObject
{
    Q_OBJECT

public:
    /// How dates and numbers are written.
    enum class Formats {
        OfSystem, ///< as the user's system does it, where its language is the one in use
        OfLanguage, ///< as the language's first country does it, the same on every machine
    };

    /// A folder that does not exist leaves English alone.
    explicit GalleryLanguages(QString folder, Formats formats = Formats::OfSystem,
                              QObject *parent = nullptr);
    ~GalleryLanguages() override;

    /// The codes to choose from: "en" first, the others sorted.
    [[nodiscard]] QStringList codes() const;

    /// The language's own name for itself, with its first letter in upper case.
    [[nodiscard]] static QString displayName(const QString &code);

    /// The code that fits the user's system best, "en" when none does.
    [[nodiscard]] QString systemCode() const;

    /// The code in use, "en" at first.
    [[nodiscard]] QString current() const { return code; }

    /// Takes the locale's dates and numbers and the language's texts, Qt's own among them where Qt
    /// is installed with its translations. All windows get QEvent::LanguageChange. A code that is
    /// not among codes() gives false and changes nothing.
    bool use(const QString &newCode);

private:
    [[nodiscard]] QLocale locale() const;
    void removeTranslators();
    void installTranslator(const QString &path);

    QString folder;
    Formats formats;
    QString code;
    std::vector<std::unique_ptr<QTranslator>> translators;
};
