#pragma once

#include "LocalServerPanel.h"
#include "UpdateOffer.h"

class QComboBox;

/// Switches an update service on this computer on and off, with a choice of what it offers. While
/// it runs it is the service of TXUpdateService.
class UpdateServicePanel final : public LocalServerPanel
{
    Q_OBJECT

public:
    explicit UpdateServicePanel(QWidget *parent = nullptr);
    ~UpdateServicePanel() override;

    /// From the beginning: a newer release. Counts at once.
    void setOffer(UpdateOffer offer);

    /// Host and port to ask, as in "127.0.0.1:4711"; empty while the service does not run. Several
    /// panels have a service each, of which the library asks the one that was told something last.
    [[nodiscard]] QString authority() const;

signals:
    /// The service takes requests, or has ended. May be emitted again for the same.
    void runningChanged(bool isRunning);

protected:
    [[nodiscard]] std::unique_ptr<LocalServer> makeServer() override;
    void retranslate() override;

private slots:
    void tell();
    void announce();

private:
    [[nodiscard]] UpdateOffer offer() const;

    QLabel *offerLabel;
    QComboBox *offerBox;
    // Of the running service.
    QString announcedAuthority;
};
