#pragma once

#include "ImageView.h"
#include "PixelProbe.h"
#include "TXImageViewer.h"
#include "TestBase.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QWidget>

#include <algorithm>
#include <optional>

/// What the tests of the image viewer's painting share.
namespace ImagePainting {

/// Tells what an image viewer keeps to itself.
class OpenViewer : public TXImageViewer
{
public:
    using TXImageViewer::TXImageViewer;

    /// Whether it keeps the pixels that it has painted.
    [[nodiscard]] bool hasLayer() const { return View::of(*this).layers.hasLayer(); }

    /// What assistive tools were told last of the pixel under the mouse.
    [[nodiscard]] std::optional<QPoint> toldPixel() const { return View::of(*this).toldPixel; }
};

/// Shows pictures as an image viewer does, each drawn anew at each paint and nothing kept.
class PlainViewer : public QWidget
{
public:
    explicit PlainViewer(const TXImageViewer &viewer)
        : pixmaps(viewer.pixmaps())
        , position(viewer.position())
        , scale(viewer.scale())
    {
        resize(viewer.size());
        setPalette(viewer.palette());
        setStyleSheet(viewer.styleSheet());
        setAttribute(Qt::WA_StyledBackground, viewer.testAttribute(Qt::WA_StyledBackground));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform, scale < 1.0);
        const double zoneWidth = double(width()) / double(pixmaps.size());
        const QSizeF size = pixmaps.first().size();
        const double lx = std::max((size.width() - zoneWidth / scale) / 2.0, 0.0);
        const double ly = std::max((size.height() - height() / scale) / 2.0, 0.0);
        position = {std::clamp(position.x(), -lx, lx), std::clamp(position.y(), -ly, ly)};
        for (qsizetype i = 0; i < pixmaps.size(); ++i) {
            const QRectF zone(double(i) * zoneWidth, 0.0, zoneWidth, height());
            painter.setClipRect(zone, Qt::ReplaceClip);
            painter.translate(zone.center());
            painter.scale(scale, scale);
            painter.translate(position - QPointF(size.width() / 2.0, size.height() / 2.0));
            painter.drawPixmap(QPointF(), pixmaps[i]);
            painter.resetTransform();
        }
    }

private:
    QList<QPixmap> pixmaps;
    QPointF position;
    double scale;
};

/// Four quarters, each of a colour: red, green, blue, yellow.
inline QPixmap quarters(const QSize &size)
{
    QPixmap pixmap(size);
    QPainter painter(&pixmap);
    const int x = size.width() / 2;
    const int y = size.height() / 2;
    painter.fillRect(0, 0, x, y, Qt::red);
    painter.fillRect(x, 0, size.width() - x, y, Qt::green);
    painter.fillRect(0, y, x, size.height() - y, Qt::blue);
    painter.fillRect(x, y, size.width() - x, size.height() - y, Qt::yellow);
    return pixmap;
}

inline QPixmap filled(const QSize &size, const QColor &colour)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    return pixmap;
}

/// Every pixel of another colour, some of them transparent if wanted.
inline QPixmap noise(const QSize &size, bool isTransparent, QRandomGenerator &random)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb pixel = random.generate();
            image.setPixel(x, y, isTransparent ? pixel : pixel | 0xff000000U);
        }
    }
    const QImage::Format format =
        isTransparent ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    return QPixmap::fromImage(image.convertToFormat(format));
}

/// The widget as it is painted over its own background.
inline QImage painted(QWidget &widget, double devicePixelRatio = 1.0)
{
    return PixelProbe(widget, devicePixelRatio).image();
}

} // namespace ImagePainting
