#pragma once

#include "GalleryAppearance.h"

#include <QByteArray>
#include <QString>

/// What the gallery remembers from one run to the next, in the application's default QSettings
/// under keys that begin with "Gallery/". A value that was never written, or was damaged, reads as
/// the default.
struct GallerySettings
{
    /// For QWidget::restoreGeometry(); empty by default.
    QByteArray geometry;
    /// Name of the page that was shown last; empty by default, and may no longer exist.
    QString page;
    /// System by default.
    GalleryColours colours = GalleryColours::System;
    /// Key of a style; empty, the system's, by default.
    QString style;
    /// Code of a language; empty, the system's, by default.
    QString language;

    [[nodiscard]] static GallerySettings load();
    void save() const;
};
