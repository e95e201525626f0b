#pragma once

#include <QStringList>

/// What assistive programs would be told of.
///
/// The offscreen platform never counts accessibility as used, and drops all events. A test program
/// with AccessibleEvents.cpp among its sources therefore stands in for two functions of Qt, for all
/// calls that the library makes.
namespace AccessibleEvents {

/// Begins anew, with nothing told. Nobody is told anything without a listener.
void start(bool isSomebodyListening);

/// What was told since the last call, oldest first: "value " with the new one,
/// "description " with that of the widget at the time, and the number of any other event. A value
/// of a widget whose interface has none, which Qt would not hand on, is "lost value".
QStringList take();

} // namespace AccessibleEvents
