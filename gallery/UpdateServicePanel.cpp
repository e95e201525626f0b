#include "UpdateServicePanel.h"

#include "ClosedPort.h"
#include "UpdateAuthorityChange.h"

#include <QComboBox>
#include <QLabel>

UpdateServicePanel::UpdateServicePanel(QWidget *parent)
    : LocalServerPanel(parent)
    , offerLabel(new QLabel(this))
    , offerBox(new QComboBox(this))
{
    addOption(offerLabel, offerBox);
    hideFillIn();
    retranslate();
    connect(this, SIGNAL(started()), this, SLOT(tell()));
    connect(this, SIGNAL(started()), this, SLOT(announce()));
    connect(offerBox, SIGNAL(currentIndexChanged(int)), this, SLOT(tell()));
}

UpdateServicePanel::~UpdateServicePanel()
{
    // The service ends with the base, when there is nobody any more to announce it.
    if (isRunning()) {
        runningServer()->findChild<UpdateAuthorityChange *>()->disconnect(this);
    }
}

void UpdateServicePanel::setOffer(UpdateOffer offer)
{
    offerBox->setCurrentIndex(static_cast<int>(offer));
}

QString UpdateServicePanel::authority() const
{
    return isRunning() ? announcedAuthority : QString();
}

std::unique_ptr<LocalServer> UpdateServicePanel::makeServer()
{
    return std::make_unique<LocalUpdateService>();
}

void UpdateServicePanel::retranslate()
{
    setTitle(tr("Local update service"));
    offerLabel->setText(tr("Off&er:"));
    setEntries(offerBox,
               {tr("Newer release"), tr("Newer release, beta"), tr("Slow download"),
                tr("Download that breaks off"), tr("Release without a file"),
                tr("Long release notes"), tr("Release of this build"), tr("Older release"),
                tr("Empty answer"), tr("Answer that is no JSON"), tr("Status 404"),
                tr("Nobody listens")});
    LocalServerPanel::retranslate();
}

/// Tells the running service what to answer, and the library where it is.
void UpdateServicePanel::tell()
{
    if (!isRunning()) {
        return;
    }
    auto *service = static_cast<LocalUpdateService *>(runningServer());
    service->setCheckReply(checkReplyFor(offer()));
    service->setDownloadReply(downloadReplyFor(offer()));
    const QString nobody = QStringLiteral("127.0.0.1:%1").arg(closedPort());
    announcedAuthority = offer() == UpdateOffer::NobodyThere ? nobody : service->authority();
    delete service->findChild<UpdateAuthorityChange *>();
    auto *change = new UpdateAuthorityChange(announcedAuthority, service);
    // It goes with the service, however that ends.
    connect(change, SIGNAL(destroyed()), this, SLOT(announce()));
}

void UpdateServicePanel::announce()
{
    emit runningChanged(isRunning());
}

UpdateOffer UpdateServicePanel::offer() const
{
    return static_cast<UpdateOffer>(offerBox->currentIndex());
}
