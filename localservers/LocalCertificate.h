#pragma once

#include <QString>
#include <QTemporaryDir>

/// A new key and a self-signed certificate for it, in files of a temporary folder that goes with
/// the object. A client that takes certificateFile() for its list of authorities trusts the server
/// that uses both.
class LocalCertificate
{
public:
    /// Makes both with the program openssl, valid for ten years. For "localhost" the certificate is
    /// for 127.0.0.1 too; with any other name a client that connects to localhost must refuse it.
    explicit LocalCertificate(const QString &hostName = QStringLiteral("localhost"));

    /// Whether both files are there.
    [[nodiscard]] bool isValid() const { return failure.isEmpty(); }

    /// Why there are no files, in words; empty when there are.
    [[nodiscard]] QString error() const { return failure; }

    /// The certificate as a PEM file.
    [[nodiscard]] QString certificateFile() const;

    /// The key as a PEM file without a password.
    [[nodiscard]] QString keyFile() const;

private:
    QTemporaryDir folder;
    QString failure;
};
