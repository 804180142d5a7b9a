#pragma once

#include <optional>

#include "regions/OsmTags.h"

namespace wayloom {

/// Who may drive somewhere.
enum class CarAccess { kFree, kDestinationOnly, kNone };

/// What the tags say about cars, the most precise of them deciding; nothing when none speaks of it.
std::optional<CarAccess> carAccess(const OsmTags& tags);

/// Whether the tags of a point on a road are those of a barrier that cars do not pass.
bool stopsCars(const OsmTags& tags);

}  // namespace wayloom
