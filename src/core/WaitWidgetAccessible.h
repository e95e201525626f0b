#pragma once

#include <QAccessibleWidget>

class WaitWidget;

/// What assistive programs learn of a spinner: an animation that is busy.
class WaitWidgetAccessible final : public QAccessibleWidget
{
public:
    /// For this spinner, which outlives it.
    explicit WaitWidgetAccessible(WaitWidget *spinner);

    /// The name is the widget's accessible name or, without one, a general one.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;

    /// Busy from the start of the animation to its stop, seen or not.
    [[nodiscard]] QAccessible::State state() const override;
};
