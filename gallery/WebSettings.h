#pragma once

#include <QHash>
#include <QString>
#include <QUrl>
#include <QVariant>

/// What a web server reads in a dictionary of TXWebInterfaceConfigurationWidget.
struct WebSettings
{
    bool isEnabled = false;
    bool isSecure = false;
    int port = 0;
    /// As typed.
    QString path;
    /// A PEM file with certificate and key; counts with isSecure only.
    QString certificate;
    /// Empty lets everybody in.
    QString user;
    /// In clear.
    QString password;
    QString options;

    [[nodiscard]] static WebSettings from(const QHash<QString, QVariant> &settings);

    /// Where the page is on this computer, without user and password.
    [[nodiscard]] QUrl url() const;
};
