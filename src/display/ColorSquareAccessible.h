#pragma once

#include <QAccessibleWidget>

class TXColorSquareWidget;

/// What assistive programs learn of a swatch: a picture whose value is its colour.
class ColorSquareAccessible final : public QAccessibleWidget
{
public:
    /// For this swatch, which outlives it.
    explicit ColorSquareAccessible(TXColorSquareWidget *square);

    /// The name is the widget's accessible name or, without one, a general one. The value also is
    /// the description of a widget that has none, as some programs read only that.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
};
