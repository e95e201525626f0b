#include "VariantMoreButton.h"

#include "TXVariantViewer.h"

VariantMoreButton::VariantMoreButton(TXVariantViewer *owner)
    : QPushButton(owner)
    , viewer(owner)
{
    setCursor(Qt::ArrowCursor);
    connect(this, SIGNAL(clicked()), this, SLOT(askForMore()));
}

void VariantMoreButton::announce(qsizetype next, qsizetype all)
{
    setText(tr("Show %L1 more of %L2").arg(next).arg(all));
}

void VariantMoreButton::askForMore()
{
    viewer->addMoreEntries();
}
