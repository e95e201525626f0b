#include "FileDialogMemory.h"

#include <QFileInfo>
#include <QSettings>

namespace {

QString storedText(const QString &key)
{
    return QSettings().value(key).toString();
}

QString storedPlace(const QString &key)
{
    const QString text = storedText(key);
    // Qt warns of every name with a NUL that it is to look for.
    return text.left(text.indexOf(QChar::Null));
}

QString textOf(const QUrl &url)
{
    return url.toString(QUrl::FullyEncoded | QUrl::RemoveUserInfo | QUrl::RemovePort);
}

} // namespace

FileDialogMemory::FileDialogMemory(const QString &directoryKey, const QString &filterKey,
                                   QString *selectedFilter)
    : directoryKey(directoryKey)
    , filterKey(filterKey)
    , selectedFilter(selectedFilter)
{ }

void FileDialogMemory::recallFilter() const
{
    if (hasFilter() && QSettings().contains(filterKey)) {
        *selectedFilter = storedText(filterKey);
    }
}

QString FileDialogMemory::start(const QString &dir) const
{
    if (directoryKey.isEmpty() || !QSettings().contains(directoryKey)) {
        return dir;
    }
    const QString remembered = storedPlace(directoryKey);
    const QFileInfo proposal(dir);
    return proposal.isDir() ? remembered : remembered + u'/' + proposal.fileName();
}

QUrl FileDialogMemory::start(const QUrl &dir) const
{
    const QString proposal = textOf(dir);
    const QString text = start(proposal);
    const QUrl url(text, QUrl::TolerantMode);
    // Qt would not find the place, and would open every later dialog there.
    const bool isDamaged = text != proposal && (!url.isValid() || url.isRelative());
    return isDamaged ? QUrl() : url;
}

void FileDialogMemory::storeFolder(const QString &folder) const
{
    if (!directoryKey.isEmpty() && !folder.isEmpty()) {
        QSettings().setValue(directoryKey, folder);
    }
}

void FileDialogMemory::storeFolderOf(const QString &file) const
{
    if (!file.isEmpty()) {
        storeFolder(QFileInfo(file).absolutePath());
    }
}

void FileDialogMemory::storeUrl(const QUrl &url) const
{
    storeFolder(textOf(url));
}

void FileDialogMemory::storeFilter() const
{
    if (hasFilter() && !selectedFilter->isEmpty()) {
        QSettings().setValue(filterKey, *selectedFilter);
    }
}

bool FileDialogMemory::hasFilter() const
{
    return !filterKey.isEmpty() && selectedFilter != nullptr;
}
