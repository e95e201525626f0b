#include "PreferencesDialog.h"

#include <EMailSenderWidget.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>

//! [load]
PreferencesDialog::PreferencesDialog(QWidget *parent)
    : QDialog(parent)
    , mail(new EMailSenderWidget(this))
    , server(new FTPConfigurationWidget(this))
    , serverStatus(new QLabel(this))
{
    const QSettings settings;
    mail->load(settings.value("Mail").toHash());
    server->load(settings.value("Server").toHash());
    connect(server, &FTPConfigurationWidget::ftpConnectionStatus, this,
            &PreferencesDialog::showStatus);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &PreferencesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PreferencesDialog::reject);

    auto *rows = new QVBoxLayout(this);
    rows->addWidget(mail);
    rows->addWidget(server);
    rows->addWidget(serverStatus);
    rows->addWidget(buttons);
}
//! [load]

//! [save]
void PreferencesDialog::accept()
{
    if (!mail->checkFieldBeforeAccept()) {
        return;
    }
    QSettings settings;
    settings.setValue("Mail", mail->save());
    settings.setValue("Server", server->dictionary());
    QDialog::accept();
}
//! [save]

//! [status]
void PreferencesDialog::showStatus(FTPConfigurationWidget::FtpStatus status)
{
    switch (status) {
    case FTPConfigurationWidget::FtpOk:
        serverStatus->setText(tr("The server lets PatchReader in."));
        break;
    case FTPConfigurationWidget::FtpLoginError:
        serverStatus->setText(tr("The server refuses this login."));
        break;
    case FTPConfigurationWidget::FtpHostError:
        serverStatus->setText(tr("There is no such server."));
        break;
    }
}
//! [status]
