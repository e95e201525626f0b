#pragma once

#include <QStringList>

/// What assistive programs would be told of new values.
///
/// The offscreen platform never counts accessibility as used, and drops all events. A test program
/// with AccessibleValueChanges.cpp among its sources therefore stands in for two functions of Qt,
/// for all calls that the library makes.
namespace AccessibleValueChanges {

/// Begins anew, with nothing told. Nobody is told anything without a listener.
void start(bool isSomebodyListening);

/// The values told since the last call, oldest first.
QStringList take();

} // namespace AccessibleValueChanges
