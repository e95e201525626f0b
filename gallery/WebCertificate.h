#pragma once

#include <QCoreApplication>
#include <QString>

/// A certificate for "localhost" and 127.0.0.1 with its key, made by the gallery itself, in one
/// PEM file of the gallery's own data: for trying HTTPS. Browsers warn of it.
class WebCertificate
{
    Q_DECLARE_TR_FUNCTIONS(WebCertificate)

public:
    /// Makes a new one with the program openssl, in the place of the last. The file is the user's
    /// alone to read.
    WebCertificate();

    /// Whether there is one.
    [[nodiscard]] bool isValid() const { return reason.isEmpty(); }

    /// Why there is none, in words; empty when there is.
    [[nodiscard]] QString error() const { return reason; }

    /// Where it lies, the same place each time.
    [[nodiscard]] static QString file();

private:
    [[nodiscard]] QString write(const QByteArray &content) const;

    QString reason;
};
