#pragma once

#include <QWidget>

/// The luminous efficiency of the human eye as a curve, with the colours of the spectrum behind it.
class SpectrumPlot final : public QWidget
{
    Q_OBJECT

public:
    /// From 380 to 780 nm.
    explicit SpectrumPlot(QWidget *parent = nullptr);

    /// Shows the spectrum from one wavelength to another, in nanometres. Where the eye sees nothing
    /// there is no curve, and the colour is that of the nearest wavelength that it sees. Without a
    /// range, nothing is shown but the colour behind it.
    void setRange(int startNanometres, int endNanometres);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRectF plotArea() const;
    [[nodiscard]] QPointF placeOf(double nanometres, double value) const;
    [[nodiscard]] QString wavelengthText(int nanometres) const;
    [[nodiscard]] int tickNanometres() const;
    void paintSpectrum(QPainter &painter) const;
    void paintGrid(QPainter &painter) const;
    void paintWavelengths(QPainter &painter) const;
    void paintCurve(QPainter &painter) const;

    int start;
    int end;
};
