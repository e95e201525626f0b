#include "PatchTint.h"

#include "ChartPatches.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

constexpr int kFullPercent = 100;
constexpr int kStepPercent = 4;
static_assert(PatchTint::kCount == kChartPatches * kFullPercent / kStepPercent);

/// A matt coated paper.
constexpr LabColour kPaper = {95, 0, -2};

double mix(double patch, double paper, int percent)
{
    return paper + (patch - paper) * percent / kFullPercent;
}

} // namespace

PatchTint PatchTint::at(int number)
{
    const int place = (number % kCount + kCount) % kCount;
    return {place % kChartPatches, kFullPercent - kStepPercent * (place / kChartPatches)};
}

LabColour PatchTint::colour() const
{
    const LabColour full = chartPatches().at(size_t(patch)).newer;
    return {mix(full.lightness, kPaper.lightness, percent), mix(full.a, kPaper.a, percent),
            mix(full.b, kPaper.b, percent)};
}

QString PatchTint::translatedName() const
{
    const QString name = chartPatches().at(size_t(patch)).translatedName();
    return percent == kFullPercent ? name
                                   : QCoreApplication::translate("PatchTint", "%1, %2 %")
                                         .arg(name, QLocale().toString(percent));
}
