#include "GalleryLanguages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <utility>

namespace {

const QString kEnglish = QStringLiteral("en");

/// The code at the end of a translation's file name, or an empty string.
QString codeOfFile(const QString &fileName)
{
    static const QRegularExpression pattern(QStringLiteral("_([a-z]{2,3}(?:_[A-Z]{2})?)\\.qm$"));
    return pattern.match(fileName).captured(1);
}

QStringList translationFiles(const QString &folder)
{
    return QDir(folder).entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
}

} // namespace

GalleryLanguages::GalleryLanguages(QString folder, Formats formats, QObject *parent)
    : QObject(parent)
    , folder(std::move(folder))
    , formats(formats)
    , code(kEnglish)
{ }

GalleryLanguages::~GalleryLanguages()
{
    removeTranslators();
}

QStringList GalleryLanguages::codes() const
{
    QStringList result;
    const QStringList files = translationFiles(folder);
    for (const QString &file : files) {
        result.append(codeOfFile(file));
    }
    result.removeAll(QString());
    result.removeAll(kEnglish);
    result.removeDuplicates();
    result.sort();
    result.prepend(kEnglish);
    return result;
}

QString GalleryLanguages::displayName(const QString &code)
{
    const QLocale locale(code);
    QString name = code == kEnglish ? QStringLiteral("English") : locale.nativeLanguageName();
    if (name.isEmpty()) {
        return code;
    }
    name[0] = name[0].toUpper();
    return name;
}

QString GalleryLanguages::systemCode() const
{
    const QStringList known = codes();
    const QStringList wanted = QLocale::system().uiLanguages();
    for (const QString &language : wanted) {
        QString name = QLocale(language).name();
        if (known.contains(name)) {
            return name;
        }
        QString shortName = name.section(QLatin1Char('_'), 0, 0);
        if (known.contains(shortName)) {
            return shortName;
        }
    }
    return kEnglish;
}

bool GalleryLanguages::use(const QString &newCode)
{
    if (!codes().contains(newCode)) {
        return false;
    }
    code = newCode;
    // First the locale: windows ask for it when they are told of the language.
    QLocale::setDefault(locale());
    removeTranslators();
    if (code == kEnglish) {
        return true;
    }
    installTranslator(QStringLiteral("%1/qtbase_%2.qm")
                          .arg(QLibraryInfo::path(QLibraryInfo::TranslationsPath), code));
    const QStringList files = translationFiles(folder);
    for (const QString &file : files) {
        if (codeOfFile(file) == code) {
            installTranslator(folder + QLatin1Char('/') + file);
        }
    }
    return true;
}

QLocale GalleryLanguages::locale() const
{
    const QLocale ofLanguage(code);
    const QLocale ofSystem = QLocale::system();
    const bool fits = ofSystem.language() == ofLanguage.language();
    return fits && formats == Formats::OfSystem ? ofSystem : ofLanguage;
}

void GalleryLanguages::removeTranslators()
{
    for (const std::unique_ptr<QTranslator> &translator : translators) {
        QCoreApplication::removeTranslator(translator.get());
    }
    translators.clear();
}

void GalleryLanguages::installTranslator(const QString &path)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(path)) {
        QCoreApplication::installTranslator(translator.get());
        translators.push_back(std::move(translator));
    }
}
