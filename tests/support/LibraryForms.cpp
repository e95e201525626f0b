#include "LibraryForms.h"

#include "AboutAppWindow.h"
#include "AutoMountManagerMainWindow.h"
#include "AutoMountNetworkDriveEditor.h"
#include "CredentialDialog.h"
#include "DoubleSpinBoxWithSliderWidget.h"
#include "EMailSenderWidget.h"
#include "FTPConfigurationDialog.h"
#include "FTPConfigurationWidget.h"
#include "LockerFirstPasswordDialog.h"
#include "LockerPasswordDialog.h"
#include "LockerUIDialog.h"
#include "ShareBrowser.h"
#include "TXCheckForUpdateConfigWidget.h"
#include "TXCheckForUpdateWidget.h"
#include "TXDBNavWidget.h"
#include "TXDatabaseConfigurationWidget.h"
#include "TXDeltaGradientWidget.h"
#include "TXFeedbackDialog.h"
#include "TXFeedbackWidget.h"
#include "TXLogManager.h"
#include "TXLogWindow.h"
#include "TXProgressBar.h"
#include "TXSelectDefaultEncodingWidget.h"
#include "TXSelectionItemWidget.h"
#include "TXTriggerEventWidget.h"
#include "TXUpdateService.h"
#include "TXWebInterfaceConfigurationWidget.h"
#include "TXWidgetListWidget.h"

namespace {

class AboutExample final : public AboutAppWindow
{
public:
    using AboutAppWindow::AboutAppWindow;

    [[nodiscard]] QPixmap applicationLogo() const override
    {
        QPixmap logo(64, 64);
        logo.fill(Qt::darkCyan);
        return logo;
    }
    [[nodiscard]] QString applicationName() const override { return QStringLiteral("Example"); }
    [[nodiscard]] QString applicationVersion() const override { return QStringLiteral("2.1.0"); }
    [[nodiscard]] QString applicationVersionDetail() const override
    {
        return QStringLiteral("(10452)");
    }
    [[nodiscard]] QString applicationCopyrightStartYear() const override
    {
        return QStringLiteral("2019");
    }
    [[nodiscard]] QString patentFileName() const override { return QStringLiteral("Notices.html"); }
};

template<class Widget>
QSharedPointer<QWidget> make()
{
    return QSharedPointer<Widget>::create();
}

template<class Dialog>
QSharedPointer<QWidget> makeLocker()
{
    return QSharedPointer<Dialog>::create(true);
}

template<bool isImport>
QSharedPointer<QWidget> makeFtpDialog()
{
    return QSharedPointer<FTPConfigurationDialog>::create(QHash<QString, QVariant>(),
                                                          QStringLiteral("Proofs"), isImport);
}

/// It asks for updates where nobody listens.
QSharedPointer<QWidget> makeUpdateDialog()
{
    TXUpdateService::setAuthority(QStringLiteral("127.0.0.1:1"));
    return QSharedPointer<TXCheckForUpdateWidget>::create(QStringLiteral("Example"), 1, false);
}

QSharedPointer<QWidget> makeDriveEditor()
{
    return QSharedPointer<AutoMountNetworkDriveEditor>::create(AutoMountNetworkDrive());
}

QSharedPointer<QWidget> makeFeedbackDialog()
{
    return QSharedPointer<TXFeedbackDialog>::create(QVariantHash());
}

QSharedPointer<QWidget> makeGradient()
{
    return QSharedPointer<TXDeltaGradientWidget>::create(nullptr);
}

QSharedPointer<QWidget> makeLogWindow()
{
    return QSharedPointer<TXLogWindow>::create(QSharedPointer<TXLogManager>::create(), nullptr);
}

QSharedPointer<QWidget> makeShareBrowser()
{
    return QSharedPointer<ShareBrowser>::create(QUrl(QStringLiteral("smb:")));
}

} // namespace

const QList<LibraryForm> &libraryForms()
{
    static const QList<LibraryForm> forms = {
        {"AboutAppWindow", make<AboutExample>},
        {"AutoMountManagerMainWindow", make<AutoMountManagerMainWindow>},
        {"AutoMountNetworkDriveEditor", makeDriveEditor},
        {"CredentialDialog", make<CredentialDialog>},
        {"DoubleSpinBoxWithSliderWidget", make<DoubleSpinBoxWithSliderWidget>},
        {"EMailSenderWidget", make<EMailSenderWidget>},
        {"FTPConfigurationDialog, import", makeFtpDialog<true>},
        {"FTPConfigurationDialog, export", makeFtpDialog<false>},
        {"FTPConfigurationWidget", make<FTPConfigurationWidget>},
        {"LockerFirstPasswordDialog", makeLocker<LockerFirstPasswordDialog>},
        {"LockerPasswordDialog", makeLocker<LockerPasswordDialog>},
        {"LockerUIDialog", makeLocker<LockerUIDialog>},
        {"ShareBrowser", makeShareBrowser},
        {"TXCheckForUpdateConfigWidget", make<TXCheckForUpdateConfigWidget>},
        {"TXCheckForUpdateWidget", makeUpdateDialog},
        {"TXDBNavWidget", make<TXDBNavWidget>},
        {"TXDatabaseConfigurationWidget", make<TXDatabaseConfigurationWidget>},
        {"TXDeltaGradientWidget", makeGradient},
        {"TXFeedbackDialog", makeFeedbackDialog},
        {"TXFeedbackWidget", make<TXFeedbackWidget>},
        {"TXLogWindow", makeLogWindow},
        {"TXProgressBar", make<TXProgressBar>},
        {"TXSelectDefaultEncodingWidget", make<TXSelectDefaultEncodingWidget>},
        {"TXSelectionItemWidget", make<TXSelectionItemWidget>},
        {"TXTriggerEventWidget", make<TXTriggerEventWidget>},
        {"TXWebInterfaceConfigurationWidget", make<TXWebInterfaceConfigurationWidget>},
        {"TXWidgetListWidget", make<TXWidgetListWidget>},
    };
    return forms;
}
