#pragma once

#include <QAccessibleWidget>

class TXDeltaGradientWidget;

/// What assistive programs learn of a bar of colour differences: a chart whose value says the
/// numbers in words.
class DeltaGradientAccessible final : public QAccessibleWidget
{
public:
    /// For this bar, which outlives it.
    explicit DeltaGradientAccessible(TXDeltaGradientWidget *bar);

    /// The name is the widget's accessible name or, without one, a general one. The
    /// description is the widget's accessible description or, without one, the value, with the tool
    /// tip on a line after it.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
};
