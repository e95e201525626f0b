#pragma once

#include "AccessPage.h"
#include "DialogDriver.h"
#include "LockedArea.h"
#include "PageChecks.h"
#include "TestBase.h"

#include "TXPasswordLineEdit.h"

#include <QDialog>
#include <QPushButton>

#include <memory>

/// How a user answers the dialogs of the page.
namespace AccessDialogs {

/// Of "secret", as md5sum tells it.
inline const QString kDigest = QStringLiteral("5ebe2294ecd0e0f08eab7690d2a6ee69");

inline void clickIn(QDialog &dialog, const char *name)
{
    DialogDriver::click(dialog.findChild<QPushButton *>(name));
}

inline void typeIn(QDialog &dialog, const char *name, const QString &text)
{
    auto *field = dialog.findChild<QLineEdit *>(name);
    QVERIFY(field && field->isEnabled());
    field->clear();
    QTest::keyClicks(field, text);
}

/// Answers the dialog for a first password, or that for another one, with the present password.
inline DialogDriver::Answer applying(const QString &password, const QString &present = QString())
{
    return [password, present](QDialog &dialog) {
        if (!present.isEmpty()) {
            typeIn(dialog, "currentPassword_lineEdit", present);
        }
        typeIn(dialog, "password1_lineEdit", password);
        typeIn(dialog, "password2_lineEdit", password);
        clickIn(dialog, "apply_pushButton");
    };
}

} // namespace AccessDialogs

/// Base of the tests of the page of access, which each find it shown and active, unlocked, and with
/// no password stored.
class AccessPageTest : public TestBase
{
protected:
    void prepare() override
    {
        page = std::make_unique<AccessPage>();
        page->show();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        QVERIFY(isRead(*page, "nothing"));
    }

    void finish() override { page.reset(); }

    void click(const QString &text) { DialogDriver::click(buttonOf(*page, text)); }
    [[nodiscard]] bool isEnabled(const QString &text) const
    {
        return buttonOf(*page, text)->isEnabled();
    }
    [[nodiscard]] bool isLocked() const { return page->findChild<LockedArea *>()->isLocked(); }
    [[nodiscard]] TXPasswordLineEdit *unlockField() const
    {
        return page->findChild<LockedArea *>()->findChild<TXPasswordLineEdit *>();
    }

    /// A window system does so by itself when a dialog has closed; the platform of the tests does
    /// not.
    void activate()
    {
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
    }

    void storePassword(const QString &password)
    {
        DialogDriver driver;
        driver.expect(AccessDialogs::applying(password));
        click("First Password...");
        activate();
    }

    void lockWithStoredPassword()
    {
        DialogDriver driver;
        driver.expect([](QDialog &dialog) { AccessDialogs::clickIn(dialog, "lockPushButton"); });
        click("Lock...");
        activate();
    }

    void tryToUnlock(const QString &password)
    {
        unlockField()->clear();
        QTest::keyClicks(unlockField(), password);
        click("Unlock");
    }

    std::unique_ptr<AccessPage> page;
};
