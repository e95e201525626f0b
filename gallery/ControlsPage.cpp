#include "ControlsPage.h"

#include "DisabledSpinBoxPanel.h"
#include "SwitchPanel.h"
#include "ValueSliderPanel.h"

#include <QHBoxLayout>

ControlsPage::ControlsPage(QWidget *parent)
    : GalleryPage(parent)
    , sliders(new ValueSliderPanel(this))
{
    auto *middle = new QHBoxLayout;
    middle->setSpacing(GalleryPanel::kGap);
    middle->addWidget(new SwitchPanel(this), 1);
    middle->addWidget(new DisabledSpinBoxPanel(this), 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(sliders);
    rows->addLayout(middle);
    rows->addStretch();
}

QString ControlsPage::description() const
{
    return tr("Numbers with a slider beside them, switches, and spin boxes that read as a plain "
              "value when they are disabled.");
}

void ControlsPage::fillForPicture()
{
    sliders->fillForPicture();
}
