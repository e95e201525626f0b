#pragma once

// What many tests include, compiled once.

#include "../../src/precompiled.h"

#include <QSignalSpy>
#include <QTest>
