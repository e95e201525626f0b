#include "AccessPage.h"

#include "LockPanel.h"
#include "LockedArea.h"
#include "PasswordFieldPanel.h"

#include "LockerFirstPasswordDialog.h"
#include "LockerPasswordDialog.h"
#include "LockerUIDialog.h"

#include <QVBoxLayout>

AccessPage::AccessPage(QWidget *parent)
    : GalleryPage(parent)
    , lockPanel(new LockPanel(this))
    , area(new LockedArea(this))
    , fieldPanel(new PasswordFieldPanel(this))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(GalleryPanel::kGap);
    rows->addWidget(lockPanel);
    rows->addWidget(area);
    rows->addWidget(fieldPanel);
    rows->addStretch();
    fieldPanel->setByProgram();
    connect(lockPanel, SIGNAL(lockWanted()), this, SLOT(lock()));
    connect(area, SIGNAL(unlocked()), lockPanel, SLOT(noteUnlocked()));
}

QString AccessPage::description() const
{
    return tr("A program whose user interface can be locked behind a password. The dialogs ask for "
              "it; the program keeps it and does the locking, here of the work area.");
}

void AccessPage::fillForPicture()
{
    lockPanel->storeFirstPassword(QStringLiteral("spectral-31"));
}

QList<GalleryFurtherWindow> AccessPage::furtherWindows()
{
    const StoredPassword &stored = lockPanel->password();
    auto *lockDialog = new LockerUIDialog(stored.useHash, this);
    lockDialog->setPassword(stored.text);
    auto *changeDialog = new LockerPasswordDialog(stored.useHash, this);
    changeDialog->setPassword(stored.text);
    auto *firstDialog = new LockerFirstPasswordDialog(stored.useHash, this);
    area->lock(stored);
    return {
        showBeside(QStringLiteral("lock"), lockDialog),
        showBeside(QStringLiteral("change"), changeDialog),
        showBeside(QStringLiteral("first"), firstDialog),
        {QStringLiteral("locked"), area},
    };
}

void AccessPage::lock()
{
    area->lock(lockPanel->password());
}

GalleryFurtherWindow AccessPage::showBeside(const QString &name, QDialog *dialog)
{
    dialog->setWindowModality(Qt::NonModal);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    return {name, dialog};
}
