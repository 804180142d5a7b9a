#pragma once

#include <cstdint>
#include <optional>

#include "regions/OsmTags.h"

namespace wayloom {

/// How cars may use a road. Forward is the direction in which the road's line was drawn.
struct RoadUse {
  bool forward = true;
  bool backward = true;
  /// Only for who starts or ends there, not for going through.
  bool destinationOnly = false;
  std::uint8_t kmPerHour = 50;
  /// Over water: nobody gets on or off on the way.
  bool isFerry = false;
  /// One drives on its left side.
  bool keepsLeft = false;

  bool operator==(const RoadUse&) const = default;
};

/// What the tags of an OpenStreetMap way say about driving there; nothing for ways that cars may
/// not use.
std::optional<RoadUse> carUse(const OsmTags& tags);

/// The same for a ferry whose line has this length; nothing for one that takes no cars.
std::optional<RoadUse> ferryUse(const OsmTags& tags, double metres);

}  // namespace wayloom
