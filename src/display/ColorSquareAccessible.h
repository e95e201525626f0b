#pragma once

#include <QAccessibleWidget>

class TXColorSquareWidget;

/// What assistive programs learn of a swatch: a picture whose value is its colour.
class ColorSquareAccessible final : public QAccessibleWidget
{
public:
    /// For this swatch, which outlives it.
    explicit ColorSquareAccessible(TXColorSquareWidget *square);

    /// The name is the widget's accessible name or, without one, a general one. The
    /// description is the widget's accessible description or, without one, the value, with the tool
    /// tip on a line after it.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
};
