#pragma once

#include <QList>
#include <QString>

class GalleryPage;
class QWidget;

/// One line of the gallery's list of pages.
struct GalleryPageEntry
{
    /// Name on the command line, in the settings and of the picture's file: lower case, no spaces.
    const char *id;
    /// English title, marked for translation in the context "GalleryPages".
    const char *title;
    /// Makes the page as a child of the widget.
    GalleryPage *(*create)(QWidget *parent);

    [[nodiscard]] QString name() const { return QString::fromLatin1(id); }

    /// The title in the language of the moment.
    [[nodiscard]] QString translatedTitle() const;
};

/// All pages in the order in which they are listed. Never empty.
const QList<GalleryPageEntry> &galleryPages();

/// The row of the page in galleryPages(), or -1 when there is none of this name.
int galleryPageRow(const QString &name);
