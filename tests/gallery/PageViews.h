#pragma once

#include "DictionaryView.h"
#include "GalleryPages.h"
#include "PagePlugins.h"
#include "PagesPage.h"
#include "PluginPanel.h"

#include <QCoreApplication>
#include <QTreeWidget>

/// @file
/// Every page as the gallery shows it: the one of the plug-ins once with each of them.

/// What the gallery shows in one of its states.
struct PageView
{
    /// What the row of a test is called.
    QByteArray name;
    /// The page's name.
    QString page;
    /// The plug-in that is to be chosen, or empty on a page that has none.
    QString plugin;
};

/// A view of each page, and of each plug-in.
inline QList<PageView> pageViews()
{
    QList<PageView> views;
    for (const GalleryPageEntry &entry : galleryPages()) {
        if (entry.name() != u"pages") {
            views.append({entry.id, entry.name(), QString()});
            continue;
        }
        for (const char *plugin : {"ColourPreferences", "ReportPreferences"}) {
            views.append(
                {QByteArray(entry.id) + ", " + plugin, entry.name(), QString::fromLatin1(plugin)});
        }
    }
    return views;
}

/// Lets the page of the plug-ins, when it is made, find those of the gallery.
inline void useGalleryPlugins()
{
    PagesPage::setUsualPluginFolder(pagePluginsFolder());
}

/// Chooses the plug-in of the view in the window that shows its page. False when the page does not
/// offer it.
inline bool choosePlugin(const QWidget &window, const QString &plugin)
{
    if (plugin.isEmpty()) {
        return true;
    }
    constexpr int kNameColumn = 1;
    const auto *panel = window.findChild<PluginPanel *>();
    const auto lists = panel ? panel->findChildren<QTreeWidget *>() : QList<QTreeWidget *>();
    for (QTreeWidget *list : lists) {
        const auto rows = list->findItems(plugin, Qt::MatchExactly, kNameColumn);
        const bool isOffered = list->isVisibleTo(&window) && rows.size() == 1;
        if (isOffered && !qobject_cast<DictionaryView *>(list)) {
            list->setCurrentItem(rows.first());
            QCoreApplication::processEvents();
            return true;
        }
    }
    return false;
}
