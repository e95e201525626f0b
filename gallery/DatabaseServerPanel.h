#pragma once

#include "LocalServerPanel.h"

#include <QHash>
#include <QVariant>

#include <memory>

class QComboBox;
class SilentServer;

/// Switches a MariaDB server on this computer on and off, with a choice of what goes wrong.
class DatabaseServerPanel final : public LocalServerPanel
{
    Q_OBJECT

public:
    /// What is to go wrong. The order is that of the box.
    enum class Trouble {
        None,
        WrongPassword, ///< the settings hold another password than the server's
        ClosedDatabase, ///< the settings name a database that the user has no right to
        Silent, ///< the settings name a port that takes connections and says nothing
        NobodyThere, ///< the settings name a port at which nobody listens
    };

    explicit DatabaseServerPanel(QWidget *parent = nullptr);
    ~DatabaseServerPanel() override;

    /// From the beginning: none.
    void setTrouble(Trouble trouble);

    /// Settings for TXDatabaseConfigurationWidget that fit the running server. With a silent port
    /// the options hold a connect time-out of 2 seconds, so that the user does not wait long.
    [[nodiscard]] QHash<QString, QVariant> exampleSettings() const;

protected:
    [[nodiscard]] std::unique_ptr<LocalServer> makeServer() override;
    void retranslate() override;

private slots:
    void troubleChosen();

private:
    [[nodiscard]] Trouble trouble() const;
    [[nodiscard]] int usedPort() const;

    QLabel *troubleLabel;
    QComboBox *troubleBox;
    std::unique_ptr<SilentServer> silentServer;
};
