#pragma once

#include <QImage>
#include <QWidget>

/// The colours of one lightness in CIELAB, a* to the right and b* upwards, as far as sRGB can show
/// them, and the patches of the chart at their places. Made to be square.
class LabPlane final : public QWidget
{
    Q_OBJECT

public:
    /// The plane in the middle, at a lightness of 50.
    explicit LabPlane(QWidget *parent = nullptr);

    /// Shows the plane at this lightness, from 0 to 100; one outside is taken to the nearer end.
    void setLightness(int lightness);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QPointF placeOf(double a, double b) const;
    void paintAxes(QPainter &painter) const;
    void paintPatches(QPainter &painter) const;

    QImage colours;
};
