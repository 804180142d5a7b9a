#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "settings/FileSystem.h"
#include "tracks/Waypoint.h"

namespace wayloom {

enum class WaypointFormat { Gpx, Kml, GeoJson };

/// Their names as they are typed, which are the endings of files as well, in the order above.
inline constexpr std::array<const char*, 3> kWaypointFormats{"gpx", "kml", "geojson"};

/// By one of the names above; large letters count as small ones.
std::optional<WaypointFormat> waypointFormatNamed(std::string_view name);
/// By the ending of the file's name, "json" standing for GeoJSON too.
std::optional<WaypointFormat> waypointFormatOf(const std::filesystem::path& file);

std::string writeWaypoints(const Waypoints& waypoints, WaypointFormat format);

/// The waypoints of a document in any of the formats, known by what it holds. One without any is a
/// failure, as is one with anything that cannot be a waypoint: all of it is used or nothing.
Result<Waypoints> readWaypoints(std::string_view bytes);
/// The same of a file of at most kMaximumWaypointBytes; the failure then begins with its name.
Result<Waypoints> readWaypointFile(const std::filesystem::path& file,
                                   FileSystem& system = FileSystem::machine());

}  // namespace wayloom
