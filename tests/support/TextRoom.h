#pragma once

#include <QStringList>

class QWidget;

/// Whether each text of a window can be read whole.
namespace TextRoom {

/// What is wrong in a shown window, a line each; empty is good:
///
/// - A label, button, title of a frame, tab, column title, placeholder, text of a progress bar or
///   current text of a box for numbers or choices that needs more room than its widget has. A text
///   that its widget ends with "…" passes when the widget's tooltip says it whole.
///   So does each title of an ElidingHeader, which makes such a tooltip itself.
/// - A widget that reaches out of its parent, but for the content of a scroll area in the
///   directions in which it can be scrolled.
/// - Two controls or labels in one layout of which one covers the other.
///
/// Texts for which the filter gives false are left out.
[[nodiscard]] QStringList problems(const QWidget &window, bool (*isOfInterest)(const QString &));

} // namespace TextRoom
