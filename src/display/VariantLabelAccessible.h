#pragma once

#include <QAccessibleWidget>

class VariantLabel;

/// Reads a VariantLabel out: its words without the markup, the first thousand characters of them.
///
/// Thread: the GUI thread.
class VariantLabelAccessible : public QAccessibleWidget
{
public:
    /// More is nothing that anyone would listen to.
    static constexpr int kCharactersMaximum = 1000;

    explicit VariantLabelAccessible(VariantLabel *label);

    /// The words as the name, unless the label was given a name of its own.
    [[nodiscard]] QString text(QAccessible::Text text) const override;
};
