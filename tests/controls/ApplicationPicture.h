#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

/// A picture in the "../Resources/Images/" of the running test, of one colour, for as long as this
/// lives.
class ApplicationPicture
{
public:
    ApplicationPicture(const QString &name, const QSize &size, const QColor &colour)
        : path(pathOf(name))
    {
        QImage picture(size, QImage::Format_ARGB32);
        picture.fill(colour);
        isThere = QDir().mkpath(QFileInfo(path).path()) && picture.save(path);
    }

    ApplicationPicture(const ApplicationPicture &) = delete;
    ApplicationPicture &operator=(const ApplicationPicture &) = delete;

    ~ApplicationPicture() { QFile::remove(path); }

    /// Where the program looks for a picture of this name.
    static QString pathOf(const QString &name)
    {
        return QDir::cleanPath(QCoreApplication::applicationDirPath()
                               + QStringLiteral("/../Resources/Images/") + name);
    }

    /// False when it could not be written.
    [[nodiscard]] bool isInstalled() const { return isThere; }

private:
    QString path;
    bool isThere = false;
};
