#pragma once

#include <QColor>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

/// A picture in the "../Resources/Images/" of the running test, for as long as this lives.
class ApplicationPicture
{
public:
    ApplicationPicture(const QString &name, const QImage &picture)
        : path(pathOf(name))
        , isThere(QDir().mkpath(QFileInfo(path).path()) && picture.save(path))
    { }

    /// One of one colour.
    ApplicationPicture(const QString &name, const QSize &size, const QColor &colour)
        : ApplicationPicture(name, filled(size, colour))
    { }

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
    static QImage filled(const QSize &size, const QColor &colour)
    {
        QImage picture(size, QImage::Format_ARGB32);
        picture.fill(colour);
        return picture;
    }

    QString path;
    bool isThere = false;
};
