#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

// What the tests of the dialogs around the lock share.

inline QLineEdit *field(const QDialog &dialog, const char *name)
{
    return dialog.findChild<QLineEdit *>(QString::fromLatin1(name));
}

inline QPushButton *button(const QDialog &dialog, const char *name)
{
    return dialog.findChild<QPushButton *>(QString::fromLatin1(name));
}

inline QString labelText(const QDialog &dialog, const char *name)
{
    return dialog.findChild<QLabel *>(QString::fromLatin1(name))->text();
}

/// Title, flags, modality and size, which all these dialogs have alike.
inline void checkLockerWindow(const QDialog &dialog)
{
    QCOMPARE(dialog.windowTitle(), "Lock User Interface");
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
    QCOMPARE(dialog.windowFlags(), Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    QCOMPARE(dialog.size(), QSize(300, dialog.sizeHint().height()));
}

inline void checkTabOrder(const QDialog &dialog, const QStringList &names)
{
    const QWidget *widget = dialog.findChild<QWidget *>(names.first());
    QStringList order;
    do {
        if ((widget->focusPolicy() & Qt::TabFocus) && widget != &dialog) {
            order.append(widget->objectName());
        }
        widget = widget->nextInFocusChain();
    } while (widget->objectName() != names.first());
    QCOMPARE(order, names);
}

/// Rows for cancel(): the button, Escape, and what the window system may do.
inline void addWaysToCancel(const char *buttonName)
{
    QTest::addColumn<QByteArray>("way");
    QTest::newRow("button") << QByteArray(buttonName);
    QTest::newRow("Escape") << QByteArray("Escape");
    QTest::newRow("window system") << QByteArray("close");
}

inline void cancel(QDialog &dialog)
{
    QFETCH(QByteArray, way);
    if (way == "Escape") {
        QTest::keyClick(&dialog, Qt::Key_Escape);
    } else if (way == "close") {
        dialog.close();
    } else {
        QTest::mouseClick(button(dialog, way.constData()), Qt::LeftButton);
    }
}

/// Presses Return on "Cancel" while "Apply" could be clicked.
inline void returnOnCancel(const QDialog &dialog)
{
    QPushButton *cancelButton = button(dialog, "cancel_pushButton");
    field(dialog, "password1_lineEdit")->setText(QStringLiteral("abc"));
    field(dialog, "password2_lineEdit")->setText(QStringLiteral("abc"));
    QVERIFY(button(dialog, "apply_pushButton")->isEnabled());
    cancelButton->setFocus(Qt::TabFocusReason);
    QTest::keyClick(cancelButton, Qt::Key_Return);
}
