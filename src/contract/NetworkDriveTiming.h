#pragma once

/// How often and how long the connection of a drive works; milliseconds.
struct NetworkDriveTiming
{
    /// Between two looks at whether a connected share still answers.
    int check = 10'000;
    /// After a failure, until the next try.
    int retry = 15'000;
    /// The longest time until the next try after a refused log-in. The first one is twice that
    /// after a failure, and each later one twice the one before, since servers lock accounts.
    int longestRetry = 900'000;
    /// What one step (connecting, looking, disconnecting) may take before it counts as failed.
    int step = 20'000;
    /// What connecting may still take when nobody wants the share any more. To cut it off leaves
    /// unknown whether the share comes to be connected.
    int abandon = 3'000;
    /// Between two looks for the path of a share that has just been connected.
    int path = 250;
};
