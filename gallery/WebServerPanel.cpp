#include "WebServerPanel.h"

#include "LocalWebServer.h"
#include "WebSettings.h"
#include "WebStatusPage.h"

#include "TXWebInterfaceConfigurationWidget.h"

#include <QCheckBox>
#include <QPushButton>

namespace {

/// In the place of a server that the settings do not want.
class RefusedServer final : public LocalServer
{
public:
    explicit RefusedServer(const QString &reason)
        : LocalServer(QString())
        , reason(reason)
    { }

protected:
    [[nodiscard]] QString prepare() override { return reason; }

private:
    QString reason;
};

} // namespace

WebServerPanel::WebServerPanel(TXWebInterfaceConfigurationWidget *configuration, QWidget *parent)
    : LocalServerPanel(parent)
    , configuration(configuration)
    , reachBox(new QCheckBox(this))
    , visitButton(new QPushButton(this))
{
    addOption(nullptr, reachBox);
    addOption(nullptr, visitButton);
    hideFillIn();
    retranslate();
    connect(reachBox, SIGNAL(toggled(bool)), this, SLOT(restart()));
    connect(visitButton, SIGNAL(clicked()), this, SIGNAL(visitWanted()));
}

std::unique_ptr<LocalServer> WebServerPanel::makeServer()
{
    const WebSettings settings = WebSettings::from(configuration->save());
    const QString refusal = refusalOf(settings);
    isRefused = !refusal.isEmpty();
    if (isRefused) {
        return std::make_unique<RefusedServer>(refusal);
    }
    auto server = std::make_unique<LocalWebServer>();
    server->setReach(reachBox->isChecked() ? LocalWebServer::Reach::AllAddresses
                                           : LocalWebServer::Reach::ThisComputer);
    server->setWantedPort(quint16(settings.port));
    server->setPath(settings.url().path(QUrl::FullyEncoded));
    server->setUser(settings.user, settings.password);
    if (settings.isSecure) {
        server->setCertificate(settings.certificate);
    }
    server->setContent(WebStatusPage::html(settings));
    return server;
}

bool WebServerPanel::isHelpedBySetup(const QString &reason) const
{
    return !isRefused && !LocalWebServer::tellsOfSettings(reason);
}

void WebServerPanel::retranslate()
{
    setTitle(tr("Web server"));
    reachBox->setText(tr("Other com&puters may connect"));
    reachBox->setToolTip(tr("Without it the server listens on 127.0.0.1 only, and no other link "
                            "of the panel leads to it."));
    setButtonText(visitButton, tr("Visi&t the Page"));
    LocalServerPanel::retranslate();
}

QString WebServerPanel::refusalOf(const WebSettings &settings)
{
    if (!settings.isEnabled) {
        return tr("the box \"Enabled\" of the panel is not checked");
    }
    if (settings.isSecure && settings.certificate.isEmpty()) {
        return tr("HTTPS needs a certificate file");
    }
    return {};
}
