#pragma once

#include "TXGUICommonExport.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <memory>

namespace Ui {
class TXWebInterfaceConfigurationWidget;
}

/// The panel on which a user sets up the small web server of an application: whether it runs, its
/// port and path, one user, HTTPS with a certificate, and options as free text. It lists the
/// addresses at which the server can be reached on this machine, as links.
///
/// The server is the application's own: the panel neither runs one nor looks whether one runs, and
/// it validates nothing.
///
/// The settings dictionary has seven keys, all of them at each save():
/// - "Enabled": bool, whether the server is to run.
/// - "Port": int, 1 to 65535.
/// - "Path": string, as typed.
/// - "Secure": bool, HTTPS instead of HTTP.
/// - "Certificate": string, path of a PEM file.
/// - "Users": list of one hash with "Username" (string) and "Password" (string, enciphered for this
///   user; empty when there is no key to encipher with).
/// - "ExtendedOptions": string, whatever the server makes of it.
///
/// The box for HTTPS is there when the value "EnableHTTPS" of the application's QSettings is true,
/// or while it is checked. The standard port depends on the host product, see baseProd(): 8751 for
/// 2000, 8752 for 1000, 8753 for 5000 and 8080 for any other.
///
/// Emits no signal: a host reads save() when it applies the settings. Texts stay in the language of
/// construction. Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXWebInterfaceConfigurationWidget : public QWidget
{
    Q_OBJECT

public:
    /// Shows a server that is switched off, at port 8080 whatever the product.
    explicit TXWebInterfaceConfigurationWidget(QWidget *parent = nullptr);

    /// A file dialog of the panel that is still open is cancelled.
    ~TXWebInterfaceConfigurationWidget() override;

    /// Shows the settings and returns true. Every field is replaced: a missing key gives false, an
    /// empty text or the standard port of the product, and so does a value that cannot be read as
    /// one of its kind. A port out of range becomes the nearest end of it. Of "Users" the first
    /// element counts and the others are dropped; a password that another user or machine has
    /// enciphered gives an empty field.
    bool load(const QHash<QString, QVariant> &settings);

    /// The settings as they stand in the controls, whether a server can run with them or not.
    [[nodiscard]] QHash<QString, QVariant> save() const;

public slots:
    /// Brings the look up to date: what is enabled and visible, and the list of addresses, one line
    /// for each IPv4 address of the machine in the order of QNetworkInterface::allAddresses(). The
    /// list is empty while the box "Enabled" is not checked. It holds what was found by this call:
    /// interfaces that come and go later do not change it. Called for each edit of a control that
    /// the list depends on.
    void refresh();

    /// Lets the user choose a PEM file, starting at the one that is set. Cancelling keeps that one.
    void on_httpsCertificateButton_clicked();

    /// Sets the port for a click on the box, 443 with HTTPS and the standard port of the product
    /// without, whatever stood there, and calls refresh().
    void on_httpsCertificateCheckBox_clicked();

private:
    void enableControls(bool isEnabled);
    void showSecurity();
    void showUser(const QHash<QString, QVariant> &user);

    std::unique_ptr<Ui::TXWebInterfaceConfigurationWidget> ui;
    // As the last load() has left it.
    QString clearPassword;
};
