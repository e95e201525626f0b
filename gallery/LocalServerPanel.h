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
/// the switch back, and so does one that stops by itself; the panel tells why. The server stops
/// when the panel goes.
class LocalServerPanel : public GalleryPanel
{
    Q_OBJECT

public:
    ~LocalServerPanel() override;

    [[nodiscard]] bool isRunning() const { return server != nullptr; }

    /// Where the server listens; 0 while it does not run.
    [[nodiscard]] quint16 port() const;

    /// Why the server did not start or has stopped by itself, as the user reads it; empty when
    /// neither has happened since it was last switched on.
    [[nodiscard]] QString error() const;

    /// Emits logged() for what the server has told by now.
    void catchUp();

public slots:
    /// Turns the switch. Blocks until the server takes connections: some tenths of a second as a
    /// rule, about a second for a database server, which makes its data folder first.
    void setRunning(bool isWanted);

    /// Starts a running server again, at another port as a rule, for options that have changed. No
    /// effect while none runs.
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

    /// What clients on this computer need while the server runs. Nothing by default.
    [[nodiscard]] virtual TransferSettingsWish transferSettings() const { return {}; }

    /// Whether the set-up may help a server that did not start for this reason, which the user is
    /// told then. True by default.
    [[nodiscard]] virtual bool isHelpedBySetup(const QString &reason) const;

    /// The running server or null.
    [[nodiscard]] LocalServer *runningServer() const { return server.get(); }

    /// Adds an option to the row, with a label before it unless that is null. The wheel does not
    /// turn it.
    void addOption(QLabel *label, QWidget *option);

    /// Takes the button away that asks for the server's data, where there is nothing to fill in.
    void hideFillIn();

    /// The texts of the entries, in the order of the box; makes the entries when there are none.
    static void setEntries(QComboBox *box, const QStringList &texts);

    void retranslate() override;

private slots:
    void switchTo(bool isOn);
    void serverStopped();

private:
    enum class Failure {
        None,
        NotStarted,
        Stopped,
    };

    void start();
    void showState();
    void setFailure(Failure newFailure, const QString &newReason = {});
    void showFailure();
    [[nodiscard]] QString failureText() const;
    void setUpLayout();

    TXSwitchSlider *slider;
    QLabel *sliderLabel;
    QLabel *state;
    QPushButton *fillInButton;
    QHBoxLayout *options;
    QLabel *errorPicture;
    QLabel *errorText;
    Failure failure = Failure::None;
    // Of the failure, as the server has told it.
    QString reason;
    std::unique_ptr<LocalServer> server;
    std::optional<TransferSettingsChange> settingsChange;
};
