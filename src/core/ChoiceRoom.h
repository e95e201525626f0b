#pragma once

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>

/// The room of a box for choices whose texts have been set in another language.
class ChoiceRoom
{
public:
    ChoiceRoom() = delete;

    /// Lets the box ask its layout for the room that its present texts take. A box measures them
    /// when it is first shown, and again when its style changes, which is what it is told here.
    static void measureAnew(QComboBox &box)
    {
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(&box, &change);
    }
};
