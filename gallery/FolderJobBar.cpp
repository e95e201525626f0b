#include "FolderJobBar.h"

#include "GalleryPanel.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

FolderJobBar::FolderJobBar(QWidget *parent)
    : QWidget(parent)
    , folderLabel(new QLabel(this))
    , folderEdit(new QLineEdit(QDir::toNativeSeparators(QDir::homePath()), this))
    , browseButton(new QPushButton(this))
    , startButton(new QPushButton(this))
    , cancelButton(new QPushButton(this))
{
    folderLabel->setBuddy(folderEdit);
    cancelButton->setEnabled(false);
    setUpLayout();
    connect(browseButton, SIGNAL(clicked()), this, SLOT(browse()));
    connect(startButton, SIGNAL(clicked()), this, SIGNAL(startWanted()));
    connect(folderEdit, SIGNAL(returnPressed()), this, SIGNAL(startWanted()));
    connect(cancelButton, SIGNAL(clicked()), this, SIGNAL(cancelWanted()));
}

void FolderJobBar::retranslate(const Texts &texts)
{
    folderLabel->setText(texts.folder);
    folderEdit->setToolTip(tr("Relative paths start at the program's folder; several paths are "
                              "separated by \"%1\".")
                               .arg(QDir::listSeparator()));
    browseButton->setText(texts.browse);
    startButton->setText(texts.start);
    cancelButton->setText(texts.cancel);
    dialogTitle = texts.dialogTitle;
}

void FolderJobBar::setFolders(const QString &text)
{
    folderEdit->setText(text);
    folderEdit->setCursorPosition(0);
}

QStringList FolderJobBar::paths() const
{
    const QDir programFolder(QCoreApplication::applicationDirPath());
    QStringList result;
    const QStringList texts = folderEdit->text().split(QDir::listSeparator(), Qt::SkipEmptyParts);
    for (const QString &text : texts) {
        const QString path = QDir::fromNativeSeparators(text.trimmed());
        if (!path.isEmpty()) {
            result.append(QDir::cleanPath(programFolder.absoluteFilePath(path)));
        }
    }
    return result;
}

/// The focus goes first, so that it does not wander through the window.
void FolderJobBar::setRunning(bool isRunning)
{
    const bool hadFocus = isRunning
        ? startButton->hasFocus() || folderEdit->hasFocus() || browseButton->hasFocus()
        : cancelButton->hasFocus();
    QPushButton *next = isRunning ? cancelButton : startButton;
    next->setEnabled(true);
    if (hadFocus) {
        next->setFocus();
    }
    startButton->setEnabled(!isRunning);
    folderEdit->setEnabled(!isRunning);
    browseButton->setEnabled(!isRunning);
    cancelButton->setEnabled(isRunning);
}

void FolderJobBar::browse()
{
    const QString folder = QFileDialog::getExistingDirectory(this, dialogTitle, paths().value(0));
    if (!folder.isEmpty()) {
        setFolders(QDir::toNativeSeparators(folder));
    }
}

void FolderJobBar::setUpLayout()
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(folderLabel);
    row->addWidget(folderEdit, 1);
    row->addWidget(browseButton);
    row->addSpacing(GalleryPanel::kGap);
    row->addWidget(startButton);
    row->addWidget(cancelButton);
}
