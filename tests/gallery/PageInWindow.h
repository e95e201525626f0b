#pragma once

#include "GalleryLanguages.h"
#include "GalleryPage.h"
#include "GallerySettings.h"
#include "GalleryWindow.h"
#include "PageChecks.h"

/// @file
/// Checks of a page in the gallery's own window, with the strip and the list of pages around it.

/// The mnemonics that two widgets would share while this page is in front. Empty is good.
inline QStringList mnemonicsClashingAt(const QString &pageName)
{
    GallerySettings settings;
    settings.page = pageName;
    GalleryLanguages languages(QString{});
    const GalleryWindow window(languages, settings);
    const GalleryPage *page = window.currentPage();
    if (page == nullptr || mnemonicsOn(*page) == 0) {
        return {QStringLiteral("no page with mnemonics: ") + pageName};
    }
    return clashingMnemonics(window);
}
