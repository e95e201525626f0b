#include "DatabasePage.h"

#include "DatabaseServerPanel.h"
#include "DatabaseSettingsPanel.h"
#include "MeasurementMakingPanel.h"
#include "MeasurementTablePanel.h"

#include "TXDatabaseConfigurationWidget.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {

/// 100,000 rows: a picture with a million would take most of the time that it may.
constexpr int kAmountOfPicture = 1;
/// In the midst of the table.
constexpr qulonglong kRowOfPicture = 50'000;

} // namespace

DatabasePage::DatabasePage(QWidget *parent)
    : GalleryPage(parent)
    , serverPanel(new DatabaseServerPanel(this))
    , configurationBox(new QGroupBox(this))
    , configuration(new TXDatabaseConfigurationWidget(configurationBox))
    , settingsPanel(new DatabaseSettingsPanel(configuration, this))
    , makingPanel(new MeasurementMakingPanel(configuration, this))
    , tablePanel(new MeasurementTablePanel(this))
{
    setUpLayout();
    retranslate();
    connect(serverPanel, SIGNAL(started()), this, SLOT(fillIn()));
    connect(serverPanel, SIGNAL(fillInWanted()), this, SLOT(fillIn()));
    connect(makingPanel, SIGNAL(making()), tablePanel, SLOT(close()));
    connect(makingPanel, SIGNAL(ended(bool)), this, SLOT(tableEnded(bool)));
}

QString DatabasePage::description() const
{
    return tr("The panel for the place of a program's data: its internal database or a server. "
              "Switch on a real MariaDB server on this computer, choose what is to go wrong, and "
              "turn the pages of a million measurements in either database.");
}

void DatabasePage::fillForPicture()
{
    isFilling = true;
    // Without a server the picture shows the internal database.
    serverPanel->setRunning(true);
    configuration->on_testButton_clicked();
    settingsPanel->saveSettings();
    makingPanel->setAmount(kAmountOfPicture);
    makingPanel->make();
}

void DatabasePage::retranslate()
{
    configurationBox->setTitle(tr("Database panel"));
}

void DatabasePage::fillIn()
{
    configuration->load(serverPanel->exampleSettings());
    settingsPanel->clear();
}

void DatabasePage::tableEnded(bool isMade)
{
    if (isMade) {
        tablePanel->open(makingPanel->place());
    }
    if (isFilling) {
        tablePanel->showRow(kRowOfPicture);
        isFilling = false;
        emit becameReady();
    }
}

void DatabasePage::setUpLayout()
{
    auto *configurationRows = new QVBoxLayout(configurationBox);
    GalleryPanel::setMargins(configurationRows);
    configuration->layout()->setContentsMargins(0, 0, 0, 0);
    configurationRows->addWidget(configuration);
    configurationRows->addStretch();

    auto *columns = new QHBoxLayout;
    columns->setSpacing(GalleryPanel::kGap);
    columns->addWidget(configurationBox, 1);
    columns->addWidget(settingsPanel, 1);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(serverPanel);
    rows->addLayout(columns);
    rows->addWidget(makingPanel);
    rows->addWidget(tablePanel, 1);
}
