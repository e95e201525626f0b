#include "BusyPage.h"

BusyPage::BusyPage(QWidget *parent)
    : GalleryPage(parent)
{
    retranslate();
}

QString BusyPage::description() const
{
    return {};
}

void BusyPage::retranslate() { }
