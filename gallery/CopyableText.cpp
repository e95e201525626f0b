#include "CopyableText.h"

#include <QFocusEvent>
#include <QLabel>

CopyableText::CopyableText(QLabel *label)
    : QObject(label)
{
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::StrongFocus);
    label->installEventFilter(this);
}

void CopyableText::allow(QLabel *label)
{
    // The label owns it.
    static_cast<void>(new CopyableText(label));
}

/// The label lets go of the selection by itself when the focus goes on.
bool CopyableText::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
            auto *label = static_cast<QLabel *>(object);
            label->setSelection(0, int(label->text().size()));
        }
    }
    return QObject::eventFilter(object, event);
}
