#include "VariantPage.h"

VariantPage::VariantPage(QWidget *parent)
    : GalleryPage(parent)
{ }

QString VariantPage::description() const
{
    return tr(
        "A value of any depth as one line of coloured text, which folds open level by level: the "
        "settings of this gallery, a JSON file, or the live answer of an update service.");
}

void VariantPage::retranslate() { }
