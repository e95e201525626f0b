#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class LockerUIDialog;
}

/// The dialog through which a user locks the application's user interface, and sets or changes the
/// password that opens it again.
///
/// The host keeps the password between runs and does the locking:
///
///     LockerUIDialog dialog(true, window);
///     dialog.setPassword(storedPassword);
///     const int result = dialog.exec();
///     storedPassword = dialog.password();
///     if (result >= 0) {
///         lock();
///     }
///
/// exec() gives 1 to lock when the password has changed, 0 to lock with the old one, and -1 when
/// the user has cancelled, also by Escape. A cancel does not take a change of the password back.
/// The result and isPasswordChanged() speak of the last change only, so read password() in any
/// case.
///
/// With `useHash` a password is stored as the lower-case hexadecimal text of its MD5 digest, else
/// in clear. The text does not tell which; the host passes the same value each time.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT LockerUIDialog : public QDialog
{
    Q_OBJECT

public:
    /// Without a password. It can be changed from the first setPassword() on that is not empty.
    explicit LockerUIDialog(bool useHash, QWidget *parent = nullptr);
    ~LockerUIDialog() override;

    /// Sets the stored password. Empty means that there is none yet: locking then asks for a first
    /// one.
    void setPassword(const QString &password);

    /// The stored password as it is now.
    [[nodiscard]] QString password() const { return storedPassword; }

    /// Whether the password entered last differs from the one stored before it.
    [[nodiscard]] bool isPasswordChanged() const { return passwordChanged; }

public slots:
    /// Ends the dialog with -1.
    void reject() override;

    /// Ends the dialog in order to lock; asks for a first password when none is stored.
    void on_lockPushButton_clicked();

    /// Lets the user change the password. The dialog stays open.
    void on_changePasswordPushButton_clicked();

    /// Ends the dialog with -1.
    void on_cancelPushButton_clicked();

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    void takeOver(const QString &newPassword);
    bool askForFirstPassword();

    std::unique_ptr<Ui::LockerUIDialog> ui;
    bool useHash;
    bool passwordChanged = false;
    QString storedPassword;
};
