#include "ChartPicture.h"

#include "ChartPatches.h"

#include <QFont>
#include <QPainter>

#include <array>

namespace {

constexpr int kMargin = 60;
constexpr int kTop = 50;
constexpr QSize kPatchSize(255, 195);
constexpr QPoint kPatchPitch(285, 235);
constexpr int kPrintPixels = 13;
constexpr int kPrintHeight = 24;

constexpr QRect kFirstStep(kMargin, 1000, 80, 80);
constexpr double kLightnessOfStep = 5;
constexpr double kFrameLightness = 25;
constexpr double kWritingLightness = 85;

constexpr QRect kFirstLines(kMargin, 1105, 110, 60);
constexpr int kLinesPitch = 130;
/// From the start of one line to that of the next.
constexpr std::array<int, 6> kLinePeriods = {2, 3, 4, 6, 8, 12};

constexpr int kSampleLeft = 870;
constexpr int kSampleBaseline = 1142;
constexpr int kSampleGap = 26;
constexpr std::array<int, 6> kSamplePixels = {30, 24, 18, 14, 11, 8};

QColor grey(double lightness)
{
    return LabColour{lightness, 0, 0}.toScreen();
}

/// A family by name: the application's font is not for other threads.
QFont font(int pixels)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    return font;
}

QString numbersOf(const LabColour &colour)
{
    return QStringLiteral("L* %1  a* %2  b* %3")
        .arg(colour.lightness, 0, 'f', 2)
        .arg(colour.a, 0, 'f', 2)
        .arg(colour.b, 0, 'f', 2);
}

void drawPatches(QPainter &painter)
{
    painter.setFont(font(kPrintPixels));
    for (int i = 0; i < kChartPatches; ++i) {
        const LabColour &colour = chartPatches()[size_t(i)].newer;
        const QRect patch = ChartPicture::patchRect(i);
        painter.fillRect(patch, colour.toScreen());
        const QRect print(patch.left(), patch.bottom() + 1, patch.width(), kPrintHeight);
        painter.drawText(print, Qt::AlignLeft | Qt::AlignVCenter, numbersOf(colour));
    }
}

void drawWedge(QPainter &painter)
{
    for (int i = 0; i < ChartPicture::kWedgeSteps; ++i) {
        painter.fillRect(ChartPicture::wedgeRect(i), ChartPicture::wedgeColour(i));
    }
}

/// Upright lines as wide as the gaps between them, or a pixel narrower.
void drawLines(QPainter &painter)
{
    QRect field = kFirstLines;
    for (const int period : kLinePeriods) {
        for (int x = field.left(); x + period <= field.right() + 1; x += period) {
            painter.fillRect(x, field.top(), period / 2, field.height(), grey(kWritingLightness));
        }
        field.translate(kLinesPitch, 0);
    }
}

void drawSamples(QPainter &painter)
{
    int x = kSampleLeft;
    for (const int pixels : kSamplePixels) {
        const QString text = QStringLiteral("%1 px L*a*b*").arg(pixels);
        painter.setFont(font(pixels));
        painter.drawText(x, kSampleBaseline, text);
        x += painter.fontMetrics().horizontalAdvance(text) + kSampleGap;
    }
}

} // namespace

QRect ChartPicture::patchRect(int patch)
{
    if (patch < 0 || patch >= kChartPatches) {
        return {};
    }
    const int column = patch % kChartColumns;
    const int row = patch / kChartColumns;
    return {QPoint(kMargin + column * kPatchPitch.x(), kTop + row * kPatchPitch.y()), kPatchSize};
}

int ChartPicture::patchAt(const QPoint &place)
{
    for (int i = 0; i < kChartPatches; ++i) {
        if (patchRect(i).contains(place)) {
            return i;
        }
    }
    return -1;
}

QRect ChartPicture::wedgeRect(int step)
{
    if (step < 0 || step >= kWedgeSteps) {
        return {};
    }
    return kFirstStep.translated(step * kFirstStep.width(), 0);
}

QColor ChartPicture::wedgeColour(int step)
{
    return grey(step * kLightnessOfStep);
}

QColor ChartPicture::frameColour()
{
    return grey(kFrameLightness);
}

QImage ChartPicture::make()
{
    QImage picture(kSize, QImage::Format_RGB32);
    picture.fill(frameColour());
    QPainter painter(&picture);
    painter.setPen(grey(kWritingLightness));
    drawPatches(painter);
    drawWedge(painter);
    drawLines(painter);
    drawSamples(painter);
    return picture;
}
