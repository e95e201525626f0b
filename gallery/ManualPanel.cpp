#include "ManualPanel.h"

#include "TXDisplayAppManual.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace {

const QString kMissingManual = QStringLiteral("Measuring Device.pdf");
constexpr int kMargin = 14;

} // namespace

ManualPanel::ManualPanel(QString fileName, QWidget *parent)
    : QGroupBox(parent)
    , fileName(std::move(fileName))
    , note(new QLabel(this))
    , openButton(new QPushButton(this))
    , missingButton(new QPushButton(this))
{
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->addWidget(openButton);
    row->addWidget(missingButton);
    row->addSpacing(kMargin);
    row->addWidget(note, 1);
    retranslate();
    connect(openButton, SIGNAL(clicked()), this, SLOT(openManual()));
    connect(missingButton, SIGNAL(clicked()), this, SLOT(openMissingManual()));
}

void ManualPanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QGroupBox::changeEvent(event);
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
    openButton->setText(tr("Open &Manual"));
    missingButton->setText(tr("Open a Missin&g One"));
    for (QPushButton *button : {openButton, missingButton}) {
        button->setMinimumWidth(button->sizeHint().width() + kMargin);
    }
    note->setText(tr("The manual of this gallery, in the system's viewer of PDF files."));
}
