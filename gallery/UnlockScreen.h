#pragma once

#include "StoredPassword.h"

#include <QWidget>

class QLabel;
class QPushButton;
class TXPasswordLineEdit;

/// What stands in the place of a locked part of a program: it asks for the password.
class UnlockScreen final : public QWidget
{
    Q_OBJECT

public:
    explicit UnlockScreen(QWidget *parent = nullptr);

    /// Asks for this password from now on, with an empty field and no message, and takes the
    /// keyboard when it is shown. A password that is not set can never be typed.
    void ask(const StoredPassword &forPassword);

    /// Sets all texts in the language of the moment.
    void retranslate();

signals:
    /// Emitted when the user has typed the right password.
    void passwordGiven();

private slots:
    void check();
    void clearMessage();

private:
    void setUpLayout();

    StoredPassword password;
    QLabel *title;
    QLabel *passwordLabel;
    TXPasswordLineEdit *passwordEdit;
    QPushButton *unlockButton;
    QLabel *messagePicture;
    QLabel *message;
};
