#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "geo/Coordinate.h"
#include "route/RouteFile.h"

namespace wayloom {

/// The record that holds at `now` on a drive of `count` records from `start` to `end`, all times in
/// seconds since 1970: the first before the start, the last from the end on, and in between
/// ((now - start) * count) / (end - start). Every step is taken in 32 bits and wraps around; what
/// then lies outside the list is brought to its nearer end. None without records.
std::optional<std::size_t> recordAt(std::int32_t now, std::int32_t start, std::int32_t end,
                                    std::size_t count);

/// Where a drive is at `now`, whether it is on or not; none without records.
std::optional<Coordinate> positionAt(std::int32_t now, const RoutePreferences& preferences);

}  // namespace wayloom
