#pragma once

#include "LocalServerPanel.h"

#include <QHash>
#include <QVariant>

class QComboBox;

/// Switches an FTP or an SFTP server on this computer on and off, with a choice of what goes wrong.
class FtpServerPanel final : public LocalServerPanel
{
    Q_OBJECT

public:
    /// The order is that of the box.
    enum class Protocol {
        Ftp,
        Sftp,
    };

    /// What is to go wrong. The order is that of the box.
    enum class Trouble {
        None,
        WrongPassword, ///< the settings hold another password than the server's
        Silent, ///< the server greets and answers nothing; time-outs are short meanwhile
        NobodyThere, ///< the settings name a port at which nobody listens
    };

    explicit FtpServerPanel(QWidget *parent = nullptr);

    /// From the beginning: FTP.
    void setProtocol(Protocol protocol);

    /// From the beginning: none.
    void setTrouble(Trouble trouble);

    /// Settings for FTPConfigurationWidget that fit the running server.
    [[nodiscard]] QHash<QString, QVariant> exampleSettings() const;

protected:
    [[nodiscard]] std::unique_ptr<LocalServer> makeServer() override;
    [[nodiscard]] TransferSettingsWish transferSettings() const override;
    void retranslate() override;

private:
    [[nodiscard]] Protocol protocol() const;
    [[nodiscard]] Trouble trouble() const;

    QLabel *protocolLabel;
    QComboBox *protocolBox;
    QLabel *troubleLabel;
    QComboBox *troubleBox;
};
