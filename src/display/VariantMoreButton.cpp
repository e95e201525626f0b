#include "VariantMoreButton.h"

#include "TXVariantViewer.h"

#include <QKeyEvent>

VariantMoreButton::VariantMoreButton(TXVariantViewer *owner)
    : QPushButton(owner)
    , viewer(owner)
{
    setCursor(Qt::ArrowCursor);
    // Else Return anywhere in a dialog presses it.
    setAutoDefault(false);
    // The tree that it is in is one stop of the Tab key.
    setFocusPolicy(Qt::ClickFocus);
    connect(this, SIGNAL(clicked()), this, SLOT(askForMore()));
}

void VariantMoreButton::announce(qsizetype next, qsizetype all)
{
    nextCount = next;
    allCount = all;
    retranslate();
}

void VariantMoreButton::changeEvent(QEvent *event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
}

void VariantMoreButton::retranslate()
{
    setText(tr("Show %L1 more of %L2").arg(nextCount).arg(allCount));
}

void VariantMoreButton::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
        // Else a button goes to the next stop of the Tab key.
        event->ignore();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat()) {
            click();
        }
        break;
    default:
        QPushButton::keyPressEvent(event);
    }
}

void VariantMoreButton::askForMore()
{
    viewer->addMoreEntries();
}
