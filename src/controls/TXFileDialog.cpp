#include "TXFileDialog.h"

#include "GraphicalShell.h"

#include <QFileInfo>
#include <QSettings>

namespace {

// The two halves of the memory: what is recalled before a dialog, and what is stored after it.

QString startPath(const QString &dir, const QString &key)
{
    const QSettings settings;
    if (key.isEmpty() || !settings.contains(key)) {
        return dir;
    }
    const QString remembered = settings.value(key).toString();
    if (QFileInfo(dir).isDir()) {
        return remembered;
    }
    return remembered + u'/' + QFileInfo(dir).fileName();
}

QString textOf(const QUrl &url)
{
    return url.toString(QUrl::FullyEncoded | QUrl::RemoveUserInfo | QUrl::RemovePort);
}

QUrl startUrl(const QUrl &dir, const QString &key)
{
    return QUrl(startPath(textOf(dir), key), QUrl::TolerantMode);
}

QString folderOf(const QString &file)
{
    return QFileInfo(file).absolutePath();
}

void storeDirectory(const QString &key, const QString &directory)
{
    if (!key.isEmpty() && !directory.isEmpty()) {
        QSettings().setValue(key, directory);
    }
}

void recallFilter(QString *selectedFilter, const QString &key)
{
    const QSettings settings;
    if (!key.isEmpty() && selectedFilter != nullptr && settings.contains(key)) {
        *selectedFilter = settings.value(key).toString();
    }
}

void storeFilter(const QString *selectedFilter, const QString &key)
{
    if (!key.isEmpty() && selectedFilter != nullptr && !selectedFilter->isEmpty()) {
        QSettings().setValue(key, *selectedFilter);
    }
}

} // namespace

QString TXFileDialog::getExistingDirectory(QWidget *parent, const QString &caption,
                                           const QString &dir, QFileDialog::Options options,
                                           QString directoryKey)
{
    const QString folder =
        QFileDialog::getExistingDirectory(parent, caption, startPath(dir, directoryKey), options);
    storeDirectory(directoryKey, folder);
    return folder;
}

QUrl TXFileDialog::getExistingDirectoryUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                           QFileDialog::Options options,
                                           const QList<QString> &supportedSchemes,
                                           QString directoryKey)
{
    const QUrl folder = QFileDialog::getExistingDirectoryUrl(
        parent, caption, startUrl(dir, directoryKey), options, supportedSchemes);
    storeDirectory(directoryKey, textOf(folder));
    return folder;
}

QString TXFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                      const QString &filter, QString *selectedFilter,
                                      QFileDialog::Options options, QString directoryKey,
                                      QString filterKey)
{
    recallFilter(selectedFilter, filterKey);
    const QString file = QFileDialog::getOpenFileName(parent, caption, startPath(dir, directoryKey),
                                                      filter, selectedFilter, options);
    if (!file.isEmpty()) {
        storeDirectory(directoryKey, folderOf(file));
    }
    storeFilter(selectedFilter, filterKey);
    return file;
}

QList<QString> TXFileDialog::getOpenFileNames(QWidget *parent, const QString &caption,
                                              const QString &dir, const QString &filter,
                                              QString *selectedFilter, QFileDialog::Options options,
                                              QString directoryKey, QString filterKey)
{
    recallFilter(selectedFilter, filterKey);
    const QList<QString> files = QFileDialog::getOpenFileNames(
        parent, caption, startPath(dir, directoryKey), filter, selectedFilter, options);
    if (!files.isEmpty()) {
        storeDirectory(directoryKey, folderOf(files.first()));
    }
    storeFilter(selectedFilter, filterKey);
    return files;
}

QString TXFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                      const QString &filter, QString *selectedFilter,
                                      QFileDialog::Options options, QString directoryKey,
                                      QString filterKey)
{
    recallFilter(selectedFilter, filterKey);
    const QString file = QFileDialog::getSaveFileName(parent, caption, startPath(dir, directoryKey),
                                                      filter, selectedFilter, options);
    if (!file.isEmpty()) {
        storeDirectory(directoryKey, folderOf(file));
    }
    storeFilter(selectedFilter, filterKey);
    return file;
}

QUrl TXFileDialog::getOpenFileUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                  const QString &filter, QString *selectedFilter,
                                  QFileDialog::Options options,
                                  const QList<QString> &supportedSchemes, QString directoryKey,
                                  QString filterKey)
{
    recallFilter(selectedFilter, filterKey);
    const QUrl file =
        QFileDialog::getOpenFileUrl(parent, caption, startUrl(dir, directoryKey), filter,
                                    selectedFilter, options, supportedSchemes);
    storeDirectory(directoryKey, textOf(file));
    storeFilter(selectedFilter, filterKey);
    return file;
}

QList<QUrl> TXFileDialog::getOpenFileUrls(QWidget *parent, const QString &caption, const QUrl &dir,
                                          const QString &filter, QString *selectedFilter,
                                          QFileDialog::Options options,
                                          const QList<QString> &supportedSchemes,
                                          QString directoryKey, QString filterKey)
{
    recallFilter(selectedFilter, filterKey);
    const QList<QUrl> files =
        QFileDialog::getOpenFileUrls(parent, caption, startUrl(dir, directoryKey), filter,
                                     selectedFilter, options, supportedSchemes);
    if (!files.isEmpty()) {
        storeDirectory(directoryKey, textOf(files.first()));
    }
    storeFilter(selectedFilter, filterKey);
    return files;
}

QUrl TXFileDialog::getSaveFileUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                  const QString &filter, QString *selectedFilter,
                                  QFileDialog::Options options,
                                  const QList<QString> &supportedSchemes, QString directoryKey,
                                  QString filterKey)
{
    recallFilter(selectedFilter, filterKey);
    const QUrl file =
        QFileDialog::getSaveFileUrl(parent, caption, startUrl(dir, directoryKey), filter,
                                    selectedFilter, options, supportedSchemes);
    storeDirectory(directoryKey, textOf(file));
    storeFilter(selectedFilter, filterKey);
    return file;
}

bool TXFileDialog::showInGraphicalShell(const QString &path)
{
    return GraphicalShell::show(path);
}
