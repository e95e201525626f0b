#include "WebInterfacePage.h"

WebInterfacePage::WebInterfacePage(QWidget *parent)
    : GalleryPage(parent)
{
    retranslate();
}

QString WebInterfacePage::description() const
{
    return {};
}

void WebInterfacePage::retranslate() { }
