#pragma once

#include "GalleryPanel.h"

class PrintJobForm;
class QStackedLayout;
struct StoredPassword;
class UnlockScreen;

/// The part of the page that the user can lock: the work, or in its place the question for the
/// password. While it is locked nothing of the work is shown, nor reached by the keyboard.
class LockedArea final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit LockedArea(QWidget *parent = nullptr);

    /// Locks the area until this password is typed. A password that is not set locks nothing: the
    /// area could never be opened again.
    void lock(const StoredPassword &password);

    [[nodiscard]] bool isLocked() const;

signals:
    /// Emitted when the user has opened the area with the right password.
    void unlocked();

protected:
    void retranslate() override;

private slots:
    void unlock();

private:
    PrintJobForm *work;
    UnlockScreen *unlockScreen;
    QStackedLayout *stack;
};
