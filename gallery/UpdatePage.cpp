#include "UpdatePage.h"

#include "GalleryPanel.h"
#include "UpdateDialogPanel.h"
#include "UpdateServicePanel.h"
#include "UpdateSessionPanel.h"
#include "UpdateSettingsPanel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

UpdatePage::UpdatePage(QWidget *parent)
    : GalleryPage(parent)
    , servicePanel(new UpdateServicePanel(this))
    , dialogPanel(new UpdateDialogPanel(this))
    , sessionPanel(new UpdateSessionPanel(this))
    , settingsPanel(new UpdateSettingsPanel(this))
{
    setUpLayout();
    const TXCheckForUpdateWidget *dialog = dialogPanel->dialog();
    connect(servicePanel, SIGNAL(logged(QString)), sessionPanel, SLOT(addReceived(QString)));
    connect(servicePanel, SIGNAL(runningChanged(bool)), dialogPanel, SLOT(setServiceRunning(bool)));
    connect(servicePanel, SIGNAL(runningChanged(bool)), settingsPanel,
            SLOT(setServiceRunning(bool)));
    connect(dialog, &TXCheckForUpdateWidget::stateChanged, sessionPanel,
            &UpdateSessionPanel::addState);
    connect(dialog, SIGNAL(updateRefreshed(QVariantHash)), sessionPanel,
            SLOT(addRelease(QVariantHash)));
    connect(dialog, &TXCheckForUpdateWidget::stateChanged, this, &UpdatePage::stateEntered);
    connect(dialog, SIGNAL(updateRefreshed(QVariantHash)), this, SLOT(checkEnded()));
}

QString UpdatePage::description() const
{
    return tr("The dialog in which a user looks for a newer release, downloads and installs it. "
              "Switch on a real update service on this computer, choose what it offers, and check "
              "for updates.");
}

void UpdatePage::fillForPicture()
{
    servicePanel->setRunning(true);
    // Without the service the picture shows why, and nobody else is asked.
    if (servicePanel->isRunning()) {
        isFilling = true;
        dialogPanel->dialog()->checkUpdate();
    }
}

QList<GalleryFurtherWindow> UpdatePage::furtherWindows()
{
    if (!servicePanel->isRunning()) {
        return {};
    }
    return {{QStringLiteral("dialog"), dialogPanel->dialog()}};
}

void UpdatePage::checkEnded()
{
    servicePanel->catchUp();
    if (isFilling) {
        isFilling = false;
        emit becameReady();
    }
}

/// A check that fails ends without a release.
void UpdatePage::stateEntered(TXCheckForUpdateWidget::State state)
{
    if (state == TXCheckForUpdateWidget::ServiceError) {
        checkEnded();
    }
}

void UpdatePage::setUpLayout()
{
    auto *columns = new QHBoxLayout;
    columns->setSpacing(GalleryPanel::kGap);
    columns->addWidget(dialogPanel, 1);
    columns->addWidget(sessionPanel, 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(servicePanel);
    rows->addLayout(columns, 1);
    rows->addWidget(settingsPanel);
}
