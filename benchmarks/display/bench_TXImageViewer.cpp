#include "RatioReporter.h"
#include "TXImageViewer.h"

#include <QCoreApplication>
#include <QCursor>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QPainter>
#include <QScrollBar>

#include <cmath>
#include <memory>

// Large pictures side by side in a window of 1600 x 900, beside a QGraphicsView for each picture:
// as it comes, with its scroll bars and frame, and bare, without them. A bare view moves the pixels
// on the screen when it is scrolled, which leaves no room for an overlay that stands still.
// The time is that of the clock, as Qt draws scaled pictures on all cores. All pictures are one, as
// four of them would not fit into every computer's memory; that is the same for both.

namespace {

constexpr QSize kWindowSize(1600, 900);
constexpr QSize kPictureSize(12000, 12000);
constexpr int kZoomSteps = 9;
constexpr int kPanPixels = 7;
constexpr double kNaturalScale = 1.0;
constexpr double kHalfScale = 0.6;
constexpr double kLargeScale = 3.3;

/// Made by the first benchmark that asks for it.
const QPixmap &picture()
{
    static const QPixmap pixmap = [] {
        QImage image(kPictureSize, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                line[x] = qRgb(x * 7 % 256, y * 13 % 256, (x ^ y) % 256);
            }
        }
        return QPixmap::fromImage(std::move(image));
    }();
    return pixmap;
}

double fitScale(int pictures)
{
    const double zoneWidth = double(kWindowSize.width()) / pictures;
    return std::min(zoneWidth / kPictureSize.width(),
                    double(kWindowSize.height()) / kPictureSize.height());
}

/// What the benchmarks do with either way of showing pictures.
class Contestant
{
public:
    virtual ~Contestant() = default;
    virtual void zoomTo(double scale) = 0;
    /// Moves by device pixels from the middle, at this scale.
    virtual void moveTo(double pixels, double scale) = 0;
    virtual void updateAll() = 0;
};

class Ours : public Contestant
{
public:
    explicit Ours(int pictures)
    {
        viewer.setScaleLimits(fitScale(pictures), 16.0);
        viewer.resize(kWindowSize);
        viewer.setPixmaps(QList<QPixmap>(pictures, picture()));
        viewer.show();
        QCoreApplication::processEvents();
    }

    void zoomTo(double scale) override { viewer.scale(scale, TXImageViewer::Absolute); }
    void moveTo(double pixels, double scale) override
    {
        viewer.setPosition(QPointF(-pixels, -pixels) / scale);
    }
    void updateAll() override { viewer.update(); }

    TXImageViewer viewer;
};

template<bool IsBare>
class Views : public Contestant
{
public:
    explicit Views(int pictures)
    {
        auto *row = new QHBoxLayout(&window);
        row->setContentsMargins(QMargins());
        row->setSpacing(0);
        for (int i = 0; i < pictures; ++i) {
            addView(*row);
        }
        window.resize(kWindowSize);
        window.show();
        Views::zoomTo(fitScale(pictures));
        QCoreApplication::processEvents();
    }

    void zoomTo(double scale) override
    {
        for (QGraphicsView *view : std::as_const(views)) {
            view->setTransform(QTransform::fromScale(scale, scale));
        }
    }
    void moveTo(double pixels, double) override
    {
        for (QGraphicsView *view : std::as_const(views)) {
            moveBar(*view->horizontalScrollBar(), pixels);
            moveBar(*view->verticalScrollBar(), pixels);
        }
    }
    void updateAll() override
    {
        for (QGraphicsView *view : std::as_const(views)) {
            view->viewport()->update();
        }
    }

private:
    static void moveBar(QScrollBar &bar, double pixels)
    {
        bar.setValue((bar.minimum() + bar.maximum()) / 2 + int(pixels));
    }

    void addView(QHBoxLayout &row)
    {
        auto *view = new QGraphicsView(&window);
        auto *scene = new QGraphicsScene(view);
        scene->addPixmap(picture())->setTransformationMode(Qt::SmoothTransformation);
        view->setScene(scene);
        if (IsBare) {
            view->setFrameShape(QFrame::NoFrame);
            view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
            view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        }
        row.addWidget(view);
        views.append(view);
    }

    QWidget window;
    QList<QGraphicsView *> views;
};

using GraphicsViews = Views<false>;
using BareViews = Views<true>;

/// Shows a picture of its own size, the least that painting can be.
class Blit : public QWidget
{
public:
    Blit()
        : shown(picture().copy(QRect(QPoint(), kWindowSize)))
    {
        resize(kWindowSize);
        show();
        QCoreApplication::processEvents();
    }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).drawPixmap(0, 0, shown); }

private:
    QPixmap shown;
};

double scaleOf(int what, int pictures)
{
    const double scales[] = {fitScale(pictures), kHalfScale, kNaturalScale, kLargeScale};
    return scales[what];
}

template<class Shown, int What>
void repaint(benchmark::State &state)
{
    const auto pictures = static_cast<int>(state.range(0));
    Shown shown(pictures);
    shown.zoomTo(scaleOf(What, pictures));
    QCoreApplication::processEvents();
    for (auto step : state) {
        shown.updateAll();
        QCoreApplication::processEvents();
    }
}

template<class Shown, int What>
void pan(benchmark::State &state)
{
    const auto pictures = static_cast<int>(state.range(0));
    const double scale = scaleOf(What, pictures);
    Shown shown(pictures);
    shown.zoomTo(scale);
    shown.moveTo(-50 * kPanPixels, scale);
    QCoreApplication::processEvents();
    int i = 0;
    for (auto step : state) {
        shown.moveTo((i++ % 100 - 50) * kPanPixels, scale);
        QCoreApplication::processEvents();
    }
}

/// In steps of two from fit to the largest scale, again and again.
template<class Shown>
void zoom(benchmark::State &state)
{
    const auto pictures = static_cast<int>(state.range(0));
    Shown shown(pictures);
    double factor = 1.0;
    int i = 0;
    for (auto step : state) {
        factor = i % kZoomSteps == 0 ? factor * 1.0001 : factor;
        shown.zoomTo(std::min(fitScale(pictures) * factor * std::exp2(i++ % kZoomSteps), 16.0));
        QCoreApplication::processEvents();
    }
}

template<class Shown, int What>
void moveMarker(benchmark::State &state)
{
    const auto pictures = static_cast<int>(state.range(0));
    Ours ours(pictures);
    ours.zoomTo(scaleOf(What, pictures));
    QPixmap marker(16, 16);
    marker.fill(Qt::red);
    ours.viewer.setMouseMarker(marker, QPoint(-1, -1));
    QCoreApplication::processEvents();
    int i = 0;
    for (auto step : state) {
        QCursor::setPos(ours.viewer.mapToGlobal(QPoint(300 + i++ % 100, 400)));
        ours.updateAll();
        QCoreApplication::processEvents();
    }
}

void blit(benchmark::State &state)
{
    Blit widget;
    for (auto step : state) {
        widget.update();
        QCoreApplication::processEvents();
    }
}

void addPictures(benchmark::internal::Benchmark *family)
{
    family->Arg(2)->Arg(4)->UseRealTime()->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK((repaint<Ours, 0>))->Name("RepaintAtFit/ours")->Apply(addPictures);
BENCHMARK((repaint<GraphicsViews, 0>))->Name("RepaintAtFit/QGraphicsView")->Apply(addPictures);
BENCHMARK((repaint<BareViews, 0>))->Name("RepaintAtFit/bare QGraphicsView")->Apply(addPictures);
BENCHMARK((repaint<Ours, 2>))->Name("RepaintAt100/ours")->Apply(addPictures);
BENCHMARK((repaint<GraphicsViews, 2>))->Name("RepaintAt100/QGraphicsView")->Apply(addPictures);
BENCHMARK((repaint<BareViews, 2>))->Name("RepaintAt100/bare QGraphicsView")->Apply(addPictures);

BENCHMARK((pan<Ours, 1>))->Name("PanAt60/ours")->Apply(addPictures);
BENCHMARK((pan<GraphicsViews, 1>))->Name("PanAt60/QGraphicsView")->Apply(addPictures);
BENCHMARK((pan<BareViews, 1>))->Name("PanAt60/bare QGraphicsView")->Apply(addPictures);
BENCHMARK((pan<Ours, 2>))->Name("PanAt100/ours")->Apply(addPictures);
BENCHMARK((pan<GraphicsViews, 2>))->Name("PanAt100/QGraphicsView")->Apply(addPictures);
BENCHMARK((pan<BareViews, 2>))->Name("PanAt100/bare QGraphicsView")->Apply(addPictures);
BENCHMARK((pan<Ours, 3>))->Name("PanAt330/ours")->Apply(addPictures);
BENCHMARK((pan<GraphicsViews, 3>))->Name("PanAt330/QGraphicsView")->Apply(addPictures);
BENCHMARK((pan<BareViews, 3>))->Name("PanAt330/bare QGraphicsView")->Apply(addPictures);

BENCHMARK(zoom<Ours>)->Name("Zoom/ours")->Apply(addPictures);
BENCHMARK(zoom<GraphicsViews>)->Name("Zoom/QGraphicsView")->Apply(addPictures);
BENCHMARK(zoom<BareViews>)->Name("Zoom/bare QGraphicsView")->Apply(addPictures);

BENCHMARK((moveMarker<Ours, 0>))->Name("MoveMarkerAtFit/ours")->Apply(addPictures);
BENCHMARK(blit)->Name("MoveMarkerAtFit/blit")->Apply(addPictures);
BENCHMARK((moveMarker<Ours, 3>))->Name("MoveMarkerAt330/ours")->Apply(addPictures);
BENCHMARK(blit)->Name("MoveMarkerAt330/blit")->Apply(addPictures);
