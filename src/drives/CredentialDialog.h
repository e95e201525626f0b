#pragma once

#include "TXGUICommonExport.h"

#include <QDialog>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

namespace Ui {
class CredentialDialog;
}

/// Asks for a user name and a password for a server, and, if the application wants to, whether to
/// remember them. Modal.
///
/// Nothing is validated: OK is always enabled, and empty fields come back empty.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT CredentialDialog : public QDialog
{
    Q_OBJECT

public:
    /// Empty fields, no label and no callback.
    explicit CredentialDialog(QWidget *parent = nullptr);
    ~CredentialDialog() override;

    /// Names the server, above the fields. Shown as it is, without markup; a long name wraps, and
    /// of one longer than 1,000 characters those are shown, and an ellipsis. The window takes its
    /// first size again, 238 by 139, or what the name, the box and the font need beyond it; later
    /// it grows when they need more. Empty by default.
    void setLabel(QString text);

    /// What is called with user name and password when the user confirms with both filled in,
    /// whether "Remember" is checked or not; ask remember() in it. The box is there exactly when a
    /// callback is set; an empty one takes it away again. None by default.
    void setRemember(std::function<void(const QString &, const QString &)> callback);

    /// What is in the field of the user name.
    [[nodiscard]] QString userName() const;
    /// What is in the field of the password, in clear.
    [[nodiscard]] QString password() const;
    /// Whether "Remember" is checked. False by default.
    [[nodiscard]] bool remember() const;

protected:
    /// Follows a change of the language.
    void changeEvent(QEvent *event) override;

private:
    void callBack() const;

    std::unique_ptr<Ui::CredentialDialog> ui;
    std::function<void(const QString &, const QString &)> rememberCallback;
    QSize designedSize;
};
