#pragma once

#include <QtGlobal>

/// While it lives, what the platform without a screen says of each window that comes up is not
/// printed, so that the table of results is not torn. All else is, as before.
///
/// One at a time, on any thread: the program has one handler of messages.
class QuietPlatform
{
public:
    QuietPlatform();
    ~QuietPlatform();

    Q_DISABLE_COPY_MOVE(QuietPlatform)
};
