#include "ContainersPage.h"

ContainersPage::ContainersPage(QWidget *parent)
    : GalleryPage(parent)
{
    retranslate();
}

QString ContainersPage::description() const
{
    return {};
}

void ContainersPage::retranslate() { }
