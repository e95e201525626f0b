#pragma once

#include "GalleryPanel.h"

#include <QList>

class QGridLayout;
class QLabel;
class QPushButton;
class TXSwitchSlider;

/// TXSwitchSlider in several sizes, on and off, enabled and disabled, with its state beside it and
/// the emissions of clicked counted.
class SwitchPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit SwitchPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void turnAllOn();
    void noteClick(bool isOn);
    void showStates();

private:
    /// A switch that can be worked, and the word beside it.
    struct Row
    {
        int height;
        QLabel *caption;
        TXSwitchSlider *slider;
        QLabel *state;
        TXSwitchSlider *disabledOff;
        TXSwitchSlider *disabledOn;
    };

    Row makeRow(int height, bool isOn);
    TXSwitchSlider *makeSwitch(int height, bool isOn, bool isEnabled);
    void setUpLayout();
    static void addRow(QGridLayout *grid, int gridRow, const Row &row);

    QLabel *enabledHeading;
    QLabel *disabledHeading;
    QList<Row> rows;
    QPushButton *allButton;
    QLabel *clicks;
    int clickCount = 0;
    int lastHeight = 0;
    bool lastState = false;
};
