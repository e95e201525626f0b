#include "GalleryPage.h"

#include <QEvent>

GalleryPage::GalleryPage(QWidget *parent)
    : QWidget(parent)
{ }

void GalleryPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}
