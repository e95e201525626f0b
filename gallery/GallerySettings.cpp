#include "GallerySettings.h"

#include <QSettings>

namespace {

const QString kGeometry = QStringLiteral("Gallery/Geometry");
const QString kPage = QStringLiteral("Gallery/Page");
const QString kPalette = QStringLiteral("Gallery/Palette");
const QString kStyle = QStringLiteral("Gallery/Style");
const QString kLanguage = QStringLiteral("Gallery/Language");

} // namespace

GallerySettings GallerySettings::load()
{
    const QSettings store;
    GallerySettings settings;
    settings.geometry = store.value(kGeometry).toByteArray();
    settings.page = store.value(kPage).toString();
    settings.colours =
        galleryColoursFromName(store.value(kPalette).toString(), GalleryColours::System);
    settings.style = galleryStyleKey(store.value(kStyle).toString());
    settings.language = store.value(kLanguage).toString();
    return settings;
}

void GallerySettings::save() const
{
    QSettings store;
    store.setValue(kGeometry, geometry);
    store.setValue(kPage, page);
    store.setValue(kPalette, galleryColoursName(colours));
    store.setValue(kStyle, style);
    store.setValue(kLanguage, language);
}
