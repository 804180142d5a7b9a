#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace wayloom {

/// How cars may use a road. Forward is the direction in which the road's line was drawn.
struct RoadUse {
  bool forward = true;
  bool backward = true;
  /// Only for who starts or ends there, not for going through.
  bool destinationOnly = false;
  std::uint8_t kmPerHour = 50;

  bool operator==(const RoadUse&) const = default;
};

/// What the tags of an OpenStreetMap way say about driving there; nothing for ways that cars may
/// not use.
std::optional<RoadUse> carUse(const std::map<std::string, std::string>& tags);

}  // namespace wayloom
