#pragma once

#include "DoubleSpinBoxWithSliderWidget.h"

#include "TestBase.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QSlider>

#include <memory>

/// Base of the tests of the slider with boxes, which each find a new widget, not shown.
class DoubleSpinBoxWithSliderTest : public TestBase
{
protected:
    void prepare() override { widget = std::make_unique<DoubleSpinBoxWithSliderWidget>(nullptr); }
    void finish() override { widget.reset(); }

    template<class Child>
    [[nodiscard]] Child *child(const char *name) const
    {
        return widget->findChild<Child *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QDoubleSpinBox *right() const
    {
        return child<QDoubleSpinBox>("dataDoubleSpinBox");
    }
    [[nodiscard]] QDoubleSpinBox *left() const
    {
        return child<QDoubleSpinBox>("dataLeftDoubleSpinBox");
    }
    [[nodiscard]] QSlider *slider() const { return child<QSlider>("dataHorizontalSlider"); }
    [[nodiscard]] QLabel *minLabel() const { return child<QLabel>("minValueNameLabel"); }
    [[nodiscard]] QLabel *maxLabel() const { return child<QLabel>("maxValueNameLabel"); }
    [[nodiscard]] QWidget *spacer() const { return child<QWidget>("widgetSpacer"); }

    std::unique_ptr<DoubleSpinBoxWithSliderWidget> widget;
};
