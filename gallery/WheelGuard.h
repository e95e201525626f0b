#pragma once

#include <QObject>

class QWidget;

/// Keeps the wheel from a control that it would change, and leaves it to the page, which scrolls
/// on: scrolling past must not change anything. A child of the control.
class WheelGuard final : public QObject
{
    Q_OBJECT

public:
    /// Guards the control for as long as it lives.
    static void protect(QWidget *control);

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    explicit WheelGuard(QWidget *control);
};
