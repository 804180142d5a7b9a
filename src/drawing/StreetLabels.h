#pragma once

#include <vector>

#include "drawing/PlaceLabels.h"
#include "drawing/Street.h"
#include "regions/Database.h"

namespace wayloom {

/// Where a street's name or number stands at one zoom.
struct StreetLabel {
  std::string text;
  Street::Kind kind = Street::Kind::kPath;
  double size = 11;
  /// The stretch of the street under the text, from its first letter to its last.
  MapPath path;
};

inline constexpr int kFirstStreetLabelZoom = 13;
inline constexpr int kLastStreetLabelZoom = 18;

/// Chooses where names stand along the streets at each zoom, from kFirstStreetLabelZoom on: on
/// stretches straight enough to read, important streets first, never touching each other or the
/// names of `places`. A name keeps its place from one zoom to the next.
std::vector<std::vector<StreetLabel>> selectStreetLabels(const std::vector<Street>& streets,
                                                         const std::vector<PlaceLabel>& places);

inline constexpr int kFirstShieldZoom = 11;
inline constexpr int kLastShieldZoom = 18;

/// The same for road numbers in level shields, from kFirstShieldZoom on; their paths are level
/// lines as wide as the text.
std::vector<std::vector<StreetLabel>> selectShields(
    const std::vector<Street>& streets, const std::vector<std::vector<StreetLabel>>& names,
    const std::vector<PlaceLabel>& places);

/// Writes the tables road_label and road_shield, one version for each zoom.
Status writeStreetLabels(Database& database, const std::vector<Street>& streets,
                         const std::vector<PlaceLabel>& places);

}  // namespace wayloom
