#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "geo/Coordinate.h"

namespace wayloom {

/// One line or polygon of a GeoJSON collection with its plain properties as text.
struct GeoFeature {
  enum class Kind { kLine, kPolygon };

  Kind kind = Kind::kLine;
  /// One line, or the rings of a polygon.
  std::vector<std::vector<Coordinate>> paths;
  std::map<std::string, std::string> properties;

  /// The property's text; empty when the feature has none.
  [[nodiscard]] std::string property(const std::string& name) const;
};

/// Reads the lines and polygons of a feature collection; other geometry is left out. Nothing when
/// the text is not a feature collection or a position is no coordinate.
std::optional<std::vector<GeoFeature>> readGeoJson(const std::string& text);

}  // namespace wayloom
