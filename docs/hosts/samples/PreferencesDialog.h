#pragma once

#include <FTPConfigurationWidget.h>

#include <QDialog>

class EMailSenderWidget;
class QLabel;

/// The preferences of PatchReader: two panels of the library over OK and Cancel.
class PreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PreferencesDialog(QWidget *parent = nullptr);

public slots:
    void accept() override;

private slots:
    void showStatus(FTPConfigurationWidget::FtpStatus status);

private:
    EMailSenderWidget *mail;
    FTPConfigurationWidget *server;
    QLabel *serverStatus;
};
