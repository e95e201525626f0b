#pragma once

#include "TXGUICommonExport.h"

class QString;
class QWidget;

/// The value of a widget that paints one, in its accessible description.
///
/// The texts that some platforms hand on to assistive tools are the name and the description only,
/// so that a value in words has to be part of the description to be read to everybody.
///
/// Thread: the GUI thread.
namespace AccessibleDescription {

/// The value, on a line after the widget's accessibleDescription(), if it has one; else with the
/// tool tip, if there is one, on a line after the value.
[[nodiscard]] TXGUICOMMON_PRIVATE_EXPORT QString withValue(const QWidget &widget,
                                                           const QString &value);

/// Tells assistive tools, if any listen, that the description is another.
TXGUICOMMON_PRIVATE_EXPORT void tellOfChange(QWidget &widget);

} // namespace AccessibleDescription
