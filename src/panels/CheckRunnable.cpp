#include "CheckRunnable.h"

#include "TXFTP.h"

CheckRunnable::CheckRunnable(const QUrl &serverUrl)
    : url(serverUrl)
{ }

void CheckRunnable::run()
{
    TXFTP ftp;
    QUrl root = url;
    root.setPath(QString());
    if (ftp.check(root)) {
        emit finished(FTPConfigurationWidget::FtpOk);
    } else if (ftp.errorCode() == TXFTP::LoginDenied) {
        emit finished(FTPConfigurationWidget::FtpLoginError);
    } else {
        emit finished(FTPConfigurationWidget::FtpHostError);
    }
}
