#pragma once

#include "GalleryPanel.h"

class DictionaryView;
class FTPConfigurationWidget;

/// The settings of the library's FTP panel, and the dialogs around such a panel.
class FtpSettingsPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    /// Shows the settings of the configuration, which is not owned, never null and outlives the
    /// panel.
    explicit FtpSettingsPanel(FTPConfigurationWidget *configuration, QWidget *parent = nullptr);

public slots:
    void showSettings();

protected:
    void retranslate() override;

private slots:
    void openImportDialog();
    void openExportDialog();

private:
    void openDialog(const QString &heading, bool isImport);
    void setUpLayout();

    FTPConfigurationWidget *configuration;
    QPushButton *settingsButton;
    QPushButton *importButton;
    QPushButton *exportButton;
    DictionaryView *view;
};
