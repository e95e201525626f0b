#include "GalleryPanel.h"

#include <QEvent>
#include <QLayout>
#include <QPushButton>

GalleryPanel::GalleryPanel(QWidget *parent)
    : QGroupBox(parent)
{ }

void GalleryPanel::setMargins(QLayout *layout)
{
    layout->setContentsMargins(kGap, kGap, kGap, kGap);
}

void GalleryPanel::setGaps(QLayout *layout)
{
    setMargins(layout);
    layout->setSpacing(kGap);
}

void GalleryPanel::setButtonText(QPushButton *button, const QString &text)
{
    button->setText(text);
    button->setMinimumWidth(button->sizeHint().width() + kGap);
}

void GalleryPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QGroupBox::changeEvent(event);
}
