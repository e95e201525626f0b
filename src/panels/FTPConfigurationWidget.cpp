#include "FTPConfigurationWidget.h"

#include "CheckRunnable.h"
#include "StoredSecret.h"
#include "TXResources.h"
#include "TXWidgetUtilities.h"
#include "ui_FTPConfigurationWidget.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMovie>
#include <QSettings>
#include <QThreadPool>

namespace {

const QLatin1String kUrlKey("FTPServerURL");
const QLatin1String kEraseKey("EraseSourceFiles");
const QLatin1String kActivatedKey("FTPIsActivated");
const QLatin1String kVerboseKey("FTPVerbose");
const QLatin1String kVerboseLevelKey("FTPVerboseLevel");

const QLatin1String kVerboseModeSetting("VerboseMode");
const QLatin1String kVerboseLevelSetting("VerboseLevel");

struct SchemePort
{
    QLatin1String scheme;
    int port;
};

constexpr SchemePort kStandardPorts[] = {
    {QLatin1String("ftp"), 21},
    {QLatin1String("ftps"), 990},
    {QLatin1String("sftp"), 22},
};

/// The text as an absolute path of a directory.
QString directoryPath(const QString &text)
{
    const QChar slash = u'/';
    QString path = text;
    if (!path.startsWith(slash)) {
        path.prepend(slash);
    }
    if (!path.endsWith(slash)) {
        path.append(slash);
    }
    return path;
}

QString adviceFor(FTPConfigurationWidget::FtpStatus status)
{
    switch (status) {
    case FTPConfigurationWidget::FtpOk:
        return {};
    case FTPConfigurationWidget::FtpLoginError:
        return FTPConfigurationWidget::tr("Please check the user name and password");
    case FTPConfigurationWidget::FtpHostError:
        return FTPConfigurationWidget::tr("Please check the host name and port number");
    }
    return FTPConfigurationWidget::tr("Try to connect again to the FTP");
}

} // namespace

FTPConfigurationWidget::FTPConfigurationWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::FTPConfigurationWidget>())
{
    qRegisterMetaType<FTPConfigurationWidget::FtpStatus>("FTPConfigurationWidget::FtpStatus");
    ui->setupUi(this);
    setUpSpinner();
    setUpSchemes();
    connect(ui->ftpActivationCheckBox, SIGNAL(clicked(bool)), this, SLOT(enableUI(bool)));
    connect(ui->checkFTP, SIGNAL(clicked(bool)), this, SLOT(checkFTP(bool)));
}

FTPConfigurationWidget::~FTPConfigurationWidget() = default;

void FTPConfigurationWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void FTPConfigurationWidget::load(const QHash<QString, QVariant> &settings)
{
    const QByteArray encoded = StoredSecret::decipher(settings.value(kUrlKey).toString());
    showUrl(QUrl::fromEncoded(encoded, QUrl::TolerantMode));
    ui->eraseFileCheckBox->setChecked(settings.value(kEraseKey, false).toBool());
    ui->ftpActivationCheckBox->setChecked(settings.value(kActivatedKey, false).toBool());
    enableUI(ui->ftpActivationCheckBox->isChecked());
}

QHash<QString, QVariant> FTPConfigurationWidget::dictionary()
{
    const QByteArray encoded = ftpUrl().toEncoded(QUrl::FullyEncoded);
    const QSettings application;
    QHash<QString, QVariant> settings;
    settings.insert(kUrlKey, StoredSecret::encipher(encoded));
    settings.insert(kEraseKey, ui->eraseFileCheckBox->isChecked());
    settings.insert(kActivatedKey, ui->ftpActivationCheckBox->isChecked());
    settings.insert(kVerboseKey, application.value(kVerboseModeSetting, false).toBool());
    settings.insert(kVerboseLevelKey, application.value(kVerboseLevelSetting, 0U).toUInt());
    return settings;
}

QUrl FTPConfigurationWidget::ftpUrl()
{
    QUrl url;
    url.setPort(ui->portSpinBox->value());
    url.setScheme(ui->schemeComboBox->currentData().toString());
    url.setHost(ui->hostLineEdit->text(), QUrl::DecodedMode);
    url.setPassword(ui->passwordLineEdit->text(), QUrl::DecodedMode);
    url.setUserName(ui->userNameLineEdit->text(), QUrl::DecodedMode);
    url.setPath(directoryPath(ui->relativePathLineEdit->text()), QUrl::DecodedMode);
    return url;
}

bool FTPConfigurationWidget::isEnabled() const
{
    return ui->ftpActivationCheckBox->isChecked();
}

bool FTPConfigurationWidget::isVisibleStatus() const
{
    return isStatusVisible;
}

void FTPConfigurationWidget::setVisibleStatus(bool visible)
{
    isStatusVisible = visible;
}

bool FTPConfigurationWidget::isVisibleActiveCheckBox() const
{
    return !ui->ftpActivationCheckBox->isHidden();
}

void FTPConfigurationWidget::setVisibleActiveCheckBox(bool visible)
{
    ui->ftpActivationCheckBox->setVisible(visible);
    ui->activateLabel->setVisible(visible);
}

bool FTPConfigurationWidget::isVisibleEraseSrcFilesItems() const
{
    return !ui->eraseFileCheckBox->isHidden();
}

void FTPConfigurationWidget::setVisibleEraseSrcFilesItems(bool visible)
{
    ui->eraseFileCheckBox->setVisible(visible);
    ui->eraseDistantLabel->setVisible(visible);
}

bool FTPConfigurationWidget::isImporter() const
{
    return isForImport;
}

void FTPConfigurationWidget::setIsImporter(bool isImporter)
{
    isForImport = isImporter;
    ui->eraseDistantLabel->setText(isImporter ? tr("Erase Distant Files")
                                              : tr("Erase Local Files"));
}

int FTPConfigurationWidget::maxLabelsWidth() const
{
    QList<QLabel *> labels;
    if (ui->activateLabel->isVisible()) {
        labels.append(ui->activateLabel);
    }
    labels.append({ui->hostLabel, ui->userLabel, ui->passwordLabel, ui->pathLabel});
    if (ui->eraseDistantLabel->isVisible()) {
        labels.append(ui->eraseDistantLabel);
    }
    return TXWidgetUtilities::maxSizeNeededForLabelList(labels).width();
}

void FTPConfigurationWidget::checkFTP()
{
    checkFTP(true);
}

void FTPConfigurationWidget::enableButtons()
{
    verdict.reset();
    ui->progressLabel->setToolTip(QString());
    ui->progressLabel->hide();
    spinner->stop();
    ui->checkFTP->setEnabled(true);
}

void FTPConfigurationWidget::activateFTP(bool activated)
{
    ui->ftpActivationCheckBox->setChecked(activated);
    enableUI(activated);
}

void FTPConfigurationWidget::enableUI(bool enabled)
{
    const std::initializer_list<QWidget *> controls = {
        ui->eraseFileCheckBox, ui->hostLineEdit,         ui->portSpinBox, ui->userNameLineEdit,
        ui->passwordLineEdit,  ui->relativePathLineEdit, ui->checkFTP};
    for (QWidget *control : controls) {
        control->setEnabled(enabled);
    }
    emit changeFtpStatus(enabled);
}

void FTPConfigurationWidget::checkFTP(bool)
{
    verdict.reset();
    ui->progressLabel->setMovie(spinner);
    ui->progressLabel->setToolTip(QString());
    ui->progressLabel->setAccessibleName(tr("Checking the connection"));
    ui->progressLabel->show();
    spinner->start();
    ui->checkFTP->setEnabled(false);

    auto runnable = std::make_unique<CheckRunnable>(ftpUrl());
    connect(runnable.get(), SIGNAL(finished(FTPConfigurationWidget::FtpStatus)), this,
            SLOT(onFinished(FTPConfigurationWidget::FtpStatus)));
    QThreadPool::globalInstance()->start(runnable.release(), 0);
}

void FTPConfigurationWidget::onFinished(FTPConfigurationWidget::FtpStatus status)
{
    enableButtons();
    if (isStatusVisible) {
        showVerdict(status);
    }
    emit ftpConnectionStatus(status);
}

void FTPConfigurationWidget::on_schemeComboBox_currentIndexChanged(int index)
{
    const QString scheme = ui->schemeComboBox->itemData(index).toString();
    for (const SchemePort &standard : kStandardPorts) {
        if (scheme == standard.scheme) {
            ui->portSpinBox->setValue(standard.port);
        }
    }
}

void FTPConfigurationWidget::setUpSpinner()
{
    const QString file = QCoreApplication::applicationDirPath()
        + QStringLiteral("/../Resources/Images/ajax-loader.gif");
    spinner = new QMovie(file, "GIF", ui->progressLabel);
    // The height that the layout will give the button, and not that of a widget before any layout.
    ui->checkFTP->ensurePolished();
    ui->checkFTP->adjustSize();
    spinner->setScaledSize(QSize(ui->checkFTP->height(), ui->checkFTP->height()));
    ui->progressLabel->hide();
}

void FTPConfigurationWidget::setUpSchemes()
{
    ui->schemeComboBox->addItem(QStringLiteral("FTP"), QStringLiteral("ftp"));
    ui->schemeComboBox->addItem(QStringLiteral("SFTP"), QStringLiteral("sftp"));
    ui->schemeComboBox->ensurePolished();
    ui->schemeComboBox->updateGeometry();
}

void FTPConfigurationWidget::showUrl(const QUrl &url)
{
    showScheme(url.scheme());
    if (url.port() >= 0) {
        ui->portSpinBox->setValue(url.port());
    }
    ui->hostLineEdit->setText(url.host(QUrl::FullyDecoded));
    showPassword(url.password(QUrl::FullyDecoded));
    ui->userNameLineEdit->setText(url.userName(QUrl::FullyDecoded));
    ui->relativePathLineEdit->setText(url.path(QUrl::FullyDecoded));
}

void FTPConfigurationWidget::showScheme(const QString &scheme)
{
    const int place = ui->schemeComboBox->findData(scheme, Qt::UserRole,
                                                   Qt::MatchExactly | Qt::MatchCaseSensitive);
    ui->schemeComboBox->setCurrentIndex(place < 0 ? 0 : place);
}

void FTPConfigurationWidget::showPassword(const QString &password)
{
    // The field ignores an empty text, and the password of another account must not stay.
    ui->passwordLineEdit->clear();
    ui->passwordLineEdit->setText(password);
}

void FTPConfigurationWidget::showVerdict(FtpStatus status)
{
    const bool isGood = status == FtpOk;
    const QPixmap bullet =
        isGood ? TXDisplayFixBulletStaticImage() : TXDisplayErrorBulletStaticImage();
    const int height = qRound(ui->checkFTP->height() * bullet.devicePixelRatio());
    ui->progressLabel->setPixmap(bullet.scaledToHeight(height, Qt::FastTransformation));
    verdict = status;
    tellVerdict();
    ui->progressLabel->show();
}

void FTPConfigurationWidget::tellVerdict()
{
    ui->progressLabel->setToolTip(adviceFor(*verdict));
    ui->progressLabel->setAccessibleName(*verdict == FtpOk ? tr("Connection succeeded")
                                                           : tr("Connection failed"));
}

void FTPConfigurationWidget::retranslate()
{
    ui->retranslateUi(this);
    setIsImporter(isForImport);
    if (verdict) {
        tellVerdict();
    } else if (ui->progressLabel->movie()) {
        ui->progressLabel->setAccessibleName(tr("Checking the connection"));
    }
}
