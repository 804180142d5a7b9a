#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "regions/GroundGeometry.h"

namespace wayloom {

/// The longitudes that a shape can hold go this far from 0 in either direction.
inline constexpr double kShapeLongitudeLimit = 214;

/// The form in which region files keep the lines of a shape: for each line its number of positions
/// and then longitude and latitude of each in units of 1e-7 degrees, all as 32-bit little-endian
/// integers.
std::vector<std::byte> encodeShape(std::span<const Line> lines);

/// The lines of a shape; nothing when the bytes are not a shape or hold an empty line.
std::optional<std::vector<Line>> decodeShape(std::span<const std::byte> bytes);

}  // namespace wayloom
