#include "DragDropPage.h"

DragDropPage::DragDropPage(QWidget *parent)
    : GalleryPage(parent)
{
    retranslate();
}

QString DragDropPage::description() const
{
    return {};
}

void DragDropPage::retranslate() { }
