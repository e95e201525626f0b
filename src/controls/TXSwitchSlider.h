#pragma once

#include "TXGUICommonExport.h"

#include <QSlider>

/// An on/off switch, drawn as a slider with two positions: the value 0 is off, 1 is on.
///
/// A click anywhere on it with the left button toggles it; the keys of a slider work too. Its
/// looks follow its height, so give it a fixed one.
///
/// Thread: the GUI thread.
class TXGUICOMMON_EXPORT TXSwitchSlider : public QSlider
{
    Q_OBJECT

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

    /// Draws the switch anew for its height.
    void resizeEvent(QResizeEvent *event) override;
};
