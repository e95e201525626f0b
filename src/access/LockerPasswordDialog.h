#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class LockerPasswordDialog;
}

/// The dialog through which a user changes the password of the user interface's lock. Run by
/// LockerUIDialog; take that one.
///
/// The user has to enter the old password before he can enter a new one; a wrong one gives no
/// message.
///
/// exec() gives 1 when the user has applied a password, -1 when he has cancelled, also by Escape.
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT LockerPasswordDialog : public QDialog
{
    Q_OBJECT

public:
    /// With `useHash` password() is the hexadecimal MD5 digest of what was entered.
    explicit LockerPasswordDialog(bool useHash, QWidget *parent = nullptr);
    ~LockerPasswordDialog() override;

    /// Sets the stored password, which the user has to prove. The fields follow when he types.
    void setPassword(const QString &password);

    /// The password in its stored form.
    [[nodiscard]] QString password() const { return storedPassword; }

    /// Enables "Apply" when the same password stands in both fields, and is not empty.
    void passwordChanged();

public slots:
    /// Ends the dialog with -1.
    void reject() override;

    /// Takes the entered password and ends the dialog with 1.
    void on_apply_pushButton_clicked();

    /// Ends the dialog with -1.
    void on_cancel_pushButton_clicked();

    /// Opens the fields for the new password while the text is the stored password, and closes
    /// them otherwise. What stands in them stays.
    void on_currentPassword_lineEdit_textChanged(const QString &arg1);

    /// Calls passwordChanged().
    void on_password1_lineEdit_textChanged(const QString &arg1);
    /// Calls passwordChanged().
    void on_password2_lineEdit_textChanged(const QString &arg1);

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] bool isStoredPassword(const QString &text) const;

    std::unique_ptr<Ui::LockerPasswordDialog> ui;
    QString storedPassword;
    bool useHash;
};
