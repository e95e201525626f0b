#pragma once

#include <QStringList>

#include <functional>

class QWidget;

/// What a window says.
namespace ShownTexts {

/// All texts that a user reads or hears, hidden ones too, each behind the class of its widget:
/// titles of windows, labels, buttons, frames, tabs, column titles, choices, placeholders,
/// prefixes, suffixes and special values of boxes for numbers, actions, tooltips, accessible names
/// and descriptions.
///
/// Left out is what stands in the rows of views and in text fields, which is data.
[[nodiscard]] QStringList of(const QWidget &window);

/// The same of those widgets alone for which the filter gives true.
[[nodiscard]] QStringList of(const QWidget &window,
                             const std::function<bool(const QWidget *)> &isOfInterest);

} // namespace ShownTexts
