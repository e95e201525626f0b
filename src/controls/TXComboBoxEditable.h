#pragma once

#include "TXGUICommonExport.h"

#include <QComboBox>

/// A combo box in which an item can be renamed in place: while it is editable, the keys of the line
/// edit leave the list alone, and the loss of the focus is told.
///
/// - Return and Enter go on to the parent, editable or not; nothing is inserted into the list.
/// - Up and Down go on to the parent while the box is editable; else they change the selection.
/// - All other keys do what they do in QComboBox, and go no further.
///
/// What is typed stays in the line edit until the host takes it, as a rule when focusHasBeenLost()
/// is emitted or Return has reached the parent. The completer is that of QComboBox, which makes the
/// beginning of an item's name the whole of it: where that is not wanted, take it away with
/// setCompleter(nullptr), each time after the box was made editable.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXComboBoxEditable : public QComboBox
{
    Q_OBJECT

public:
    /// Polishes the box at once, so that its size hint is final for a host that measures it.
    explicit TXComboBoxEditable(QWidget *parent = nullptr);

signals:
    /// The box or its line edit has lost the keyboard's focus, to whatever it went: to another
    /// window too, to a menu, or to the box's own list. Emitted before QComboBox reacts. Do not
    /// delete the box in a slot of it; deleteLater() is safe.
    void focusHasBeenLost();

protected:
    /// Emits focusHasBeenLost() for an event of the type QEvent::FocusOut, and for no other.
    void focusOutEvent(QFocusEvent *event) override;
    /// Return, Enter and the arrows of an editable box are left ignored, all others accepted.
    void keyPressEvent(QKeyEvent *event) override;
};
