#include "TXCheckForUpdateWidget.h"

#include "InstallerFile.h"
#include "OwnTitle.h"
#include "PlainMessageBox.h"
#include "ReleaseRecord.h"
#include "ServiceText.h"
#include "TXFileDialog.h"
#include "UnfinishedDownloads.h"
#include "UpdateRunnable.h"
#include "ui_TXCheckForUpdateWidget.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QSettings>
#include <QStandardPaths>
#include <QThreadPool>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

constexpr int kDayMilliseconds = 86400000;
constexpr int kStartupDelayMilliseconds = 20000;
constexpr int kDefaultPeriodDays = 7;

const QString kPeriodSetting = QStringLiteral("CheckForUpdatesAutoPeriod");
const QString kAtStartupSetting = QStringLiteral("CheckForUpdatesAtStartup");

/// The details of dialogs that are built without any.
struct GlobalDetails
{
    QString productName;
    int productType = -1;
};

Q_GLOBAL_STATIC(GlobalDetails, globalDetails)

TXCheckForUpdateWidget *firstInstance = nullptr;

} // namespace

TXCheckForUpdateWidget::TXCheckForUpdateWidget(QWidget *parent, bool checkAtStartup)
    : TXEmbeddableDialog(parent)
    , ui(std::make_unique<Ui::TXCheckForUpdateWidget>())
{
    setUpTitleAndTimer();
    productName = globalDetails->productName;
    productType = globalDetails->productType;
    setUp(checkAtStartup);
}

TXCheckForUpdateWidget::TXCheckForUpdateWidget(QString name, int type, bool checkAtStartup,
                                               QWidget *parent)
    : TXEmbeddableDialog(parent)
    , ui(std::make_unique<Ui::TXCheckForUpdateWidget>())
{
    setUpTitleAndTimer();
    setDetails(name, type);
    setUp(checkAtStartup);
    if (firstInstance == nullptr) {
        firstInstance = this;
    }
}

TXCheckForUpdateWidget::~TXCheckForUpdateWidget()
{
    if (firstInstance == this) {
        firstInstance = nullptr;
    }
    abandonTransfer();
    threadPool->waitForDone(-1);
}

void TXCheckForUpdateWidget::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void TXCheckForUpdateWidget::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    giveMessageRoom();
}

TXCheckForUpdateWidget *TXCheckForUpdateWidget::instance()
{
    return firstInstance;
}

void TXCheckForUpdateWidget::setGlobalDetails(QString productName, int productType)
{
    *globalDetails = {productName, productType};
}

void TXCheckForUpdateWidget::setDetails(QString name, int type)
{
    productName = name;
    productType = type;
    if (globalDetails->productName.isEmpty()) {
        setGlobalDetails(name, type);
    }
}

TXCheckForUpdateWidget::State TXCheckForUpdateWidget::state() const
{
    return currentState;
}

int TXCheckForUpdateWidget::autoCheckPeriod() const
{
    return automaticCheckPeriod;
}

void TXCheckForUpdateWidget::setAutoCheckPeriod(int days)
{
    automaticCheckPeriod = days;
    elapsedDays = 0;
    if (days > 0) {
        timer->start(kDayMilliseconds);
    } else {
        timer->stop();
    }
}

void TXCheckForUpdateWidget::updateState(State state)
{
    if (state != currentState) {
        const QPointer<TXCheckForUpdateWidget> guard(this);
        // A slot that reads state() meanwhile sees the old one.
        emit stateChanged(state);
        if (!guard) {
            return;
        }
        currentState = state;
    }
    enter(state);
}

void TXCheckForUpdateWidget::getRevisionInfo(int type)
{
    auto runnable = std::make_unique<UpdateRunnable>(type);
    connect(runnable.get(), SIGNAL(updateReceived(QVariantHash, QVariantHash)), this,
            SLOT(updateInfoReceived(QVariantHash, QVariantHash)));
    threadPool->start(runnable.release());
}

// The signature is that of the hosts.
// NOLINTNEXTLINE(performance-unnecessary-value-param,readability-make-member-function-const)
QVariantHash TXCheckForUpdateWidget::revisionInfo(QVariantHash info)
{
    return ReleaseRecord::completed(info, productType);
}

void TXCheckForUpdateWidget::setVisible(bool visible)
{
    const QPointer<TXCheckForUpdateWidget> guard(this);
    if (visible) {
        tryCheckUpdate();
    }
    if (guard) {
        QDialog::setVisible(visible);
        raise();
    }
}

void TXCheckForUpdateWidget::checkUpdate()
{
    const QPointer<TXCheckForUpdateWidget> guard(this);
    tryCheckUpdate();
    if (guard) {
        QDialog::setVisible(true);
    }
}

void TXCheckForUpdateWidget::tryCheckUpdate()
{
    if (currentState != Downloading) {
        updateState(Checking);
    }
}

void TXCheckForUpdateWidget::updateInfoReceived(QVariantHash newUpdate, QVariantHash newLastUpdate)
{
    const bool hasFailed = newLastUpdate.isEmpty();
    update = revisionInfo(std::move(newUpdate));
    lastUpdate = revisionInfo(std::move(newLastUpdate));
    if (hasFailed) {
        updateState(ServiceError);
        return;
    }
    // The question whether to install may come up, and the dialog go while it is open.
    const QPointer<TXCheckForUpdateWidget> guard(this);
    updateState(ReleaseRecord::isNewer(update) ? UpdateAvailable : UpToDate);
    if (guard) {
        emit updateRefreshed(update);
    }
}

void TXCheckForUpdateWidget::on_downloadButton_clicked()
{
    const QString downloads = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    const QPointer<TXCheckForUpdateWidget> guard(this);
    const QString folder = TXFileDialog::getExistingDirectory(
        this, tr("Choose Download Directory"), downloads, QFileDialog::ShowDirsOnly, QString());
    if (!guard || folder.isEmpty()) {
        return;
    }
    update.insert(ReleaseRecord::kPathKey,
                  QString(folder + u'/' + ReleaseRecord::fileName(update)));
    updateState(DownloadStarting);
}

void TXCheckForUpdateWidget::on_downloadAndInstallButton_clicked()
{
    const QString question = tr("%1 will be installed on your computer.\n"
                                "Please make sure to have administrator rights before attempting "
                                "the software update.")
                                 .arg(ServiceText::line(ReleaseRecord::title(update)));
    const QPointer<TXCheckForUpdateWidget> guard(this);
    if (PlainMessageBox::confirm(tr("Installing Update"), question) && guard) {
        installAfterDownload = true;
        updateState(DownloadStarting);
    }
}

void TXCheckForUpdateWidget::on_installButton_clicked()
{
    const QString question = tr("Do you want to install this update?\n"
                                "The application will exit.");
    const QPointer<TXCheckForUpdateWidget> guard(this);
    if (!PlainMessageBox::confirm(tr("Installing Update"), question) || !guard) {
        return;
    }
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(downloadPath)) && guard) {
        accept();
        QMetaObject::invokeMethod(qApp, "closeAllWindows", Qt::QueuedConnection);
    }
}

void TXCheckForUpdateWidget::on_cancelButton_clicked()
{
    reject();
}

void TXCheckForUpdateWidget::on_okButton_clicked()
{
    accept();
}

void TXCheckForUpdateWidget::onTimer()
{
    // One more than the period must have been counted before a tick is due, so the check comes on
    // the tick of the period plus two.
    if (automaticCheckPeriod < elapsedDays) {
        elapsedDays = 0;
        tryCheckUpdate();
    } else {
        ++elapsedDays;
    }
}

void TXCheckForUpdateWidget::setUpTitleAndTimer()
{
    setWindowTitle(tr("Check for Updates"));
    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onTimer()));
}

void TXCheckForUpdateWidget::setUp(bool checkAtStartup)
{
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setUpNetwork();
    setUpForm();
    readSettings(checkAtStartup);
}

void TXCheckForUpdateWidget::setUpNetwork()
{
    networkManager.reset(new QNetworkAccessManager(this), std::mem_fn(&QObject::deleteLater));
    connect(networkManager.get(), SIGNAL(finished(QNetworkReply *)), this,
            SLOT(finished(QNetworkReply *)));
    retryTimer = new QTimer(this);
    retryTimer->setSingleShot(true);
    connect(retryTimer, SIGNAL(timeout()), this, SLOT(retryWriting()));
    threadPool = new QThreadPool(this);
    threadPool->setMaxThreadCount(1);
}

void TXCheckForUpdateWidget::setUpForm()
{
    ui->setupUi(this);
    OwnTitle::remember(*this);
    ServiceText::prepareForNotes(*ui->descriptionLabel);
}

void TXCheckForUpdateWidget::readSettings(bool checkAtStartup)
{
    const QSettings settings;
    setAutoCheckPeriod(settings.value(kPeriodSetting, kDefaultPeriodDays).toInt());
    if (checkAtStartup && settings.value(kAtStartupSetting).toBool()) {
        QTimer::singleShot(kStartupDelayMilliseconds, this, SLOT(checkUpdate()));
    }
}

void TXCheckForUpdateWidget::enter(State state)
{
    switch (state) {
    case Checking:
        enterChecking();
        return;
    case UpToDate:
        enterUpToDate();
        return;
    case UpdateAvailable:
        enterUpdateAvailable();
        return;
    case DownloadStarting:
        enterDownloadStarting();
        return;
    case Downloading:
        enterDownloading();
        return;
    case ReadyToInstall:
        enterReadyToInstall();
        return;
    case ServiceError:
        enterServiceError();
        return;
    }
    currentState = Checking;
}

void TXCheckForUpdateWidget::enterChecking()
{
    ui->stackedWidget->setCurrentWidget(ui->CheckUpdatePage);
    update.clear();
    lastUpdate.clear();
    installAfterDownload = false;
    getRevisionInfo(productType);
}

void TXCheckForUpdateWidget::enterUpToDate()
{
    ui->scrollArea->hide();
    showResult({ui->okButton});
    showStateTexts();
}

void TXCheckForUpdateWidget::enterUpdateAvailable()
{
    showOffer();
    examineOfferedFile();
}

void TXCheckForUpdateWidget::enterDownloadStarting()
{
    showResult({ui->downloadProgressBar});
    startTransfer();
}

void TXCheckForUpdateWidget::enterDownloading()
{
    showResult({ui->downloadProgressBar});
    QDialog::setVisible(true);
}

void TXCheckForUpdateWidget::enterReadyToInstall()
{
    showResult({ui->installButton, ui->cancelButton});
    QDialog::setVisible(true);
    if (installAfterDownload) {
        on_installButton_clicked();
    }
}

void TXCheckForUpdateWidget::enterServiceError()
{
    showResult({});
    ui->updateNameLabel->hide();
    showStateTexts();
    ui->scrollArea->hide();
}

void TXCheckForUpdateWidget::showResult(std::initializer_list<QWidget *> shownInRow)
{
    ui->stackedWidget->setCurrentWidget(ui->UpdateFoundPage);
    const std::initializer_list<QWidget *> row = {ui->downloadButton, ui->downloadAndInstallButton,
                                                  ui->installButton,  ui->cancelButton,
                                                  ui->okButton,       ui->downloadProgressBar};
    for (QWidget *widget : row) {
        widget->setVisible(std::find(shownInRow.begin(), shownInRow.end(), widget)
                           != shownInRow.end());
    }
    // The dialog changes and comes up by itself, while the user may be typing: what he types then
    // must not press a button that was not there before.
    const QWidget *focused = focusWidget();
    const bool isInRow = std::find(row.begin(), row.end(), focused) != row.end();
    if (isWindow() && (focused == nullptr || isInRow)) {
        setFocus();
    }
}

void TXCheckForUpdateWidget::showOffer()
{
    if (update.contains(ReleaseRecord::kUrlKey)) {
        showResult({ui->downloadButton, ui->downloadAndInstallButton, ui->cancelButton});
    } else {
        showResult({ui->cancelButton});
    }
    showOfferTexts();
    giveMessageRoom();
    ui->shortDescLabel->show();
    ui->scrollArea->show();
}

void TXCheckForUpdateWidget::showOfferTexts()
{
    const QString name = update.value(ReleaseRecord::kProductNameKey).toString();
    ServiceText::showLine(name, *ui->updateNameLabel);
    const QString title = ServiceText::line(ReleaseRecord::title(update));
    ui->shortDescLabel->setText(tr("%1 is available.").arg(title));
    ServiceText::showNotes(update.value(ReleaseRecord::kDescriptionKey).toString(),
                           *ui->descriptionLabel);
}

void TXCheckForUpdateWidget::showStateTexts()
{
    if (currentState == UpToDate) {
        ServiceText::showLine(tr("%1 is up to date.").arg(productName), *ui->updateNameLabel);
    } else if (currentState == ServiceError) {
        ui->shortDescLabel->setText(tr("Impossible to connect to the Check for Updates service, "
                                       "please check your Internet connection."));
    } else if (!update.isEmpty()) {
        showOfferTexts();
    }
    giveMessageRoom();
}

/// A window's smallest size does not ask for the height of lines that wrap.
void TXCheckForUpdateWidget::giveMessageRoom()
{
    const int height = ui->shortDescLabel->heightForWidth(ui->shortDescLabel->width());
    ui->shortDescLabel->setMinimumHeight(qMax(0, height));
}

void TXCheckForUpdateWidget::retranslate()
{
    OwnTitle::retranslate(*ui, *this);
    showStateTexts();
}

void TXCheckForUpdateWidget::examineOfferedFile()
{
    const QString path = update.value(ReleaseRecord::kPathKey).toString();
    const QFileInfo file(path);
    if (!file.isFile()) {
        // What the user puts there from now on is his own.
        UnfinishedDownloads::remove(path);
        QDialog::setVisible(true);
        return;
    }
    const bool isWhole =
        file.size() == ReleaseRecord::fileSize(update) && !UnfinishedDownloads::contains(path);
    if (isWhole) {
        downloadPath = path;
        updateState(ReadyToInstall);
        return;
    }
    if (QFile::remove(file.absoluteFilePath())) {
        UnfinishedDownloads::remove(path);
    }
    QDialog::setVisible(true);
}
