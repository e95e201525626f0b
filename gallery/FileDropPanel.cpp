#include "FileDropPanel.h"

#include "FilesToDrag.h"

#include "LineEditDrapAndDrop.h"

#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kListWidth = 220;
constexpr int kListHeight = 130;

QString resourcesFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../Resources"));
}

} // namespace

FileDropPanel::FileDropPanel(QWidget *parent)
    : GalleryPanel(parent)
    , filesLabel(new QLabel(this))
    , files(new FilesToDrag(resourcesFolder(), this))
    , putButton(new QPushButton(this))
    , fieldLabel(new QLabel(this))
    , field(new LineEditDrapAndDrop(this))
    , taken(new QLabel(this))
{
    filesLabel->setBuddy(files);
    files->setMinimumSize(kListWidth, kListHeight);
    fieldLabel->setBuddy(field);
    taken->setWordWrap(true);
    taken->setTextFormat(Qt::PlainText);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addWidget(filesLabel);
    rows->addWidget(files, 1);
    rows->addWidget(putButton, 0, Qt::AlignLeft);
    rows->addWidget(fieldLabel);
    rows->addWidget(field);
    rows->addWidget(taken);
    retranslate();
    connect(putButton, SIGNAL(clicked()), this, SLOT(putSelected()));
    connect(field, SIGNAL(urlFileListHaveBeenDropped(QList<QUrl>)), this,
            SLOT(takeFiles(QList<QUrl>)));
}

void FileDropPanel::fillForPicture()
{
    putSelected();
}

void FileDropPanel::retranslate()
{
    setTitle(tr("Files"));
    filesLabel->setText(tr("Files of the &gallery:"));
    files->setAccessibleName(tr("Files of the gallery"));
    setButtonText(putButton, tr("&Put Into Field"));
    fieldLabel->setText(tr("&Dropped file:"));
    field->setPlaceholderText(tr("Drop files here"));
    showTaken();
}

void FileDropPanel::putSelected()
{
    takeFiles(files->selectedUrls());
}

void FileDropPanel::takeFiles(const QList<QUrl> &urls)
{
    if (urls.isEmpty()) {
        return;
    }
    fileCount = int(urls.size());
    remoteCount = int(std::count_if(urls.cbegin(), urls.cend(),
                                    [](const QUrl &url) { return !url.isLocalFile(); }));
    field->setText(QDir::toNativeSeparators(urls.first().toLocalFile()));
    showTaken();
}

void FileDropPanel::showTaken()
{
    if (fileCount == 0) {
        taken->setText(tr("Nothing dropped yet"));
        return;
    }
    const QString count = locale().toString(fileCount);
    taken->setText(remoteCount == 0 ? tr("Dropped: %1").arg(count)
                                    : tr("Dropped: %1, not on this computer: %2")
                                          .arg(count, locale().toString(remoteCount)));
}
