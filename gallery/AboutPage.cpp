#include "AboutPage.h"

AboutPage::AboutPage(QWidget *parent)
    : GalleryPage(parent)
{
    retranslate();
}

QString AboutPage::description() const
{
    return {};
}

void AboutPage::retranslate() { }
