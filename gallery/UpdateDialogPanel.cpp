#include "UpdateDialogPanel.h"

#include "DictionaryView.h"
#include "LeftToRight.h"
#include "UpdateQuestion.h"

#include "TXCheckForUpdateWidget.h"
#include "TXDisplayErrorMessageBox.h"
#include "TXError.h"
#include "TXFileDialog.h"
#include "TXStringI18n.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>

namespace {

/// Release notes may have megabytes.
constexpr int kLongestValue = 200;

constexpr int kNoPeriodDays = 0;

QString downloadFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
}

QVariantHash shortened(QVariantHash info)
{
    for (QVariant &value : info) {
        if (value.typeId() == QMetaType::QString && value.toString().size() > kLongestValue) {
            value = QString(value.toString().left(kLongestValue) + u'\u2026');
        }
    }
    return info;
}

/// Tells why nothing is shown, with the folder in it.
TXStringI18n message(const char *text, const QString &folder)
{
    return TXStringI18n("UpdateDialogPanel", text, nullptr, -1)
        .arg(QDir::toNativeSeparators(folder));
}

} // namespace

UpdateDialogPanel::UpdateDialogPanel(QWidget *parent)
    : GalleryPanel(parent)
    , updates(new TXCheckForUpdateWidget(QStringLiteral("TXGUICommon Gallery"),
                                         UpdateQuestion::kProductType, false, this))
    , checkButton(new QPushButton(this))
    , folderButton(new QPushButton(this))
    , explanation(new QLabel(this))
    , view(new DictionaryView(this))
{
    // Without a service on this computer the gallery asks nobody, however long it stands open.
    updates->setAutoCheckPeriod(kNoPeriodDays);
    explanation->setWordWrap(true);
    view->setTypesShown(false);
    // Beside a text that wraps, a height that is to be ignored would be none at all.
    view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setUpLayout();
    setServiceRunning(false);
    retranslate();
    connect(checkButton, SIGNAL(clicked()), this, SLOT(check()));
    connect(folderButton, SIGNAL(clicked()), this, SLOT(showFolder()));
    connect(updates, SIGNAL(updateRefreshed(QVariantHash)), this, SLOT(showRelease(QVariantHash)));
}

void UpdateDialogPanel::setServiceRunning(bool isRunning)
{
    checkButton->setEnabled(isRunning);
    if (!isRunning) {
        // The settings panel may have set one.
        updates->setAutoCheckPeriod(kNoPeriodDays);
    }
}

void UpdateDialogPanel::check()
{
    // The dialog writes only into a folder that is there.
    QDir().mkpath(downloadFolder());
    updates->checkUpdate();
    // It may be open already, behind other windows.
    updates->raise();
    updates->activateWindow();
}

void UpdateDialogPanel::retranslate()
{
    setTitle(tr("Update dialog"));
    setButtonText(checkButton, tr("Check for &Updates"));
    setButtonText(folderButton, tr("Show in F&older"));
    view->setAccessibleName(tr("Release"));
    explanation->setText(
        tr("\"Download and Install\" writes the file to \"%1\", which a check makes where it is "
           "missing, \"Download\" to the folder that you choose. The file is a harmless text. "
           "\"Install\" opens it with the desktop's program for texts, and closes all windows of "
           "the gallery. Where there is no such program, nothing happens: \"Show in Folder\" shows "
           "the file.")
            .arg(pathInText(downloadFolder())));
}

void UpdateDialogPanel::showRelease(const QVariantHash &info)
{
    view->setDictionary(shortened(info));
    filePath = info.value(QStringLiteral("Path")).toString();
}

void UpdateDialogPanel::showFolder()
{
    const QFileInfo shown(shownPath());
    const QString folder = shown.isDir() ? shown.filePath() : shown.path();
    if (!shown.exists()) {
        tell(message(QT_TR_NOOP("There is no folder \"%1\"."), shown.filePath()));
    } else if (!TXFileDialog::showInGraphicalShell(shown.filePath())) {
        tell(message(QT_TR_NOOP("No program shows the folder \"%1\"."), folder));
    }
}

void UpdateDialogPanel::tell(const TXStringI18n &text)
{
    TXError error;
    error.domain = tr("Update");
    error.setDescription(text);
    TXDisplayErrorMessageBox(error, ErroMessageBoxWarning, this);
}

/// The downloaded file, or the folder when it is not there.
QString UpdateDialogPanel::shownPath() const
{
    return QFileInfo::exists(filePath) ? filePath : downloadFolder();
}

void UpdateDialogPanel::setUpLayout()
{
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(checkButton);
    buttons->addStretch();
    buttons->addWidget(folderButton);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(buttons);
    rows->addWidget(explanation);
    rows->addWidget(view, 1);
}
