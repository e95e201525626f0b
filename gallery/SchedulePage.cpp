#include "SchedulePage.h"

SchedulePage::SchedulePage(QWidget *parent)
    : GalleryPage(parent)
{
    retranslate();
}

QString SchedulePage::description() const
{
    return {};
}

void SchedulePage::retranslate() { }
