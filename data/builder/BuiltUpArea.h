#pragma once

#include <vector>

#include "drawing/MapGeometry.h"

namespace wayloom {

/// The area that streets fill: around them and across the blocks between, with a soft outline. Data
/// that has streets but no land use thereby still shows where the town is. `cellMetres` is how
/// finely it is sampled, in metres of EPSG:3857.
std::vector<MapPolygon> builtUpArea(const std::vector<MapPath>& streets, double cellMetres);

}  // namespace wayloom
