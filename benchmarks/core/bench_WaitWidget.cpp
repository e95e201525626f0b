#include "WaitWidget.h"

#include <benchmark/benchmark.h>

#include <QImage>
#include <QLabel>
#include <QList>
#include <QPixmap>
#include <QProgressBar>

// One frame of a spinner of that many pixels on each side. The peers: the busy bar that Qt has for
// the same purpose, which is told to show its next frame, and a label that is given one of twelve
// ready pictures of the spinner, the least that could be done.

namespace {

constexpr int kBars = 12;
constexpr int kWarmFrames = 3 * kBars;

class Spinner
{
public:
    explicit Spinner(int side)
    {
        widget.resize(side, side);
        widget.initWaitWidget();
        widget.startAnimation();
    }

    QWidget &frame(int number)
    {
        widget.setProperty("currentElement", number % kBars);
        return widget;
    }

private:
    WaitWidget widget{nullptr};
};

class BusyBar
{
public:
    explicit BusyBar(int side)
    {
        bar.resize(side, side);
        bar.setRange(0, 0);
    }

    QWidget &frame(int) { return bar; }

private:
    QProgressBar bar;
};

class ReadyPictures
{
public:
    explicit ReadyPictures(int side)
    {
        Spinner spinner(side);
        for (int number = 0; number < kBars; ++number) {
            QPixmap picture(side, side);
            picture.fill(Qt::transparent);
            spinner.frame(number).render(&picture, {}, {}, QWidget::DrawChildren);
            pictures.append(picture);
        }
        label.resize(side, side);
    }

    QWidget &frame(int number)
    {
        label.setPixmap(pictures.at(number % kBars));
        return label;
    }

private:
    QLabel label;
    QList<QPixmap> pictures;
};

template<class Indicator>
void paintFrame(benchmark::State &state)
{
    const int side = int(state.range(0));
    Indicator indicator(side);
    QImage target(side, side, QImage::Format_ARGB32_Premultiplied);
    int number = 0;
    while (number < kWarmFrames) {
        indicator.frame(number++).render(&target);
    }
    for (auto step : state) {
        indicator.frame(number++).render(&target);
    }
}

void addSides(benchmark::internal::Benchmark *family)
{
    family->ArgName("pixels")->Arg(32)->Arg(64)->Arg(128)->Unit(benchmark::kMicrosecond);
}

} // namespace

BENCHMARK(paintFrame<Spinner>)->Name("Frame/ours")->Apply(addSides);
BENCHMARK(paintFrame<BusyBar>)->Name("Frame/busy QProgressBar")->Apply(addSides);
BENCHMARK(paintFrame<ReadyPictures>)->Name("Frame/ready pictures")->Apply(addSides);
