#include "Samples.h"

#include <TXImageViewer.h>
#include <TXJSONSerializer.h>
#include <TXVariantViewer.h>

//! [variant]
TXVariantViewer *makeReplyViewer(const QByteArray &json, QWidget *parent)
{
    auto *viewer = new TXVariantViewer(parent);
    viewer->setPreview(true);
    viewer->setValue(TXJSONSerializer::deserialize(json));
    viewer->setExpanded(true);
    return viewer;
}
//! [variant]

//! [images]
TXImageViewer *makeComparison(const QPixmap &original, const QPixmap &print, QWidget *parent)
{
    auto *viewer = new TXImageViewer(parent);
    viewer->setPixmaps({original, print});
    viewer->scale(TXImageViewer::ScaleFit);
    return viewer;
}
//! [images]
