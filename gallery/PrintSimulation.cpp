#include "PrintSimulation.h"

#include "ScreenColour.h"

#include <QPoint>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

using PrintSimulation::Ink;
using PrintSimulation::kRipplePeriod;

constexpr std::array<Ink, 3> kInks = {Ink::Cyan, Ink::Magenta, Ink::Yellow};
constexpr int kChannels = 256;
constexpr int kSteps = 16;
constexpr int kLevels = 2 * kSteps + 1;

/// From the middle of a dot to that of the next, in pixels. The square of its length divides the
/// period.
constexpr std::array<QPoint, 3> kDotToDot = {QPoint(6, 2), QPoint(2, 6), QPoint(4, 2)};

int channelOf(Ink ink, QRgb colour)
{
    switch (ink) {
    case Ink::Cyan:
        return qRed(colour);
    case Ink::Magenta:
        return qGreen(colour);
    case Ink::Yellow:
        break;
    }
    return qBlue(colour);
}

double lightOf(Ink ink, const LabColour &colour)
{
    return ScreenColour::lightOf(channelOf(ink, colour.toScreen().rgb()));
}

/// All that can become of one channel.
class InkTable
{
public:
    explicit InkTable(Ink ink)
        : ink(ink)
    {
        for (int level = 0; level < kLevels; ++level) {
            for (int channel = 0; channel < kChannels; ++channel) {
                printed[size_t(level)][size_t(channel)] =
                    uchar(PrintSimulation::printed(ink, channel, double(level - kSteps) / kSteps));
            }
        }
        for (int y = 0; y < kRipplePeriod; ++y) {
            for (int x = 0; x < kRipplePeriod; ++x) {
                const double ripple = PrintSimulation::ripple(ink, x, y);
                levels[size_t(y)][size_t(x)] = uchar(kSteps + std::lround(ripple * kSteps));
            }
        }
    }

    [[nodiscard]] int at(QRgb colour, int x, int y) const
    {
        const uchar level = levels[size_t(y % kRipplePeriod)][size_t(x % kRipplePeriod)];
        return printed[level][size_t(channelOf(ink, colour))];
    }

private:
    Ink ink;
    std::array<std::array<uchar, kChannels>, kLevels> printed = {};
    std::array<std::array<uchar, kRipplePeriod>, kRipplePeriod> levels = {};
};

} // namespace

double PrintSimulation::ripple(Ink ink, int x, int y)
{
    const QPoint step = kDotToDot[size_t(ink)];
    const double square = QPoint::dotProduct(step, step);
    // Along the dots, and across them, in dots.
    const double along = (x * step.x() + y * step.y()) / square;
    const double across = (y * step.x() - x * step.y()) / square;
    constexpr double kTurn = 2 * std::numbers::pi;
    return (std::cos(kTurn * along) + std::cos(kTurn * across)) / 2;
}

double PrintSimulation::grown(double coverage)
{
    return coverage + 4 * kDotGain * coverage * (1 - coverage);
}

int PrintSimulation::printed(Ink ink, int channel, double ripple)
{
    const double solid = grown(1 - ScreenColour::lightOf(channel));
    const double coverage =
        std::clamp(solid + 4 * kRipple * solid * (1 - solid) * ripple, 0.0, 1.0);
    return ScreenColour::channelOf(lightOf(ink, kPaper) * (1 - coverage)
                                   + lightOf(ink, kBlack) * coverage);
}

QImage PrintSimulation::make(const QImage &picture)
{
    const InkTable cyan(kInks[0]);
    const InkTable magenta(kInks[1]);
    const InkTable yellow(kInks[2]);
    QImage print = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < print.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(print.scanLine(y));
        for (int x = 0; x < print.width(); ++x) {
            const QRgb colour = line[x];
            line[x] =
                qRgb(cyan.at(colour, x, y), magenta.at(colour, x, y), yellow.at(colour, x, y));
        }
    }
    return print;
}
