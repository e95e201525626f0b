#include "LogoPanel.h"

#include "GallerySplash.h"
#include "LogoView.h"
#include "OemLogo.h"
#include "PictureFile.h"
#include "PlainQuestion.h"
#include "WaitCursor.h"

#include "TXApplicationInformation.h"
#include "TXFileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

constexpr int kSplashMilliseconds = 4000;
constexpr int kViewGap = 20;

/// Where pictures were looked for last, among the application's settings.
const QString kFolderKey = QStringLiteral("Gallery/LogoFolder");

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

/// Shows what is at the path. Whether it is a picture.
bool showFile(LogoView *view, const QString &path, const QString &wordsForNothing)
{
    if (!isThere(path)) {
        view->showLogo({}, wordsForNothing);
        return false;
    }
    const PictureFile file = PictureFile::read(path);
    if (file.problem != PictureFile::Problem::None) {
        view->showLogo({}, file.problemText());
        return false;
    }
    const QLocale locale;
    view->showLogo(QPixmap::fromImage(file.image),
                   LogoPanel::tr("%1 × %2 pixels, %3")
                       .arg(locale.toString(file.size.width()), locale.toString(file.size.height()),
                            locale.formattedDataSize(QFileInfo(path).size())));
    return true;
}

QString native(const QString &path)
{
    return QDir::toNativeSeparators(QDir::cleanPath(path));
}

} // namespace

LogoPanel::LogoPanel(QWidget *parent)
    : GalleryPanel(parent)
    , installedView(new LogoView(this))
    , cachedView(new LogoView(this))
    , shownView(new LogoView(this))
    , putButton(new QPushButton(this))
    , removeButton(new QPushButton(this))
    , removeCopyButton(new QPushButton(this))
    , splashButton(new QPushButton(this))
    , messageLabel(new QLabel(this))
    , splashTimer(this)
{
    messageLabel->setTextFormat(Qt::PlainText);
    messageLabel->setWordWrap(true);
    messageLabel->hide();
    splashTimer.setSingleShot(true);
    splashTimer.setInterval(kSplashMilliseconds);
    setUpLayout();
    retranslate();
    connect(putButton, SIGNAL(clicked()), this, SLOT(putLogo()));
    connect(removeButton, SIGNAL(clicked()), this, SLOT(removeLogo()));
    connect(removeCopyButton, SIGNAL(clicked()), this, SLOT(removeCopy()));
    connect(splashButton, SIGNAL(clicked()), this, SLOT(showSplash()));
    connect(&splashTimer, SIGNAL(timeout()), this, SLOT(closeSplash()));
}

LogoPanel::~LogoPanel() = default;

void LogoPanel::showEvent(QShowEvent *event)
{
    showFiles();
    GalleryPanel::showEvent(event);
}

void LogoPanel::retranslate()
{
    setTitle(tr("Logo of the splash"));
    installedView->setTitle(tr("Installed logo"));
    cachedView->setTitle(tr("Copy that is kept"));
    shownView->setTitle(tr("Shown at the start"));
    setButtonText(putButton, tr("&Put In a Logo..."));
    setButtonText(removeButton, tr("&Remove Logo..."));
    setButtonText(removeCopyButton, tr("Remove &Copy..."));
    setButtonText(splashButton, tr("Show Splas&h"));
    messageLabel->hide();
    if (isVisible()) {
        showFiles();
    }
}

void LogoPanel::putLogo()
{
    const QString path = TXFileDialog::getOpenFileName(
        this, tr("Put In a Logo"),
        QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
        PictureFile::dialogFilter(), nullptr, {}, kFolderKey);
    if (!path.isEmpty()) {
        const WaitCursor wait;
        readAgain(OemLogo::put(path));
    }
}

void LogoPanel::removeLogo()
{
    if (confirm(tr("Remove the installed logo \"%1\"?").arg(native(OemLogo::installedPath())))) {
        readAgain(OemLogo::removeInstalled());
    }
}

void LogoPanel::removeCopy()
{
    if (confirm(tr("Remove the copy \"%1\"?").arg(native(OemLogo::cachedPath())))) {
        readAgain(OemLogo::removeCached());
    }
}

void LogoPanel::showSplash()
{
    splash = std::make_unique<GallerySplash>(screen());
    splash->open();
    splash->tell(tr("Click to close."));
    splashTimer.start();
    showFiles();
}

void LogoPanel::closeSplash()
{
    splash.reset();
}

void LogoPanel::setUpLayout()
{
    auto *views = new QHBoxLayout;
    views->setSpacing(kViewGap);
    for (LogoView *view : {installedView, cachedView, shownView}) {
        views->addWidget(view, 1);
    }
    auto *buttons = new QHBoxLayout;
    for (QPushButton *button : {putButton, removeButton, removeCopyButton, splashButton}) {
        buttons->addWidget(button);
    }
    buttons->addStretch();

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(views);
    rows->addLayout(buttons);
    rows->addWidget(messageLabel);
}

bool LogoPanel::confirm(const QString &question)
{
    return askPlainly(this, tr("Remove"), question, QMessageBox::Yes | QMessageBox::No)
        == QMessageBox::Yes;
}

void LogoPanel::readAgain(const QString &problem)
{
    messageLabel->setText(problem);
    messageLabel->setVisible(!problem.isEmpty());
    showFiles();
}

void LogoPanel::showFiles()
{
    // First: this is what keeps the copy.
    const QPixmap shown = TXSplashScreen::pixmap(baseProd(), GallerySplash::ownPicturePath());
    const QString installed = OemLogo::installedPath();
    const QString cached = OemLogo::cachedPath();
    installedView->setPath(installed);
    cachedView->setPath(cached);
    const bool isInstalled = showFile(installedView, installed, tr("There is none."));
    const bool isCached = showFile(
        cachedView, cached, isInstalled ? OemLogo::reasonForNoCopy() : tr("There is none yet."));
    shownView->showLogo(shown,
                        shown.isNull()    ? tr("Nothing: there is no picture.")
                            : isInstalled ? tr("The installed logo.")
                            : isCached    ? tr("The copy, since there is no installed logo.")
                                          : tr("The gallery's own picture."));
    removeButton->setEnabled(isThere(installed));
    removeCopyButton->setEnabled(isThere(cached));
}
