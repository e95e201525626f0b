#pragma once

#include <QImage>
#include <QRgb>

#include <atomic>

/// How far two pictures are apart, pixel by pixel, by CIEDE2000, in colours: white over green is
/// close, orange over dark red is not. The same colours as those of TXDeltaGradientWidget.
///
/// Any thread.
namespace DifferencePicture {

/// Up to here two colours count as close: the end of green, the beginning of orange.
constexpr double kCloseDelta = 5;
/// The end of the colours: what is further apart looks the same.
constexpr double kLargestDelta = 15;

/// How far two colours of sRGB are apart. Alpha does not count.
[[nodiscard]] double difference(QRgb first, QRgb second);

/// The colour of a difference. What is below 0 counts as 0, what is no number as the largest.
[[nodiscard]] QRgb colourOf(double delta);

/// The differences of two pictures, as large as both have in common. Null when one of them is, and
/// when it was cancelled from another thread.
///
/// Costs a look-up a pixel and the formula, about half a microsecond, for most pairs of colours
/// that have not come for a while: a picture with few colours costs little.
[[nodiscard]] QImage make(const QImage &first, const QImage &second,
                          const std::atomic<bool> &isCancelled);

} // namespace DifferencePicture
