#pragma once

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;

/// A password field with two readings below it, which follow it live: what the field gives the
/// program, and the field's own text, which is what everything else on the desktop could read.
class PasswordFieldCell final : public QWidget
{
    Q_OBJECT

public:
    /// How the program sets and reads the value of a field. The field's own type decides, since
    /// the functions of QLineEdit are not virtual.
    struct Access
    {
        std::function<void(const QString &)> set;
        std::function<QString()> get;
    };

    /// The cell takes the field. The access must call that field.
    PasswordFieldCell(QLineEdit *field, Access access, QWidget *parent = nullptr);

    /// Sets the value as a program does, without a key pressed.
    void setByProgram(const QString &value);

    /// Sets the texts in the language of the moment; the name is that of the field for users who
    /// do not see it.
    void retranslate(const QString &accessibleName);

    [[nodiscard]] QLineEdit *field() const { return edit; }

private slots:
    void showReadings();

private:
    void setUpLayout();

    QLineEdit *edit;
    Access access;
    QLabel *valueCaption;
    QLabel *value;
    QLabel *ownCaption;
    QLabel *own;
    QLabel *verdict;
};
