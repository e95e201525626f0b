#include "ChartPatches.h"

#include <QCoreApplication>

namespace {

constexpr std::array<ChartPatch, kChartPatches> kPatches = {{
    {QT_TRANSLATE_NOOP("ChartPatches", "Dark skin"),
     {37.986, 13.555, 14.059},
     {37.54, 14.37, 14.92}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Light skin"),
     {65.711, 18.130, 17.810},
     {64.66, 19.27, 17.50}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Blue sky"),
     {49.927, -4.880, -21.925},
     {49.32, -3.82, -22.54}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Foliage"),
     {43.139, -13.095, 21.905},
     {43.46, -12.74, 22.72}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Blue flower"),
     {55.112, 8.844, -25.399},
     {54.94, 9.61, -24.79}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Bluish green"),
     {70.719, -33.397, -0.199},
     {70.48, -32.26, -0.37}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Orange"), {62.661, 36.067, 57.096}, {62.73, 35.83, 56.50}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Purplish blue"),
     {40.020, 10.410, -45.964},
     {39.43, 10.75, -45.17}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Moderate red"),
     {51.124, 48.239, 16.248},
     {50.57, 48.64, 16.67}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Purple"),
     {30.325, 22.976, -21.587},
     {30.10, 22.54, -20.87}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Yellow green"),
     {72.532, -23.709, 57.255},
     {71.77, -24.13, 58.19}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Orange yellow"),
     {71.941, 19.363, 67.857},
     {71.51, 18.24, 67.37}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Blue"), {28.778, 14.179, -50.297}, {28.37, 15.42, -49.80}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Green"), {55.261, -38.342, 31.370}, {54.38, -39.72, 32.27}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Red"), {42.101, 53.378, 28.190}, {42.43, 51.05, 28.62}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Yellow"), {81.733, 4.039, 79.819}, {81.80, 2.67, 80.41}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Magenta"),
     {51.935, 49.986, -14.574},
     {50.63, 51.28, -14.12}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Cyan"),
     {51.038, -28.631, -28.638},
     {49.57, -29.71, -28.32}},
    {QT_TRANSLATE_NOOP("ChartPatches", "White 9.5"), {96.539, -0.425, 1.186}, {95.19, -1.03, 2.93}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Neutral 8"),
     {81.257, -0.638, -0.335},
     {81.29, -0.57, 0.44}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Neutral 6.5"),
     {66.766, -0.734, -0.504},
     {66.89, -0.75, -0.06}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Neutral 5"),
     {50.867, -0.153, -0.270},
     {50.76, -0.13, 0.14}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Neutral 3.5"),
     {35.656, -0.421, -1.231},
     {35.63, -0.46, -0.48}},
    {QT_TRANSLATE_NOOP("ChartPatches", "Black 2"), {20.461, -0.079, -0.973}, {20.64, 0.07, -0.46}},
}};

constexpr std::array<const char *, kChartRows> kRowNames = {
    QT_TRANSLATE_NOOP("ChartPatches", "Skin and nature"),
    QT_TRANSLATE_NOOP("ChartPatches", "Further colours"),
    QT_TRANSLATE_NOOP("ChartPatches", "Primaries"),
    QT_TRANSLATE_NOOP("ChartPatches", "Greys"),
};

} // namespace

QString ChartPatch::translatedName() const
{
    return QCoreApplication::translate("ChartPatches", name);
}

const std::array<ChartPatch, kChartPatches> &chartPatches()
{
    return kPatches;
}

QString chartRowName(int row)
{
    if (row < 0 || row >= kChartRows) {
        return {};
    }
    return QCoreApplication::translate("ChartPatches", kRowNames[size_t(row)]);
}
