#pragma once

#include "SessionPanel.h"

#include "FTPConfigurationWidget.h"

/// What happens between the FTP panel and a server: the commands that the server gets, and the
/// signals that the panel emits.
class FtpSessionPanel final : public SessionPanel
{
    Q_OBJECT

public:
    explicit FtpSessionPanel(QWidget *parent = nullptr);

public slots:
    void addConnectionStatus(FTPConfigurationWidget::FtpStatus status);
    void addFtpStatus(bool isEnabled);

protected:
    void retranslate() override;
};
