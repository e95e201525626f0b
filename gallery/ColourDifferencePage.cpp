#include "ColourDifferencePage.h"

ColourDifferencePage::ColourDifferencePage(QWidget *parent)
    : GalleryPage(parent)
{ }

QString ColourDifferencePage::description() const
{
    return tr("How far two sets of colours of a chart are apart: as a bar, as swatches, and the "
              "spectrum behind a curve.");
}

void ColourDifferencePage::retranslate() { }
