#include "LockerPasswordDialog.h"

#include "LockerDialogs.h"
#include "OwnTitle.h"
#include "ui_LockerPasswordDialog.h"

#include <QEvent>

LockerPasswordDialog::LockerPasswordDialog(bool useHash, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::LockerPasswordDialog>())
    , useHash(useHash)
{
    LockerDialogs::setUpWindow(*this);
    ui->setupUi(this);
    OwnTitle::remember(*this);
    on_currentPassword_lineEdit_textChanged(QString());
    passwordChanged();
    LockerDialogs::fixSize(*this);
}

LockerPasswordDialog::~LockerPasswordDialog() = default;

void LockerPasswordDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        OwnTitle::retranslate(*ui, *this);
        LockerDialogs::fixSize(*this);
    }
}

void LockerPasswordDialog::setPassword(const QString &password)
{
    storedPassword = password;
}

void LockerPasswordDialog::passwordChanged()
{
    ui->apply_pushButton->setEnabled(
        LockerDialogs::isEnteredTwice(*ui->password1_lineEdit, *ui->password2_lineEdit));
}

void LockerPasswordDialog::reject()
{
    done(LockerDialogs::kCancelled);
}

void LockerPasswordDialog::on_apply_pushButton_clicked()
{
    storedPassword = LockerDialogs::storedForm(ui->password1_lineEdit->text(), useHash);
    done(LockerDialogs::kApplied);
}

void LockerPasswordDialog::on_cancel_pushButton_clicked()
{
    done(LockerDialogs::kCancelled);
}

void LockerPasswordDialog::on_currentPassword_lineEdit_textChanged(const QString &arg1)
{
    const bool isProved = isStoredPassword(arg1);
    ui->password1_lineEdit->setEnabled(isProved);
    ui->password2_lineEdit->setEnabled(isProved);
}

void LockerPasswordDialog::on_password1_lineEdit_textChanged(const QString &)
{
    passwordChanged();
}

void LockerPasswordDialog::on_password2_lineEdit_textChanged(const QString &)
{
    passwordChanged();
}

bool LockerPasswordDialog::isStoredPassword(const QString &text) const
{
    return !storedPassword.isEmpty() && LockerDialogs::storedForm(text, useHash) == storedPassword;
}
