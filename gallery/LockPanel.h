#pragma once

#include "GalleryPanel.h"
#include "StoredPassword.h"

class QLabel;
class QPushButton;
class QRadioButton;

/// The host's side of the lock dialogs: keeps the password in one of the two forms, opens the
/// dialogs, and does what their results say.
class LockPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit LockPanel(QWidget *parent = nullptr);

    /// What is stored at the moment.
    [[nodiscard]] const StoredPassword &password() const { return stored; }

    /// Stores a password, as if it had been typed in the dialog for a first one.
    void storeFirstPassword(const QString &typed);

public slots:
    /// Tells the panel that the user interface has been unlocked: the password may be handled
    /// again.
    void noteUnlocked();

signals:
    /// Emitted when the user interface is to be locked until password() is typed. Until
    /// noteUnlocked() the panel takes no clicks.
    void lockWanted();

protected:
    void retranslate() override;

private slots:
    void openLockDialog();
    void openFirstPasswordDialog();
    void openChangeDialog();
    void forget();
    void useForm();

private:
    /// What happened last.
    enum class Event {
        None,
        LockedWithOld,
        LockedWithNew,
        Cancelled,
        CancelledAfterChange,
        Stored,
        NotStored,
        Forgotten,
        TurnedIntoDigest,
        DigestForgotten,
        Unlocked,
    };

    void setUpLayout();
    void setUpConnections();
    void note(Event event);
    void lock(Event event);
    void storeAfter(int result, const QString &text);
    void updateControls();
    [[nodiscard]] QString eventText() const;
    [[nodiscard]] bool isWarning() const;

    StoredPassword stored;
    Event lastEvent = Event::None;
    bool isLocked = false;

    QLabel *formLabel;
    QRadioButton *digestButton;
    QRadioButton *plainButton;
    QLabel *storedLabel;
    QLabel *storedText;
    QPushButton *forgetButton;
    QPushButton *lockButton;
    QPushButton *firstButton;
    QPushButton *changeButton;
    QLabel *eventPicture;
    QLabel *eventLabel;
};
