#include "ImagesPage.h"

ImagesPage::ImagesPage(QWidget *parent)
    : GalleryPage(parent)
{ }

QString ImagesPage::description() const
{
    return tr("Pictures side by side at one scale and position: a colour chart, the same chart as "
              "a printer would show it, and how the two differ.");
}

void ImagesPage::retranslate() { }
