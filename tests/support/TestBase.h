#pragma once

#include "TestEnvironment.h"

#include <QApplication>
#include <QObject>
#include <QTest>

/// Base of every test class.
///
/// Each test function starts with empty application settings and an empty event queue, fails on
/// any warning that Qt or our code prints (so a misspelt string-based connection cannot pass), and
/// fails when it leaves a top-level widget behind.
///
/// A test that expects a warning says so with QTest::ignoreMessage. Derived classes that need work
/// before or after each function override prepare() and finish().
class TestBase : public QObject
{
    Q_OBJECT

protected:
    /// Runs before each test function.
    virtual void prepare() { }

    /// Runs after each test function, before the check for left-over windows.
    virtual void finish() { }

private slots:
    void init();
    void cleanup();
};

/// Runs the test class in a process of its own; the whole of a test's main().
template<class Test>
int runTest(int argc, char **argv)
{
    const TestEnvironment environment;
    QApplication application(argc, argv);
    TestEnvironment::applyToApplication();
    Test test;
    return QTest::qExec(&test, argc, argv);
}
