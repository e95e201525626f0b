#pragma once

#include "LocalServerPanel.h"

#include <QPointer>
#include <QStringList>
#include <QUrl>

#include <memory>

class QComboBox;

/// Switches a Samba server on this computer on and off, with a choice of what goes wrong.
///
/// The choice counts for the addresses that are asked for from then on, but for the silent server,
/// which falls silent at once, for drives that are connected too.
///
/// Switched on again, the server takes the port that it had, so that drives find it; where that is
/// taken by now, the panel says so.
class SambaServerPanel final : public LocalServerPanel
{
    Q_OBJECT

public:
    /// What is to go wrong. The order is that of the box.
    enum class Trouble {
        None,
        WrongPassword, ///< the address holds another password than the server's
        UnknownShare, ///< the address names a share that the server does not have
        Silent, ///< the server takes connections and says nothing
        NobodyThere, ///< the address holds a port at which nobody listens
    };

    explicit SambaServerPanel(QWidget *parent = nullptr);
    ~SambaServerPanel() override;

    /// From the beginning: none.
    void setTrouble(Trouble trouble);

    /// What the server shares.
    [[nodiscard]] static QStringList shares();

    /// Host, port, user and password; an empty URL while the server does not run.
    [[nodiscard]] QUrl serverUrl() const;

    /// The same with the share as its path.
    [[nodiscard]] QUrl shareUrl(const QString &share) const;

signals:
    /// The server takes connections, or has ended. May be emitted again for the same.
    void runningChanged(bool isRunning);

protected:
    [[nodiscard]] std::unique_ptr<LocalServer> makeServer() override;
    void retranslate() override;

private slots:
    void welcome();
    void applyTrouble();
    void announce();

private:
    void comparePort();
    [[nodiscard]] Trouble trouble() const;

    QLabel *troubleLabel;
    QComboBox *troubleBox;
    QLabel *portLabel;
    // Of the last start; 0 before the first.
    quint16 lastPort = 0;
    // Goes with the server, however that ends.
    QPointer<QObject> serverLife;
};
