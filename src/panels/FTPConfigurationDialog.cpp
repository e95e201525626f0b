#include "FTPConfigurationDialog.h"

#include "OwnTitle.h"
#include "ui_FTPConfigurationDialog.h"

#include <QEvent>

FTPConfigurationDialog::FTPConfigurationDialog(const QHash<QString, QVariant> &settings,
                                               const QString &title, bool isImport, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::FTPConfigurationDialog>())
    , isImport(isImport)
{
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    ui->setupUi(this);
    ui->titleDialog->setText(title);
    ui->widgetFTP->load(settings);
    ui->widgetFTP->setVisibleEraseSrcFilesItems(isImport);
    showWindowTitle();
}

FTPConfigurationDialog::~FTPConfigurationDialog() = default;

void FTPConfigurationDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        showWindowTitle();
    }
}

QHash<QString, QVariant> FTPConfigurationDialog::dictionary()
{
    return ui->widgetFTP->dictionary();
}

void FTPConfigurationDialog::showWindowTitle()
{
    OwnTitle::show(*this, isImport ? tr("FTP Import Dialog") : tr("FTP Export Dialog"));
}
