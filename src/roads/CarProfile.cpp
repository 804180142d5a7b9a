#include "roads/CarProfile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>

#include "roads/CarAccess.h"

namespace wayloom {

namespace {

struct RoadClass {
  std::string_view name;
  /// What is driven there where no limit is posted.
  std::uint8_t kmPerHour;
};

constexpr std::array<RoadClass, 15> kClasses = {{
    {"motorway", 110},
    {"motorway_link", 70},
    {"trunk", 80},
    {"trunk_link", 60},
    {"primary", 60},
    {"primary_link", 45},
    {"secondary", 50},
    {"secondary_link", 40},
    {"tertiary", 45},
    {"tertiary_link", 35},
    {"unclassified", 40},
    {"residential", 30},
    {"road", 30},
    {"service", 20},
    {"living_street", 10},
}};

constexpr double kSlowestKmPerHour = 5;
constexpr double kFastestKmPerHour = 140;
constexpr std::uint8_t kYardKmPerHour = 10;
// With the wait for it, a crossing is slow.
constexpr std::uint8_t kFerryKmPerHour = 15;
constexpr double kKmPerMile = 1.609344;

/// What the most particular of the keys says that hold for cars.
std::string_view forCars(const OsmTags& tags, std::string_view before, std::string_view behind) {
  for (const std::string_view who : {"motorcar", "motor_vehicle", "vehicle"}) {
    const std::string key = std::string(before).append(who).append(behind);
    if (const std::string_view value = tagOf(tags, key); !value.empty()) return value;
  }
  return {};
}

// Which directions of the way may be driven is kept in `use`; false when that changes with the
// hour, or neither may.
bool readDirections(const OsmTags& tags, RoadUse& use) {
  const std::string_view ownOneway = forCars(tags, "oneway:", "");
  const std::string_view oneway = ownOneway.empty() ? tagOf(tags, "oneway") : ownOneway;
  if (isOneOf(oneway, {"reversible", "alternating"})) return false;
  const bool isImplied = isOneOf(tagOf(tags, "highway"), {"motorway", "motorway_link"}) ||
                         isOneOf(tagOf(tags, "junction"), {"roundabout", "circular"});
  const bool isTwoWay = isOneOf(oneway, {"no", "false", "0"});
  if (isOneOf(oneway, {"-1", "reverse"})) {
    use.forward = false;
  } else if (isOneOf(oneway, {"yes", "true", "1"}) || (isImplied && !isTwoWay)) {
    use.backward = false;
  }
  if (forCars(tags, "", ":forward") == "no") use.forward = false;
  if (forCars(tags, "", ":backward") == "no") use.backward = false;
  return use.forward || use.backward;
}

std::optional<std::uint8_t> postedKmPerHour(std::string_view text) {
  double limit = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), limit);
  if (error != std::errc() || !(limit > 0)) return std::nullopt;
  const std::string_view unit = text.substr(static_cast<std::size_t>(end - text.data()));
  if (isOneOf(unit, {" mph", "mph"})) {
    limit *= kKmPerMile;
  } else if (!isOneOf(unit, {"", " km/h", "km/h"})) {
    return std::nullopt;
  }
  return static_cast<std::uint8_t>(
      std::lround(std::clamp(limit, kSlowestKmPerHour, kFastestKmPerHour)));
}

// A duration as "45" (minutes), "1:30", "00:20:30" or "PT1H30M"; nothing for other forms.
std::optional<double> secondsOf(std::string_view text) {
  double seconds = 0;
  if (text.starts_with("PT")) {
    for (text.remove_prefix(2); !text.empty();) {
      unsigned count = 0;
      const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
      const auto digits = static_cast<std::size_t>(end - text.data());
      if (error != std::errc() || digits == text.size()) return std::nullopt;
      const auto unit = std::string_view("HMS").find(text[digits]);
      if (unit == std::string_view::npos) return std::nullopt;
      seconds += count * std::array{3600.0, 60.0, 1.0}[unit];
      text.remove_prefix(digits + 1);
    }
  } else {
    int parts = 0;
    for (bool more = true; more; ++parts) {
      unsigned count = 0;
      const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
      if (error != std::errc() || parts == 3) return std::nullopt;
      text.remove_prefix(static_cast<std::size_t>(end - text.data()));
      more = text.starts_with(':');
      if (more) text.remove_prefix(1);
      seconds = seconds * 60 + count;
    }
    if (!text.empty()) return std::nullopt;
    if (parts < 3) seconds *= 60;
  }
  return seconds > 0 ? std::optional(seconds) : std::nullopt;
}

}  // namespace

std::optional<RoadUse> carUse(const OsmTags& tags) {
  const auto* const found =
      std::find_if(kClasses.begin(), kClasses.end(),
                   [&](const RoadClass& each) { return each.name == tagOf(tags, "highway"); });
  if (found == kClasses.end() || tagOf(tags, "area") == "yes") return std::nullopt;
  const CarAccess access = carAccess(tags).value_or(
      isOneOf(tagOf(tags, "service"), {"bus", "busway"}) ? CarAccess::kNone : CarAccess::kFree);
  RoadUse use;
  if (access == CarAccess::kNone || !readDirections(tags, use)) return std::nullopt;
  use.destinationOnly = access == CarAccess::kDestinationOnly;
  const bool isYard =
      isOneOf(tagOf(tags, "service"), {"parking_aisle", "driveway", "drive-through"});
  const std::uint8_t usual = isYard ? kYardKmPerHour : found->kmPerHour;
  use.kmPerHour = postedKmPerHour(tagOf(tags, "maxspeed")).value_or(usual);
  return use;
}

std::optional<RoadUse> ferryUse(const OsmTags& tags, double metres) {
  if (tagOf(tags, "route") != "ferry") return std::nullopt;
  // One that names its passengers but no cars takes none.
  const bool isForWalkers = tags.contains("foot") || tags.contains("bicycle");
  const CarAccess access =
      carAccess(tags).value_or(isForWalkers ? CarAccess::kNone : CarAccess::kFree);
  RoadUse use;
  if (access == CarAccess::kNone || !readDirections(tags, use)) return std::nullopt;
  use.destinationOnly = access == CarAccess::kDestinationOnly;
  use.isFerry = true;
  use.kmPerHour = kFerryKmPerHour;
  if (const auto seconds = secondsOf(tagOf(tags, "duration"))) {
    use.kmPerHour = static_cast<std::uint8_t>(
        std::lround(std::clamp(metres / *seconds * 3.6, 1.0, kFastestKmPerHour)));
  }
  return use;
}

}  // namespace wayloom
