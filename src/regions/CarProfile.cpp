#include "regions/CarProfile.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <string_view>

namespace wayloom {

namespace {

using Tags = std::map<std::string, std::string>;

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
constexpr double kKmPerMile = 1.609344;

std::string_view tag(const Tags& tags, const std::string& name) {
  const auto found = tags.find(name);
  return found == tags.end() ? std::string_view() : std::string_view(found->second);
}

bool isOneOf(std::string_view value, std::initializer_list<std::string_view> values) {
  return std::find(values.begin(), values.end(), value) != values.end();
}

enum class Access { kFree, kDestinationOnly, kNone };

Access accessOf(const Tags& tags) {
  // The most precise tag decides.
  for (const char* name : {"motorcar", "motor_vehicle", "vehicle", "access"}) {
    const std::string_view value = tag(tags, name);
    if (value.empty()) continue;
    if (isOneOf(value, {"yes", "designated", "permissive", "official", "public", "unknown"})) {
      return Access::kFree;
    }
    if (isOneOf(value, {"destination", "customers", "delivery", "residents"})) {
      return Access::kDestinationOnly;
    }
    return Access::kNone;
  }
  return isOneOf(tag(tags, "service"), {"bus", "busway"}) ? Access::kNone : Access::kFree;
}

// Whether the way may be driven in either direction is kept in `use`; false when that changes with
// the hour.
bool readDirections(const Tags& tags, RoadUse& use) {
  const std::string_view oneway = tag(tags, "oneway");
  if (isOneOf(oneway, {"reversible", "alternating"})) return false;
  const bool isImplied = isOneOf(tag(tags, "highway"), {"motorway", "motorway_link"}) ||
                         isOneOf(tag(tags, "junction"), {"roundabout", "circular"});
  const bool isTwoWay = isOneOf(oneway, {"no", "false", "0"});
  if (isOneOf(oneway, {"-1", "reverse"})) {
    use.forward = false;
  } else if (isOneOf(oneway, {"yes", "true", "1"}) || (isImplied && !isTwoWay)) {
    use.backward = false;
  }
  return true;
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

}  // namespace

std::optional<RoadUse> carUse(const Tags& tags) {
  const auto* const found =
      std::find_if(kClasses.begin(), kClasses.end(),
                   [&](const RoadClass& each) { return each.name == tag(tags, "highway"); });
  if (found == kClasses.end() || tag(tags, "area") == "yes") return std::nullopt;
  const Access access = accessOf(tags);
  RoadUse use;
  if (access == Access::kNone || !readDirections(tags, use)) return std::nullopt;
  use.destinationOnly = access == Access::kDestinationOnly;
  const bool isYard = isOneOf(tag(tags, "service"), {"parking_aisle", "driveway", "drive-through"});
  const std::uint8_t usual = isYard ? kYardKmPerHour : found->kmPerHour;
  use.kmPerHour = postedKmPerHour(tag(tags, "maxspeed")).value_or(usual);
  return use;
}

}  // namespace wayloom
