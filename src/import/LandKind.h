#pragma once

#include "regions/OsmTags.h"

namespace wayloom {

/// How the map shows an area with these tags: `wood`, `park`, `town`, ... as the drawing table
/// `landuse` names them, or `water` or `building`; empty for what it does not show.
std::string_view landKindOf(const OsmTags& tags);

}  // namespace wayloom
