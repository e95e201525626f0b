#include "EmbeddingPanel.h"

#include "LabColourDialog.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace { } // namespace

EmbeddingPanel::EmbeddingPanel(QWidget *parent)
    : GalleryPanel(parent)
    , frame(new QFrame(this))
    , embeddedDialog(new LabColourDialog(frame))
    , windowDialog(new LabColourDialog(this))
    , windowButton(new QPushButton(this))
    , explanation(new QLabel(this))
    , outcomeLabel(new QLabel(this))
{
    embeddedDialog->setAsWidget();
    explanation->setWordWrap(true);
    outcomeLabel->setWordWrap(true);
    outcomeLabel->setForegroundRole(QPalette::PlaceholderText);
    setUpLayout();
    retranslate();
    connect(windowButton, SIGNAL(clicked()), this, SLOT(openWindow()));
    connect(embeddedDialog, SIGNAL(okClicked()), this, SLOT(embeddedOkClicked()));
    connect(windowDialog, SIGNAL(finished(int)), this, SLOT(windowFinished(int)));
}

void EmbeddingPanel::openWindow()
{
    if (!windowDialog->isVisible()) {
        windowDialog->setColour(embeddedDialog->colour());
    }
    windowDialog->show();
    windowDialog->raise();
    windowDialog->activateWindow();
}

void EmbeddingPanel::embeddedOkClicked()
{
    showOutcome(Outcome::StayedAfterOk);
}

void EmbeddingPanel::windowFinished(int result)
{
    if (result == QDialog::Accepted) {
        embeddedDialog->setColour(windowDialog->colour());
    }
    showOutcome(result == QDialog::Accepted ? Outcome::ClosedByOk : Outcome::ClosedByCancel);
}

void EmbeddingPanel::setUpLayout()
{
    frame->setFrameShape(QFrame::StyledPanel);
    auto *inFrame = new QVBoxLayout(frame);
    inFrame->setContentsMargins(0, 0, 0, 0);
    inFrame->addWidget(embeddedDialog);

    auto *side = new QVBoxLayout;
    side->addWidget(explanation);
    side->addWidget(outcomeLabel);
    side->addStretch();
    side->addWidget(windowButton, 0, Qt::AlignLeft);

    auto *columns = new QHBoxLayout(this);
    setGaps(columns);
    columns->addWidget(frame, 3);
    columns->addLayout(side, 2);
}

void EmbeddingPanel::showOutcome(Outcome newOutcome)
{
    outcome = newOutcome;
    switch (outcome) {
    case Outcome::Nothing:
        outcomeLabel->clear();
        break;
    case Outcome::StayedAfterOk:
        outcomeLabel->setText(tr("OK was clicked, and the dialog stays in the page."));
        break;
    case Outcome::ClosedByOk:
        outcomeLabel->setText(tr("OK closed the window; its colour was taken over."));
        break;
    case Outcome::ClosedByCancel:
        outcomeLabel->setText(tr("Cancel closed the window; the colour stays as it was."));
        break;
    }
}

void EmbeddingPanel::retranslate()
{
    setTitle(tr("A dialog in two places"));
    explanation->setText(tr("Part of the page, the dialog is not ended by its buttons. As a window "
                            "it is, and hands its colour over."));
    setButtonText(windowButton, tr("Open as &Window"));
    showOutcome(outcome);
}
