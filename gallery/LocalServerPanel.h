#pragma once

#include "GalleryPanel.h"
#include "TransferSettingsChange.h"

#include <QStringList>

#include <memory>
#include <optional>

class LocalServer;
class QComboBox;
class QHBoxLayout;
class QLabel;
class TXSwitchSlider;

/// Base of the panels that switch a real server on this computer on and off, so that the library's
/// panels have somebody to talk to.
///
/// The options of a subclass stand in a row below the switch. A server that does not start turns
/// the switch back, and the panel tells why. The server stops when the panel goes.
class LocalServerPanel : public GalleryPanel
{
    Q_OBJECT

public:
    ~LocalServerPanel() override;

    [[nodiscard]] bool isRunning() const { return server != nullptr; }

    /// Where the server listens; 0 while it does not run.
    [[nodiscard]] quint16 port() const;

    /// Why the last start failed, as the user reads it; empty when it did not.
    [[nodiscard]] QString error() const;

    /// Emits logged() for what the server has told by now.
    void catchUp();

public slots:
    /// Turns the switch. Blocks until the server takes connections, some tenths of a second as a
    /// rule.
    void setRunning(bool isWanted);

    /// Starts a running server again, at another port, for options that have changed. No effect
    /// while none runs.
    void restart();

signals:
    /// The server takes connections. Emitted after each start, those of restart() too.
    void started();

    /// The user wants to see the server's data in the library's panel.
    void fillInWanted();

    /// A client has asked the server for something; see LocalServer::log().
    void logged(const QString &line);

protected:
    explicit LocalServerPanel(QWidget *parent);

    /// A server that is set up as the options tell, not started.
    [[nodiscard]] virtual std::unique_ptr<LocalServer> makeServer() = 0;

    /// The Python package without which the server that the options name does not start.
    [[nodiscard]] virtual QString neededPackage() const = 0;

    /// What clients on this computer need while the server runs. Nothing by default.
    [[nodiscard]] virtual TransferSettingsWish transferSettings() const { return {}; }

    /// The running server or null.
    [[nodiscard]] LocalServer *runningServer() const { return server.get(); }

    /// Adds an option to the row, with a label before it unless that is null.
    void addOption(QLabel *label, QWidget *option);

    /// The texts of the entries, in the order of the box; makes the entries when there are none.
    static void setEntries(QComboBox *box, const QStringList &texts);

    void retranslate() override;

private slots:
    void switchTo(bool isOn);

private:
    void start();
    void showState();
    void showError(const QString &reason);
    void setUpLayout();

    TXSwitchSlider *slider;
    QLabel *sliderLabel;
    QLabel *state;
    QPushButton *fillInButton;
    QHBoxLayout *options;
    QLabel *errorPicture;
    QLabel *errorText;
    std::unique_ptr<LocalServer> server;
    std::optional<TransferSettingsChange> settingsChange;
};
