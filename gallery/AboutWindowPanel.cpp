#include "AboutWindowPanel.h"

#include "GalleryAboutWindow.h"
#include "LeftToRight.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

AboutWindowPanel::AboutWindowPanel(QWidget *parent)
    : GalleryPanel(parent)
    , plainWindow(new GalleryAboutWindow(GalleryAboutWindow::Version::Plain, this))
    , windowWithQt(new GalleryAboutWindow(GalleryAboutWindow::Version::WithQt, this))
    , windowButton(new QPushButton(this))
    , detailBox(new QCheckBox(this))
    , noticesButton(new QPushButton(this))
    , note(new QLabel(this))
{
    detailBox->setChecked(true);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    setUpLayout();
    retranslate();
    connect(windowButton, SIGNAL(clicked()), this, SLOT(openWindow()));
    connect(noticesButton, SIGNAL(clicked()), this, SLOT(openNotices()));
}

GalleryAboutWindow *AboutWindowPanel::aboutWindow() const
{
    return detailBox->isChecked() ? windowWithQt : plainWindow;
}

void AboutWindowPanel::retranslate()
{
    setTitle(tr("About window"));
    detailBox->setText(tr("With the &version of Qt"));
    setButtonText(windowButton, tr("Open About &Window"));
    setButtonText(noticesButton, tr("Open Legal &Notices"));
    note->setText(tr("The notices are opened from a copy in the folder \"%1\".")
                      .arg(pathInText(QDir::tempPath())));
}

void AboutWindowPanel::openWindow() const
{
    aboutWindow()->open();
}

/// As the button of the window does it, which says nothing when there is nothing to open.
void AboutWindowPanel::openNotices()
{
    const QString path = GalleryAboutWindow::noticesPath();
    if (!QFileInfo(path).isFile()) {
        note->setText(tr("There are no notices at \"%1\".").arg(pathInText(path)));
        return;
    }
    retranslate();
    aboutWindow()->findChild<QPushButton *>(QStringLiteral("patentButton"))->click();
}

void AboutWindowPanel::setUpLayout()
{
    auto *row = new QHBoxLayout;
    row->addWidget(windowButton);
    row->addWidget(detailBox);
    row->addSpacing(kGap);
    row->addWidget(noticesButton);
    row->addStretch();

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(row);
    rows->addWidget(note);
}
