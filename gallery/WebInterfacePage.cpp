#include "WebInterfacePage.h"

#include "GalleryPanel.h"
#include "TabOrder.h"
#include "WebServerPanel.h"
#include "WebSessionPanel.h"
#include "WebSettings.h"
#include "WebSettingsPanel.h"
#include "WebVisit.h"
#include "WheelGuard.h"

#include "TXWebInterfaceConfigurationWidget.h"

#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QSpinBox>
#include <QVBoxLayout>

WebInterfacePage::WebInterfacePage(QWidget *parent)
    : GalleryPage(parent)
    , configurationBox(new QGroupBox(this))
    , configuration(new TXWebInterfaceConfigurationWidget(configurationBox))
    , serverPanel(new WebServerPanel(configuration, this))
    , sessionPanel(new WebSessionPanel(this))
    , settingsPanel(new WebSettingsPanel(configuration, this))
    , visitor(new WebVisit(this))
{
    setUpLayout();
    retranslate();
    connect(serverPanel, SIGNAL(logged(QString)), sessionPanel, SLOT(addReceived(QString)));
    connect(serverPanel, SIGNAL(visitWanted()), this, SLOT(visit()));
    connect(visitor, SIGNAL(ended(QString)), sessionPanel, SLOT(addVisit(QString)));
    connect(visitor, SIGNAL(ended(QString)), this, SLOT(visitEnded(QString)));
}

QString WebInterfacePage::description() const
{
    return tr("The panel for the web interface of a program, beside a real web server that serves "
              "a page of the gallery. Only this computer reaches it, at the link with 127.0.0.1; "
              "the other links work once other computers may connect.");
}

void WebInterfacePage::fillForPicture()
{
    isFilling = true;
    settingsPanel->fillInExample();
    settingsPanel->showSettings();
    serverPanel->setRunning(true);
    visit();
}

void WebInterfacePage::changeEvent(QEvent *event)
{
    // Links keep the colour of the palette under which the list was made.
    if (event->type() == QEvent::PaletteChange) {
        configuration->refresh();
    }
    GalleryPage::changeEvent(event);
}

void WebInterfacePage::retranslate()
{
    configurationBox->setTitle(tr("Web interface panel"));
}

void WebInterfacePage::visit()
{
    visitor->start(WebSettings::from(configuration->save()));
}

void WebInterfacePage::visitEnded(const QString &)
{
    serverPanel->catchUp();
    if (isFilling) {
        isFilling = false;
        emit becameReady();
    }
}

void WebInterfacePage::setUpLayout()
{
    auto *configurationRows = new QVBoxLayout(configurationBox);
    GalleryPanel::setMargins(configurationRows);
    configuration->layout()->setContentsMargins(0, 0, 0, 0);
    configurationRows->addWidget(configuration);
    // A turn of the wheel while scrolling past would change the port.
    WheelGuard::protect(configuration->findChild<QSpinBox *>());

    auto *columns = new QHBoxLayout;
    columns->setSpacing(GalleryPanel::kGap);
    columns->addWidget(configurationBox, 1);
    columns->addWidget(sessionPanel, 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(serverPanel);
    rows->addLayout(columns, 1);
    rows->addWidget(settingsPanel);
    setTabOrderOfParts({serverPanel, configurationBox, sessionPanel, settingsPanel});
}
