#pragma once

#include "TXGUICommonExport.h"

#include <QBrush>

/// The visible spectrum from one wavelength to another, in nanometres, as a gradient from left to
/// right for painting behind a spectral curve: violet, blue, cyan, green, yellow, red.
///
/// The gradient spans whatever is painted with it (QGradient::StretchToDeviceMode), and is half
/// transparent. When `startWavelength` is not below `endWavelength`, or so far below 0 nm that the
/// spectrum would be nothing but its first colour, all of it is red.
TXGUICOMMON_EXPORT QLinearGradient TXDisplaySpecralGradient(int startWavelength, int endWavelength);
