#pragma once

#include "LocalServerPanel.h"

class QCheckBox;
class TXWebInterfaceConfigurationWidget;
struct WebSettings;

/// Switches a web server on this computer on and off, with the settings that stand in the library's
/// panel when it starts. Only this computer reaches it, until the user allows all others.
class WebServerPanel final : public LocalServerPanel
{
    Q_OBJECT

public:
    /// Takes the settings of the configuration, which is not owned, never null and outlives the
    /// panel.
    explicit WebServerPanel(TXWebInterfaceConfigurationWidget *configuration,
                            QWidget *parent = nullptr);

signals:
    /// The user wants to have the page fetched.
    void visitWanted();

protected:
    [[nodiscard]] std::unique_ptr<LocalServer> makeServer() override;
    [[nodiscard]] bool isHelpedBySetup(const QString &reason) const override;
    void retranslate() override;

private:
    [[nodiscard]] static QString refusalOf(const WebSettings &settings);

    TXWebInterfaceConfigurationWidget *configuration;
    QCheckBox *reachBox;
    QPushButton *visitButton;
    // Whether the last server has not even been tried.
    bool isRefused = false;
};
