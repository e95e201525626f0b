#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <memory>

namespace Ui {
class EMailSenderWidget;
}

/// The panel on which a user enters how the application sends mail: server, port, encryption,
/// login, sender and receivers. A button sends a test mail with what is on the panel.
///
/// A host hands its settings to load(), calls checkFieldBeforeAccept() before it accepts, and takes
/// save() into its settings; the same dictionary goes to TXMailSender. The controls are the only
/// store of the values, and no signal tells of an edit.
///
/// The dictionary has eight keys: "MailServerLogin", "MailServerPassword", "MailServerAddress",
/// "MailServerPort" (int), "MailWithEncryption" ("NONE", "SSL" or "TLS"), "MailSender",
/// "MailMainDestination" and "MailCopyDestination"; all but the port are texts. The password stands
/// there enciphered for this user, never in clear.
///
/// Texts longer than 32767 characters are cut there, but for a password that the program sets.
/// Line breaks and control characters in a text are kept: who puts an address into a mail header
/// has to look at it, as TXMailSender does.
///
/// Deleting the panel while a test mail is on its way stops the sending; while one of its boxes is
/// open, it closes the box. Nothing of the test mail outlives the panel.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT EMailSenderWidget : public QWidget
{
    Q_OBJECT

public:
    /// Starts with port 25, encryption "NONE" and empty fields.
    explicit EMailSenderWidget(QWidget *parent = nullptr);
    ~EMailSenderWidget() override;

    /// Fills the fields. A key that is missing, or whose value does not convert, counts as the
    /// empty text, as port 25, or as "NONE"; so does a password that was not enciphered for this
    /// user.
    void load(QHash<QString, QVariant> settings);

    /// What is on the panel, under all eight keys. The password is enciphered anew at each call, so
    /// two results are never equal.
    QHash<QString, QVariant> save();

    /// True when sender and receiver are filled in with something that holds '@' and '.', and the
    /// copy receiver too unless it is empty. Else false, and `error` holds a translated message
    /// about the first field that is wrong; on true `error` is left as it was.
    ///
    /// A panel on which server, sender and receiver are empty is fine: mail is not used. The server
    /// is not looked at otherwise, nor are port, encryption, login and password.
    bool checkConfigurationField(QString &error);

    /// Like checkConfigurationField(), but shows the message to the user. Returns when he has
    /// closed the box.
    bool checkFieldBeforeAccept();

    /// The user name for the server; empty means that there is no login.
    void setLoginName(const QString &name);
    /// The text of the field "Login".
    QString loginName();

    /// The password, in clear. An empty one changes nothing.
    void setPassword(const QString &password);
    /// The password in clear, whether the program or the user has entered it.
    QString password();

    /// Host name or address of the server.
    void setSMTPServerName(const QString &name);
    /// The text of the field "SMTP Server".
    QString smtpServerName();

    /// 25 replaces a port below 1, and 100000 one above. Only the user can enter 0, which is then
    /// what this returns.
    void setPortNumber(int port);
    /// The number in the field "Port".
    int portNumber();

    /// One of "NONE", "SSL" and "TLS", in this case; anything else selects "NONE".
    void setEncryption(const QString &encryption);
    /// The word for the kind of encryption that is selected.
    QString encryption() const;

    /// The address of the sender.
    void setSenderName(const QString &name);
    /// The text of the field "From".
    QString senderName();

    /// The address of the receiver.
    void setMainDestinationAddress(const QString &address);
    /// The text of the field "To".
    QString mainDestinationAddress();

    /// The address of who gets a copy; empty means nobody.
    void setCopyDestinationAddress(const QString &address);
    /// What setCopyDestinationAddress() has set. The name is misspelt and stays so for those who
    /// call it.
    QString copyDestincationAddress();

    /// Adds the three kinds of encryption, named in the language of the moment, behind what the box
    /// holds. The constructor has done so; a second call doubles them.
    void fillEncryptionCombobox();

public slots:
    /// Sends a test mail with what is on the panel, and tells the outcome in a box later. Wrong
    /// fields are told at once, and nothing is sent. May be called again before the outcome: each
    /// mail has its own.
    void testEMailSenderConfiguration();

    /// Tells the user that the mail was sent, then frees the sender whose signal called this.
    void testEMailSucceed();

    /// Tells the user why the mail was not sent, then frees the sender whose signal called this.
    void testEMailFailed(const QString &message);

protected:
    /// A change of language reaches labels, placeholders and the button. The headings and the kinds
    /// of encryption keep the language in which they were made.
    void changeEvent(QEvent *event) override;

    /// Keeps the mouse wheel from changing the port.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void setUpHeadings();

    std::unique_ptr<Ui::EMailSenderWidget> ui;
};
