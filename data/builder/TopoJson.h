#pragma once

#include <optional>
#include <string>
#include <vector>

#include "geo/Coordinate.h"

namespace wayloom {

/// Areas that share their outlines, as read from a TopoJSON topology: an arc stands once, whichever
/// areas it bounds.
struct Topology {
  /// Indexes of arcs, joined end to end; ~i is arc i reversed.
  using Ring = std::vector<int>;
  using Polygon = std::vector<Ring>;
  struct Area {
    std::string id;
    std::string name;
    std::vector<Polygon> polygons;
  };

  std::vector<std::vector<Coordinate>> arcs;
  std::vector<Area> areas;

  /// The points of a ring, each joint once.
  [[nodiscard]] std::vector<Coordinate> outline(const Ring& ring) const;
};

/// Reads the collection `object` of a topology; areas that are neither polygons nor multipolygons
/// are left out. Nothing when the text is not a topology or refers to arcs that it lacks.
std::optional<Topology> readTopoJson(const std::string& text, const std::string& object);

}  // namespace wayloom
