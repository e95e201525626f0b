#include "FtpSessionPanel.h"

namespace {

/// The value's name in the source, which is what a developer looks for.
QString nameOf(FTPConfigurationWidget::FtpStatus status)
{
    switch (status) {
    case FTPConfigurationWidget::FtpOk:
        return QStringLiteral("FtpOk");
    case FTPConfigurationWidget::FtpLoginError:
        return QStringLiteral("FtpLoginError");
    case FTPConfigurationWidget::FtpHostError:
        return QStringLiteral("FtpHostError");
    }
    return QString::number(status);
}

} // namespace

FtpSessionPanel::FtpSessionPanel(QWidget *parent)
    : SessionPanel(parent)
{
    retranslate();
}

void FtpSessionPanel::addConnectionStatus(FTPConfigurationWidget::FtpStatus status)
{
    addEmission(QStringLiteral("ftpConnectionStatus(%1)").arg(nameOf(status)));
}

void FtpSessionPanel::addFtpStatus(bool isEnabled)
{
    const QString value = isEnabled ? QStringLiteral("true") : QStringLiteral("false");
    addEmission(QStringLiteral("changeFtpStatus(%1)").arg(value));
}

void FtpSessionPanel::retranslate()
{
    SessionPanel::retranslate();
    setLabels(tr("What the server &got:"), tr("Signals of t&he panel:"));
}
