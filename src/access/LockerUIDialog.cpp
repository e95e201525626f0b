#include "LockerUIDialog.h"

#include "LockerDialogs.h"
#include "LockerFirstPasswordDialog.h"
#include "LockerPasswordDialog.h"
#include "OwnTitle.h"
#include "ui_LockerUIDialog.h"

#include <QEvent>

namespace {

constexpr int kLockWithOldPassword = 0;
constexpr int kPasswordChanged = 1;

} // namespace

LockerUIDialog::LockerUIDialog(bool useHash, QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::LockerUIDialog>())
    , useHash(useHash)
{
    LockerDialogs::setUpWindow(*this);
    ui->setupUi(this);
    OwnTitle::remember(*this);
    ui->changePasswordPushButton->setEnabled(false);
    LockerDialogs::fixSize(*this);
}

LockerUIDialog::~LockerUIDialog() = default;

void LockerUIDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        OwnTitle::retranslate(*ui, *this);
        LockerDialogs::fixSize(*this);
    }
}

void LockerUIDialog::setPassword(const QString &password)
{
    storedPassword = password;
    if (!password.isEmpty()) {
        ui->changePasswordPushButton->setEnabled(true);
    }
}

void LockerUIDialog::reject()
{
    done(LockerDialogs::kCancelled);
}

void LockerUIDialog::on_lockPushButton_clicked()
{
    const bool hasPassword = !storedPassword.isEmpty() || askForFirstPassword();
    const int decided = hasPassword ? kLockWithOldPassword : LockerDialogs::kCancelled;
    done(passwordChanged ? kPasswordChanged : decided);
}

void LockerUIDialog::on_changePasswordPushButton_clicked()
{
    LockerPasswordDialog dialog(useHash, this);
    dialog.setPassword(storedPassword);
    if (dialog.exec() == LockerDialogs::kApplied) {
        takeOver(dialog.password());
    }
}

void LockerUIDialog::on_cancelPushButton_clicked()
{
    done(LockerDialogs::kCancelled);
}

bool LockerUIDialog::askForFirstPassword()
{
    LockerFirstPasswordDialog dialog(useHash, this);
    dialog.setPassword(storedPassword);
    const bool isApplied = dialog.exec() == LockerDialogs::kApplied;
    if (isApplied) {
        takeOver(dialog.password());
    }
    return isApplied;
}

void LockerUIDialog::takeOver(const QString &newPassword)
{
    passwordChanged = newPassword != storedPassword;
    storedPassword = newPassword;
}
