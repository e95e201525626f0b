#include "FTPConfigurationDialog.h"

#include "ui_FTPConfigurationDialog.h"

FTPConfigurationDialog::FTPConfigurationDialog(const QHash<QString, QVariant> &settings,
                                               const QString &title, bool isImport, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::FTPConfigurationDialog>())
{
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    ui->setupUi(this);
    ui->titleDialog->setText(title);
    ui->widgetFTP->load(settings);
    ui->widgetFTP->setVisibleEraseSrcFilesItems(isImport);
    setWindowTitle(isImport ? tr("FTP Import Dialog") : tr("FTP Export Dialog"));
}

FTPConfigurationDialog::~FTPConfigurationDialog() = default;

QHash<QString, QVariant> FTPConfigurationDialog::dictionary()
{
    return ui->widgetFTP->dictionary();
}
