#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class GalleryPage;
class GalleryWindow;
class QSaveFile;
class QWidget;

/// Takes pictures of the gallery's pages, and of the further windows that they name.
///
/// A picture shows the gallery's window at its first size, made taller when the page needs more
/// room, so that nothing of the page is cut off. It is taken as soon as the page says that it is
/// ready, and not before. Runs event loops; used once, on the GUI thread.
class GalleryGrabber
{
    Q_DECLARE_TR_FUNCTIONS(GalleryGrabber)

public:
    /// How long a page may take until it is ready, in milliseconds.
    static constexpr int kReadyLimitMilliseconds = 30000;

    /// The window stays the caller's and is shown by the grabber. When one page is named, the
    /// target is the file of its picture, with or without ".png"; otherwise, or when it is a folder
    /// that exists, it is the folder for a file <page>.png each. Missing folders are made.
    GalleryGrabber(GalleryWindow &window, QString target,
                   int readyLimitMilliseconds = kReadyLimitMilliseconds);

    /// Takes the picture of the page of this name, or of every page when it is empty, and prints
    /// the path of each file on standard output. False when a file cannot be written or a page is
    /// not ready in time; error() then tells why, and pictures already taken stay.
    bool grab(const QString &pageName);

    /// The reason of the failure, or empty.
    [[nodiscard]] QString error() const { return reason; }

private:
    bool makeFolder(const QString &folder);
    bool grabPage(const QString &pageName, const QString &basePath);
    bool waitUntilReady(GalleryPage &page, const QString &pageName);
    bool open(QSaveFile &file);
    bool save(QWidget &widget, QSaveFile &file);
    bool failToWrite(const QSaveFile &file);
    bool fail(const QString &message);

    GalleryWindow &window;
    QString target;
    int readyLimitMilliseconds;
    QString reason;
};
