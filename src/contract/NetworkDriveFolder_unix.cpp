#include "DriveLetters.h"
#include "NetworkDriveFolder.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The folder while it is open. Qt's own classes would look at what the links in it lead to.
class OpenFolder
{
public:
    OpenFolder()
        : descriptor(::open(QFile::encodeName(NetworkDriveFolder::path()).constData(),
                            O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC))
    { }

    ~OpenFolder()
    {
        if (isOpen()) {
            ::close(descriptor);
        }
    }

    OpenFolder(const OpenFolder &) = delete;
    OpenFolder &operator=(const OpenFolder &) = delete;
    OpenFolder(OpenFolder &&) = delete;
    OpenFolder &operator=(OpenFolder &&) = delete;

    [[nodiscard]] bool isOpen() const { return descriptor >= 0; }

    [[nodiscard]] QByteArray target(const QByteArray &name) const
    {
        QByteArray text(PATH_MAX, '\0');
        const ssize_t size =
            ::readlinkat(descriptor, name.constData(), text.data(), size_t(text.size()));
        return text.left(std::max<ssize_t>(size, 0));
    }

    [[nodiscard]] bool place(const QByteArray &name, const QByteArray &target) const
    {
        return ::symlinkat(target.constData(), descriptor, name.constData()) == 0;
    }

    void remove(const QByteArray &name) const { ::unlinkat(descriptor, name.constData(), 0); }

    /// Reads the entries; call it once.
    [[nodiscard]] QList<QChar> letters();

private:
    int descriptor;
};

QByteArray linkName(QChar letter)
{
    return DriveLetters::mountPoint(letter).left(1).toLatin1();
}

QList<QChar> OpenFolder::letters()
{
    QList<QChar> found;
    DIR *const entries = ::fdopendir(descriptor);
    while (const dirent *entry = entries != nullptr ? ::readdir(entries) : nullptr) {
        const QChar first = QLatin1Char(entry->d_name[0]);
        if (QByteArray(entry->d_name) == linkName(first)) {
            found.append(first);
        }
    }
    if (entries != nullptr) {
        // Closes the descriptor too.
        ::closedir(entries);
        descriptor = -1;
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

QList<QChar> NetworkDriveFolder::letters()
{
    OpenFolder folder;
    return folder.isOpen() ? folder.letters() : QList<QChar>();
}

QString NetworkDriveFolder::target(QChar letter)
{
    const OpenFolder folder;
    return folder.isOpen() ? QFile::decodeName(folder.target(linkName(letter))) : QString();
}

bool NetworkDriveFolder::place(QChar letter, const QString &newTarget)
{
    const QByteArray name = linkName(letter);
    const QByteArray wanted = QFile::encodeName(newTarget);
    if (name.isEmpty() || wanted.isEmpty() || wanted.contains('\0')) {
        return false;
    }
    // It may be there already.
    ::mkdir(QFile::encodeName(path()).constData(), S_IRWXU);
    const OpenFolder folder;
    return folder.isOpen() && (folder.place(name, wanted) || folder.target(name) == wanted);
}

void NetworkDriveFolder::remove(QChar letter, const QString &oldTarget)
{
    const OpenFolder folder;
    const QByteArray name = linkName(letter);
    const QByteArray leadsTo = folder.isOpen() ? folder.target(name) : QByteArray();
    if (!leadsTo.isEmpty() && leadsTo == QFile::encodeName(oldTarget)) {
        folder.remove(name);
    }
}
