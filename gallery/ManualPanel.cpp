#include "ManualPanel.h"

#include "TXDisplayAppManual.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace {

const QString kMissingManual = QStringLiteral("Measuring Device.pdf");

} // namespace

ManualPanel::ManualPanel(QString fileName, QWidget *parent)
    : GalleryPanel(parent)
    , fileName(std::move(fileName))
    , note(new QLabel(this))
    , openButton(new QPushButton(this))
    , missingButton(new QPushButton(this))
{
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    auto *row = new QHBoxLayout(this);
    setMargins(row);
    row->addWidget(openButton);
    row->addWidget(missingButton);
    row->addSpacing(kGap);
    row->addWidget(note, 1);
    retranslate();
    connect(openButton, SIGNAL(clicked()), this, SLOT(openManual()));
    connect(missingButton, SIGNAL(clicked()), this, SLOT(openMissingManual()));
}

void ManualPanel::openManual()
{
    TXDisplayAppManual(fileName, this);
}

void ManualPanel::openMissingManual()
{
    TXDisplayAppManual(kMissingManual, this);
}

void ManualPanel::retranslate()
{
    setTitle(tr("Manual"));
    setButtonText(openButton, tr("Open &Manual"));
    setButtonText(missingButton, tr("Open a Missin&g One"));
    note->setText(tr("The manual of this gallery, in the system's viewer of PDF files."));
}
