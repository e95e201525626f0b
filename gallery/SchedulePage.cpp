#include "SchedulePage.h"

#include "EncodingPanel.h"
#include "TriggerPanel.h"

#include <QVBoxLayout>

SchedulePage::SchedulePage(QWidget *parent)
    : GalleryPage(parent)
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(new TriggerPanel(this));
    rows->addWidget(new EncodingPanel(this), 1);
}

QString SchedulePage::description() const
{
    return tr("The panels that set when an event comes back, and in which encoding text files are "
              "read. Save, and the gallery works out the next events, and reads a file anew.");
}
