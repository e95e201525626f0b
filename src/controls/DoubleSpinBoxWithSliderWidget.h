#pragma once

#include "TXGUICommonExport.h"

#include <QAbstractSpinBox>
#include <QString>
#include <QWidget>

#include <memory>

class QDoubleSpinBox;
class QLabel;

namespace Ui {
class DoubleSpinBoxWithSliderWidget;
}

/// A number that is entered in a spin box or with a slider, the two kept together.
///
/// There are two spin boxes, one on each side of the slider, with the same settings and the same
/// value; one of them is shown, at first the right one. A name stands before them, and a row below
/// the slider can name its two ends.
///
/// The slider counts in steps of 10 to the power of minus decimals(). A value is truncated towards
/// zero to a step, not rounded, and the spin boxes follow: 0.29 with two decimals may become 0.28.
/// A range with more steps than an int holds is cut to what it holds.
///
/// The wheel is ignored, so that scrolling a page never changes a value. Values out of range are
/// clamped. Thread: the GUI thread.
class TXGUICOMMON_EXPORT DoubleSpinBoxWithSliderWidget : public QWidget
{
    Q_OBJECT
    /// See decimals() and setDecimals(). It comes first, as what reads a form goes by the order
    /// here and rounds what it sets to the decimals of the moment.
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    /// See minimumValue() and setMinimumValue().
    Q_PROPERTY(double minimumValue READ minimumValue WRITE setMinimumValue)
    /// See maximumValue() and setMaximumValue().
    Q_PROPERTY(double maximumValue READ maximumValue WRITE setMaximumValue)
    /// See singleStep() and setSingleStep().
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    /// See value() and setValue().
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    /// See spinBoxSuffix() and setSpinBoxSuffix().
    Q_PROPERTY(QString spinBoxSuffix READ spinBoxSuffix WRITE setSpinBoxSuffix)
    /// See specialValueText() and setSpecialValueText().
    Q_PROPERTY(QString specialValueText READ specialValueText WRITE setSpecialValueText)
    /// See spinBoxButtonSymbol() and setSpinBoxButtonSymbol().
    Q_PROPERTY(QAbstractSpinBox::ButtonSymbols spinBoxButtonSymbol READ spinBoxButtonSymbol WRITE
                   setSpinBoxButtonSymbol)
    /// See spinBoxMinimumWidth() and setSpinBoxMinimumWidth().
    Q_PROPERTY(int spinBoxMinimumWidth READ spinBoxMinimumWidth WRITE setSpinBoxMinimumWidth)
    /// See spinBoxMaximumWidth() and setSpinBoxMaximumWidth().
    Q_PROPERTY(int spinBoxMaximumWidth READ spinBoxMaximumWidth WRITE setSpinBoxMaximumWidth)
    /// See isSpinBoxLeftOfSlider(). Writing it is hideRightSpinBox() or hideLeftSpinBox().
    Q_PROPERTY(bool spinBoxLeftOfSlider READ isSpinBoxLeftOfSlider WRITE placeSpinBox)
    /// See dataName() and setDataName().
    Q_PROPERTY(QString dataName READ dataName WRITE setDataName)
    /// See labelMinimumWidth() and setLabelMinimumWidth().
    Q_PROPERTY(int labelMinimumWidth READ labelMinimumWidth WRITE setLabelMinimumWidth)
    /// See isLabelVisible() and setLabelVisible().
    Q_PROPERTY(bool labelVisible READ isLabelVisible WRITE setLabelVisible)
    /// See minLabelName() and setMinLabelName().
    Q_PROPERTY(QString minLabelName READ minLabelName WRITE setMinLabelName)
    /// See maxLabelName() and setMaxLabelName().
    Q_PROPERTY(QString maxLabelName READ maxLabelName WRITE setMaxLabelName)

public:
    /// From 0 to 100 in steps of 0.1 with two decimals, at 0, the box to the right of the slider.
    explicit DoubleSpinBoxWithSliderWidget(QWidget *parent = nullptr);
    ~DoubleSpinBoxWithSliderWidget() override;

    /// Digits behind the decimal point, 0 and above.
    [[nodiscard]] int decimals() const;
    /// Rounds range and value to so many digits; a negative number reads as 0. The slider does not
    /// get finer than 18 digits.
    void setDecimals(int decimals);

    /// The lower end of the range, 0 at first.
    [[nodiscard]] double minimumValue() const;
    /// Raises value and upper end where they would be below.
    void setMinimumValue(double minimum);

    /// The upper end of the range, 100 at first.
    [[nodiscard]] double maximumValue() const;
    /// Lowers value and lower end where they would be above.
    void setMaximumValue(double maximum);

    /// The number in the box that is shown.
    [[nodiscard]] double value() const;

    /// What one press of an arrow adds or takes, 0.1 at first; the slider's own step stays.
    [[nodiscard]] double singleStep() const;
    /// A negative step changes nothing.
    void setSingleStep(double step);

    /// What stands behind the number; empty at first.
    [[nodiscard]] QString spinBoxSuffix() const;
    /// Shown behind the number, as a unit.
    void setSpinBoxSuffix(const QString &suffix);

    /// What stands in place of the number at the minimum; empty at first.
    [[nodiscard]] QString specialValueText() const;
    /// Shown in place of the number at the minimum; an empty text shows the number.
    void setSpecialValueText(const QString &text);

    /// The width in pixels of the box that is shown.
    int spinBoxWidth();
    /// The least width of both boxes, in pixels; 0 at first, which leaves it to their content.
    [[nodiscard]] int spinBoxMinimumWidth() const;
    /// The least width of both boxes, in pixels.
    void setSpinBoxMinimumWidth(int width);
    /// The greatest width of both boxes, in pixels; QWIDGETSIZE_MAX at first.
    [[nodiscard]] int spinBoxMaximumWidth() const;
    /// The greatest width of both boxes, in pixels.
    void setSpinBoxMaximumWidth(int width);
    /// What stands on the boxes' buttons; QAbstractSpinBox::UpDownArrows at first.
    [[nodiscard]] QAbstractSpinBox::ButtonSymbols spinBoxButtonSymbol() const;
    /// What stands on the boxes' buttons, or whether there are any.
    void setSpinBoxButtonSymbol(QAbstractSpinBox::ButtonSymbols symbols);

    /// The name before the boxes, empty at first.
    QString dataName();
    /// Sets the name, which also is the accessible name of boxes and slider, without a colon at its
    /// end.
    void setDataName(const QString &name);
    /// The least width of the name, in pixels; 0 at first.
    [[nodiscard]] int labelMinimumWidth() const;
    /// The least width of the name, in pixels, for aligning several of these widgets.
    void setLabelMinimumWidth(int width);
    /// Whether the name is to be shown, also while this widget itself is hidden.
    [[nodiscard]] bool isLabelVisible() const;
    /// Shows or hides the name; shown at first.
    void setLabelVisible(bool visible);

    /// The name of the slider's lower end; empty at first.
    [[nodiscard]] QString minLabelName() const;
    /// Names the lower end of the slider, in a row below it that is there while one of its two ends
    /// has a name.
    void setMinLabelName(const QString &name);
    /// The name of the slider's upper end; empty at first.
    [[nodiscard]] QString maxLabelName() const;
    /// Names the upper end of the slider, in the same row.
    void setMaxLabelName(const QString &name);

    /// Whether the box stands to the left of the slider, also while this widget itself is hidden;
    /// false at first.
    [[nodiscard]] bool isSpinBoxLeftOfSlider() const;
    /// Puts the box to the right of the slider.
    void hideLeftSpinBox();
    /// Puts the box to the left of the slider.
    void hideRightSpinBox();

    /// Swallows the wheel over boxes and slider.
    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /// The value has changed or is about to settle. One edit emits more than once: first with the
    /// value as the slider can hold it, then with the value as entered. Read it as "look again".
    /// Setting the same value again emits nothing.
    void valueChanged(double value);

public slots:
    /// Sets the number, clamped to the range. Emits valueChanged() when it changes by it.
    void setValue(double value);

    /// Brings the slider to the boxes' value and emits valueChanged().
    void currentSpinBoxValueChanged(double value);

    /// Brings the boxes to the slider's value and emits valueChanged().
    void currentSliderValueChanged(int steps);

private:
    [[nodiscard]] QDoubleSpinBox *usedBox() const;
    void placeSpinBox(bool isLeftOfSlider);
    void setEndLabelName(QLabel *label, const QLabel *otherLabel, const QString &name);
    void updateSliderProperties();

    std::unique_ptr<Ui::DoubleSpinBoxWithSliderWidget> ui;
};
