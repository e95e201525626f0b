#pragma once

#include "GalleryPage.h"

class DatabaseServerPanel;
class DatabaseSettingsPanel;
class MeasurementMakingPanel;
class MeasurementTablePanel;
class QGroupBox;
class TXDatabaseConfigurationWidget;

/// The library's database panel beside a real MariaDB server on this computer, and a table of a
/// million rows in the database that the panel tells, shown page by page.
class DatabasePage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit DatabasePage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override { return !isFilling; }

protected:
    void retranslate() override;

private slots:
    void fillIn();
    void tableEnded(bool isMade);

private:
    void setUpLayout();

    DatabaseServerPanel *serverPanel;
    QGroupBox *configurationBox;
    TXDatabaseConfigurationWidget *configuration;
    DatabaseSettingsPanel *settingsPanel;
    MeasurementMakingPanel *makingPanel;
    MeasurementTablePanel *tablePanel;
    bool isFilling = false;
};
