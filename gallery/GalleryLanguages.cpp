#include "GalleryLanguages.h"

#include "LocalisationUpdater.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
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

/// What stands before the code: "txgallery" of "txgallery_fr.qm".
QString moduleOfFile(const QString &fileName, const QString &code)
{
    return fileName.chopped(code.size() + QLatin1String("_.qm").size());
}

QPointer<GalleryLanguages> &theInstance()
{
    static QPointer<GalleryLanguages> instance;
    return instance;
}

} // namespace

GalleryLanguages::GalleryLanguages(QString folder, Formats formats, QObject *parent)
    : QObject(parent)
    , folder(std::move(folder))
    , formats(formats)
    , code(kEnglish)
{
    theInstance() = this;
}

GalleryLanguages::~GalleryLanguages()
{
    removeTranslators();
    QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto);
}

GalleryLanguages *GalleryLanguages::instance()
{
    return theInstance();
}

QStringList GalleryLanguages::files() const
{
    QStringList names = QDir(folder).entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    names.removeIf([](const QString &name) { return codeOfFile(name).isEmpty(); });
    return names;
}

QStringList GalleryLanguages::codes() const
{
    QStringList result;
    const QStringList names = files();
    for (const QString &name : names) {
        result.append(codeOfFile(name));
    }
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
    // Where the code is of no country, its name says none: not "español de España".
    if (!code.contains(u'_') && name.contains(locale.nativeTerritoryName())) {
        name = name.section(u' ', 0, 0);
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
    // Qt knows the direction only where its own texts are installed.
    QGuiApplication::setLayoutDirection(locale().textDirection());
    removeTranslators();
    failures.clear();
    if (code != kEnglish) {
        installQtTexts();
        installModules();
    }
    emit changed();
    return true;
}

void GalleryLanguages::lookAgain()
{
    if (!use(code)) {
        use(kEnglish);
    }
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
    // Who deletes a translator takes it out of the application.
    translators.clear();
}

/// Qt's texts lie with Qt, not beside the program.
void GalleryLanguages::installQtTexts()
{
    const auto translator = QSharedPointer<QTranslator>::create();
    if (translator->load(QStringLiteral("%1/qtbase_%2.qm")
                             .arg(QLibraryInfo::path(QLibraryInfo::TranslationsPath), code))) {
        QCoreApplication::installTranslator(translator.get());
        translators.append(translator);
    }
}

void GalleryLanguages::installModules()
{
    const QStringList names = modules();
    for (const QString &module : names) {
        TXError error;
        const auto translator = LocalisationUpdater::updateLocalisationOfApp(module, code, &error);
        if (translator) {
            translators.append(translator);
        } else if (error.isValid()) {
            failures.append(error);
        }
    }
}

/// The library and the gallery are asked for without a look at the files: there may be texts for
/// the language where there are none for its country.
QStringList GalleryLanguages::modules() const
{
    QStringList result = {QStringLiteral("txguicommon"), QStringLiteral("txgallery")};
    const QStringList names = files();
    for (const QString &name : names) {
        if (codeOfFile(name) == code) {
            result.append(moduleOfFile(name, code));
        }
    }
    result.removeDuplicates();
    return result;
}
