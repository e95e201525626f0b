#include "UpdateDialogPanel.h"

#include "DictionaryView.h"

#include "TXCheckForUpdateWidget.h"
#include "TXDisplayErrorMessageBox.h"
#include "TXError.h"
#include "TXFileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardPaths>

namespace {

constexpr int kProductNumber = 7;
/// Release notes may have megabytes.
constexpr int kLongestValue = 200;

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

} // namespace

UpdateDialogPanel::UpdateDialogPanel(QWidget *parent)
    : GalleryPanel(parent)
    , updates(new TXCheckForUpdateWidget(QStringLiteral("TXGUICommon Gallery"), kProductNumber,
                                         true, this))
    , checkButton(new QPushButton(this))
    , folderButton(new QPushButton(this))
    , explanation(new QLabel(this))
    , view(new DictionaryView(this))
{
    explanation->setWordWrap(true);
    view->setTypesShown(false);
    setUpLayout();
    retranslate();
    connect(checkButton, SIGNAL(clicked()), updates, SLOT(checkUpdate()));
    connect(folderButton, SIGNAL(clicked()), this, SLOT(showFolder()));
    connect(updates, SIGNAL(updateRefreshed(QVariantHash)), this, SLOT(showRelease(QVariantHash)));
}

void UpdateDialogPanel::retranslate()
{
    setTitle(tr("Update dialog"));
    setButtonText(checkButton, tr("Check for &Updates"));
    setButtonText(folderButton, tr("Show in F&older"));
    explanation->setText(
        tr("\"Download and Install\" writes the file to \"%1\", \"Download\" to the folder that "
           "you "
           "choose. The file is a harmless text. \"Install\" opens it with the program that the "
           "desktop has for it, and closes all windows of the gallery.")
            .arg(QDir::toNativeSeparators(downloadFolder())));
}

void UpdateDialogPanel::showRelease(const QVariantHash &info)
{
    view->setDictionary(shortened(info));
    filePath = info.value(QStringLiteral("Path")).toString();
}

void UpdateDialogPanel::showFolder()
{
    if (!TXFileDialog::showInGraphicalShell(shownPath())) {
        TXError error;
        error.domain = tr("Update");
        error.setDescription(TXStringI18n("UpdateDialogPanel",
                                          QT_TR_NOOP("No program shows the folder \"%1\"."),
                                          nullptr, -1)
                                 .arg(QDir::toNativeSeparators(shownPath())));
        TXDisplayErrorMessageBox(error, ErroMessageBoxWarning, this);
    }
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
