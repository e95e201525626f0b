#pragma once

#include "TXGUICommonExport.h"

#include <QBrush>

/// The visible spectrum from one wavelength to another, in nanometres, as a gradient from left to
/// right for painting behind a spectral curve: violet, blue, cyan, green, yellow, red.
///
/// The gradient is half transparent and spans the whole paint device
/// (QGradient::StretchToDeviceMode), whatever part of it is painted. To span what is painted set it
/// to QGradient::ObjectMode.
///
/// It has a stop for each 10 nm from `startWavelength` up to 645 nm; from there on to
/// `endWavelength` it runs into red. Below 440 nm it begins in magenta wherever `startWavelength`
/// lies, and reaches blue at 440 nm.
///
/// When `startWavelength` is not below `endWavelength`, or so low that more than 10000
/// wavelengths would have a stop (some 100000 nm below 0), red is its only stop.
///
/// Thread: any.
[[nodiscard]] TXGUICOMMON_EXPORT QLinearGradient TXDisplaySpecralGradient(int startWavelength,
                                                                          int endWavelength);
