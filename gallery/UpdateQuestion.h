#pragma once

#include <QLatin1String>
#include <QUrlQuery>

/// What the library's update dialog tells an update service about this program when it asks for a
/// newer release. The numbers are written down here, since the library gives them to services only;
/// a test compares them with what the dialog asks.
namespace UpdateQuestion {

/// The word for the platform.
inline constexpr QLatin1String kPlatform("win64");

/// The number by which the service knows the gallery.
inline constexpr int kProductType = 7;

/// The revision of this build.
inline constexpr int kRevision = 10452;

/// All of it, as it stands behind the question mark of the address.
[[nodiscard]] QUrlQuery query();

} // namespace UpdateQuestion
