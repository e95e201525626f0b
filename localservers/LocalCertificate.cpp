#include "LocalCertificate.h"

#include <QProcess>
#include <QStringList>

namespace {

QString alternativeNames(const QString &hostName)
{
    const QString names = QStringLiteral("subjectAltName=DNS:") + hostName;
    return hostName == QStringLiteral("localhost") ? names + QStringLiteral(",IP:127.0.0.1")
                                                   : names;
}

} // namespace

LocalCertificate::LocalCertificate(const QString &hostName)
{
    const QString command = QStringLiteral("req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 "
                                           "-nodes -days 3650");
    QStringList arguments = command.split(u' ');
    arguments << QStringLiteral("-keyout") << keyFile() << QStringLiteral("-out")
              << certificateFile() << QStringLiteral("-subj") << QStringLiteral("/CN=") + hostName
              << QStringLiteral("-addext") << alternativeNames(hostName);
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"), arguments);
    if (!openssl.waitForFinished()) {
        failure = openssl.errorString();
    } else if (openssl.exitStatus() != QProcess::NormalExit || openssl.exitCode() != 0) {
        failure = QStringLiteral("openssl: ") + QString::fromUtf8(openssl.readAllStandardError());
    }
}

QString LocalCertificate::certificateFile() const
{
    return folder.filePath(QStringLiteral("certificate.pem"));
}

QString LocalCertificate::keyFile() const
{
    return folder.filePath(QStringLiteral("key.pem"));
}
