#include "AboutAppWindow.h"

#include "ui_AboutAppWindow.h"

#include "FilePathUtilities.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QUrl>

namespace {

constexpr qreal kNameSmallerByPoints = 6.0;

/// As QTextDocument writes it. %1 is the link's target, %2 its text.
constexpr const char *kWebSiteTemplate =
    "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
    "\"http://www.w3.org/TR/REC-html40/strict.dtd\">\n"
    "<html><head><meta name=\"qrichtext\" content=\"1\" /><style type=\"text/css\">\n"
    "p, li { white-space: pre-wrap; }\n"
    "</style></head><body style=\" font-family:'Lucida Grande'; font-size:13pt; font-weight:400; "
    "font-style:normal;\">\n"
    "<p style=\" margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; "
    "-qt-block-indent:0; text-indent:0px;\"><a href=\"%1\"><span style=\" text-decoration: "
    "underline; color:#0000ff;\">%2</span></a></p></body></html>";

void makeSmaller(QWidget *widget)
{
    QFont font = widget->font();
    // A font that a style sheet gives in pixels has the point size -1, and may be tiny in points.
    if (font.pointSizeF() > kNameSmallerByPoints) {
        font.setPointSizeF(font.pointSizeF() - kNameSmallerByPoints);
        widget->setFont(font);
    }
}

/// Anything else would lead to a folder, or out of the folder that is meant.
bool isPlainFileName(const QString &name)
{
    constexpr QChar kForbidden[] = {u'/', u'\\', u'\0'};
    for (const QChar character : kForbidden) {
        if (name.contains(character)) {
            return false;
        }
    }
    return !name.isEmpty() && name != QLatin1String(".") && name != QLatin1String("..");
}

QString noticesPath(const QString &name)
{
    const QString path =
        QStringLiteral("%1/%2").arg(QStringLiteral("../Resources/LegalNotices/"), name);
    return QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(path));
}

/// Takes away what would keep a copy from being made: also a link that leads nowhere, through which
/// the copy would go.
void makeRoom(const QString &target)
{
    const QFileInfo info(target);
    if (info.exists() || info.isSymLink()) {
        FilePathUtilities::remove(target);
    }
}

void copyNotices(const QString &source, const QString &target)
{
    // Nothing else is opened: a pipe would wait for somebody who writes.
    if (!QFileInfo(source).isFile() || !QFile::copy(source, target)) {
        return;
    }
    // The copy of a read-only file is one, and could not be removed next time on every system.
    QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
}

} // namespace

AboutAppWindow::AboutAppWindow(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::AboutAppWindow>())
{
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    ui->setupUi(this);
    const QString name = QStringLiteral("AboutAppLabel");
    ui->appNameLabel->setObjectName(name);
    ui->versionLabel->setObjectName(name);
    ui->versionTitleLabel->setObjectName(name);
    makeSmaller(ui->appNameLabel);
    ui->companyWebSiteLabel->installEventFilter(this);
    connect(ui->patentButton, SIGNAL(clicked()), this, SLOT(displayPatents()));
}

AboutAppWindow::~AboutAppWindow() = default;

QString AboutAppWindow::applicationWebSite() const
{
    return QStringLiteral("https://www.tovra.example");
}

void AboutAppWindow::updateAboutWindow()
{
    const QString name = applicationName();
    setWindowTitle(tr("About %1").arg(name));
    ui->appNameLabel->setText(name);

    const QString detail = applicationVersionDetail();
    ui->versionLabel->setText(detail.isEmpty() ? applicationVersion()
                                               : applicationVersion() + u' ' + detail);
    // All at once, here and below: what is filled in may hold a place marker.
    ui->copyrightLabel->setText(QStringLiteral("© Copyright %1-%2 %3")
                                    .arg(applicationCopyrightStartYear(), QStringLiteral("2024"),
                                         QStringLiteral("Tovra Hue Works")));
    const QString address = applicationWebSite().toHtmlEscaped();
    ui->companyWebSiteLabel->setText(QString::fromLatin1(kWebSiteTemplate).arg(address, address));
    ui->appLogo->setPixmap(applicationLogo());
}

void AboutAppWindow::showEvent(QShowEvent *event)
{
    updateAboutWindow();
    QDialog::showEvent(event);
}

void AboutAppWindow::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        if (isVisible()) {
            updateAboutWindow();
        }
    }
}

bool AboutAppWindow::eventFilter(QObject *object, QEvent *event)
{
    if (object != ui->companyWebSiteLabel) {
        return QDialog::eventFilter(object, event);
    }
    switch (event->type()) {
    case QEvent::KeyPress:
        // A label with a link never lets the focus go backwards by itself.
        return static_cast<QKeyEvent *>(event)->key() == Qt::Key_Backtab
            && focusNextPrevChild(false);
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        markLink(static_cast<QFocusEvent *>(event)->gotFocus()
                 && static_cast<QFocusEvent *>(event)->reason() != Qt::MouseFocusReason);
        return false;
    default:
        return false;
    }
}

/// By itself the label marks its link only once Tab is pressed again.
void AboutAppWindow::markLink(bool isMarked)
{
    const qsizetype length = isMarked ? applicationWebSite().size() : 0;
    ui->companyWebSiteLabel->setSelection(0, int(length));
}

void AboutAppWindow::displayPatents() const
{
    const QString name = patentFileName();
    // Empty where the folder that the system names is missing: the target would lie in the root.
    const QString folder = QDir::tempPath();
    if (!isPlainFileName(name) || folder.isEmpty()) {
        return;
    }
    const QString target = folder + u'/' + name;
    makeRoom(target);
    copyNotices(noticesPath(name), target);
    if (QFileInfo::exists(target)) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(target));
    }
}
