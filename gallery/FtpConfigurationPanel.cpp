#include "FtpConfigurationPanel.h"

#include "TabOrder.h"

#include "FTPConfigurationWidget.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QVBoxLayout>

namespace {

constexpr int kRowGap = 6;

} // namespace

FtpConfigurationPanel::FtpConfigurationPanel(QWidget *parent)
    : GalleryPanel(parent)
    , widget(new FTPConfigurationWidget(this))
    , statusBox(new QCheckBox(this))
    , activeBox(new QCheckBox(this))
    , eraseBox(new QCheckBox(this))
    , importerBox(new QCheckBox(this))
{
    for (QCheckBox *box : {statusBox, activeBox, eraseBox, importerBox}) {
        box->setChecked(true);
    }
    setUpLayout();
    setTabOrderOfParts({widget, statusBox, importerBox, activeBox, eraseBox});
    retranslate();
    connect(statusBox, SIGNAL(toggled(bool)), this, SLOT(setStatusShown(bool)));
    connect(activeBox, SIGNAL(toggled(bool)), this, SLOT(setActiveShown(bool)));
    connect(eraseBox, SIGNAL(toggled(bool)), this, SLOT(setEraseShown(bool)));
    connect(importerBox, SIGNAL(toggled(bool)), this, SLOT(setImporter(bool)));
}

void FtpConfigurationPanel::retranslate()
{
    setTitle(tr("FTP panel"));
    statusBox->setText(tr("Show stat&us"));
    activeBox->setText(tr("Show &box \"Active\""));
    eraseBox->setText(tr("Show box \"&Erase\""));
    importerBox->setText(tr("&Importer"));
}

void FtpConfigurationPanel::setStatusShown(bool isShown)
{
    widget->setVisibleStatus(isShown);
}

void FtpConfigurationPanel::setActiveShown(bool isShown)
{
    widget->setVisibleActiveCheckBox(isShown);
}

void FtpConfigurationPanel::setEraseShown(bool isShown)
{
    widget->setVisibleEraseSrcFilesItems(isShown);
}

void FtpConfigurationPanel::setImporter(bool isImporter)
{
    widget->setIsImporter(isImporter);
}

void FtpConfigurationPanel::setUpLayout()
{
    auto *boxes = new QGridLayout;
    boxes->setHorizontalSpacing(2 * kGap);
    boxes->setVerticalSpacing(kRowGap);
    boxes->setColumnStretch(2, 1);
    boxes->addWidget(statusBox, 0, 0);
    boxes->addWidget(importerBox, 0, 1);
    boxes->addWidget(activeBox, 1, 0);
    boxes->addWidget(eraseBox, 1, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    widget->layout()->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(widget);
    rows->addStretch();
    rows->addLayout(boxes);
}
