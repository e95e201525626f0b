#include "LogPage.h"

#include "GalleryPanel.h"
#include "LogPreview.h"
#include "ScanPanel.h"
#include "TabOrder.h"

#include "TXLogManager.h"
#include "TXLogPrint.h"
#include "TXLogWindow.h"

#include <QDir>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLibraryInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int kMaximumEntries = 20000;
constexpr int kLineButtons = 4;
constexpr int kGap = GalleryPanel::kGap;

/// Folders that every machine with Qt has an answer to, though perhaps that they are missing.
QString pictureFolders()
{
    const QStringList folders = {
        QStringLiteral("../Resources"),
        QLibraryInfo::path(QLibraryInfo::HeadersPath),
        QLibraryInfo::path(QLibraryInfo::PluginsPath),
        QLibraryInfo::path(QLibraryInfo::TranslationsPath),
    };
    return folders.join(QDir::listSeparator());
}

} // namespace

LogPage::LogPage(QWidget *parent)
    : GalleryPage(parent)
    , log(TXLogManager::applicationLog())
    , messageLog(log)
    , scanPanel(new ScanPanel(log, this))
    , lineBox(new QGroupBox(this))
    , informationButton(new QPushButton(this))
    , warningButton(new QPushButton(this))
    , errorButton(new QPushButton(this))
    , qtWarningButton(new QPushButton(this))
    , previewLabel(new QLabel(this))
    , preview(new LogPreview(log, this))
    , windowButton(new QPushButton(this))
    , logWindow(new TXLogWindow(log, this))
{
    log->setMaximumCount(kMaximumEntries);
    previewLabel->setBuddy(preview);
    setUpLayout();
    setTabOrderOfParts({scanPanel, lineBox, windowButton, preview});
    retranslate();
    connect(informationButton, SIGNAL(clicked()), this, SLOT(writeInformation()));
    connect(warningButton, SIGNAL(clicked()), this, SLOT(writeWarning()));
    connect(errorButton, SIGNAL(clicked()), this, SLOT(writeError()));
    connect(qtWarningButton, SIGNAL(clicked()), this, SLOT(writeQtWarning()));
    connect(windowButton, SIGNAL(clicked()), this, SLOT(openLogWindow()));
    connect(scanPanel, SIGNAL(scanLogged(QSharedPointer<TXLogItem>)), this,
            SLOT(scanLogged(QSharedPointer<TXLogItem>)));
    connect(log->rootItem().data(), SIGNAL(itemAppended(QSharedPointer<TXLogItem>)), this,
            SLOT(entryShown(QSharedPointer<TXLogItem>)));

    TXLogPrint(QStringLiteral("Gallery started with Qt %1 on %2")
                   .arg(QString::fromLatin1(qVersion()), QSysInfo::prettyProductName()),
               TXLogItem::Information);
}

QString LogPage::description() const
{
    return tr("The log of this very program, live: Qt's own messages, lines that the program "
              "prints, and a job that writes entries with sub-entries from several threads.");
}

void LogPage::startByItself()
{
    // A tree that every machine has, with enough in it to be seen moving, and nobody's own.
    const QStringList dataFolders =
        QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    scanPanel->setFolders(QDir::toNativeSeparators(QDir::cleanPath(dataFolders.constLast())));
    scanPanel->start();
}

void LogPage::fillForPicture()
{
    isFilling = true;
    scanPanel->setFolders(pictureFolders());
    scanPanel->start();
}

QList<GalleryFurtherWindow> LogPage::furtherWindows()
{
    showLogWindow();
    return {{QStringLiteral("window"), logWindow}};
}

void LogPage::retranslate()
{
    lineBox->setTitle(tr("Write a line"));
    informationButton->setText(tr("&Information"));
    warningButton->setText(tr("&Warning"));
    errorButton->setText(tr("&Error"));
    qtWarningButton->setText(tr("&Qt Warning"));
    previewLabel->setText(tr("Live &view:"));
    GalleryPanel::setButtonText(windowButton, tr("&Open Log Window"));
    preview->setAccessibleName(tr("Live view of the log"));
}

/// The date is longer in some languages than in others.
void LogPage::showLogWindow()
{
    logWindow->show();
    auto *tree = logWindow->findChild<QTreeView *>(QStringLiteral("logTreeView"));
    const QAbstractItemView *entries = tree;
    QHeaderView *columns = tree->header();
    columns->resizeSection(0, std::max(columns->sectionSize(0), entries->sizeHintForColumn(0)));
}

void LogPage::openLogWindow()
{
    showLogWindow();
    logWindow->raise();
    logWindow->activateWindow();
}

void LogPage::writeInformation()
{
    TXLogPrint(tr("Some information, written by hand"), TXLogItem::Information);
}

void LogPage::writeWarning()
{
    TXLogPrint(tr("A warning, written by hand"), TXLogItem::Warning);
}

void LogPage::writeError()
{
    TXLogPrint(tr("An error, written by hand"), TXLogItem::Error);
}

void LogPage::writeQtWarning()
{
    qWarning("A message of Qt's own logging, written by hand");
}

void LogPage::scanLogged(QSharedPointer<TXLogItem> lastEntry)
{
    awaitedEntry = lastEntry;
}

void LogPage::entryShown(QSharedPointer<TXLogItem> entry)
{
    if (entry == awaitedEntry) {
        awaitedEntry.reset();
        scanShown();
    } else if (awaitedLines > 0 && entry->parent == log->rootItem()) {
        --awaitedLines;
        if (awaitedLines == 0) {
            preview->scrollToBottom();
            isFilling = false;
            emit becameReady();
        }
    }
}

void LogPage::scanShown()
{
    preview->showNewest();
    if (isFilling) {
        writeAllLines();
    }
}

void LogPage::writeAllLines()
{
    awaitedLines = kLineButtons;
    writeInformation();
    writeWarning();
    writeError();
    writeQtWarning();
}

void LogPage::setUpLayout()
{
    auto *lineRow = new QHBoxLayout(lineBox);
    GalleryPanel::setMargins(lineRow);
    for (QPushButton *button : {informationButton, warningButton, errorButton, qtWarningButton}) {
        lineRow->addWidget(button);
    }
    lineRow->addStretch();

    auto *previewRow = new QHBoxLayout;
    previewRow->addWidget(previewLabel);
    previewRow->addStretch();
    previewRow->addWidget(windowButton);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(kGap);
    rows->addWidget(scanPanel);
    rows->addWidget(lineBox);
    rows->addLayout(previewRow);
    rows->addWidget(preview, 1);
}
