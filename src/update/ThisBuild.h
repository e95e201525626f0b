#pragma once

#include <QLatin1String>

/// What the running build tells the update service about itself.
namespace ThisBuild {

/// The word for the platform.
inline constexpr QLatin1String kPlatform("win64");

/// The revision, as decimal text.
inline constexpr QLatin1String kRevision("10452");

/// The revision as a number, to compare with that of a release.
[[nodiscard]] inline int revision()
{
    return kRevision.toInt();
}

} // namespace ThisBuild
