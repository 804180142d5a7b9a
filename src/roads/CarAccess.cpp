#include "roads/CarAccess.h"

namespace wayloom {

std::optional<CarAccess> carAccess(const OsmTags& tags) {
  for (const char* name : {"motorcar", "motor_vehicle", "vehicle", "access"}) {
    const std::string_view value = tagOf(tags, name);
    if (value.empty()) continue;
    if (isOneOf(value, {"yes", "designated", "permissive", "official", "public", "unknown"})) {
      return CarAccess::kFree;
    }
    if (isOneOf(value, {"destination", "customers", "delivery", "residents"})) {
      return CarAccess::kDestinationOnly;
    }
    return CarAccess::kNone;
  }
  return std::nullopt;
}

bool stopsCars(const OsmTags& tags) {
  const std::string_view barrier = tagOf(tags, "barrier");
  if (barrier.empty()) return false;
  if (const auto access = carAccess(tags)) return *access == CarAccess::kNone;
  // Gates stand open or are opened; of other barriers few let a car through.
  return !isOneOf(barrier,
                  {"border_control", "cattle_grid", "entrance", "gate", "height_restrictor", "kerb",
                   "lift_gate", "no", "sally_port", "swing_gate", "toll_booth"});
}

}  // namespace wayloom
