#pragma once

#include <string>
#include <vector>

#include "regions/GroundGeometry.h"

namespace wayloom {

/// One drawn stretch of a street.
struct NamedWay {
  std::string name;
  /// At least one position.
  Line line;
};

/// Everything that people mean by one street.
struct MergedStreet {
  std::string name;
  std::vector<Line> lines;
  /// A spot on the street near the middle of its extent.
  Coordinate middle;
};

/// Joins stretches of the same name that meet or nearly meet: a street is mapped in many pieces,
/// and two towns may each have one of the same name.
std::vector<MergedStreet> mergeStreets(std::vector<NamedWay> ways);

}  // namespace wayloom
