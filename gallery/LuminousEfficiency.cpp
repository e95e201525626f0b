#include "LuminousEfficiency.h"

namespace {

// A line for each 50 nm.
constexpr std::array<double, LuminousEfficiency::kCount> kValues = {
    0.0000, 0.0001, // 380
    0.0004, 0.0012, 0.0040, 0.0116, 0.0230, // 400
    0.0380, 0.0600, 0.0910, 0.1390, 0.2080, // 450
    0.3230, 0.5030, 0.7100, 0.8620, 0.9540, // 500
    0.9950, 0.9950, 0.9520, 0.8700, 0.7570, // 550
    0.6310, 0.5030, 0.3810, 0.2650, 0.1750, // 600
    0.1070, 0.0610, 0.0320, 0.0170, 0.0082, // 650
    0.0041, 0.0021, 0.0010, 0.0005, 0.0002, // 700
    0.0001, 0.0001, 0.0000, 0.0000, // 750
};

} // namespace

const std::array<double, LuminousEfficiency::kCount> &LuminousEfficiency::values()
{
    return kValues;
}
