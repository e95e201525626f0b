#pragma once

#include "TXGUICommonExport.h"

#include <QSlider>

/// An on/off switch, drawn as a slider with two positions: the value 0 is off, 1 is on.
///
/// A click anywhere on it with the left button toggles it; the keys of a slider work too. To
/// assistive technology it is a check box, checked while on, under the accessible name that the
/// host gives or the label whose buddy it is.
///
/// Its looks follow its height by a style sheet that is replaced at each change of its size, so one
/// that a host sets on it does not last. Give it a fixed size, about twice as wide as high.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXSwitchSlider : public QSlider
{
    Q_OBJECT
    /// See isChecked() and setChecked(); the same as the value 1 of the slider.
    Q_PROPERTY(bool checked READ isChecked WRITE setChecked NOTIFY clicked)

public:
    /// A switch that is off.
    explicit TXSwitchSlider(QWidget *parent = nullptr);

    /// Switches; emits clicked() when the state changes by it.
    void setChecked(bool checked);

    /// True when the switch is on.
    [[nodiscard]] bool isChecked() const;

signals:
    /// The state has changed, whether by the user or by the program. Not emitted when setChecked()
    /// repeats the present state.
    void clicked(bool checked);

public slots:
    /// Emits clicked() for the slider's new value.
    void sliderPosChanged(int position);

protected:
    /// Toggles on the left button. A press never drags or pages, as it would on a slider.
    void mousePressEvent(QMouseEvent *event) override;

    /// Fades a disabled switch, and marks one that the keyboard has brought to focus.
    void paintEvent(QPaintEvent *event) override;

    /// Draws the switch anew for its height.
    void resizeEvent(QResizeEvent *event) override;

    /// Tells assistive technology of each change of the state.
    void sliderChange(SliderChange change) override;
};
