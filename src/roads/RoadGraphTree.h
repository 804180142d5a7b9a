#pragma once

#include <cstdint>
#include <vector>

#include "regions/RegionFile.h"

namespace wayloom {

/// Finds the edges in a part of the world. Boxes of edges that follow each other are joined into
/// larger boxes, level after level; the order of the edges decides how fast it is, not what it
/// finds. Immutable, so any thread may ask.
class RoadGraphTree {
 public:
  RoadGraphTree() = default;
  /// `boxes` are those of the edges, by number.
  explicit RoadGraphTree(std::vector<RegionBounds> boxes);

  /// The numbers of the edges whose boxes overlap the bounds, in rising order.
  std::vector<std::uint32_t> edgesIn(const RegionBounds& bounds) const;

 private:
  void collect(std::size_t level, std::size_t box, const RegionBounds& bounds,
               std::vector<std::uint32_t>& found) const;

  /// The edges' boxes first, the single box of all last.
  std::vector<std::vector<RegionBounds>> mLevels;
};

}  // namespace wayloom
