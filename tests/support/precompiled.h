#pragma once

// What nearly every test includes, compiled once.

#include <QtCore/QtCore>

#include <QtGui/QtGui>

#include <QtWidgets/QtWidgets>

#include <QtTest/QtTest>
