#pragma once

#include "LocalServerPanel.h"

#include "LocalMailServer.h"

#include <QHash>
#include <QVariant>

class QCheckBox;
class QComboBox;

/// Switches a mail server on this computer on and off, with a choice of how it protects the
/// connection, of login, and of what goes wrong.
class MailServerPanel final : public LocalServerPanel
{
    Q_OBJECT

public:
    /// What is to go wrong. The order is that of the box.
    enum class Trouble {
        None,
        WrongPassword, ///< the settings hold another password than the server's
        ReceiverRefused, ///< the server does not take mail for the example's receiver
        Silent, ///< the server does not greet; time-outs are short meanwhile
        NobodyThere, ///< the settings name a port at which nobody listens
    };

    explicit MailServerPanel(QWidget *parent = nullptr);

    /// From the beginning: STARTTLS.
    void setSecurity(LocalMailServer::Security security);

    /// From the beginning: none.
    void setTrouble(Trouble trouble);

    /// Settings for EMailSenderWidget and TXMailSender that fit the running server, with example
    /// addresses.
    [[nodiscard]] QHash<QString, QVariant> exampleSettings() const;

signals:
    /// The server has got a mail; emitted once for each.
    void mailReceived(const ReceivedMail &mail);

protected:
    [[nodiscard]] std::unique_ptr<LocalServer> makeServer() override;
    [[nodiscard]] TransferSettingsWish transferSettings() const override;
    void retranslate() override;

private slots:
    void passOnMails();

private:
    [[nodiscard]] LocalMailServer::Security security() const;
    [[nodiscard]] Trouble trouble() const;
    [[nodiscard]] bool isLoginNeeded() const;
    void setUpCertificate();

    QLabel *securityLabel;
    QComboBox *securityBox;
    QLabel *troubleLabel;
    QComboBox *troubleBox;
    QCheckBox *loginBox;
    std::shared_ptr<const LocalCertificate> certificate;
    // Of the running server's mails.
    qsizetype passedOn = 0;
};
