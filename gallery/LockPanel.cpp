#include "LockPanel.h"

#include "LockerFirstPasswordDialog.h"
#include "LockerPasswordDialog.h"
#include "LockerUIDialog.h"
#include "TXResources.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr int kLockedWithNewPassword = 1;
constexpr int kLockedWithOldPassword = 0;
constexpr int kApplied = 1;
constexpr int kPictureGap = 7;

} // namespace

LockPanel::LockPanel(QWidget *parent)
    : GalleryPanel(parent)
    , formLabel(new QLabel(this))
    , digestButton(new QRadioButton(this))
    , plainButton(new QRadioButton(this))
    , storedLabel(new QLabel(this))
    , storedText(new QLabel(this))
    , forgetButton(new QPushButton(this))
    , lockButton(new QPushButton(this))
    , firstButton(new QPushButton(this))
    , changeButton(new QPushButton(this))
    , eventPicture(new QLabel(this))
    , eventLabel(new QLabel(this))
{
    digestButton->setChecked(stored.useHash);
    storedText->setTextFormat(Qt::PlainText);
    storedText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    storedText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    eventLabel->setWordWrap(true);
    setUpLayout();
    setUpConnections();
    retranslate();
}

void LockPanel::storeFirstPassword(const QString &typed)
{
    stored.set(typed);
    note(Event::Stored);
}

void LockPanel::noteUnlocked()
{
    isLocked = false;
    note(Event::Unlocked);
    lockButton->setFocus();
}

void LockPanel::retranslate()
{
    setTitle(tr("Lock of the user interface"));
    formLabel->setText(tr("The password is stored as"));
    digestButton->setText(tr("MD5 &digest"));
    plainButton->setText(tr("&plain text"));
    storedLabel->setText(tr("Stored at the moment"));
    setButtonText(forgetButton, tr("For&get"));
    setButtonText(lockButton, tr("Loc&k..."));
    setButtonText(firstButton, tr("&First Password..."));
    setButtonText(changeButton, tr("C&hange Password..."));
    updateControls();
}

void LockPanel::openLockDialog()
{
    LockerUIDialog dialog(stored.useHash, this);
    dialog.setPassword(stored.text);
    const int result = dialog.exec();
    const bool isOther = dialog.password() != stored.text;
    if (result != kLockedWithNewPassword && result != kLockedWithOldPassword) {
        note(isOther ? Event::CancelledAfterChange : Event::Cancelled);
        return;
    }
    // Taken over with either result: a password that was changed, and then set once more to the
    // same, counts as the old one there.
    stored.text = dialog.password();
    lock(isOther ? Event::LockedWithNew : Event::LockedWithOld);
}

void LockPanel::openFirstPasswordDialog()
{
    LockerFirstPasswordDialog dialog(stored.useHash, this);
    const int result = dialog.exec();
    storeAfter(result, dialog.password());
}

void LockPanel::openChangeDialog()
{
    LockerPasswordDialog dialog(stored.useHash, this);
    dialog.setPassword(stored.text);
    const int result = dialog.exec();
    storeAfter(result, dialog.password());
}

void LockPanel::forget()
{
    stored.text.clear();
    note(Event::Forgotten);
    firstButton->setFocus();
}

void LockPanel::useForm()
{
    const bool isHashWanted = digestButton->isChecked();
    if (isHashWanted == stored.useHash) {
        return;
    }
    const bool wasSet = stored.isSet();
    stored.setUseHash(isHashWanted);
    if (!wasSet) {
        note(Event::None);
    } else {
        note(isHashWanted ? Event::TurnedIntoDigest : Event::DigestForgotten);
    }
}

void LockPanel::setUpConnections()
{
    connect(digestButton, SIGNAL(toggled(bool)), this, SLOT(useForm()));
    connect(forgetButton, SIGNAL(clicked()), this, SLOT(forget()));
    connect(lockButton, SIGNAL(clicked()), this, SLOT(openLockDialog()));
    connect(firstButton, SIGNAL(clicked()), this, SLOT(openFirstPasswordDialog()));
    connect(changeButton, SIGNAL(clicked()), this, SLOT(openChangeDialog()));
}

void LockPanel::note(Event event)
{
    lastEvent = event;
    updateControls();
}

void LockPanel::lock(Event event)
{
    isLocked = true;
    note(event);
    emit lockWanted();
}

void LockPanel::storeAfter(int result, const QString &text)
{
    const bool isApplied = result == kApplied;
    if (isApplied) {
        stored.text = text;
    }
    note(isApplied ? Event::Stored : Event::NotStored);
}

void LockPanel::updateControls()
{
    storedText->setText(stored.isSet() ? stored.text : tr("nothing"));
    storedText->setForegroundRole(stored.isSet() ? QPalette::WindowText
                                                 : QPalette::PlaceholderText);
    digestButton->setEnabled(!isLocked);
    plainButton->setEnabled(!isLocked);
    lockButton->setEnabled(!isLocked);
    forgetButton->setEnabled(!isLocked && stored.isSet());
    firstButton->setEnabled(!isLocked && !stored.isSet());
    changeButton->setEnabled(!isLocked && stored.isSet());
    eventPicture->setPixmap(isWarning() ? TXDisplayLittleWarningBulletStaticImage()
                                        : TXDisplayLittleInformationBulletStaticImage());
    eventLabel->setText(eventText());
}

QString LockPanel::eventText() const
{
    switch (lastEvent) {
    case Event::LockedWithOld:
        return tr("Locked with the stored password.");
    case Event::LockedWithNew:
        return tr("Locked with a new password, which is now stored.");
    case Event::Cancelled:
        return tr("Cancelled: nothing is locked, and what is stored stays.");
    case Event::CancelledAfterChange:
        return tr("Cancelled after the password was changed: nothing is locked, and the new "
                  "password is not kept.");
    case Event::Stored:
        return tr("The new password is stored.");
    case Event::NotStored:
        return tr("Cancelled: what is stored stays.");
    case Event::Forgotten:
        return tr("The password is forgotten.");
    case Event::TurnedIntoDigest:
        return tr("The stored password has been replaced by its digest.");
    case Event::DigestForgotten:
        return tr("A digest cannot be turned back into the password: it is forgotten.");
    case Event::Unlocked:
        return tr("Unlocked with the right password.");
    case Event::None:
        break;
    }
    return stored.isSet() ? tr("The work area is open.")
                          : tr("No password has been set: the lock asks for a first one.");
}

bool LockPanel::isWarning() const
{
    return lastEvent == Event::CancelledAfterChange || lastEvent == Event::DigestForgotten;
}

void LockPanel::setUpLayout()
{
    for (QLabel *caption : {formLabel, storedLabel}) {
        caption->setForegroundRole(QPalette::PlaceholderText);
    }
    auto *forms = new QHBoxLayout;
    forms->addWidget(digestButton);
    forms->addWidget(plainButton);
    forms->addStretch();

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->addWidget(formLabel, 0, 0);
    grid->addLayout(forms, 0, 1);
    grid->addWidget(storedLabel, 1, 0);
    grid->addWidget(storedText, 1, 1);
    grid->addWidget(forgetButton, 1, 2);
    grid->setColumnStretch(1, 1);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(lockButton);
    buttons->addSpacing(kGap);
    buttons->addWidget(firstButton);
    buttons->addWidget(changeButton);
    buttons->addStretch();

    auto *eventRow = new QHBoxLayout;
    eventRow->setSpacing(kPictureGap);
    eventRow->addWidget(eventPicture, 0, Qt::AlignTop);
    eventRow->addWidget(eventLabel, 1);

    auto *rows = new QVBoxLayout(this);
    setGaps(rows);
    rows->addLayout(grid);
    rows->addLayout(buttons);
    rows->addLayout(eventRow);
}
