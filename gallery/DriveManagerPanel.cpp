#include "DriveManagerPanel.h"

#include "SambaServerPanel.h"
#include "WheelGuard.h"

#include "AutoMountManagerMainWindow.h"
#include "AutoMountNetworkDrive.h"
#include "AutoMountNetworkDriveModel.h"
#include "LeftToRight.h"
#include "TXAutoMountManager.h"
#include "TXFileDialog.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTreeView>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int kPartGap = 8;
constexpr int kTextGap = 5;
constexpr int kWindowHeight = 205;
constexpr int kNarrowestColumn = 50;
/// That of the protocol, for addresses that name none.
constexpr int kStandardPort = 445;

/// As a widget among others, in place of a window of its own, which has a grip to size it by.
AutoMountManagerMainWindow *embedded(AutoMountManagerMainWindow *window)
{
    window->setWindowFlags(Qt::Widget);
    window->setMinimumHeight(kWindowHeight);
    window->statusBar()->hide();
    // In line with what stands around it.
    window->centralWidget()->layout()->setContentsMargins(0, 0, 0, 0);
    return window;
}

/// The window's own widths are too small for some fonts and languages.
void fitColumns(const AutoMountManagerMainWindow &window)
{
    const auto *view = window.findChild<QTreeView *>();
    QHeaderView *header = view->header();
    for (int column = 0; column < header->count(); ++column) {
        const int least = std::max(kNarrowestColumn, header->sectionSizeHint(column));
        header->resizeSection(column, std::max(least, header->sectionSize(column)));
    }
}

QList<bool> marksOfDrives()
{
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    QList<bool> marks;
    for (int row = 0; row < manager->count(); ++row) {
        marks.append(ExampleDrives::isMarked(manager->getDrive(row)));
    }
    return marks;
}

bool isInList(const QString &mountPoint, bool isMarked)
{
    TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    for (int row = 0; row < manager->count(); ++row) {
        const AutoMountNetworkDrive drive = manager->getDrive(row);
        if (drive.getMountPoint() == mountPoint && ExampleDrives::isMarked(drive) == isMarked) {
            return true;
        }
    }
    return false;
}

} // namespace

DriveManagerPanel::DriveManagerPanel(const SambaServerPanel *server, QWidget *parent)
    : GalleryPanel(parent)
    , server(server)
    , window(embedded(new AutoMountManagerMainWindow(this)))
    , examples(window->findChild<AutoMountNetworkDriveModel *>())
    , shareLabel(new QLabel(this))
    , shareBox(new QComboBox(this))
    , addButton(new QPushButton(this))
    , removeButton(new QPushButton(this))
    , folderButton(new QPushButton(this))
    , explanation(new QLabel(this))
    , messageLabel(new QLabel(this))
{
    examples.removeLeftovers();
    shareBox->addItems(SambaServerPanel::shares());
    shareLabel->setBuddy(shareBox);
    WheelGuard::protect(shareBox);
    explanation->setWordWrap(true);
    messageLabel->setTextFormat(Qt::PlainText);
    messageLabel->setWordWrap(true);
    setUpLayout();
    setServerRunning(false);
    lookAtDrives();
    retranslate();
    connect(addButton, SIGNAL(clicked()), this, SLOT(addDrive()));
    connect(removeButton, SIGNAL(clicked()), this, SLOT(removeDrives()));
    connect(folderButton, SIGNAL(clicked()), this, SLOT(showFolder()));
    connectManager();
}

DriveManagerPanel::~DriveManagerPanel()
{
    examples.removeAllAndWait();
}

void DriveManagerPanel::setServerRunning(bool isRunning)
{
    addButton->setEnabled(isRunning);
}

void DriveManagerPanel::chooseShare(const QString &share)
{
    shareBox->setCurrentText(share);
}

void DriveManagerPanel::retranslate()
{
    setTitle(tr("Manager window"));
    shareLabel->setText(tr("S&hare:"));
    setButtonText(addButton, tr("Add &Drive"));
    setButtonText(removeButton, tr("Re&move Added Drives"));
    setButtonText(folderButton, tr("Show F&older"));
    explanation->setText(
        tr("Check \"Enabled\", and all active drives in the list are connected, your own too. A "
           "connected drive is a link in \"%1\". The editor knows no port: a drive that you type "
           "in or edit leads to the standard port 445, not to the server above. Added drives are "
           "removed when the gallery ends; one that you have edited is yours, and stays.")
            .arg(pathInText(ExampleDrives::linkFolder())));
    fitColumns(*window);
    showMessage();
}

void DriveManagerPanel::addDrive()
{
    const QString mountPoint = examples.add(server->shareUrl(shareBox->currentText()));
    tell(mountPoint.isEmpty() ? Message::NoLetter : Message::Added, mountPoint);
}

void DriveManagerPanel::removeDrives()
{
    examples.removeAll();
    tell(Message::None);
}

void DriveManagerPanel::showFolder()
{
    if (!QFileInfo(ExampleDrives::linkFolder()).isDir()) {
        tell(Message::NoFolder, QDir::toNativeSeparators(ExampleDrives::linkFolder()));
    } else if (!TXFileDialog::showInGraphicalShell(ExampleDrives::linkFolder())) {
        tell(Message::NoProgram, QDir::toNativeSeparators(ExampleDrives::linkFolder()));
    }
}

/// Costs a pass of the list, as the slots below do.
void DriveManagerPanel::lookAtDrives()
{
    marks = marksOfDrives();
    removeButton->setEnabled(marks.contains(true));
    clearStaleMessage();
}

void DriveManagerPanel::drivesEdited(const QModelIndex &first, const QModelIndex &last)
{
    const QList<bool> before = marks;
    lookAtDrives();
    for (int row = first.row(); row <= last.row(); ++row) {
        if (before.value(row) && !marks.value(row)) {
            const AutoMountNetworkDrive drive = TXAutoMountManager::getInstance()->getDrive(row);
            editedPort = drive.getUrl().port(kStandardPort);
            tell(Message::Edited, drive.getMountPoint());
        }
    }
}

void DriveManagerPanel::drivesRemoved()
{
    lookAtDrives();
    if (message == Message::NoLetter) {
        tell(Message::None);
    }
}

void DriveManagerPanel::connectManager()
{
    const auto *model = window->findChild<AutoMountNetworkDriveModel *>();
    connect(model, SIGNAL(rowsInserted(QModelIndex, int, int)), this, SLOT(lookAtDrives()));
    connect(model, SIGNAL(rowsRemoved(QModelIndex, int, int)), this, SLOT(drivesRemoved()));
    connect(model, SIGNAL(dataChanged(QModelIndex, QModelIndex)), this,
            SLOT(drivesEdited(QModelIndex, QModelIndex)));
    const TXAutoMountManager *manager = TXAutoMountManager::getInstance();
    connect(manager, SIGNAL(started()), this, SLOT(showMessage()));
    connect(manager, SIGNAL(stopped()), this, SLOT(showMessage()));
}

void DriveManagerPanel::tell(Message newMessage, const QString &newArgument)
{
    message = newMessage;
    argument = newArgument;
    showMessage();
}

void DriveManagerPanel::clearStaleMessage()
{
    if (isMessageStale()) {
        tell(Message::None);
    }
}

bool DriveManagerPanel::isMessageStale() const
{
    switch (message) {
    case Message::Added:
        return !isInList(argument, true);
    case Message::Edited:
        return !isInList(argument, false);
    case Message::NoFolder:
        return QFileInfo(ExampleDrives::linkFolder()).isDir();
    case Message::None:
    case Message::NoLetter:
    case Message::NoProgram:
        break;
    }
    return false;
}

void DriveManagerPanel::showMessage()
{
    messageLabel->setText(messageText());
}

QString DriveManagerPanel::messageText() const
{
    switch (message) {
    case Message::None:
        break;
    case Message::Added:
        return TXAutoMountManager::getInstance()->isRunning()
            ? tr("Added: %1.").arg(argument)
            : tr("Added: %1. Check \"Enabled\" to have it connected.").arg(argument);
    case Message::Edited:
        return tr("%1 is yours now, and leads to port %2: the editor knows no port. Remove it with "
                  "\"-\".")
            .arg(argument)
            .arg(editedPort);
    case Message::NoLetter:
        return tr("All drive letters are taken.");
    case Message::NoFolder:
        return tr("No drive has been connected yet: there is no folder \"%1\".").arg(argument);
    case Message::NoProgram:
        return tr("No program shows the folder \"%1\".").arg(argument);
    }
    return {};
}

void DriveManagerPanel::setUpLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(kPartGap);
    buttons->addWidget(shareLabel);
    buttons->addWidget(shareBox);
    buttons->addWidget(addButton);
    buttons->addWidget(removeButton);
    buttons->addStretch();
    buttons->addWidget(folderButton);
    // The page keeps its place when a message comes and goes.
    messageLabel->setMinimumHeight(messageLabel->fontMetrics().lineSpacing());

    auto *texts = new QVBoxLayout;
    texts->setSpacing(kTextGap);
    texts->addLayout(buttons);
    texts->addWidget(messageLabel);
    texts->addWidget(explanation);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(window, 1);
    rows->addLayout(texts);
}
