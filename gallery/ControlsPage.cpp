#include "ControlsPage.h"

#include "DisabledSpinBoxPanel.h"
#include "PatchWindow.h"
#include "SwitchPanel.h"
#include "ValueSliderPanel.h"
#include "WidgetStatePanel.h"

#include <QHBoxLayout>

ControlsPage::ControlsPage(QWidget *parent)
    : GalleryPage(parent)
    , sliders(new ValueSliderPanel(this))
{
    auto *middle = new QHBoxLayout;
    middle->setSpacing(GalleryPanel::kGap);
    middle->addWidget(new SwitchPanel(this), 1);
    middle->addWidget(new DisabledSpinBoxPanel(this), 1);
    statePanel = new WidgetStatePanel(this);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(sliders);
    rows->addLayout(middle);
    rows->addWidget(statePanel);
    rows->addStretch();
}

QString ControlsPage::description() const
{
    return tr("Numbers with a slider beside them, switches, and spin boxes that read as a plain "
              "value when they are disabled; and the state of a whole window in one call.");
}

void ControlsPage::fillForPicture()
{
    sliders->fillForPicture();
    statePanel->openWindow();
    statePanel->saveState();
}

QList<GalleryFurtherWindow> ControlsPage::furtherWindows()
{
    statePanel->openWindow();
    return {{QStringLiteral("window"), statePanel->stateWindow()}};
}
