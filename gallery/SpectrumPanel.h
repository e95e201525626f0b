#pragma once

#include "GalleryPanel.h"

class QLabel;
class QSpinBox;
class SpectrumPlot;

/// The spectrum behind a curve, with the choice of where it begins and ends.
class SpectrumPanel final : public GalleryPanel
{
    Q_OBJECT

public:
    explicit SpectrumPanel(QWidget *parent = nullptr);

protected:
    void retranslate() override;

private slots:
    void showRange();

private:
    void setUpLayout();

    QLabel *startLabel;
    QSpinBox *startBox;
    QLabel *endLabel;
    QSpinBox *endBox;
    SpectrumPlot *plot;
    QLabel *note;
};
