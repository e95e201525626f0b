#pragma once

// What nearly every source of the library includes, compiled once.

#include <QtCore/QtCore>

#include <QtGui/QtGui>

#include <QtWidgets/QtWidgets>
