#include "TXFTP.h"

#include <QCoreApplication>
#include <QUrl>

TXFTP::TXFTP() = default;

bool TXFTP::check(QUrl)
{
    code = NotBuiltIn;
    return false;
}

int TXFTP::errorCode() const
{
    return code;
}

QString TXFTP::errorText() const
{
    if (code == NoError) {
        return {};
    }
    return QCoreApplication::translate(
        "TXFTP", "Connecting to FTP servers is not available in this version.");
}
