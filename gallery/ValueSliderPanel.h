#pragma once

#include "GalleryPanel.h"

#include <QList>

class DoubleSpinBoxWithSliderWidget;
class EmissionList;
class QLabel;

/// DoubleSpinBoxWithSliderWidget in its variants, with quantities of colour work, and every
/// emission of valueChanged counted and listed: one edit can make more than one.
class ValueSliderPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit ValueSliderPanel(QWidget *parent = nullptr);

    /// Moves some values, so that there are emissions to see.
    void fillForPicture();

protected:
    void retranslate() override;

private slots:
    void noteEmission(double value);

private:
    void setUpValues();
    void setUpLayout();
    void alignLabels();

    DoubleSpinBoxWithSliderWidget *exposure;
    DoubleSpinBoxWithSliderWidget *gamma;
    DoubleSpinBoxWithSliderWidget *tolerance;
    DoubleSpinBoxWithSliderWidget *smoothing;
    DoubleSpinBoxWithSliderWidget *ink;
    DoubleSpinBoxWithSliderWidget *disabledInk;
    QList<DoubleSpinBoxWithSliderWidget *> sliders;
    EmissionList *emissions;
    QLabel *note;
};
