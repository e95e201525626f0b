#include "TXWebInterfaceConfigurationWidget.h"

#include "StoredSecret.h"
#include "TXApplicationInformation.h"
#include "TXFileDialog.h"
#include "WebAddressList.h"
#include "WholeNumber.h"
#include "ui_TXWebInterfaceConfigurationWidget.h"

#include <QNetworkInterface>
#include <QPointer>
#include <QSettings>

#include <cmath>

namespace {

const QLatin1String kEnabledKey("Enabled");
const QLatin1String kPortKey("Port");
const QLatin1String kPathKey("Path");
const QLatin1String kSecureKey("Secure");
const QLatin1String kCertificateKey("Certificate");
const QLatin1String kUsersKey("Users");
const QLatin1String kUsernameKey("Username");
const QLatin1String kPasswordKey("Password");
const QLatin1String kOptionsKey("ExtendedOptions");

const QLatin1String kHttpsSetting("EnableHTTPS");

constexpr int kHttpsPort = 443;
constexpr int kCommonPort = 8080;

struct ProductPort
{
    int product;
    int port;
};

constexpr ProductPort kProductPorts[] = {{2000, 8751}, {1000, 8752}, {5000, 8753}};

int defaultPort()
{
    const int product = baseProd();
    for (const ProductPort &known : kProductPorts) {
        if (known.product == product) {
            return known.port;
        }
    }
    return kCommonPort;
}

/// A number beyond int would lose its upper half, and might look like a port then.
int portIn(const QHash<QString, QVariant> &settings)
{
    bool isNumber = false;
    const double number = settings.value(kPortKey).toDouble(&isNumber);
    return isNumber && !std::isnan(number) ? WholeNumber::rounded(number) : defaultPort();
}

} // namespace

TXWebInterfaceConfigurationWidget::TXWebInterfaceConfigurationWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::TXWebInterfaceConfigurationWidget>())
{
    ui->setupUi(this);
    connect(ui->enabledCheckBox, SIGNAL(toggled(bool)), this, SLOT(refresh()));
    connect(ui->portSpinBox, SIGNAL(valueChanged(int)), this, SLOT(refresh()));
    connect(ui->pathLineEdit, SIGNAL(textChanged(QString)), this, SLOT(refresh()));
    refresh();
}

TXWebInterfaceConfigurationWidget::~TXWebInterfaceConfigurationWidget()
{
    // It lives on the stack of its caller, and a parent would delete it nevertheless.
    const auto dialogs = findChildren<QFileDialog *>(QString(), Qt::FindDirectChildrenOnly);
    for (QFileDialog *dialog : dialogs) {
        dialog->setParent(nullptr);
        dialog->reject();
    }
}

bool TXWebInterfaceConfigurationWidget::load(const QHash<QString, QVariant> &settings)
{
    ui->enabledCheckBox->setChecked(settings.value(kEnabledKey).toBool());
    ui->portSpinBox->setValue(portIn(settings));
    ui->pathLineEdit->setText(settings.value(kPathKey).toString());
    ui->httpsCertificateCheckBox->setChecked(settings.value(kSecureKey).toBool());
    ui->httpsCertificateLineEdit->setText(settings.value(kCertificateKey).toString());
    showUser(settings.value(kUsersKey).toList().value(0).toHash());
    ui->optionsLineEdit->setText(settings.value(kOptionsKey).toString());
    refresh();
    return true;
}

QHash<QString, QVariant> TXWebInterfaceConfigurationWidget::save() const
{
    const QHash<QString, QVariant> user = {
        {kUsernameKey, ui->usernameLineEdit->text()},
        {kPasswordKey, StoredSecret::encipher(ui->passwordLineEdit->text().toUtf8())}};
    return {{kEnabledKey, ui->enabledCheckBox->isChecked()},
            {kPortKey, ui->portSpinBox->value()},
            {kPathKey, ui->pathLineEdit->text()},
            {kSecureKey, ui->httpsCertificateCheckBox->isChecked()},
            {kCertificateKey, ui->httpsCertificateLineEdit->text()},
            {kUsersKey, QVariantList(1, user)},
            {kOptionsKey, ui->optionsLineEdit->text()}};
}

void TXWebInterfaceConfigurationWidget::refresh()
{
    const bool isEnabled = ui->enabledCheckBox->isChecked();
    enableControls(isEnabled);
    showSecurity();
    if (!isEnabled) {
        ui->hostTextEdit->clear();
        return;
    }
    ui->hostTextEdit->setHtml(
        WebAddressList::html(QNetworkInterface::allAddresses(),
                             {ui->httpsCertificateCheckBox->isChecked(), ui->portSpinBox->value(),
                              ui->pathLineEdit->text()}));
}

void TXWebInterfaceConfigurationWidget::on_httpsCertificateButton_clicked()
{
    // The window, should it be closed meanwhile, takes the panel with it.
    const QPointer<TXWebInterfaceConfigurationWidget> self(this);
    const QString file = TXFileDialog::getOpenFileName(this, tr("Choose Certificate File"),
                                                       ui->httpsCertificateLineEdit->text(),
                                                       tr("Certificate Files (*.pem)"));
    if (self && !file.isEmpty()) {
        ui->httpsCertificateLineEdit->setText(file);
    }
}

void TXWebInterfaceConfigurationWidget::on_httpsCertificateCheckBox_clicked()
{
    ui->portSpinBox->setValue(ui->httpsCertificateCheckBox->isChecked() ? kHttpsPort
                                                                        : defaultPort());
    refresh();
}

void TXWebInterfaceConfigurationWidget::enableControls(bool isEnabled)
{
    const std::initializer_list<QWidget *> controls = {ui->portLabel,
                                                       ui->portSpinBox,
                                                       ui->pathLabel,
                                                       ui->pathLineEdit,
                                                       ui->userNameLabel,
                                                       ui->usernameLineEdit,
                                                       ui->passwordLabel,
                                                       ui->passwordLineEdit,
                                                       ui->hostTextEdit,
                                                       ui->optionsLabel,
                                                       ui->optionsLineEdit,
                                                       ui->httpsCertificateCheckBox,
                                                       ui->httpsCertificateLineEdit,
                                                       ui->httpsCertificateButton};
    for (QWidget *control : controls) {
        control->setEnabled(isEnabled);
    }
}

void TXWebInterfaceConfigurationWidget::showSecurity()
{
    const bool isSecure = ui->httpsCertificateCheckBox->isChecked();
    const bool isOffered = QSettings().value(kHttpsSetting, false).toBool();
    ui->httpsCertificateCheckBox->setVisible(isOffered || isSecure);
    ui->httpsCertificateLineEdit->setVisible(isSecure);
    ui->httpsCertificateButton->setVisible(isSecure);
}

void TXWebInterfaceConfigurationWidget::showUser(const QHash<QString, QVariant> &user)
{
    ui->usernameLineEdit->setText(user.value(kUsernameKey).toString());
    // The field ignores an empty text, and the password of another account must not stay.
    ui->passwordLineEdit->clear();
    ui->passwordLineEdit->setText(
        QString::fromUtf8(StoredSecret::decipher(user.value(kPasswordKey).toString())));
    clearPassword = ui->passwordLineEdit->text();
}
