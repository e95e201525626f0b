#pragma once

#include <QIcon>

/// The gallery's icon, three overlapping discs of colour, painted for the usual sizes and for
/// their doubles on screens of high resolution. Needs a QGuiApplication.
[[nodiscard]] QIcon galleryIcon();
