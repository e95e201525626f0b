#include "GalleryPages.h"

#include "AboutPage.h"
#include "AccessPage.h"
#include "BusyPage.h"
#include "ColourDifferencePage.h"
#include "ContainersPage.h"
#include "ControlsPage.h"
#include "DatabasePage.h"
#include "DragDropPage.h"
#include "DrivesPage.h"
#include "ErrorsPage.h"
#include "FeedbackPage.h"
#include "FtpPage.h"
#include "ImagesPage.h"
#include "LanguagePage.h"
#include "ListsPage.h"
#include "LogPage.h"
#include "MailPage.h"
#include "PagesPage.h"
#include "ReportPage.h"
#include "SchedulePage.h"
#include "SelectionPage.h"
#include "UpdatePage.h"
#include "VariantPage.h"
#include "WebInterfacePage.h"

#include <QCoreApplication>

namespace {

template<class Page>
GalleryPage *make(QWidget *parent)
{
    return new Page(parent);
}

} // namespace

QString GalleryPageEntry::translatedTitle() const
{
    return QCoreApplication::translate("GalleryPages", title);
}

const QList<GalleryPageEntry> &galleryPages()
{
    static const QList<GalleryPageEntry> pages = {
        {"log", QT_TRANSLATE_NOOP("GalleryPages", "Log"), make<LogPage>},
        {"pages", QT_TRANSLATE_NOOP("GalleryPages", "Pages"), make<PagesPage>},
        {"errors", QT_TRANSLATE_NOOP("GalleryPages", "Errors"), make<ErrorsPage>},
        {"busy", QT_TRANSLATE_NOOP("GalleryPages", "Busy and progress"), make<BusyPage>},
        {"access", QT_TRANSLATE_NOOP("GalleryPages", "Access"), make<AccessPage>},
        {"controls", QT_TRANSLATE_NOOP("GalleryPages", "Controls"), make<ControlsPage>},
        {"lists", QT_TRANSLATE_NOOP("GalleryPages", "Lists and delegates"), make<ListsPage>},
        {"containers", QT_TRANSLATE_NOOP("GalleryPages", "Containers and labels"),
         make<ContainersPage>},
        {"dragdrop", QT_TRANSLATE_NOOP("GalleryPages", "Drag and drop"), make<DragDropPage>},
        {"selection", QT_TRANSLATE_NOOP("GalleryPages", "Selection bar"), make<SelectionPage>},
        {"mail", QT_TRANSLATE_NOOP("GalleryPages", "Mail"), make<MailPage>},
        {"ftp", QT_TRANSLATE_NOOP("GalleryPages", "FTP"), make<FtpPage>},
        {"database", QT_TRANSLATE_NOOP("GalleryPages", "Database"), make<DatabasePage>},
        {"web", QT_TRANSLATE_NOOP("GalleryPages", "Web interface"), make<WebInterfacePage>},
        {"schedule", QT_TRANSLATE_NOOP("GalleryPages", "Trigger and encoding"), make<SchedulePage>},
        {"drives", QT_TRANSLATE_NOOP("GalleryPages", "Drives"), make<DrivesPage>},
        {"update", QT_TRANSLATE_NOOP("GalleryPages", "Update"), make<UpdatePage>},
        {"report", QT_TRANSLATE_NOOP("GalleryPages", "Report"), make<ReportPage>},
        {"variant", QT_TRANSLATE_NOOP("GalleryPages", "Variant"), make<VariantPage>},
        {"images", QT_TRANSLATE_NOOP("GalleryPages", "Images"), make<ImagesPage>},
        {"difference", QT_TRANSLATE_NOOP("GalleryPages", "Colour difference"),
         make<ColourDifferencePage>},
        {"feedback", QT_TRANSLATE_NOOP("GalleryPages", "Feedback"), make<FeedbackPage>},
        {"language", QT_TRANSLATE_NOOP("GalleryPages", "Language and style"), make<LanguagePage>},
        {"about", QT_TRANSLATE_NOOP("GalleryPages", "Splash and About"), make<AboutPage>},
    };
    return pages;
}

int galleryPageRow(const QString &name)
{
    const QList<GalleryPageEntry> &pages = galleryPages();
    for (int row = 0; row < pages.size(); ++row) {
        if (pages[row].name() == name) {
            return row;
        }
    }
    return -1;
}
