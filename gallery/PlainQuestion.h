#pragma once

#include <QMessageBox>
#include <QString>

class QWidget;

/// Asks the user in a box over the parent and waits for the answer: one of the buttons, or none
/// when the parent was destroyed meanwhile. The text, which may hold names of any kind, is shown as
/// it is, never as rich text. "No" is the default where it is among the buttons.
[[nodiscard]] int askPlainly(QWidget *parent, const QString &title, const QString &text,
                             QMessageBox::StandardButtons buttons);
