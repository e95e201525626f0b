#include "AutoMountNetworkDriveEditor.h"

#include "DriveLetters.h"
#include "NetworkDriveIcon.h"
#include "ShareBrowser.h"
#include "ui_AutoMountNetworkDriveEditor.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHash>
#include <QLayout>
#include <QLineEdit>
#include <QMargins>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QStringList>
#include <QUrl>
#include <QVariant>

namespace {

const QLatin1String kMountPointKey("NetworkDriveMountPoint");
const QLatin1String kDomainKey("NetworkDriveDomain");
const QLatin1String kPersistentKey("NetworkDrivePersistent");

constexpr char kFirstLetter = 'A';
constexpr char kLastLetter = 'Z';

/// The letters that are free, and the own one of a drive that holds it.
QStringList offeredLetters(const QString &ownMountPoint)
{
    const QStringList used = DriveLetters::inUse();
    QStringList offered;
    for (char letter = kFirstLetter; letter <= kLastLetter; ++letter) {
        const QString form = DriveLetters::mountPoint(QLatin1Char(letter));
        if (!used.contains(form) || ownMountPoint.contains(form)) {
            offered.append(form);
        }
    }
    return offered;
}

/// To a URL an empty password is another one than no password.
QString textOrNull(const QString &text)
{
    return text.isEmpty() ? QString() : text;
}

QString hostOf(const QUrl &url)
{
    const QString host = url.host(QUrl::FullyDecoded);
    return host.isEmpty() ? QString::fromLatin1(QUrl::toAce(url.host())) : host;
}

} // namespace

AutoMountNetworkDriveEditor::AutoMountNetworkDriveEditor(AutoMountNetworkDrive drive,
                                                         QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::AutoMountNetworkDriveEditor>())
{
    ui->setupUi(this);
    ui->comboBoxProtocol->installEventFilter(this);
    ui->comboBoxMountPoint->installEventFilter(this);
    load(drive);
}

AutoMountNetworkDriveEditor::~AutoMountNetworkDriveEditor() = default;

bool AutoMountNetworkDriveEditor::hasAvailableLetter() const
{
    return ui->comboBoxMountPoint->count() > 0;
}

AutoMountNetworkDrive AutoMountNetworkDriveEditor::networkDrive() const
{
    QHash<QString, QVariant> parameters;
    parameters.insert(kMountPointKey, ui->comboBoxMountPoint->currentText());
    QUrl url;
    url.setScheme(ui->comboBoxProtocol->currentText());
    url.setHost(ui->lineEditHost->text(), QUrl::DecodedMode);
    url.setUserName(textOrNull(ui->lineEditUsername->text()), QUrl::DecodedMode);
    url.setPassword(textOrNull(ui->lineEditPassword->text()), QUrl::DecodedMode);
    parameters.insert(kDomainKey, ui->lineEditDomain->text());
    url.setPath(u'/' + ui->lineEditFolder->text(), QUrl::DecodedMode);
    parameters.insert(kPersistentKey, false);

    AutoMountNetworkDrive drive{QHash<QString, QVariant>()};
    drive.setUrl(url);
    drive.setExtParameters(parameters);
    return drive;
}

void AutoMountNetworkDriveEditor::chooseFolder()
{
    // Not on the stack: the browser is a child, and goes with this dialog if that is deleted now.
    const QPointer<ShareBrowser> browser = new ShareBrowser(QUrl(), this);
    const int result = browser->exec();
    if (!browser) {
        return;
    }
    const QUrl share = browser->selectedUrl();
    delete browser;
    if (result == QDialog::Accepted && share.isValid()) {
        takeShare(share);
    }
}

void AutoMountNetworkDriveEditor::checkRequiredElement()
{
    okButton()->setEnabled(!ui->lineEditHost->text().isEmpty()
                           && !ui->lineEditUsername->text().isEmpty()
                           && !ui->lineEditFolder->text().isEmpty());
}

bool AutoMountNetworkDriveEditor::eventFilter(QObject *watched, QEvent *event)
{
    const bool isGuarded = watched == ui->comboBoxProtocol || watched == ui->comboBoxMountPoint;
    // A turn of the wheel while scrolling past must not change protocol or letter.
    const bool isSwallowed = isGuarded && event->type() == QEvent::Wheel;
    return isSwallowed || QDialog::eventFilter(watched, event);
}

void AutoMountNetworkDriveEditor::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
    }
}

void AutoMountNetworkDriveEditor::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    setWindowIcon(NetworkDriveIcon::load());
    // Nobody wants a window back in another size that was only minimized.
    if (!event->spontaneous()) {
        makeRoomForLargeTexts();
    }
}

void AutoMountNetworkDriveEditor::load(const AutoMountNetworkDrive &drive)
{
    fillFields(drive);
    selectProtocol(drive.getUrl().scheme());
    showUsedControls();
    fillLetters(drive.getMountPoint());
    connectControls();
    if (ui->lineEditHost->text().isEmpty()) {
        okButton()->setEnabled(false);
    }
}

void AutoMountNetworkDriveEditor::fillFields(const AutoMountNetworkDrive &drive)
{
    const QHash<QString, QVariant> parameters = drive.getExtParameters();
    const QUrl url = drive.getUrl();
    ui->lineEditHost->setText(url.host(QUrl::FullyDecoded));
    ui->lineEditUsername->setText(url.userName(QUrl::FullyDecoded));
    ui->lineEditPassword->setText(url.password(QUrl::FullyDecoded));
    ui->lineEditFolder->setText(url.path(QUrl::FullyDecoded));
    ui->lineEditDomain->setText(parameters.value(kDomainKey).toString());
    ui->lineEditMountPoint->setText(parameters.value(kMountPointKey).toString());
}

void AutoMountNetworkDriveEditor::selectProtocol(const QString &scheme)
{
    QComboBox *protocols = ui->comboBoxProtocol;
    protocols->setCurrentIndex(protocols->findData(scheme, Qt::DisplayRole, Qt::MatchFixedString));
    if (protocols->currentIndex() < 0) {
        protocols->setCurrentIndex(0);
    }
}

void AutoMountNetworkDriveEditor::showUsedControls()
{
    ui->comboBoxMountPoint->show();
    ui->lineEditMountPoint->hide();
    ui->labelProtocol->hide();
    ui->comboBoxProtocol->hide();
}

void AutoMountNetworkDriveEditor::fillLetters(const QString &mountPoint)
{
    const QStringList letters = offeredLetters(mountPoint);
    QComboBox *box = ui->comboBoxMountPoint;
    box->insertItems(0, letters);
    if (mountPoint.isEmpty()) {
        box->setCurrentIndex(0);
    } else if (letters.isEmpty()) {
        box->setCurrentIndex(box->count() - 1);
    } else {
        box->setCurrentIndex(static_cast<int>(letters.indexOf(mountPoint)));
    }
}

void AutoMountNetworkDriveEditor::connectControls()
{
    connect(ui->chooseButton, SIGNAL(clicked()), this, SLOT(chooseFolder()));
    for (const QLineEdit *required : {ui->lineEditHost, ui->lineEditFolder, ui->lineEditUsername}) {
        connect(required, SIGNAL(textChanged(QString)), this, SLOT(checkRequiredElement()));
    }
}

void AutoMountNetworkDriveEditor::takeShare(const QUrl &share)
{
    ui->lineEditHost->setText(hostOf(share));
    ui->lineEditFolder->setText(share.path(QUrl::FullyDecoded));
    selectProtocol(share.scheme());
}

void AutoMountNetworkDriveEditor::makeRoomForLargeTexts()
{
    // The height is fixed, so the gaps go before the letters do.
    if (layout()->minimumSize().height() > height()) {
        ui->gridLayout->setVerticalSpacing(0);
        layout()->setSpacing(0);
        QMargins margins = layout()->contentsMargins();
        margins.setTop(0);
        margins.setBottom(0);
        layout()->setContentsMargins(margins);
    }
    const int wanted = qMin(layout()->sizeHint().width(), screen()->availableSize().width());
    resize(qMax(width(), wanted), height());
}

QPushButton *AutoMountNetworkDriveEditor::okButton() const
{
    return qobject_cast<QPushButton *>(ui->buttonBox->buttons().first());
}
