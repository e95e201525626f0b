#pragma once

#include <QTemporaryDir>

/// The surroundings of one test process: no screen, one font, UTC, English, and a home folder of
/// its own, so that a test sees the same on every machine and never touches the user's settings.
///
/// Make it before the application object; it sets environment variables that Qt reads only once.
/// A platform that is already chosen in QT_QPA_PLATFORM is kept, so that a test can be watched.
/// The home folder goes with the object.
class TestEnvironment
{
public:
    TestEnvironment();

    /// Gives the application object its names and its style.
    static void applyToApplication();

private:
    QTemporaryDir home;
};
