#include "LocalisationUpdater.h"

#include "ApplicationFonts.h"
#include "ApplicationTranslator.h"
#include "FilePathUtilities.h"
#include "StyleSheetUrls.h"
#include "TXDialogDirectories.h"
#include "TXError.h"
#include "TXFileDialog.h"
#include "TXLocalisationUtility.h"
#include "TXLogPrint.h"
#include "TranslationFile.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <optional>
#include <utility>

namespace {

enum ImportResult { Copied = 0, Failed = 1, Cancelled = 2 };

// Qt takes 30 to 100 bytes of memory for each byte of a sheet.
constexpr qint64 kLargestSheetBytes = qint64(32) * 1024 * 1024;

void fill(TXError *error, const QString &domain, const TXStringI18n &description)
{
    if (error) {
        error->code = 0;
        error->domain = domain;
        error->setDescription(description);
    }
}

QString importDirectoryKey()
{
    return QStringLiteral("ImportLocalisationFilePath");
}

QString askForTranslation(QWidget *parent)
{
    return TXFileDialog::getOpenFileName(
        parent, QCoreApplication::translate("QObject", "Select your translation file"),
        getOpenDialogDirectoryForKey(importDirectoryKey()), QStringLiteral("*.qm"), nullptr, {},
        QString(), QString());
}

/// False where removing and copying would do harm: a pipe would be waited for without end, without
/// a folder the file would go to the root of the disk, and what is copied onto itself would be
/// gone.
bool mayBeCopied(const QFileInfo &chosen, const QString &folder, const QFileInfo &destination)
{
    const bool isSpecial = chosen.exists() && !chosen.isFile();
    // Qt warns of a name with a NUL.
    return !isSpecial && !folder.isEmpty() && !folder.contains(QChar::Null)
        && chosen != destination;
}

bool copyOver(const QString &chosen, const QString &destination)
{
    if (QFile::exists(destination)) {
        FilePathUtilities::remove(destination);
    }
    return QFile::copy(chosen, destination);
}

/// The chain of arguments would take a "%1" in the name for a place of its own, also where the name
/// ends the destination. So each percent sign goes in as the highest marker, which comes last.
TXStringI18n copyFailure(const QString &name, const QString &destination)
{
    const TXStringI18n text("QObject", "Impossible to copy file %1 in this folder %2", nullptr, -1);
    const QString percent = QStringLiteral("%");
    if (!name.contains(percent)) {
        return text.arg(name).arg(destination);
    }
    const QString marker = QStringLiteral("%99");
    return text.arg(QString(name).replace(percent, marker))
        .arg(QString(destination).replace(percent, marker))
        .arg(percent);
}

void tellCopyFailure(const QString &name, const QString &destination, TXError *error)
{
    TXLogDebug(QStringLiteral("Impossible to copy file in this folder %1").arg(destination));
    fill(error, QStringLiteral("LocalisationDomainError"),
         copyFailure(name, QDir(destination).absolutePath()));
}

/// Nothing where there is no file that opens. A file beyond the limit counts as one, since the
/// memory for it may not be there.
std::optional<QByteArray> readSheet(const QString &path)
{
    if (path.contains(QChar::Null)) {
        return {};
    }
    QFile file(path);
    // To open a pipe would wait for somebody who writes.
    if (!QFileInfo(path).isFile() || file.size() > kLargestSheetBytes
        || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return file.readAll();
}

/// Only a program with widgets can have a style sheet.
bool applySheet(const QString &relativePath)
{
    auto *application = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (!application) {
        return false;
    }
    const QString folder = QCoreApplication::applicationDirPath();
    const std::optional<QByteArray> sheet = readSheet(folder + u'/' + relativePath);
    if (!sheet) {
        return false;
    }
    application->setStyleSheet(StyleSheetUrls::below(folder, QString::fromUtf8(*sheet)));
    return true;
}

void loadFonts()
{
    // Without an application nothing tells where the program is.
    if (QCoreApplication::instance()) {
        ApplicationFonts::load(QCoreApplication::applicationDirPath()
                               + QStringLiteral("/../Resources/Fonts/"));
    }
}

} // namespace

int LocalisationUpdater::updateLocalisationFile(const QString &localisationFolder, TXError *error,
                                                QWidget *parent)
{
    // Qt ends a program that makes a dialog without this.
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        return Cancelled;
    }
    const QString chosen = askForTranslation(parent);
    if (chosen.isEmpty()) {
        return Cancelled;
    }
    const QString name = QFileInfo(chosen).fileName();
    const QString destination = QDir::cleanPath(localisationFolder + u'/' + name);
    const bool isCopied = mayBeCopied(QFileInfo(chosen), localisationFolder, QFileInfo(destination))
        && copyOver(chosen, destination);
    if (!isCopied) {
        tellCopyFailure(name, destination, error);
    }
    saveOpenDialogDirectoryForKey(importDirectoryKey(), chosen);
    return isCopied ? Copied : Failed;
}

QSharedPointer<QTranslator> LocalisationUpdater::updateLocalisationOfApp(const QString &module,
                                                                         QString language,
                                                                         TXError *error)
{
    const QString path = TXLocalisationUtility::getLocalisationFile(module, std::move(language));
    QCoreApplication *application = QCoreApplication::instance();
    if (!application || path.isEmpty()) {
        return {};
    }
    const QFileInfo info(path);
    const QSharedPointer<QTranslator> result(new ApplicationTranslator(application));
    // A damaged file would end the program, while Qt loads it or at one of the next texts.
    if (!TranslationFile::isHarmless(info.fileName(), info.absolutePath())
        || !result->load(info.fileName(), info.absolutePath(), QString(), QString())) {
        fill(error, QStringLiteral("LocalisationErrorDomain"),
             TXStringI18n("Translation file %1 failed to load").arg(info.absoluteFilePath()));
        return {};
    }
    QCoreApplication::installTranslator(result.data());
    return result;
}

bool LocalisationUpdater::updateCSSFileOfApp(TXError *error, const QString &styleFile)
{
    const bool isApplied = applySheet(
        styleFile.isEmpty() ? QStringLiteral("../Resources/Templates/TovraStyle.css") : styleFile);
    if (!isApplied) {
        fill(error, QStringLiteral("CSSFileLoading"),
             TXStringI18n("QObject", "No Style has been loaded.", nullptr, -1));
    }
    loadFonts();
    return isApplied;
}
