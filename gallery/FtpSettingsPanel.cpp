#include "FtpSettingsPanel.h"

#include "DictionaryView.h"

#include "FTPConfigurationDialog.h"
#include "FTPConfigurationWidget.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>

FtpSettingsPanel::FtpSettingsPanel(FTPConfigurationWidget *configuration, QWidget *parent)
    : GalleryPanel(parent)
    , configuration(configuration)
    , settingsButton(new QPushButton(this))
    , importButton(new QPushButton(this))
    , exportButton(new QPushButton(this))
    , view(new DictionaryView(this))
{
    setUpLayout();
    retranslate();
    connect(settingsButton, SIGNAL(clicked()), this, SLOT(showSettings()));
    connect(importButton, SIGNAL(clicked()), this, SLOT(openImportDialog()));
    connect(exportButton, SIGNAL(clicked()), this, SLOT(openExportDialog()));
}

void FtpSettingsPanel::showSettings()
{
    view->setDictionary(configuration->dictionary());
}

void FtpSettingsPanel::retranslate()
{
    setTitle(tr("Settings and dialogs"));
    setButtonText(settingsButton, tr("Sho&w Settings"));
    setButtonText(importButton, tr("I&mport Dialog..."));
    setButtonText(exportButton, tr("E&xport Dialog..."));
}

void FtpSettingsPanel::openImportDialog()
{
    openDialog(tr("Where the jobs come from"), true);
}

void FtpSettingsPanel::openExportDialog()
{
    openDialog(tr("Where the jobs go to"), false);
}

void FtpSettingsPanel::openDialog(const QString &heading, bool isImport)
{
    // It goes with the window, should that be closed meanwhile.
    const QPointer<FTPConfigurationDialog> dialog =
        new FTPConfigurationDialog(configuration->dictionary(), heading, isImport, this);
    const int result = dialog->exec();
    if (dialog && result == QDialog::Accepted) {
        view->setDictionary(dialog->dictionary());
    }
    delete dialog;
}

void FtpSettingsPanel::setUpLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(settingsButton);
    buttons->addStretch();
    buttons->addWidget(importButton);
    buttons->addWidget(exportButton);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(buttons);
    rows->addWidget(view);
}
