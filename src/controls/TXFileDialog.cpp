#include "TXFileDialog.h"

#include "FileDialogMemory.h"
#include "GraphicalShell.h"

QString TXFileDialog::getExistingDirectory(QWidget *parent, const QString &caption,
                                           const QString &dir, QFileDialog::Options options,
                                           QString directoryKey)
{
    const FileDialogMemory memory(directoryKey);
    const QString folder =
        QFileDialog::getExistingDirectory(parent, caption, memory.start(dir), options);
    memory.storeFolder(folder);
    return folder;
}

QUrl TXFileDialog::getExistingDirectoryUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                           QFileDialog::Options options,
                                           const QList<QString> &supportedSchemes,
                                           QString directoryKey)
{
    const FileDialogMemory memory(directoryKey);
    const QUrl folder = QFileDialog::getExistingDirectoryUrl(parent, caption, memory.start(dir),
                                                             options, supportedSchemes);
    memory.storeUrl(folder);
    return folder;
}

QString TXFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                      const QString &filter, QString *selectedFilter,
                                      QFileDialog::Options options, QString directoryKey,
                                      QString filterKey)
{
    const FileDialogMemory memory(directoryKey, filterKey, selectedFilter);
    memory.recallFilter();
    const QString file = QFileDialog::getOpenFileName(parent, caption, memory.start(dir), filter,
                                                      selectedFilter, options);
    memory.storeFolderOf(file);
    memory.storeFilter();
    return file;
}

QList<QString> TXFileDialog::getOpenFileNames(QWidget *parent, const QString &caption,
                                              const QString &dir, const QString &filter,
                                              QString *selectedFilter, QFileDialog::Options options,
                                              QString directoryKey, QString filterKey)
{
    const FileDialogMemory memory(directoryKey, filterKey, selectedFilter);
    memory.recallFilter();
    const QList<QString> files = QFileDialog::getOpenFileNames(parent, caption, memory.start(dir),
                                                               filter, selectedFilter, options);
    if (!files.isEmpty()) {
        memory.storeFolderOf(files.first());
    }
    memory.storeFilter();
    return files;
}

QString TXFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                      const QString &filter, QString *selectedFilter,
                                      QFileDialog::Options options, QString directoryKey,
                                      QString filterKey)
{
    const FileDialogMemory memory(directoryKey, filterKey, selectedFilter);
    memory.recallFilter();
    const QString file = QFileDialog::getSaveFileName(parent, caption, memory.start(dir), filter,
                                                      selectedFilter, options);
    memory.storeFolderOf(file);
    memory.storeFilter();
    return file;
}

QUrl TXFileDialog::getOpenFileUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                  const QString &filter, QString *selectedFilter,
                                  QFileDialog::Options options,
                                  const QList<QString> &supportedSchemes, QString directoryKey,
                                  QString filterKey)
{
    const FileDialogMemory memory(directoryKey, filterKey, selectedFilter);
    memory.recallFilter();
    const QUrl file = QFileDialog::getOpenFileUrl(parent, caption, memory.start(dir), filter,
                                                  selectedFilter, options, supportedSchemes);
    memory.storeUrl(file);
    memory.storeFilter();
    return file;
}

QList<QUrl> TXFileDialog::getOpenFileUrls(QWidget *parent, const QString &caption, const QUrl &dir,
                                          const QString &filter, QString *selectedFilter,
                                          QFileDialog::Options options,
                                          const QList<QString> &supportedSchemes,
                                          QString directoryKey, QString filterKey)
{
    const FileDialogMemory memory(directoryKey, filterKey, selectedFilter);
    memory.recallFilter();
    const QList<QUrl> files = QFileDialog::getOpenFileUrls(
        parent, caption, memory.start(dir), filter, selectedFilter, options, supportedSchemes);
    if (!files.isEmpty()) {
        memory.storeUrl(files.first());
    }
    memory.storeFilter();
    return files;
}

QUrl TXFileDialog::getSaveFileUrl(QWidget *parent, const QString &caption, const QUrl &dir,
                                  const QString &filter, QString *selectedFilter,
                                  QFileDialog::Options options,
                                  const QList<QString> &supportedSchemes, QString directoryKey,
                                  QString filterKey)
{
    const FileDialogMemory memory(directoryKey, filterKey, selectedFilter);
    memory.recallFilter();
    const QUrl file = QFileDialog::getSaveFileUrl(parent, caption, memory.start(dir), filter,
                                                  selectedFilter, options, supportedSchemes);
    memory.storeUrl(file);
    memory.storeFilter();
    return file;
}

bool TXFileDialog::showInGraphicalShell(const QString &path)
{
    return GraphicalShell::show(path);
}
