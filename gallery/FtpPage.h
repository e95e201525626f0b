#pragma once

#include "GalleryPage.h"

class FtpConfigurationPanel;
class FtpServerPanel;
class FtpSessionPanel;
class FtpSettingsPanel;

/// The library's FTP panel and dialogs beside a real server on this computer, with what passes
/// between them.
class FtpPage final : public GalleryPage
{
    Q_OBJECT

public:
    explicit FtpPage(QWidget *parent = nullptr);

    [[nodiscard]] QString description() const override;
    void fillForPicture() override;
    [[nodiscard]] bool isReady() const override { return !isFilling; }

protected:
    void retranslate() override;

private slots:
    void fillIn();
    void checkEnded();

private:
    void endFilling();
    void setUpLayout();

    FtpServerPanel *serverPanel;
    FtpConfigurationPanel *configurationPanel;
    FtpSessionPanel *sessionPanel;
    FtpSettingsPanel *settingsPanel;
    bool isFilling = false;
};
