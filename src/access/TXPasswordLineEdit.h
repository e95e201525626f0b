#pragma once

#include "TXGUICommonExport.h"

#include <QLineEdit>
#include <QString>

/// A line edit for a password that keeps a value set by the program out of the widget's text.
///
/// Such a value is held enciphered, and the field shows a mask of fixed length in its place; so
/// nothing that reads the field (copy, drag, undo, accessibility tools) gets at it, not even its
/// length. The user's first edit of a masked field drops the value, and the field goes on as a
/// plain password field.
///
/// text(), setText() and clear() hide the functions of QLineEdit, which are not virtual: call them
/// through this type, or the mask is taken for the value.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXPasswordLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty field in password echo mode.
    explicit TXPasswordLineEdit(QWidget *parent = nullptr);

    /// The value: the one that the program has set, or else what the user has typed.
    [[nodiscard]] QString text() const;

public slots:
    /// Sets the value and shows the mask. An empty text changes nothing at all; take clear() to
    /// empty the field. Where the value cannot be enciphered, the field becomes empty.
    void setText(const QString &text);

    /// Drops the value set by the program after an edit by the user; `newText` is the text of the
    /// widget. What the user typed stays, but for the mask's character "|".
    void treatTextEdited(const QString &newText);

    /// Empties the field, whoever has set its value.
    void clear();

private:
    QString encrypted;
};
