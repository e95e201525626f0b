#include "LockedArea.h"

#include "PrintJobForm.h"
#include "StoredPassword.h"
#include "UnlockScreen.h"

#include <QStackedLayout>

LockedArea::LockedArea(QWidget *parent)
    : GalleryPanel(parent)
    , work(new PrintJobForm(this))
    , unlockScreen(new UnlockScreen(this))
    , stack(new QStackedLayout)
{
    stack->addWidget(work);
    stack->addWidget(unlockScreen);
    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(stack);
    retranslate();
    connect(unlockScreen, SIGNAL(passwordGiven()), this, SLOT(unlock()));
}

void LockedArea::lock(const StoredPassword &password)
{
    if (!password.isSet()) {
        return;
    }
    stack->setCurrentWidget(unlockScreen);
    unlockScreen->ask(password);
}

bool LockedArea::isLocked() const
{
    return stack->currentWidget() == unlockScreen;
}

void LockedArea::retranslate()
{
    setTitle(tr("Work area"));
    work->retranslate();
    unlockScreen->retranslate();
}

void LockedArea::unlock()
{
    stack->setCurrentWidget(work);
    emit unlocked();
}
