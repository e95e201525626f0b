#include "SwitchSliderAccessible.h"

#include "TXSwitchSlider.h"

SwitchSliderAccessible::SwitchSliderAccessible(TXSwitchSlider *slider)
    : QAccessibleWidget(slider, QAccessible::CheckBox)
{ }

void SwitchSliderAccessible::tellOfState(TXSwitchSlider &slider)
{
    if (QAccessible::isActive()) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(&slider, changed);
        QAccessible::updateAccessibility(&event);
    }
}

QAccessible::State SwitchSliderAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = slider().isChecked();
    return state;
}

void *SwitchSliderAccessible::interface_cast(QAccessible::InterfaceType kind)
{
    if (kind == QAccessible::ValueInterface) {
        return static_cast<QAccessibleValueInterface *>(this);
    }
    return QAccessibleWidget::interface_cast(kind);
}

QVariant SwitchSliderAccessible::currentValue() const
{
    return slider().value();
}

void SwitchSliderAccessible::setCurrentValue(const QVariant &value)
{
    if (slider().isEnabled()) {
        // Not by whole numbers: nothing says what "not a number" becomes as one.
        slider().setChecked(value.toDouble() >= 1);
    }
}

QVariant SwitchSliderAccessible::maximumValue() const
{
    return slider().maximum();
}

QVariant SwitchSliderAccessible::minimumValue() const
{
    return slider().minimum();
}

QVariant SwitchSliderAccessible::minimumStepSize() const
{
    return slider().singleStep();
}

QStringList SwitchSliderAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (slider().isEnabled()) {
        names.prepend(toggleAction());
    }
    return names;
}

void SwitchSliderAccessible::doAction(const QString &name)
{
    if (!slider().isEnabled()) {
        return;
    }
    if (name == toggleAction() || name == pressAction()) {
        slider().setChecked(!slider().isChecked());
    } else {
        QAccessibleWidget::doAction(name);
    }
}

TXSwitchSlider &SwitchSliderAccessible::slider() const
{
    return *static_cast<TXSwitchSlider *>(widget());
}
