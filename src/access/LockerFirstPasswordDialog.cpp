#include "LockerFirstPasswordDialog.h"

#include "LockerDialogs.h"
#include "OwnTitle.h"
#include "ui_LockerFirstPasswordDialog.h"

#include <QEvent>

LockerFirstPasswordDialog::LockerFirstPasswordDialog(bool useHash, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::LockerFirstPasswordDialog>())
    , useHash(useHash)
{
    LockerDialogs::setUpWindow(*this);
    ui->setupUi(this);
    OwnTitle::remember(*this);
    passwordChanged();
    LockerDialogs::fixSize(*this);
}

LockerFirstPasswordDialog::~LockerFirstPasswordDialog() = default;

void LockerFirstPasswordDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        OwnTitle::retranslate(*ui, *this);
        LockerDialogs::fixSize(*this);
    }
}

void LockerFirstPasswordDialog::setPassword(const QString &password)
{
    storedPassword = password;
}

void LockerFirstPasswordDialog::passwordChanged()
{
    ui->apply_pushButton->setEnabled(
        LockerDialogs::isEnteredTwice(*ui->password1_lineEdit, *ui->password2_lineEdit));
}

void LockerFirstPasswordDialog::reject()
{
    done(LockerDialogs::kCancelled);
}

void LockerFirstPasswordDialog::on_apply_pushButton_clicked()
{
    storedPassword = LockerDialogs::storedForm(ui->password1_lineEdit->text(), useHash);
    done(LockerDialogs::kApplied);
}

void LockerFirstPasswordDialog::on_cancel_pushButton_clicked()
{
    done(LockerDialogs::kCancelled);
}

void LockerFirstPasswordDialog::on_password1_lineEdit_textChanged(const QString &)
{
    passwordChanged();
}

void LockerFirstPasswordDialog::on_password2_lineEdit_textChanged(const QString &)
{
    passwordChanged();
}
