#pragma once

#include <cmath>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "regions/DrawingShape.h"

namespace wayloom {

/// Things that stand at points of the map, kept in cells, so that only those near a point are
/// looked at. Points lie on the map.
template <typename Thing>
class PointGrid {
 public:
  /// Things are near a point when they are less than `reach` away from it.
  explicit PointGrid(double reach) : mReach(reach) {}

  void add(const MapPoint& point, Thing thing) {
    mCells[cellOf(point)].emplace_back(point, std::move(thing));
  }

  /// Whether the condition holds for one of the things near the point and its distance.
  template <typename Condition>
  bool anyNear(const MapPoint& point, Condition condition) const {
    const auto [column, row] = cellOf(point);
    for (std::int64_t x = column - 1; x <= column + 1; ++x) {
      for (std::int64_t y = row - 1; y <= row + 1; ++y) {
        const auto cell = mCells.find({x, y});
        if (cell == mCells.end()) continue;
        for (const auto& [place, thing] : cell->second) {
          const double distance = std::hypot(place.x - point.x, place.y - point.y);
          if (distance < mReach && condition(thing, distance)) return true;
        }
      }
    }
    return false;
  }

 private:
  using Cell = std::pair<std::int64_t, std::int64_t>;

  Cell cellOf(const MapPoint& point) const {
    return {static_cast<std::int64_t>(std::floor(point.x / mReach)),
            static_cast<std::int64_t>(std::floor(point.y / mReach))};
  }

  double mReach;
  std::map<Cell, std::vector<std::pair<MapPoint, Thing>>> mCells;
};

}  // namespace wayloom
