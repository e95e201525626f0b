#include "FileDigests.h"

#include "RegularFile.h"
#include "ShortText.h"

#include "ICompletionDelegate.h"
#include "TXStringI18n.h"

#include <QByteArrayView>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>

#include <algorithm>

namespace {

constexpr qint64 kBlockBytes = 65536;
constexpr double kWholePercent = 100;
/// 100 is for the end alone.
constexpr double kNearlyDonePercent = 99.9;
constexpr int kNameLength = 24;

TXStringI18n text(const char *source)
{
    return {"FileDigests", source, nullptr, -1};
}

} // namespace

FileDigests::FileDigests(ICompletionDelegate *progress, QObject *parent)
    : QObject(parent)
    , progress(progress)
{ }

FileDigests::~FileDigests()
{
    cancel();
    pool.waitForDone();
}

bool FileDigests::start(const QStringList &folders, int threads)
{
    if (running || folders.isEmpty()) {
        return false;
    }
    running = true;
    reset();
    threadCount = std::clamp(threads, 1, kMaximumThreads);
    pool.setMaxThreadCount(threadCount);
    progress->onMessageUpdated({}, text(QT_TRANSLATE_NOOP("FileDigests", "Looking for files")));
    progress->onProgressionUpdated({}, 0);
    pool.start([this, folders] { find(folders); });
    return true;
}

void FileDigests::cancel()
{
    isCancelled = true;
}

void FileDigests::endRun()
{
    running = false;
    // What is no longer needed may be much.
    entries = {};
    digests = {};
    emit finished(!isIncomplete);
}

void FileDigests::reset()
{
    isCancelled = false;
    isIncomplete = false;
    totalBytes = 0;
    nextEntry = 0;
    for (std::atomic<qint64> *number : {&passedBytes, &files, &bytes, &copies, &unreadable}) {
        *number = 0;
    }
}

/// The last thing before the threads start that read what it has found.
void FileDigests::find(const QStringList &folders)
{
    for (const QString &folder : folders) {
        findIn(folder);
    }
    openThreads = threadCount;
    for (int i = 0; i < threadCount; ++i) {
        pool.start([this] { work(); });
    }
}

void FileDigests::findIn(const QString &folder)
{
    // Folders too, or cancel() would have to wait for the next file.
    QDirIterator walk(
        folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::NoSymLinks,
        QDirIterator::Subdirectories);
    while (!isCancelled && entries.size() < kMaximumFiles && walk.hasNext()) {
        const QString path = walk.next();
        if (walk.fileInfo().isDir()) {
            continue;
        }
        const qint64 size = walk.fileInfo().size();
        entries.append({path, size});
        totalBytes += double(size);
    }
    if (isCancelled) {
        isIncomplete = true;
    }
}

void FileDigests::work()
{
    for (qsizetype i = nextEntry++; i < entries.size(); i = nextEntry++) {
        read(entries.at(i));
    }
    // Each report of a thread is before its step down, so that the last one's 100 stays.
    if (--openThreads == 0) {
        progress->onProgressionUpdated({}, float(kWholePercent));
        QMetaObject::invokeMethod(this, "endRun", Qt::QueuedConnection);
    }
}

void FileDigests::read(const Entry &entry)
{
    if (isCancelled) {
        isIncomplete = true;
        return;
    }
    report(entry.path);
    qint64 readBytes = 0;
    const QByteArray digest = digestOf(entry, &readBytes);
    if (isCancelled) {
        // It may be half a digest.
        isIncomplete = true;
        return;
    }
    // What could not be read is behind us, too.
    advance(entry.size - readBytes);
    if (digest.isEmpty()) {
        ++unreadable;
        return;
    }
    ++files;
    if (readBytes > 0) {
        const QMutexLocker locker(&mutex);
        const qsizetype before = digests.size();
        digests.insert(digest);
        copies += digests.size() == before ? 1 : 0;
    }
}

/// Empty when the file could not be read.
QByteArray FileDigests::digestOf(const Entry &entry, qint64 *readBytes)
{
    QFile file(entry.path);
    // It may have become a pipe, which would keep us waiting.
    if (isNoRegularFile(entry.path) || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {};
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray block(qsizetype(std::min(kBlockBytes, entry.size)), Qt::Uninitialized);
    while (!isCancelled && *readBytes < entry.size) {
        const qint64 wanted = std::min(kBlockBytes, entry.size - *readBytes);
        const qint64 got = file.read(block.data(), wanted);
        if (got < 0) {
            return {};
        }
        if (got == 0) {
            break;
        }
        hash.addData(QByteArrayView(block).first(got));
        *readBytes += got;
        bytes += got;
        advance(got);
    }
    return hash.result();
}

void FileDigests::advance(qint64 byteCount)
{
    const qint64 passed = passedBytes += byteCount;
    const double percent = totalBytes > 0 ? double(passed) / totalBytes * kWholePercent : 0;
    progress->onProgressionUpdated({}, float(std::clamp(percent, 0.0, kNearlyDonePercent)));
}

void FileDigests::report(const QString &path)
{
    const QString name = startOf(QFileInfo(path).fileName(), kNameLength);
    progress->onMessageUpdated({}, text(QT_TRANSLATE_NOOP("FileDigests", "Reading %1")).arg(name));
}
