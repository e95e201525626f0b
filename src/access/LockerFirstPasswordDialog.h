#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class LockerFirstPasswordDialog;
}

/// The dialog through which a user sets the first password of the user interface's lock. Run by
/// LockerUIDialog; take that one.
///
/// exec() gives 1 when the user has applied a password, -1 when he has cancelled, also by Escape.
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT LockerFirstPasswordDialog : public QDialog
{
    Q_OBJECT

public:
    /// With `useHash` password() is the hexadecimal MD5 digest of what was entered.
    explicit LockerFirstPasswordDialog(bool useHash, QWidget *parent = nullptr);
    ~LockerFirstPasswordDialog() override;

    /// Sets what password() gives until another one is applied.
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

    /// Calls passwordChanged().
    void on_password1_lineEdit_textChanged(const QString &arg1);
    /// Calls passwordChanged().
    void on_password2_lineEdit_textChanged(const QString &arg1);

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::LockerFirstPasswordDialog> ui;
    QString storedPassword;
    bool useHash;
};
