#include "FtpPage.h"

#include "FtpConfigurationPanel.h"
#include "FtpServerPanel.h"
#include "FtpSessionPanel.h"
#include "FtpSettingsPanel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

FtpPage::FtpPage(QWidget *parent)
    : GalleryPage(parent)
    , serverPanel(new FtpServerPanel(this))
    , configurationPanel(new FtpConfigurationPanel(this))
    , sessionPanel(new FtpSessionPanel(this))
    , settingsPanel(new FtpSettingsPanel(configurationPanel->configuration(), this))
{
    setUpLayout();
    retranslate();
    FTPConfigurationWidget *configuration = configurationPanel->configuration();
    connect(serverPanel, SIGNAL(started()), this, SLOT(fillIn()));
    connect(serverPanel, SIGNAL(fillInWanted()), this, SLOT(fillIn()));
    connect(serverPanel, SIGNAL(logged(QString)), sessionPanel, SLOT(addReceived(QString)));
    connect(configuration, SIGNAL(changeFtpStatus(bool)), sessionPanel, SLOT(addFtpStatus(bool)));
    connect(configuration, SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)),
            sessionPanel, SLOT(addConnectionStatus(FTPConfigurationWidget::FtpStatus)));
    connect(configuration, SIGNAL(ftpConnectionStatus(FTPConfigurationWidget::FtpStatus)), this,
            SLOT(checkEnded()));
}

QString FtpPage::description() const
{
    return tr("The panel for an FTP or SFTP server to import from or to export to. Switch on a "
              "real server on this computer, choose what is to go wrong, and check the "
              "connection.");
}

void FtpPage::fillForPicture()
{
    isFilling = true;
    serverPanel->setRunning(true);
    if (serverPanel->isRunning()) {
        configurationPanel->configuration()->checkFTP();
    } else {
        endFilling();
    }
}

void FtpPage::retranslate() { }

void FtpPage::fillIn()
{
    configurationPanel->configuration()->load(serverPanel->exampleSettings());
}

void FtpPage::checkEnded()
{
    serverPanel->catchUp();
    if (isFilling) {
        endFilling();
    }
}

void FtpPage::endFilling()
{
    settingsPanel->showSettings();
    isFilling = false;
    emit becameReady();
}

void FtpPage::setUpLayout()
{
    auto *columns = new QHBoxLayout;
    columns->setSpacing(GalleryPanel::kGap);
    columns->addWidget(configurationPanel, 1);
    columns->addWidget(sessionPanel, 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(serverPanel);
    rows->addLayout(columns, 1);
    rows->addWidget(settingsPanel);
}
