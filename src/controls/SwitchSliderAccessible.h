#pragma once

#include <QAccessible>
#include <QAccessibleWidget>
#include <QStringList>
#include <QVariant>

class TXSwitchSlider;

/// What assistive programs learn of a switch: a check box that is checked while the switch is on.
///
/// It has a value as well, 0 or 1: the slider that the switch is made of tells of each change of
/// it, and Qt complains of those who tell of a value that they do not have. Of a check box nobody
/// reads it out.
///
/// Thread: the GUI thread.
class SwitchSliderAccessible final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    /// For this switch, which outlives it.
    explicit SwitchSliderAccessible(TXSwitchSlider *slider);

    /// Tells assistive programs, if any listen, that the switch is on or off now.
    static void tellOfState(TXSwitchSlider &slider);

    /// As Qt has it for widgets, and whether the switch is on.
    [[nodiscard]] QAccessible::State state() const override;
    /// Adds the value to the interfaces of a widget.
    [[nodiscard]] void *interface_cast(QAccessible::InterfaceType kind) override;

    /// The value of the slider, 1 while on.
    [[nodiscard]] QVariant currentValue() const override;
    /// On by numbers from 1 on, off by all else. Does nothing while disabled.
    void setCurrentValue(const QVariant &value) override;
    /// The largest value of the slider, 1.
    [[nodiscard]] QVariant maximumValue() const override;
    /// The smallest value of the slider, 0.
    [[nodiscard]] QVariant minimumValue() const override;
    /// A step of the slider, 1.
    [[nodiscard]] QVariant minimumStepSize() const override;

    /// To toggle, unless the switch is disabled, and what any widget can.
    [[nodiscard]] QStringList actionNames() const override;
    /// Toggles, as a click does, for the names of the actions to toggle and to press. Nothing for
    /// other names, and nothing while disabled.
    void doAction(const QString &name) override;

private:
    [[nodiscard]] TXSwitchSlider &slider() const;
};
